// The main menu of slab input: where it differs from that of the layered side, and
// that it does what both share.
#include "slab/slab_deck.h"
#include "support/slab_screens.h"
#include "support/text_change.h"

namespace {

const char* const noNodes = "You forgot to enter NX or NY by clicking Slab\\Arrangement menu.";
const char* const question = "You have not save the file.  Do you want to save the file?";

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
    void save() {
        dialogs.expectBox("File with a filename of Untitled.DAT has been saved");
        click(*menu, "cmdSave");
    }
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
    EXPECT_EQ(
        menu->control<StatusLabel>("lblOptional").toolTip(),
        "Other optional information including variable thicknesses, symmetry, printout, and dowel bars");
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

struct MenuCase {
    const char *menu, *label, *form;
    const char* selected;  ///< kind, lines and columns of the table, and where it starts
    void (*prepare)(SlabSet& s) = [](SlabSet&) {};
};

const MenuCase menuCases[] = {
    {"mnuGeneral", "lblGeneral", "frmGeneral", "2"},
    {"mnuCurling", "lblCurling", "frmCurling", "204"},
    {"mnuSlab", "lblSlab", "frmSlabData", ""},
    {"mnuUniform", "lblUniform", "frmSpreada", "209 5x2 from 1", [](SlabSet& s) { s.NLG = 5; }},
    {"mnuRaft", "lblRaft", "frmSpreada", "210 3x2 from 1"},
    {"mnuOptional", "lblOptional", "frmOptional", "211"},
    {"mnuFoundation", "lblFoundation", "frmSpreada", "221 1x3 from 1"},
    {"mnuFoundation", "lblFoundation", "frmSolid", "", [](SlabSet& s) { s.NFOUND = 1; }},
    {"mnuFoundation", "lblFoundation", "frmSpreada", "223 1x3 from 1", [](SlabSet& s) { s.NFOUND = -4; }},
    {"mnuAdjust", "lblAdjust", "frmspreadb", "220 4x2", [](SlabSet& s) { s.NPY = 4; }},
    {"mnuJoint", "lblJoint", "frmSpread1", "224 2x9 from 1", [](SlabSet& s) { s.NJOINT = 2; }},
    {"mnuDamage", "lblDamage", "frmDamage", "", [](SlabSet& s) { s.NDAMA = 1; }},
};

TEST_F(Panform, MenusAndTheirWordsOpenTheirForms) {
    for (const MenuCase& c : menuCases) {
        for (const char* control : {c.menu, c.label}) {
            SCOPED_TRACE(control);
            newSlab();
            c.prepare(set);
            store.CurTopRow = store.CurGroup = 20;
            click(*menu, control);
            EXPECT_TRUE(isOpen(c.form));
            const auto size = [](int lines, int cols) {
                return " " + std::to_string(lines) + "x" + std::to_string(cols);
            };
            std::string selected = std::to_string(store.TableKind);
            if (c.form == std::string("frmspreadb")) selected += size(store.TblLines, store.GridCols);
            if (std::string(c.form).starts_with("frmSpread"))
                selected += size(store.MainLines, store.MainCols) + " from " +
                            std::to_string(store.CurTopRow + store.CurGroup);
            EXPECT_TRUE(!*c.selected || selected == c.selected) << selected;
            screens.unload(c.form);
        }
    }
}

TEST_F(Panform, MenusRefuseWithoutAFileAndWithoutTheirData) {
    for (const MenuCase& c : menuCases) {
        dialogs.expectBox("No data file has been loaded.");
        click(*menu, c.menu);
    }
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
    EXPECT_EQ(store.SlabNPROB, Variant(2));
    EXPECT_EQ(lbl("Label2"), "Yes!");
    EXPECT_EQ(store.slab[2].TITLE, "Single slab");
    EXPECT_EQ(lbl("lblJoint"), "input!");
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
    store.CurrentFile = "";
    old(elsewhere.path() + "Slab.dat");
    EXPECT_EQ(dialogs.lastFileQuestion.name, "");
    EXPECT_EQ(caption("frmPANFORM", "lblFile"), "Slab");
    EXPECT_EQ(lbl("Label2"), "Yes!");
    EXPECT_EQ(lbl("lblCurling") + lbl("lblUniform"), "input!input!");
    EXPECT_EQ(mainBox("cmbDataPath"), elsewhere.path());
    EXPECT_EQ(mainBox("cmbFileName"), "Slab.dat");
    EXPECT_EQ(store.NewFile, 0);
    click(*menu, "optDataSet2");
    EXPECT_EQ(store.slab[2].TITLE, "Single slab");

    // Cut off in the middle: as far as it was read, without a word.
    const std::string text = elsewhere.read("Slab.dat");
    elsewhere.write("half.dat", text.substr(0, text.find("(10)")));
    screens.done("frmPANFORM", "lblCurling");
    old(elsewhere.path() + "half.dat");
    EXPECT_EQ(caption("frmPANFORM", "lblFile") + " " + lbl("lblCurling"), "half done");
    EXPECT_EQ(store.DataLoaded, 1);

    elsewhere.write("wrong.dat", replaced(text, "(9)", "(8)"));
    dialogs.expectBox("Input file is wrong.  Please click File & Old again and select a different file.");
    old(elsewhere.path() + "wrong.dat");
    EXPECT_EQ(caption("frmPANFORM", "lblFile"), "half");
    EXPECT_EQ(store.DataLoaded, 0);
}

TEST_F(Panform, SaveChecksTheFirstDataSetAndTellsEveryLimitOfARaft) {
    choose(*menu, "mnuNew");
    click(*menu, "optDataSet2");
    dialogs.expectBox(noNodes);
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

TEST_F(Panform, SavesUnderItsOwnNameWhateverStandsOnTheMainScreen) {
    newSlab();
    main->control<ComboBox>("cmbFileName").setTextValue("other.DAT");
    save();
    Store read;
    EXPECT_EQ(readSlabDeck(directory.path() + "Untitled.DAT", read).outcome,
              DeckReadResult::Outcome::Complete);
    EXPECT_EQ(mainBox("cmbFileName"), "Untitled.DAT");

    dialogs.expectFile(FileAnswer{directory.path() + "slab1", 1});
    dialogs.expectBox("File with a filename of slab1.DAT has been saved");
    click(*menu, "cmdSaveAs");
    EXPECT_EQ(caption("frmPANFORM", "lblFile"), "slab1");
    EXPECT_EQ(store.CurrentFile, "slab1.DAT");
    EXPECT_TRUE(std::filesystem::exists(directory.path() + "slab1.DAT"));
}

TEST_F(Panform, ExitAsksAfterEveryMenuButDamage) {
    newSlab();
    set.NDAMA = 1;
    save();
    click(*menu, "mnuDamage");
    click(*menu, "cmdExit");
    EXPECT_EQ(screens.loaded("frmPANFORM"), nullptr) << "its changes are lost without a question: kept";

    menu = screens.load("frmPANFORM");
    for (const Answer answer : {Answer::Cancel, Answer::Yes}) {
        dialogs.expectBox(question, Buttons::YesNoCancel, answer);
        if (answer == Answer::Yes) dialogs.expectBox(noNodes);
        set.SLAB[1].NX = 0;
        click(*menu, "cmdExit");
        EXPECT_NE(screens.loaded("frmPANFORM"), nullptr);
    }
    newSlab();
    save();
    click(*menu, "mnuRaft");
    dialogs.expectBox(question, Buttons::YesNoCancel, Answer::No);
    menu->close();
    EXPECT_EQ(screens.loaded("frmPANFORM"), nullptr) << "by its frame as by its Exit";
    EXPECT_EQ(store.DataLoaded, 0);
}

}  // namespace
