// The editor under a user's hands: what it reads, keeps, writes and asks.
#include "text/frm_editor.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <QClipboard>

#include "support/layered_screens.h"
#include "support/window_checks.h"
#include "text/frm_help1.h"

namespace {

using ::testing::ElementsAre;

constexpr const char* notOpen = "File not open";
constexpr const char* saveQuestion = "Do you like to save the file?";
constexpr int allFiles = 1, dataFiles = 2, textFiles = 3;

class Editor : public LayeredScreens {
  protected:
    Editor() {
        screens.add("frmEditor", [this] { return std::make_unique<frmEditor>(program); });
        screens.add("frmHelp1", [this] { return std::make_unique<frmHelp1>(program); });
        for (const char* sheet : {"frmBed1", "frmPan6"}) {
            screens.add(sheet, [sheet] { return std::make_unique<BlankForm>(sheet); });
        }
    }
    Form& start(const std::string& FileName = "") {
        store.FileName = FileName;
        form = screens.load("frmEditor");
        return *form;
    }
    ByteTextBox& box() { return form->control<ByteTextBox>("txtEditor"); }
    std::string shown() { return box().toPlainText().toStdString(); }
    void type(const char* text) { QTest::keyClicks(&box(), text); }
    void click(const char* menuEntry) { choose(*form, menuEntry); }
    std::string path(const std::string& name) const { return directory.path() + name; }
    void answerFile(const std::string& name, int filter) {
        dialogs.expectFile(FileAnswer{path(name), filter});
    }
    void open(const std::string& name, int filter = allFiles) {
        answerFile(name, filter);
        click("mnuOpen");
    }
    bool isOpen() { return screens.loaded("frmEditor") != nullptr; }

    Form* form = nullptr;
};

TEST_F(Editor, AnswersNothingBeforeAFileWasOpened) {
    expectWellMade(start("road.dat"));
    for (const char* entry : {"mnuSave", "mnuSaveAs", "mnuPrint"}) {
        dialogs.expectBox(notOpen);
        click(entry);
    }
    dialogs.expectBox("File not open.  Click the X at the right upper corner to exit.");
    click("mnuExit");
    EXPECT_TRUE(isOpen());
    EXPECT_TRUE(printer.jobs.empty());
    form->close();
    EXPECT_FALSE(isOpen()) << "nothing was changed: no question";
}

TEST_F(Editor, ReadsTheExtensionThatTheFilterSays) {
    directory.write("road.DAT", "deck");
    directory.write("road.TXT", "results");
    start();
    struct Step {
        const char* chosen;
        int filter;
        const char *shown, *caption, *fileOnMain;
    };
    for (const Step& step : {Step{"road.DAT", textFiles, "results", "road.TXT", ""},
                             Step{"road.TXT", dataFiles, "deck", "road.DAT", "road.DAT"},
                             Step{"road.TXT", textFiles, "deck", "road.DAT", "road.DAT"},
                             Step{"road.txt", allFiles, "results", "road.TXT", "other"},
                             Step{"none.DAT", allFiles, "results", "road.TXT", "other"}}) {
        if (std::string(step.fileOnMain) == "other")
            main->control<ComboBox>("cmbFileName").setTextValue("other");
        open(step.chosen, step.filter);
        EXPECT_EQ(shown(), step.shown) << step.chosen;
        EXPECT_EQ(form->caption(), step.caption) << step.chosen;
        EXPECT_EQ(mainBox("cmbFileName"), step.fileOnMain) << step.chosen;
    }
    EXPECT_EQ(dialogs.lastFileQuestion.filterNumber, textFiles);
    EXPECT_EQ(dialogs.lastFileQuestion.name, path("road.TXT"));
    dialogs.expectFile(FileAnswer{"share/road.DAT", allFiles});
    click("mnuOpen");
    EXPECT_EQ(shown(), "results") << "a name that is not full is not read";
}

TEST_F(Editor, TakesTheMainScreenToTheDirectoryOfTheFile) {
    const TemporaryDirectory other;
    other.write("deck.dat", "1");
    store.cmbDirectory = "/no such folder/";
    start("road.dat");
    dialogs.expectFile(FileAnswer{other.path() + "deck.dat", allFiles});
    click("mnuOpen");
    EXPECT_EQ(dialogs.lastFileQuestion.name, "road.dat");
    EXPECT_EQ(mainBox("cmbDataPath"), other.path());
    EXPECT_EQ(mainBox("cmbFileName"), "deck.dat");
    EXPECT_EQ(store.cmbDirectory, other.path());
}

TEST_F(Editor, GivesBackTheBytesOfEveryFile) {
    const std::string kept[] = {
        "",
        "no end",
        "a\r\nb\r\n",
        "a\nb\n",
        "a\rb\r",
        "caf\xE9\r\n",
        "caf\xC3\xA9\n",
        "\xEF\xBB\xBFmark\r\n",
        "no\xC2\xA0"
        "break\r\n",
        "line\xE2\x80\xA8separator\r\n",
        std::string("nul\0nul\r\n", 9),
        "\x80\xFF\xA0\r\n",
    };
    start();
    for (const std::string& bytes : kept) {
        directory.write("file", bytes);
        open("file");
        EXPECT_FALSE(box().isFixed()) << bytes;
        click("mnuSave");
        EXPECT_EQ(directory.read("file"), bytes);
        box().moveCursor(QTextCursor::Start);
        type("x");
        QTest::keyClick(&box(), Qt::Key_Return, Qt::ShiftModifier);
        click("mnuSave");
        const std::string end = bytes.find("\r\n") != std::string::npos ? "\r\n"
                                : bytes.find('\n') != std::string::npos ? "\n"
                                : bytes.find('\r') != std::string::npos ? "\r"
                                                                        : "\r\n";
        EXPECT_EQ(directory.read("file"), "x" + end + bytes);
    }
}

TEST_F(Editor, FillsALargeFileWhileTheUserReads) {
    std::string bytes;
    while (bytes.size() < 5'000'000) bytes += "line " + std::to_string(bytes.size()) + "\n";
    directory.write("large.txt", bytes);
    start();
    open("large.txt");
    click("mnuSave");
    EXPECT_EQ(directory.read("large.txt"), bytes) << "saved before all of it was filled in";
    EXPECT_TRUE(QTest::qWaitFor([&] { return !box().isReadOnly(); }, 60000));
    EXPECT_EQ(shown(), bytes);
    click("mnuExit");
    EXPECT_FALSE(isOpen()) << "nothing changed: no question";

    start();
    open("large.txt");
    type("x");
    click("mnuSave");
    EXPECT_EQ(directory.read("large.txt"), "x" + bytes) << "a key fills the rest in";
    QTest::keyClick(&box(), Qt::Key_Z, Qt::ControlModifier);
    click("mnuSave");
    EXPECT_EQ(directory.read("large.txt"), bytes) << "undo takes back the key and nothing of the file";
}

TEST_F(Editor, ChangesNoFileThatItCannotKeep) {
    start();
    for (const std::string bytes :
         {"mixed\r\nends\n", "paragraph\xE2\x80\xA9mark\r\n", "\r\n\xEF\xB7\x90\r\n"}) {
        directory.write("file", bytes);
        dialogs.expectBox(
            "This file has line ends or characters that would not come back the same when the text is saved. "
            " "
            "It can be read, printed and copied, but not changed.");
        open("file");
        type("x");
        click("mnuPast");
        box().selectAll();
        click("mnuCut");
        click("mnuSave");
        EXPECT_EQ(directory.read("file"), bytes);
        answerFile("copy", allFiles);
        click("mnuSaveAs");
        EXPECT_EQ(directory.read("copy"), bytes);
    }
    directory.write("file", "good\r\n");
    open("file");
    EXPECT_FALSE(box().isFixed());
}

TEST_F(Editor, SaysWhenACharacterHasNoPlaceInTheFilesCode) {
    directory.write("file", "caf\xE9\r\n");
    start();
    open("file");
    box().setSelText(QString::fromUtf8("\u03c3"));
    dialogs.expectBox(
        "The text has characters that cannot be written in the code of this file.  It was not saved.");
    click("mnuSave");
    EXPECT_EQ(directory.read("file"), "caf\xE9\r\n");
}

TEST_F(Editor, WritesOverNoFileThatItDidNotRead) {
    directory.write("road.dat", "deck");
    start("ROAD.DAT");
    dialogs.expectFile(std::nullopt);
    click("mnuOpen");
    const std::string question =
        "There is a file " + path("road.dat") + " already. Do you want to replace it?";
    dialogs.expectBox(question, Buttons::YesNo, Answer::No);
    click("mnuSave");
    EXPECT_EQ(directory.read("road.dat"), "deck");
    type("new");
    dialogs.expectBox(question, Buttons::YesNo, Answer::Yes);
    click("mnuSave");
    EXPECT_EQ(directory.read("road.dat"), "new");
    type("er");
    click("mnuSave");
    EXPECT_EQ(directory.read("road.dat"), "newer") << "its own file needs no question";
}

TEST_F(Editor, SavesUnderAnotherNameAndTellsTheMainScreen) {
    const TemporaryDirectory other;
    directory.write("road.dat", "deck");
    start();
    open("road.dat");
    auto& paths = main->control<ComboBox>("cmbDataPath");
    paths.addListItem(directory.path());
    for (int time = 0; time < 2; ++time) {
        dialogs.expectFile(FileAnswer{other.path() + "copy.DAT", textFiles});
        click("mnuSaveAs");
    }
    EXPECT_EQ(dialogs.lastFileQuestion.name, "copy.DAT");
    EXPECT_EQ(dialogs.lastFileQuestion.defaultExtension, ".DAT");
    EXPECT_EQ(dialogs.lastFileQuestion.pattern, "*.dat");
    EXPECT_EQ(other.read("copy.DAT"), "deck");
    EXPECT_EQ(form->caption(), "copy.DAT");
    EXPECT_EQ(mainBox("cmbFileName"), "copy.DAT");
    EXPECT_EQ(mainBox("cmbDataPath"), other.path());
    EXPECT_EQ(paths.listText(paths.listCount() - 1), other.path());

    dialogs.expectFile(FileAnswer{other.path() + "none/copy.DAT", textFiles});
    click("mnuSaveAs");
    EXPECT_EQ(form->caption(), "copy.DAT") << "a failed write is silent and changes no name";
    EXPECT_EQ(mainBox("cmbDataPath"), other.path());
}

TEST_F(Editor, AsksBeforeChangesAreLost) {
    directory.write("road.txt", "results\r\n");
    struct Case {
        Answer answer;
        bool byFrame, stays;
        const char* file;
    };
    for (const Case& c :
         {Case{Answer::Cancel, false, true, "results\r\n"}, Case{Answer::No, false, false, "results\r\n"},
          Case{Answer::Cancel, true, true, "results\r\n"}, Case{Answer::No, true, false, "results\r\n"},
          Case{Answer::Yes, true, false, "!results\r\n"}, Case{Answer::Yes, false, false, "!!results\r\n"}}) {
        start();
        open("road.txt");
        type("!");
        dialogs.expectBox(saveQuestion, Buttons::YesNoCancel, c.answer);
        if (c.byFrame) {
            form->close();
        } else {
            click("mnuExit");
        }
        EXPECT_EQ(isOpen(), c.stays);
        EXPECT_EQ(directory.read("road.txt"), c.file);
        screens.unload("frmEditor");
    }
    start();
    open("road.txt");
    click("mnuExit");
    EXPECT_FALSE(isOpen()) << "nothing changed: no question";
}

TEST_F(Editor, StaysWithItsTextWhenItCannotBeWritten) {
    start("no folder/road.dat");
    dialogs.expectFile(std::nullopt);
    click("mnuOpen");
    type("text");
    dialogs.expectBox(saveQuestion, Buttons::YesNoCancel, Answer::Yes);
    dialogs.expectBox("The file could not be written.  Its text is still in the editor.");
    click("mnuExit");
    ASSERT_TRUE(isOpen());
    EXPECT_EQ(shown(), "text");
}

TEST_F(Editor, PrintsAsManyLinesAPageAsAsked) {
    directory.write("road.txt", "one\ntwo\n\nlost");
    start();
    open("road.txt");
    for (const char* answer : {"2", "0", ""}) {
        dialogs.expectInput("Number of lines per page", answer);
        click("mnuPrint");
    }
    dialogs.expectInput("Number of lines per page", std::nullopt);
    click("mnuPrint");
    ASSERT_EQ(printer.jobs.size(), 3U) << "two pages, and one without a break";
    EXPECT_THAT(printer.jobs[1].lines, ElementsAre("", "", "", "           page  2", "", "           "));
    EXPECT_EQ(printer.jobs[2].lines.size(), 8U);
    EXPECT_EQ(store.NL, "\n") << "for the rest of the run";

    printer.jobs.clear();
    click("mnuTS");
    choose(*screens.loaded("frmHelp1"), "mnuPrint");
    EXPECT_TRUE(printer.jobs.empty()) << "help texts built from now on cannot be printed";
}

TEST_F(Editor, HasAClipboard) {
    directory.write("road.txt",
                    "no\xC2\xA0"
                    "break\r\nend\r\n");
    start();
    open("road.txt");
    box().selectAll();
    click("mnuCopy");
    QClipboard& clipboard = *QGuiApplication::clipboard();
    EXPECT_EQ(clipboard.text(), QString::fromUtf8("no\u00a0break\nend\n"));
    click("mnuCut");
    EXPECT_EQ(shown(), "");
    click("mnuPast");
    click("mnuPast");
    click("mnuSave");
    EXPECT_EQ(directory.read("road.txt"),
              "no\xC2\xA0"
              "break\r\nend\r\nno\xC2\xA0"
              "break\r\nend\r\n");
}

TEST_F(Editor, LeadsToTheManualAndTheSheets) {
    start();
    const std::pair<const char*, const char*> sections[] = {
        {"mnuHelp", "Use of Editor Screen"},
        {"mnuTolstrat", "Input Parameters for TOLSTRAT"},
        {"mnuTolplate", "Input Parameters for TOLPLATE"},
        {"mnuLayer", "Output Parameters for TOLSTRAT"},
        {"mnuSlabs", "Output Parameters for TOLPLATE"},
        {"mnuTS", "Data File for TOLSTRAT"},
        {"mnuTP", "Data File for TOLPLATE"},
        {"mnuGeneral1", "Examples for TOLSTRAT"},
        {"mnuGeneral2", "Examples for TOLPLATE"},
    };
    for (const auto& [entry, title] : sections) {
        click(entry);
        EXPECT_EQ(screens.loaded("frmHelp1")->control<Label>("Label1").caption(), title);
    }
    click("mnuBed1");
    EXPECT_NE(screens.loaded("frmBed1"), nullptr);
    click("mnuPan6");
    EXPECT_NE(screens.loaded("frmPan6"), nullptr);
}

}  // namespace
