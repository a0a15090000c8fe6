// The main menu of slab input, where it differs from that of the layered side.
#include "slab/slab_deck.h"
#include "support/slab_screens.h"
#include "support/text_change.h"

namespace {

class Panform : public SlabScreens {
  protected:
    Panform() { menu = screens.load("frmPANFORM"); }

    void newSlab() {
        choose(*menu, "mnuNew");
        set = singleSlabStore()->slab[1];
    }
    void old(const std::string& path) {
        dialogs.expectFile(FileAnswer{path, 1});
        choose(*menu, "mnuOpen");
    }
    std::string lbl(const std::string& label) { return word("frmPANFORM", label); }
    std::string words() {
        std::string text;
        for (const char* label : {"lblGeneral", "lblCurling", "lblSlab", "lblUniform", "lblRaft",
                                  "lblOptional", "lblFoundation", "lblAdjust", "lblJoint", "lblDamage"})
            text += lbl(label) + " ";
        return text;
    }

    Form* menu;
};

TEST_F(Panform, OpensOnTheFirstDataSetAndColoursAnEmptyStore) {
    screens.unload("frmPANFORM");
    set = SlabSet();
    menu = screens.load("frmPANFORM");
    EXPECT_EQ(menu->caption(), "Main Menu of PANFORM");
    EXPECT_EQ(store.CurrentFile, "road.DAT");
    EXPECT_EQ(store.TableKind, 201);
    EXPECT_EQ(words(), "input! default input! default default defaulr input! input! default default ");
    EXPECT_EQ(lbl("Label1") + lbl("Label2"), "Yes!No");
    EXPECT_EQ(menu->control<StatusLabel>("lblJoint").toolTip(),
              "Joint information including shear transfer, moment transfer, if any, and dowel information");
}

TEST_F(Panform, NewSetsDefaultsOfTheFirstSetAndTheWordsThatItSets) {
    for (const char* label : {"lblGeneral", "lblCurling", "lblUniform", "lblJoint"})
        screens.done("frmPANFORM", label);
    store.GeneralOpens = store.ArrangeVisits = 3;
    store.slab[2].NPY = 9;
    choose(*menu, "mnuNew");
    EXPECT_EQ(words(), "done! default input! input! default default input! default default default ");
    EXPECT_EQ(store.CurrentFile, "Untitled.DAT");
    EXPECT_EQ(caption("frmPANFORM", "lblFile"), "Untitled");
    EXPECT_EQ(store.GeneralOpens + store.ArrangeVisits, 0);
    EXPECT_EQ(store.slab[2].NPY, 9);
    EXPECT_EQ(set.DEL, Variant(.001));
    EXPECT_EQ(store.DataLoaded, 1);
}

/// What else the menus open is seen by the journeys.
TEST_F(Panform, WordsUnderTheMenusOpenTheirTablesFromTheFirstLineOn) {
    newSlab();
    set.NFOUND = -4;
    set.NLG = 5;
    for (const auto& [label, TableKind, lines] :
         {std::tuple("lblUniform", 209, 5), {"lblRaft", 210, 3}, {"lblFoundation", 223, 1}}) {
        store.CurTopRow = store.CurGroup = 20;
        click(*menu, label);
        EXPECT_TRUE(isOpen("frmSpreada"));
        EXPECT_EQ(store.TableKind, TableKind);
        EXPECT_EQ(store.MainLines, lines);
        EXPECT_EQ(store.CurTopRow + store.CurGroup, 1);
    }
    set.NPY = 4;
    click(*menu, "lblAdjust");
    EXPECT_TRUE(isOpen("frmspreadb"));
    EXPECT_EQ(store.TblLines, 4);
}

TEST_F(Panform, MenusRefuseWithoutTheirData) {
    newSlab();
    dialogs.expectBox("You don't have to click this menu because NJOINT = 0");
    click(*menu, "mnuJoint");
    dialogs.expectBox("You don't have to click this menu because NDAMA = 0.");
    click(*menu, "lblDamage");
    EXPECT_TRUE(dialogs.finished());
}

TEST_F(Panform, TheSecondDataSetIsCopiedOnce) {
    newSlab();
    set.NJOINT = 1;
    click(*menu, "optDataSet2");
    EXPECT_EQ(store.slab[2].TITLE, "Single slab");
    EXPECT_EQ(lbl("Label2") + lbl("lblJoint"), "Yes!input!");
    EXPECT_EQ(lbl("lblUniform") + lbl("lblOptional"), "defaultdefaulr") << "its own status is not decided";

    click(*menu, "optDataSet1");
    EXPECT_EQ(lbl("lblUniform"), "input!");
    set.TITLE = "Changed";
    click(*menu, "optDataSet2");
    EXPECT_EQ(store.slab[2].TITLE, "Single slab");

    // A deck of one set brings the number back: the next click counts on, without copy and without words.
    saveSlabDeck(*singleSlabStore(), directory.path() + "one.DAT");
    old(directory.path() + "one.DAT");
    EXPECT_EQ(store.CurSlabDS, 2) << "reading leaves the choice of data set";
    screens.done("frmPANFORM", "lblJoint");
    set.TITLE = "From disk";
    click(*menu, "optDataSet2");
    EXPECT_EQ(store.SlabNPROB, Variant(2));
    EXPECT_EQ(store.slab[2].TITLE + lbl("lblJoint"), "Single slabdone");

    newSlab();  // a new file counts anew
    set.TITLE = "New";
    click(*menu, "optDataSet2");
    EXPECT_EQ(store.slab[2].TITLE, "New");
}

TEST_F(Panform, OldReadsADeckAndTellsTheMainScreen) {
    const TemporaryDirectory elsewhere;
    auto deck = singleSlabStore();
    deck->SlabNPROB = 2;
    copyToDataSet2(*deck);
    deck->slab[1].NTEMP = 1;
    saveSlabDeck(*deck, elsewhere.path() + "Slab.dat");
    old(elsewhere.path() + "Slab.dat");
    EXPECT_EQ(caption("frmPANFORM", "lblFile"), "Slab");
    EXPECT_EQ(lbl("Label2") + lbl("lblCurling") + lbl("lblUniform"), "Yes!input!input!");
    EXPECT_EQ(mainBox("cmbDataPath") + mainBox("cmbFileName"), elsewhere.path() + "Slab.dat");
    click(*menu, "optDataSet2");
    EXPECT_EQ(store.slab[2].TITLE, "Single slab");

    elsewhere.write("wrong.dat", replaced(elsewhere.read("Slab.dat"), "(9)", "(8)"));
    dialogs.expectBox("Input file is wrong.  Please click File & Old again and select a different file.");
    old(elsewhere.path() + "wrong.dat");
    EXPECT_EQ(store.DataLoaded, 0);
}

TEST_F(Panform, SaveChecksTheFirstDataSetAndTellsEveryLimitOfARaft) {
    choose(*menu, "mnuNew");
    click(*menu, "optDataSet2");
    dialogs.expectBox("You forgot to enter NX or NY by clicking Slab\\Arrangement menu.");
    click(*menu, "cmdSave");
    EXPECT_EQ(store.CurSlabDS, 1);
    EXPECT_TRUE(menu->control<OptionButton>("optDataSet2").value()) << "the button still shows it: kept";
    EXPECT_FALSE(std::filesystem::exists(directory.path() + "Untitled.DAT"));

    newSlab();
    set.NCNF = 1;
    set.NPY = set.NLG = 2;
    for (const std::string& message : ErrCheck(store)) dialogs.expectBox(message);
    click(*menu, "cmdSave");
    EXPECT_TRUE(dialogs.finished());
}

TEST_F(Panform, ExitAsksAfterEveryMenuButDamage) {
    newSlab();
    set.NDAMA = 1;
    dialogs.expectBox("File with a filename of Untitled.DAT has been saved");
    click(*menu, "cmdSave");
    click(*menu, "mnuDamage");
    click(*menu, "cmdExit");
    EXPECT_FALSE(isOpen("frmPANFORM")) << "its changes are lost without a question: kept";
    EXPECT_TRUE(std::filesystem::exists(directory.path() + "Untitled.DAT"));
}

}  // namespace
