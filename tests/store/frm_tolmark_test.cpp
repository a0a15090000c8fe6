// The main screen under a user's hands, from a first run to the history file.
#include "store/frm_tolmark.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include "support/desk_screens.h"
#include "support/window_checks.h"

namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;
using Lines = std::vector<std::string>;

class MainScreen : public ::testing::Test {
  protected:
    MainScreen() { setDispatchDialogs(&dialogs); }
    ~MainScreen() override { setDispatchDialogs(nullptr); }

    void start() {
        screens.add("frmTOLMARK", [this] {
            auto form = std::make_unique<frmTOLMARK>(program);
            form->onExit = [this] { ++exits; };
            return form;
        });
        form = static_cast<frmTOLMARK*>(screens.load("frmTOLMARK"));
    }
    void addScreens(const std::vector<std::string>& names) {
        for (const std::string& name : names)
            screens.add(name, [name] { return std::make_unique<BlankForm>(name); });
    }

    ComboBox& path() { return form->control<ComboBox>("cmbDataPath"); }
    ComboBox& file() { return form->control<ComboBox>("cmbFileName"); }
    void click(const char* control) { ::click(*form, control); }
    static void type(ComboBox& box, const std::string& text) {
        box.lineEdit()->selectAll();
        if (text.empty()) QTest::keyClick(box.lineEdit(), Qt::Key_Delete);
        QTest::keyClicks(box.lineEdit(), QString::fromStdString(text));
    }
    static Lines list(const ComboBox& box) {
        Lines texts;
        for (int i = 0; i < box.listCount(); ++i) texts.push_back(box.listText(i));
        return texts;
    }
    static std::string withoutSlash(const std::string& path) { return path.substr(0, path.size() - 1); }
    void writeHistory(const Lines& lines) const {
        std::string text;
        for (const std::string& line : lines) text += line + "\r\n";
        machine.write("DataPath", text);
    }

    TemporaryDirectory machine, data;  ///< the program's folder, and one for decks
    ScriptedDialogs dialogs;
    RecordingPrinter printer;
    QuietDesktop desktop{withoutSlash(machine.path())};
    Store store;
    Screens screens{dialogs};
    Program program{store, screens, dialogs, printer, desktop};
    frmTOLMARK* form = nullptr;
    int exits = 0;
};

TEST_F(MainScreen, AFirstRunStartsInTheProgramsFolder) {
    machine.write("road b.DAT", "");
    machine.write("Road A.dat", "");
    machine.write("notes.txt", "");
    start();
    EXPECT_EQ(machine.read("DataPath"), machine.path() + "\r\n");
    EXPECT_EQ(path().textValue(), machine.path());
    EXPECT_EQ(store.cmbDirectory, machine.path());
    EXPECT_THAT(list(file()), ElementsAre("Road A.dat", "road b.DAT"));
    EXPECT_EQ(file().textValue(), "Road A.dat");
    EXPECT_EQ(store.NL, "\r\n");
}

TEST_F(MainScreen, TheHistoryComesBackAndExitWritesIt) {
    data.write("one.dat", "");
    const Lines history = {data.path(), "/b/", "/c/"};
    writeHistory(history);
    start();
    EXPECT_EQ(list(path()), history);
    EXPECT_EQ(path().textValue(), data.path());
    EXPECT_EQ(file().textValue(), "one.dat");

    type(path(), "/new/");
    click("cmdExit");
    EXPECT_EQ(exits, 1);
    EXPECT_EQ(machine.read("DataPath"), "/new/\r\n" + data.path() + "\r\n/b/\r\n/c/\r\n");
}

TEST_F(MainScreen, AHistoryThatCannotBeEnteredGivesWayToTheProgramsFolder) {
    for (const std::string first : {"", "/no such/directory/"}) {
        writeHistory({first, "/b/"});
        start();
        EXPECT_EQ(path().textValue(), machine.path());
        EXPECT_EQ(store.cmbDirectory, machine.path());
        EXPECT_EQ(machine.read("DataPath"), machine.path() + "\r\n");
        click("cmdExit");
        EXPECT_EQ(machine.read("DataPath"), machine.path() + "\r\n" + first + "\r\n/b/\r\n");
        screens.unload("frmTOLMARK");
    }
}

TEST_F(MainScreen, TypingADirectoryFollowsAtEveryKey) {
    data.write("one.dat", "");
    start();
    file().setTextValue("mine.dat");
    const std::string bare = withoutSlash(data.path());
    type(path(), bare);
    EXPECT_EQ(file().textValue(), "");
    EXPECT_THAT(list(file()), Not(Contains("one.dat"))) << "of the directory above";
    EXPECT_EQ(store.cmbDirectory, bare);
    QTest::keyClicks(path().lineEdit(), "/");
    EXPECT_THAT(list(file()), ElementsAre("one.dat"));
    EXPECT_EQ(file().textValue(), "one.dat");
    EXPECT_EQ(desktop.made.size(), data.path().size() + 1) << "at the start, then at each key";
    EXPECT_EQ(desktop.made.back(), data.path());
}

TEST_F(MainScreen, AChoiceFromTheHistoryOpensTheDirectory) {
    data.write("one.dat", "");
    writeHistory({machine.path(), data.path()});
    start();
    path().showPopup();
    QTest::keyClick(path().view(), Qt::Key_Down);
    QTest::keyClick(path().view(), Qt::Key_Return);
    EXPECT_EQ(store.cmbDirectory, data.path());
    EXPECT_EQ(file().textValue(), "one.dat");
}

TEST_F(MainScreen, ABareDirectoryLiesUnderTheLastFullOne) {
    addScreens({"frmBEDFORM"});
    start();
    type(path(), data.path());
    type(path(), "r");
    EXPECT_EQ(desktop.made.back(), data.path() + "r");
    std::filesystem::create_directory(data.path() + "r");
    QTest::keyClicks(path().lineEdit(), "/");
    EXPECT_EQ(store.cmbDirectory, data.path() + "r/");
    type(file(), "new.dat");
    click("cmdBedform");
    EXPECT_EQ(path().textValue(), data.path() + "r/");
    EXPECT_EQ(store.DataPaths[1], data.path() + "r/");
    EXPECT_EQ(file().textValue(), "new.dat");
    EXPECT_EQ(store.FileName, "new.dat");
}

TEST_F(MainScreen, ADirectoryThatCannotBeReadIsTold) {
    const std::string locked = data.path() + "locked/";
    std::filesystem::create_directory(locked);
    std::filesystem::permissions(locked, std::filesystem::perms::none);
    start();
    file().setTextValue("mine.dat");
    const std::size_t made = desktop.made.size();
    dialogs.expectBox(
        "The default data path is Drive A:, please place a disk in drive A: and then click OK.  If you are "
        "not using Drive A:, you can still click OK but change A:\\ in the DataPath box to the directory you "
        "want.");
    const bool administrator = getuid() == 0;  // who may read every directory
    EXPECT_TRUE(!administrator || seteuid(65534) == 0);
    path().setTextValue(locked);
    EXPECT_TRUE(!administrator || seteuid(0) == 0);
    EXPECT_EQ(path().textValue(), locked);
    EXPECT_EQ(file().textValue(), "");
    EXPECT_EQ(desktop.made.size(), made);
}

TEST_F(MainScreen, AnInputScreenGetsTheTypedNameAndTheDirectoryComesFirst) {
    data.write("one.dat", "");
    writeHistory({machine.path(), "/b/", data.path()});
    addScreens({"frmBEDFORM", "frmPANFORM", "frmEditor"});
    start();
    type(path(), data.path());
    type(file(), "new");
    click("cmdBedform");
    EXPECT_THAT(list(path()), ElementsAre(data.path(), machine.path(), "/b/"));
    EXPECT_EQ(path().textValue(), data.path());
    EXPECT_EQ(file().textValue(), "new");
    EXPECT_EQ(store.FileName, "new");

    std::string shouted = data.path();  // in other letters it counts as the same directory
    for (char& c : shouted) c = static_cast<char>(std::toupper(c));
    type(path(), shouted);
    click("cmdPanform");
    EXPECT_EQ(path().listCount(), 3);
    EXPECT_EQ(store.FileName, "");
    type(path(), machine.path());
    type(file(), "other.dat");
    click("cmdEdit");
    EXPECT_THAT(list(path()), ElementsAre(machine.path(), data.path(), "/b/"));
    EXPECT_EQ(store.FileName, "other.dat");
    EXPECT_TRUE(screens.loaded("frmEditor")->isVisible());
}

TEST_F(MainScreen, APlotScreenGetsTheFullNameAndIsGoneAfterwards) {
    writeHistory({machine.path()});
    addScreens({"frmBEDPLOT", "frmPANPLOT", "frmCONTOUR"});
    start();
    type(path(), data.path());
    type(file(), "road.dat");
    for (const char* button : {"cmdBedplot", "cmdPanplot", "cmdContour"}) {
        store.FileName = "";
        click(button);
        EXPECT_EQ(store.FileName, data.path() + "road.dat");
    }
    EXPECT_EQ(screens.loaded("frmBEDPLOT"), nullptr);
    EXPECT_THAT(list(path()), ElementsAre(machine.path()));
}

TEST_F(MainScreen, ASolverGetsThePathWithoutExtensionAsOneArgument) {
    const struct {
        const char* button;
        std::string directory, typed, shown, program, argument;
    } cases[] = {
        {"cmdTolstrat", data.path(), "road", "road.DAT", "TOLSTRAT.EXE", data.path() + "road"},
        {"cmdTolplate", data.path(), "slab.Dat", "slab.Dat", "TOLPLATE.EXE", data.path() + "slab"},
        {"cmdLarge", data.path(), "a.b", "a.b.DAT", "TOLGIANT.EXE", data.path() + "a.b"},
        {"cmdTolstrat", "/tmp/x", "road.DAT", "road.DAT", "TOLSTRAT.EXE", "/tmp/xroad"},
        {"cmdTolstrat", data.path(), ".DAT", ".DAT", "TOLSTRAT.EXE", data.path()},
    };
    start();
    for (const auto& c : cases) {
        type(path(), c.directory);
        type(file(), c.typed);
        click(c.button);
        EXPECT_EQ(file().textValue(), c.shown);
        EXPECT_EQ(desktop.started.back().program, machine.path() + c.program);
        EXPECT_EQ(desktop.started.back().argument, c.argument);
    }
    EXPECT_EQ(desktop.started.size(), std::size(cases));
}

TEST_F(MainScreen, TheFilenameHintChangesTheLineBreakForGood) {
    start();
    dialogs.expectBox("Enter New Filename\nor Select File from List", Buttons::Ok, Answer::Ok, "Filename");
    click("lblFileName");
    EXPECT_EQ(store.NL, "\n");
}

TEST_F(MainScreen, ExitEndsTheProgramEvenWhereTheHistoryCannotBeWritten) {
    start();
    std::filesystem::remove_all(machine.path());
    dialogs.expectBox("Path not found: " + machine.path() + "DataPath");
    click("cmdExit");
    EXPECT_EQ(exits, 1);
}

TEST_F(MainScreen, ClosingByTheFrameWritesNothingAndLeavesTheOthers) {
    writeHistory({machine.path(), "/b/"});
    addScreens({"frmBEDFORM"});
    start();
    click("cmdBedform");
    type(path(), data.path());
    EXPECT_TRUE(form->close());
    EXPECT_EQ(machine.read("DataPath"), machine.path() + "\r\n/b/\r\n");
    EXPECT_EQ(exits, 0);
    EXPECT_TRUE(screens.loaded("frmBEDFORM")->isVisible());
}

TEST_F(MainScreen, ATerminalOpensInTheDataDirectory) {
    start();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    type(path(), data.path());
    QTest::keyClick(file().lineEdit(), Qt::Key_T, Qt::ControlModifier);
    EXPECT_THAT(desktop.terminals, ElementsAre(data.path()));
    type(path(), "/no such/");
    dialogs.expectBox("Path not found: /no such/");
    QTest::keyClick(file().lineEdit(), Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(desktop.terminals.size(), 1u);
}

TEST_F(MainScreen, TabFollowsThePageAndAccessKeysAreUnique) {
    start();
    path().setFocus();
    Lines order;
    for (int i = 0; i < 13; ++i) {
        order.push_back(form->focusWidget()->objectName().toStdString());
        QTest::keyClick(form->focusWidget(), Qt::Key_Tab);
    }
    EXPECT_THAT(order, ElementsAre("cmbDataPath", "cmbFileName", "cmdBedform", "cmdTolstrat", "cmdBedplot",
                                   "cmdPanform", "cmdTolplate", "cmdLarge", "cmdPanplot", "cmdContour",
                                   "cmdEdit", "cmdHelp", "cmdExit"));
    expectOwnAccessKeys(*form);
}

}  // namespace
