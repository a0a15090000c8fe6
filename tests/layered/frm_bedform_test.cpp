// The main menu of layered input: menus, data sets, reading and saving.
#include <gmock/gmock.h>

#include "layered/layered_deck.h"
#include "layered/layered_rules.h"
#include "support/example_files.h"
#include "support/layered_screens.h"
#include "support/layered_stores.h"
#include "support/text_change.h"

namespace {

using testing::ElementsAre;

class Bedform : public LayeredScreens {
  protected:
    Bedform() {
        std::filesystem::create_directory(away);
        menu = screens.load("frmBEDFORM");
    }

    /// Captions with "|" between them.
    std::string captions(const std::vector<std::string>& names) {
        std::string all;
        for (const std::string& name : names)
            all += (all.empty() ? "" : "|") + menu->control<Label>(name).caption();
        return all;
    }
    std::string mainBoxes() { return mainBox("cmbDataPath") + mainBox("cmbFileName"); }
    bool isOpen() const { return screens.loaded("frmBEDFORM") != nullptr; }

    /// A new file with what a save asks for.
    void newRoad() {
        choose(*menu, "mnuNew");
        store.layered[1] = threeLayerStore()->layered[1];
    }
    void save(const std::string& name) {
        dialogs.expectBox("File with a filename of " + name + " has been saved");
        click(*menu, "cmdSave");
    }
    void expectQuestion(Answer answer) {
        dialogs.expectBox("You have not save the file.  Do you want to save the file?", Buttons::YesNoCancel,
                          answer);
    }
    /// A deck of that many sets in the data directory.
    void writeDeck(const std::string& name, Integer sets = 1, const std::string& title = "Three layers") {
        auto deck = threeLayerStore();
        deck->layered[1].TITLE = title;
        deck->NPROB = sets;
        for (int n = 2; n <= sets; ++n) deck->layered[n] = deck->layered[1];
        saveLayeredDeck(*deck, directory.path() + name);
    }
    /// Of a deck in the data directory.
    std::string titleIn(const std::string& name) {
        const std::string deck = directory.read(name);
        return deck.substr(0, deck.find("\r\n 1  0")).substr(deck.find('\n') + 1);
    }
    void answerDialog(const std::optional<std::string>& path) {
        dialogs.expectFile(path ? std::optional(FileAnswer{*path, 1}) : std::nullopt);
    }
    void old(const std::optional<std::string>& path) {
        answerDialog(path);
        choose(*menu, "mnuOpen");
    }
    void saveAs(const std::optional<std::string>& path) {
        answerDialog(path);
        click(*menu, "cmdSaveAs");
    }
    const std::string away = directory.path() + "away/";
    Form* menu;
    LayeredSet& set = store.layered[1];
};

TEST_F(Bedform, MenusRefuseWhatTheDataSetHasNoUseFor) {
    const struct {
        const char* control;
        void (*spoil)(LayeredSet&);
        const char* refusal;
    } cases[] = {
        {"mnuZcoord", [](LayeredSet& s) { s.NDAMA = 1; },
         "You don't have to click this menu because NZ = 0 or NDAMA=1 or 2."},
        {"mnuZcoord", [](LayeredSet& s) { s.NZ = 1e6F; }, "Overflow"},
        {"mnuLayer", [](LayeredSet& s) { s.NL = 0; }, "NL in the 'General' menu is 0"},
        {"lblInterface", [](LayeredSet&) {}, "You don't have to click this menu because NBOND = 1"},
        {"mnuModuli", [](LayeredSet& s) { s.NL = 0; }, "NL = 0 in the 'General' menu."},
        {"mnuNonlinear", [](LayeredSet& s) { s.MATL = 3; },
         "You don't have to click this menu because there are no nonlinear layers"},
        {"mnuViscoelastic", [](LayeredSet& s) { s.MATL = 2; },
         "You don't have to click this menu because there are no viscoelastic layers"},
        {"lblDamage", [](LayeredSet&) {}, "You don't have to click this menu because NDAMA = 0."},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.refusal);
        dialogs.expectBox("No data file has been loaded.");
        click(*menu, c.control);
        newRoad();
        c.spoil(set);
        dialogs.expectBox(c.refusal);
        click(*menu, c.control);
        EXPECT_TRUE(dialogs.finished());
        EXPECT_EQ(screens.loaded("frmspreadb"), nullptr);
        store.DataLoaded = 0;
    }
    click(*menu, "mnuMohr");
    EXPECT_NE(screens.loaded("frmMohr"), nullptr) << "needs no file";
}

TEST_F(Bedform, WordsStandUnderTheirMenusAndEntriesDropDown) {
    const QRect word = menu->control<StatusLabel>("lblDamage").geometry();
    const QRect entry = menu->control<MenuButton>("mnuDamage").geometry();
    EXPECT_NEAR(word.center().x(), entry.center().x(), 1);
    EXPECT_GT(word.top(), entry.bottom());
    QTimer::singleShot(0, [] { QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_N); });
    click(*menu, "mnuFile");
    EXPECT_EQ(store.NewFile, 1);
}

/// What the menus open is seen by the journeys.
TEST_F(Bedform, MenusOpenTheirTablesFromTheFirstLineOn) {
    newRoad();
    click(*menu, "optDataSet2");
    store.layered[2].NBOND = 2;
    click(*menu, "lblInterface");
    EXPECT_EQ(store.TableKind, 105);
    EXPECT_EQ(store.TblLines, 2) << "between three layers";
    store.CurGroup = store.CurTopRow = 20;
    click(*menu, "lblLoad1");
    EXPECT_EQ(store.CurTopRow, 1);
    EXPECT_EQ(store.CurGroup, 0);
}

TEST_F(Bedform, NewSetsDefaultsAndLeavesButtonsAndDoneWords) {
    EXPECT_EQ(store.CurrentFile, "road.DAT") << "the name of the main screen";
    EXPECT_EQ(captions({"lblFile"}), "input");
    click(*menu, "optDataSet2");
    screens.done("frmBEDFORM", "lblLayer");
    screens.done("frmBEDFORM", "lblDamage");
    store.GeneralVisits = 4;
    choose(*menu, "mnuNew");
    EXPECT_EQ(store.CurrentFile, "UNTITLED.DAT");
    EXPECT_EQ(captions({"lblFile", "lblLayer", "lblDamage"}), "Untitled|done|default");
    EXPECT_TRUE(menu->control<OptionButton>("optDataSet2").value());
    EXPECT_THAT((std::vector<int>{store.CurLayDS, store.NPROB, store.NewFile, store.GeneralVisits}),
                ElementsAre(1, 1, 1, 0));
    EXPECT_EQ(store.layered[5].ICL, 80);
}

TEST_F(Bedform, ADataSetIsMadeOnceAsACopyOfTheFirst) {
    newRoad();
    click(*menu, "optDataSet3");
    EXPECT_THAT((std::vector<int>{store.NPROB, store.CurLayDS}), ElementsAre(3, 3));
    EXPECT_EQ(store.layered[3].LAYER[2].TH, Variant(8));
    EXPECT_EQ(store.layered[2].TITLE, "") << "skipped, and in the deck all the same";
    EXPECT_EQ(captions({"Label2", "Label3"}), "No|Yes");

    store.layered[3].NDAMA = 2;
    click(*menu, "optDataSet1");
    EXPECT_EQ(captions({"lblDamage"}), "default");
    click(*menu, "optDataSet3");
    EXPECT_EQ(captions({"lblDamage"}), "input");

    newRoad();
    click(*menu, "optDataSet3");
    EXPECT_EQ(store.layered[3].NDAMA, 0) << "another new file";

    writeDeck("one.DAT", 1, "From disk");
    old(directory.path() + "one.DAT");
    EXPECT_EQ(store.CurLayDS, 3) << "reading leaves the choice of data set";
    click(*menu, "optDataSet3");  // selected already, and a click all the same
    EXPECT_EQ(store.NPROB, 3);
    EXPECT_EQ(store.layered[3].TITLE, "Three layers") << "the visit before the reading counts";
}

TEST_F(Bedform, OldReadsADeckAndTellsTheMainScreen) {
    writeDeck("away/Road.dat", 3);
    writeDeck("away/one.dat");
    newRoad();
    screens.done("frmBEDFORM", "lblZcoord");
    store.GeneralVisits = 4;
    old(away + "Road.dat");
    EXPECT_EQ(dialogs.lastFileQuestion.name, directory.path() + "UNTITLED.DAT");
    EXPECT_EQ(dialogs.lastFileQuestion.filter, "Data Files (*.DAT)|*.DAT|");
    EXPECT_EQ(captions({"lblFile", "lblZcoord", "Label3"}), "Road|input|Yes");
    EXPECT_EQ(mainBoxes(), away + "Road.dat");
    EXPECT_EQ(store.NewFile, 0);
    EXPECT_EQ(store.GeneralVisits, 0);
    EXPECT_EQ(store.CurrentFile, "UNTITLED.DAT") << "the next dialog proposes the name from before";
    old(away + "one.dat");
    EXPECT_EQ(captions({"Label3"}), "Yes") << "of the deck before: kept";
}

TEST_F(Bedform, AnOldDosDeckIsToldWhatBecomesOfItsGranularLayers) {
    directory.write("linear.DAT", replaced(example("BED1.DAT"), ") DEL", ")"));
    old(directory.path() + "linear.DAT");
    directory.write("dos.DAT", replaced(example("BED2.DAT"), ") DEL", ")"));
    dialogs.expectBox(
        "When converting an old DOS data file to the new format , EMIN for granular material is no longer "
        "needed and is replaced by a default angle of internal friction (PHI) of 0 signifying that no "
        "tension is allowed.  If you don't want to use this default, be sure to change it before saving the "
        "file");
    old(directory.path() + "dos.DAT");
}

TEST_F(Bedform, ACancelledOldReadsTheFileThatItHas) {
    writeDeck("road.dat", 1, "First");
    old(directory.path() + "road.dat");
    writeDeck("road.dat", 1, "Second");
    old(std::nullopt);
    EXPECT_EQ(set.TITLE, "Second");

    choose(*menu, "mnuNew");
    old("road.dat");  // needs a full name
    EXPECT_EQ(store.NewFile, 1);
    EXPECT_EQ(captions({"lblFile"}), "Untitled");
    old(std::nullopt);  // UNTITLED.DAT of the data directory, which is not there
    EXPECT_EQ(store.NewFile, 0);
    EXPECT_EQ(store.DataLoaded, 1);
    EXPECT_EQ(captions({"lblFile"}), "UNTITLED");
}

TEST_F(Bedform, AFileThatIsNoLayeredDeckUnloadsAndABrokenOneStaysAsFarAsRead) {
    writeDeck("road.dat");
    const std::string deck = directory.read("road.dat");
    directory.write("wrong.dat", replaced(deck, "(9)", "(8)"));
    directory.write("broken.dat", deck.substr(0, deck.find("(11)")));
    newRoad();
    dialogs.expectBox("Input file is wrong.  Please click File & Old again and select a different file.");
    old(directory.path() + "wrong.dat");
    EXPECT_EQ(store.DataLoaded, 0);
    EXPECT_EQ(captions({"lblFile"}), "Untitled");

    choose(*menu, "mnuNew");
    screens.done("frmBEDFORM", "lblZcoord");
    old(directory.path() + "broken.dat");
    EXPECT_EQ(store.DataLoaded, 1);
    EXPECT_EQ(captions({"lblFile", "lblZcoord"}), "broken|done") << "the words are left alone";
    EXPECT_EQ(set.TITLE, "Three layers");
}

TEST_F(Bedform, SaveWritesANewFileInTheDataDirectoryAndAnOldOneWhereItWas) {
    newRoad();
    save("UNTITLED.DAT");
    EXPECT_EQ(titleIn("UNTITLED.DAT"), "Three layers");
    EXPECT_EQ(mainBox("cmbFileName"), "UNTITLED.DAT");
    main->control<ComboBox>("cmbDataPath").setTextValue(away);
    save("UNTITLED.DAT");
    EXPECT_EQ(titleIn("away/UNTITLED.DAT"), "Three layers");
    click(*menu, "cmdExit");  // nobody asks
    EXPECT_FALSE(isOpen());

    menu = screens.load("frmBEDFORM");
    writeDeck("away/Road.dat");
    old(away + "Road.dat");
    set.TITLE = "Changed";
    save("Road.dat");
    EXPECT_EQ(titleIn("away/Road.dat"), "Changed") << "letter case and all";
    EXPECT_EQ(mainBox("cmbFileName"), "Road.dat");
}

TEST_F(Bedform, AFailedSaveIsToldAndLeavesTheOldDeckWhole) {
    newRoad();
    save("UNTITLED.DAT");
    dialogs.expectBox("You don't have to click this menu because NDAMA = 0.");
    click(*menu, "lblDamage");  // counts as a change
    const std::string before = directory.read("UNTITLED.DAT");
    set.LOADL[1].NR = "";
    expectQuestion(Answer::Yes);
    dialogs.expectBox("Type mismatch: NR(1), card (16), data set 1");
    click(*menu, "cmdExit");
    EXPECT_EQ(directory.read("UNTITLED.DAT"), before);
    EXPECT_TRUE(isOpen()) << "what could not be saved is not given up";
}

TEST_F(Bedform, SaveAsMovesToTheChosenDirectory) {
    newRoad();
    store.DataPaths[1] = directory.path();
    dialogs.expectBox("File with a filename of tandem.DAT has been saved");
    saveAs(away + "tandem");
    EXPECT_EQ(dialogs.lastFileQuestion.action, FileQuestion::Action::Save);
    EXPECT_EQ(dialogs.lastFileQuestion.name, "UNTITLED.DAT");
    EXPECT_EQ(dialogs.lastFileQuestion.directory, directory.path());
    EXPECT_EQ(titleIn("away/tandem.DAT"), "Three layers");
    EXPECT_EQ(captions({"lblFile"}), "tandem");
    EXPECT_EQ(store.CurrentFile, "tandem.DAT");
    EXPECT_EQ(mainBoxes(), away + "tandem.DAT");
    EXPECT_EQ(main->control<ComboBox>("cmbDataPath").listText(0), away);

    main->control<ComboBox>("cmbDataPath").setTextValue(directory.path());  // the user moved on meanwhile
    dialogs.expectBox("File with a filename of tandem.DAT has been saved");
    saveAs(std::nullopt);  // cancelled: saved under the present name
    EXPECT_EQ(titleIn("tandem.DAT"), "Three layers");

    saveAs(directory.path() + "missing/road.DAT");  // fails in silence
}

TEST_F(Bedform, ExitAndFrameAskTheSame) {
    const std::function<void()> ways[] = {[&] { click(*menu, "cmdExit"); }, [&] { menu->close(); }};
    for (const auto& leave : ways) {
        menu = screens.load("frmBEDFORM");
        expectQuestion(Answer::Yes);
        dialogs.expectBox("You forgot to enter the layer thickness by clicking the Layer menu.");
        leave();  // nothing was opened, so nothing is there
        EXPECT_TRUE(isOpen());

        newRoad();
        expectQuestion(Answer::Cancel);
        leave();
        EXPECT_TRUE(isOpen());
        EXPECT_EQ(store.DataLoaded, 1);

        expectQuestion(Answer::No);
        leave();
        EXPECT_FALSE(isOpen());
        EXPECT_EQ(store.DataLoaded, 0);
        EXPECT_EQ(directory.read("UNTITLED.DAT"), "");
        store.layered[1] = {};
    }
}

}  // namespace
