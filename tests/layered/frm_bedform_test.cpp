// The main menu of layered input: menus, data sets, reading and saving.
#include <gmock/gmock.h>

#include "layered/layered_deck.h"
#include "layered/layered_rules.h"
#include "support/example_files.h"
#include "support/layered_screens.h"
#include "support/layered_stores.h"
#include "support/text_change.h"

namespace {

const char* const question = "You have not save the file.  Do you want to save the file?";

std::string saved(const std::string& name) { return "File with a filename of " + name + " has been saved"; }

class Bedform : public LayeredScreens {
  protected:
    Bedform() {
        std::filesystem::create_directory(away);
        menu = screens.load("frmBEDFORM");
    }

    StatusLabel& label(const std::string& name) { return menu->control<StatusLabel>(name); }
    std::string caption(const std::string& name) { return menu->control<Label>(name).caption(); }
    /// Several captions, with "|" between them.
    std::string captions(const std::vector<const char*>& names) {
        std::string all;
        for (const char* name : names) all += (all.empty() ? "" : "|") + caption(name);
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
        dialogs.expectBox(saved(name));
        click(*menu, "cmdSave");
    }
    void expectQuestion(Answer answer) { dialogs.expectBox(question, Buttons::YesNoCancel, answer); }
    /// A deck of that many sets in the data directory.
    void writeDeck(const std::string& name, Integer sets = 1, const std::string& title = "Three layers") {
        auto deck = threeLayerStore();
        deck->layered[1].TITLE = title;
        deck->NPROB = sets;
        for (int n = 2; n <= sets; ++n) deck->layered[n] = deck->layered[1];
        saveLayeredDeck(*deck, directory.path() + name);
    }
    std::string titleInDeck(const std::string& path) {
        Store read;
        readLayeredDeck(path, read);
        return read.layered[1].TITLE;
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

struct RefusedCase {
    const char* control;
    void (*spoil)(LayeredSet&);
    const char* refusal;
};

const RefusedCase refusedCases[] = {
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

TEST_F(Bedform, MenusRefuseWhatTheDataSetHasNoUseFor) {
    for (const RefusedCase& c : refusedCases) {
        SCOPED_TRACE(c.refusal);
        dialogs.expectBox("No data file has been loaded.");
        click(*menu, c.control);
        EXPECT_TRUE(dialogs.finished());
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
    for (const char* name : {"File", "Zcoord", "Damage"}) {
        const QRect word = label(std::string("lbl") + name).geometry();
        const QRect entry = menu->control<MenuButton>(std::string("mnu") + name).geometry();
        EXPECT_NEAR(word.center().x(), entry.center().x(), 1) << name;
        EXPECT_GT(word.top(), entry.bottom()) << name;
    }
    QTimer::singleShot(0, [] {
        QWidget* entries = QApplication::activePopupWidget();
        ASSERT_NE(entries, nullptr);
        QTest::keyClick(entries, Qt::Key_N);
    });
    click(*menu, "mnuFile");
    EXPECT_EQ(store.NewFile, 1);
}

/// What the menus open is seen by the journeys.
TEST_F(Bedform, MenusOpenTheirTablesFromTheFirstLineOn) {
    newRoad();
    set.NDAMA = -1;
    click(*menu, "lblZcoord");
    EXPECT_NE(screens.loaded("frmspreadb"), nullptr);
    EXPECT_EQ(store.TableKind, 103);
    set.NBOND = 2;
    click(*menu, "mnuInterface");
    EXPECT_EQ(store.TableKind, 105);
    EXPECT_EQ(store.TblLines, 2) << "between three layers";
    store.CurGroup = 3;
    store.CurTopRow = 20;
    click(*menu, "lblLoad1");
    EXPECT_EQ(store.CurTopRow, 1);
    EXPECT_EQ(store.CurGroup, 0);
}

TEST_F(Bedform, NewSetsDefaultsAndLeavesButtonsAndDoneWords) {
    EXPECT_EQ(store.CurrentFile, "road.DAT") << "the name of the main screen";
    EXPECT_EQ(caption("lblFile"), "input");
    click(*menu, "optDataSet2");
    screens.done("frmBEDFORM", "lblLayer");
    screens.done("frmBEDFORM", "lblDamage");
    store.GeneralVisits = 4;
    choose(*menu, "mnuNew");
    EXPECT_EQ(store.CurrentFile, "UNTITLED.DAT");
    EXPECT_EQ(captions({"lblFile", "lblLayer", "lblDamage"}), "Untitled|done|default");
    EXPECT_TRUE(menu->control<OptionButton>("optDataSet2").value());
    EXPECT_EQ(store.CurLayDS, 1);
    EXPECT_EQ(store.NPROB, 1);
    EXPECT_EQ(store.NewFile, 1);
    EXPECT_EQ(store.GeneralVisits, 0);
    EXPECT_EQ(store.layered[5].ICL, 80);
}

TEST_F(Bedform, ADataSetIsMadeOnceAsACopyOfTheFirst) {
    newRoad();
    click(*menu, "optDataSet3");
    EXPECT_EQ(store.NPROB, 3);
    EXPECT_EQ(store.CurLayDS, 3);
    EXPECT_EQ(store.layered[3].LAYER[2].TH, Variant(8));
    EXPECT_EQ(store.layered[2].TITLE, "") << "skipped, and in the deck all the same";
    EXPECT_EQ(captions({"Label2", "Label3"}), "No|Yes");

    set.LAYER[2].TH = 9;
    store.layered[3].NDAMA = 2;
    click(*menu, "optDataSet1");
    EXPECT_EQ(caption("lblDamage"), "default");
    click(*menu, "optDataSet3");
    EXPECT_EQ(store.layered[3].LAYER[2].TH, Variant(8)) << "not copied again";
    EXPECT_EQ(caption("lblDamage"), "input");

    newRoad();
    click(*menu, "optDataSet3");
    EXPECT_EQ(store.layered[3].TITLE, "Three layers") << "another new file";

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
    EXPECT_EQ(store.DataLoaded, 1);
    EXPECT_EQ(store.GeneralVisits, 0);
    EXPECT_EQ(store.CurrentFile, "UNTITLED.DAT") << "the next dialog proposes the name from before";
    old(away + "one.dat");
    EXPECT_EQ(caption("Label3"), "Yes") << "of the deck before: kept";
}

TEST_F(Bedform, AnOldDosDeckIsToldWhatBecomesOfItsGranularLayers) {
    std::string deck = example("BED2.DAT");
    for (const char* label : {"DEL", "NL NZ ICL NSTD NUNIT", "RELAX"})
        deck = replaced(deck, std::string(") ") + label, ")");
    directory.write("dos.DAT", deck);
    dialogs.expectBox(
        "When converting an old DOS data file to the new format , EMIN for granular material is no longer "
        "needed and is replaced by a default angle of internal friction (PHI) of 0 signifying that no "
        "tension is allowed.  If you don't want to use this default, be sure to change it before saving the "
        "file");
    old(directory.path() + "dos.DAT");
}

TEST_F(Bedform, ACancelledOldReadsTheFileThatItHas) {
    old(std::nullopt);  // a fresh menu: the data directory stays
    EXPECT_EQ(store.cmbDirectory, directory.path());
    EXPECT_EQ(store.DataLoaded, 1);
    writeDeck("road.dat", 1, "First");
    old(directory.path() + "road.dat");
    writeDeck("road.dat", 1, "Second");
    old(std::nullopt);
    EXPECT_EQ(set.TITLE, "Second");

    choose(*menu, "mnuNew");
    old("road.dat");  // needs a full name
    EXPECT_EQ(store.NewFile, 1);
    EXPECT_EQ(caption("lblFile"), "Untitled");
    old(std::nullopt);  // UNTITLED.DAT of the data directory, which is not there
    EXPECT_EQ(store.NewFile, 0);
    EXPECT_EQ(store.DataLoaded, 1);
    EXPECT_EQ(caption("lblFile"), "UNTITLED");
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
    EXPECT_EQ(caption("lblFile"), "Untitled");

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
    EXPECT_EQ(titleInDeck(directory.path() + "UNTITLED.DAT"), "Three layers");
    EXPECT_EQ(mainBox("cmbFileName"), "UNTITLED.DAT");
    main->control<ComboBox>("cmbDataPath").setTextValue(away);
    save("UNTITLED.DAT");
    EXPECT_EQ(titleInDeck(away + "UNTITLED.DAT"), "Three layers");
    click(*menu, "cmdExit");  // nobody asks
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(store.DataLoaded, 0);

    menu = screens.load("frmBEDFORM");
    writeDeck("away/Road.dat");
    old(away + "Road.dat");
    set.TITLE = "Changed";
    save("Road.dat");
    EXPECT_EQ(titleInDeck(away + "Road.dat"), "Changed") << "letter case and all";
    EXPECT_EQ(mainBox("cmbFileName"), "Road.dat");
}

TEST_F(Bedform, AFailedSaveIsToldAndLeavesTheOldDeckWhole) {
    newRoad();
    save("UNTITLED.DAT");
    dialogs.expectBox("You don't have to click this menu because NDAMA = 0.");
    click(*menu, "lblDamage");  // counts as a change
    const std::string before = directory.read("UNTITLED.DAT");
    set.LOADL[1].NR = "";
    const std::string failure = "Type mismatch: NR(1), card (16), data set 1";
    dialogs.expectBox(failure);
    click(*menu, "cmdSave");
    EXPECT_EQ(directory.read("UNTITLED.DAT"), before);
    expectQuestion(Answer::Yes);
    dialogs.expectBox(failure);
    click(*menu, "cmdExit");
    EXPECT_TRUE(isOpen()) << "what could not be saved is not given up";
}

TEST_F(Bedform, SaveAsMovesToTheChosenDirectory) {
    newRoad();
    store.DataPaths[1] = directory.path();
    dialogs.expectBox(saved("tandem.DAT"));
    saveAs(away + "tandem");
    EXPECT_EQ(dialogs.lastFileQuestion.action, FileQuestion::Action::Save);
    EXPECT_EQ(dialogs.lastFileQuestion.name, "UNTITLED.DAT");
    EXPECT_EQ(dialogs.lastFileQuestion.directory, directory.path());
    EXPECT_EQ(titleInDeck(away + "tandem.DAT"), "Three layers");
    EXPECT_EQ(caption("lblFile"), "tandem");
    EXPECT_EQ(store.CurrentFile, "tandem.DAT");
    EXPECT_EQ(mainBoxes(), away + "tandem.DAT");
    EXPECT_EQ(main->control<ComboBox>("cmbDataPath").listText(0), away);

    main->control<ComboBox>("cmbDataPath").setTextValue(directory.path());  // the user moved on meanwhile
    dialogs.expectBox(saved("tandem.DAT"));
    saveAs(std::nullopt);  // cancelled: saved under the present name
    EXPECT_EQ(dialogs.lastFileQuestion.directory, directory.path());
    EXPECT_EQ(titleInDeck(directory.path() + "tandem.DAT"), "Three layers");

    set.TITLE = "Never saved";
    click(*menu, "mnuGeneral");
    saveAs(directory.path() + "missing/road.DAT");  // fails in silence
    expectQuestion(Answer::No);
    click(*menu, "cmdExit");
    EXPECT_FALSE(isOpen());
}

TEST_F(Bedform, ExitAndFrameAskTheSame) {
    const std::function<void()> ways[] = {[&] { click(*menu, "cmdExit"); }, [&] { menu->close(); }};
    for (const auto& leave : ways) {
        if (!isOpen()) menu = screens.load("frmBEDFORM");
        expectQuestion(Answer::Yes);
        dialogs.expectBox("You forgot to enter the layer thickness by clicking the Layer menu.");
        leave();  // nothing was opened, so nothing is there
        EXPECT_TRUE(isOpen());

        newRoad();
        expectQuestion(Answer::Cancel);
        leave();
        EXPECT_TRUE(isOpen());
        EXPECT_EQ(store.DataLoaded, 1);

        set.TITLE = "Given up";
        expectQuestion(Answer::No);
        leave();
        EXPECT_FALSE(isOpen());
        EXPECT_EQ(store.DataLoaded, 0);
        EXPECT_NE(titleInDeck(directory.path() + "UNTITLED.DAT"), "Given up");
        store.layered[1] = {};
    }
}

}  // namespace
