// The editor under a user's hands: what it reads, keeps, writes and asks.
#include "text/frm_editor.h"

#include <gmock/gmock.h>
#include <unistd.h>

#include <QClipboard>

#include "support/layered_screens.h"
#include "support/window_checks.h"
#include "text/frm_help1.h"
#include "text/frm_sheet.h"
#include "text/manual.h"

namespace {

using ::testing::ElementsAre;

constexpr const char* saveQuestion = "Do you like to save the file?";
constexpr int allFiles = 1, dataFiles = 2, textFiles = 3;

class Editor : public LayeredScreens {
  protected:
    Editor() {
        screens.add("frmEditor", [this] { return std::make_unique<frmEditor>(program); });
        screens.add("frmHelp1", [this] { return std::make_unique<frmHelp1>(program); });
        addSheets(program);
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
    /// A menu entry that asks for a file, and the answer.
    void chooseFile(const char* menuEntry, const std::optional<FileAnswer>& answer) {
        dialogs.expectFile(answer);
        click(menuEntry);
    }
    void open(const std::string& name, int filter = allFiles) {
        chooseFile("mnuOpen", FileAnswer{path(name), filter});
    }
    void openNew(const std::string& name, const std::string& bytes) {
        directory.write(name, bytes);
        open(name);
    }
    /// The file as it is after File/Save.
    std::string saved(const std::string& name) {
        click("mnuSave");
        return directory.read(name);
    }
    bool isOpen() { return screens.loaded("frmEditor") != nullptr; }

    Form* form = nullptr;
};

TEST_F(Editor, AnswersNothingBeforeAFileWasOpened) {
    expectWellMade(start("road.dat"));
    for (const char* entry : {"mnuSave", "mnuSaveAs", "mnuPrint"}) {
        dialogs.expectBox("File not open");
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
    const struct {
        const char* chosen;
        int filter;
        const char *shown, *caption, *fileOnMain;
    } steps[] = {{"road.DAT", textFiles, "results", "road.TXT", "other"},
                 {"road.TXT", dataFiles, "deck", "road.DAT", "road.DAT"},
                 {"road.TXT", textFiles, "deck", "road.DAT", "road.DAT"},
                 {"road.txt", allFiles, "results", "road.TXT", "other"},
                 {"none.DAT", allFiles, "results", "road.TXT", "other"}};
    for (const auto& step : steps) {
        main->control<ComboBox>("cmbFileName").setTextValue("other");
        open(step.chosen, step.filter);
        EXPECT_EQ(shown(), step.shown) << step.chosen;
        EXPECT_EQ(form->caption(), step.caption) << step.chosen;
        EXPECT_EQ(mainBox("cmbFileName"), step.fileOnMain) << step.chosen;
    }
    EXPECT_EQ(dialogs.lastFileQuestion.filterNumber, textFiles);
    EXPECT_EQ(dialogs.lastFileQuestion.name, path("road.TXT"));
    chooseFile("mnuOpen", FileAnswer{"share/road.DAT", allFiles});
    EXPECT_EQ(shown(), "results") << "a name that is not full is not read";
    EXPECT_EQ(mainBox("cmbDataPath"), directory.path()) << "nor followed";
    click("mnuExit");
    EXPECT_FALSE(isOpen()) << "nothing changed: no question";
}

TEST_F(Editor, GivesBackTheBytesOfEveryFile) {
    const struct {
        std::string bytes;
        const char* newLine = "\r\n";
    } files[] = {{""},
                 {"no end"},
                 {"a\r\nb\r\n"},
                 {"a\nb\n", "\n"},
                 {"a\rb\r", "\r"},
                 {"caf\xE9\r\n"},
                 {"caf\u00e9\n", "\n"},
                 {"\uFEFFmark\r\n"},
                 {"no\u00a0break\r\n"},
                 {"line\u2028separator\r\n"},
                 {std::string("nul\0nul\r\n", 9)},
                 {"\x80\xFF\xA0\r\n"}};
    start();
    for (const auto& [bytes, newLine] : files) {
        openNew("file", bytes);
        EXPECT_FALSE(box().isFixed()) << bytes;
        EXPECT_EQ(saved("file"), bytes);
        box().moveCursor(QTextCursor::Start);
        type("x");
        QTest::keyClick(&box(), Qt::Key_Return, Qt::ShiftModifier);
        EXPECT_EQ(saved("file"), "x" + std::string(newLine) + bytes);
    }
}

TEST_F(Editor, FillsALargeFileWhileTheUserReads) {
    std::string bytes;
    while (bytes.size() < 2'500'000) bytes += "line " + std::to_string(bytes.size()) + "\n";
    start();
    openNew("large.txt", bytes);
    EXPECT_EQ(saved("large.txt"), bytes) << "saved before all of it was filled in";
    EXPECT_TRUE(QTest::qWaitFor([&] { return !box().isReadOnly(); }, 60000));
    EXPECT_EQ(shown(), bytes);
    click("mnuExit");
    EXPECT_FALSE(isOpen()) << "nothing changed: no question";

    start();
    open("large.txt");
    type("x");
    EXPECT_EQ(saved("large.txt"), "x" + bytes) << "a key fills the rest in";
    QTest::keyClick(&box(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(saved("large.txt"), bytes) << "undo takes back the key and nothing of the file";
}

TEST_F(Editor, ChangesNoFileThatItCannotKeep) {
    start();
    for (const std::string bytes : {"mixed\r\nends\n", "paragraph\u2029mark\r\n", "\r\n\uFDD0\r\n"}) {
        dialogs.expectBox(
            "This file has line ends or characters that would not come back the same when the text is saved. "
            " It can be read, printed and copied, but not changed.");
        openNew("file", bytes);
        EXPECT_TRUE(box().isReadOnly());
        type("x");
        click("mnuPast");
        box().selectAll();
        click("mnuCut");
        EXPECT_EQ(saved("file"), bytes);
        chooseFile("mnuSaveAs", FileAnswer{path("copy"), allFiles});
        EXPECT_EQ(directory.read("copy"), bytes);
    }
    openNew("file", "good\r\n");
    EXPECT_FALSE(box().isFixed());
}

TEST_F(Editor, SaysWhenACharacterHasNoPlaceInTheFilesCode) {
    start();
    openNew("file", "caf\xE9\r\n");
    box().setSelText(QString::fromUtf8("\u03c3"));
    dialogs.expectBox(
        "The text has characters that cannot be written in the code of this file.  It was not saved.");
    EXPECT_EQ(saved("file"), "caf\xE9\r\n");
}

TEST_F(Editor, WritesOverNoFileThatItDidNotRead) {
    directory.write("road.dat", "deck");
    start("ROAD.DAT");
    chooseFile("mnuOpen", std::nullopt);
    type("new");
    for (const auto& [answer, file] : {std::pair{Answer::No, "deck"}, {Answer::Yes, "new"}}) {
        dialogs.expectBox("There is a file " + path("road.dat") + " already. Do you want to replace it?",
                          Buttons::YesNo, answer);
        EXPECT_EQ(saved("road.dat"), file);
    }
    type("er");
    EXPECT_EQ(saved("road.dat"), "newer") << "its own file needs no question";
    click("mnuExit");
    EXPECT_FALSE(isOpen()) << "all is saved: no question";
}

TEST_F(Editor, TakesTheMainScreenToTheDirectoryOfAFileThatIsReadOrWritten) {
    const TemporaryDirectory other, another;
    other.write("deck.dat", "1");
    store.cmbDirectory = "/no such folder/";
    start("road.dat");
    chooseFile("mnuOpen", FileAnswer{other.path() + "deck.dat", allFiles});
    EXPECT_EQ(dialogs.lastFileQuestion.name, "road.dat");
    EXPECT_EQ(mainBox("cmbDataPath") + mainBox("cmbFileName"), other.path() + "deck.dat");
    EXPECT_EQ(store.cmbDirectory, other.path());

    auto& paths = main->control<ComboBox>("cmbDataPath");
    paths.addListItem(other.path());
    for (const char* proposal : {"deck.dat", "copy.DAT"}) {
        chooseFile("mnuSaveAs", FileAnswer{another.path() + "copy.DAT", textFiles});
        EXPECT_EQ(dialogs.lastFileQuestion.name, proposal);
    }
    EXPECT_EQ(dialogs.lastFileQuestion.defaultExtension, ".DAT");
    EXPECT_EQ(dialogs.lastFileQuestion.pattern, "*.dat");
    EXPECT_EQ(another.read("copy.DAT"), "1");
    EXPECT_EQ(mainBox("cmbDataPath") + mainBox("cmbFileName"), another.path() + "copy.DAT");
    EXPECT_EQ(paths.listText(paths.listCount() - 1), another.path());

    chooseFile("mnuSaveAs", FileAnswer{another.path() + "none/lost.DAT", textFiles});
    EXPECT_EQ(form->caption(), "copy.DAT") << "a failed write is silent and changes no name";
    EXPECT_EQ(mainBox("cmbDataPath"), another.path());
}

TEST_F(Editor, AsksBeforeChangesAreLost) {
    directory.write("road.txt", "results");
    const struct {
        Answer answer;
        bool byFrame, stays;
        const char* file;
    } cases[] = {{Answer::Cancel, false, true, "results"}, {Answer::No, false, false, "results"},
                 {Answer::Cancel, true, true, "results"},  {Answer::No, true, false, "results"},
                 {Answer::Yes, true, false, "!results"},   {Answer::Yes, false, false, "!!results"}};
    for (const auto& c : cases) {
        start();
        open("road.txt");
        type("!");
        dialogs.expectBox(saveQuestion, Buttons::YesNoCancel, c.answer);
        c.byFrame ? void(form->close()) : click("mnuExit");
        EXPECT_EQ(isOpen(), c.stays);
        EXPECT_EQ(directory.read("road.txt"), c.file);
        screens.unload("frmEditor");
    }
}

TEST_F(Editor, StaysWithItsTextWhenItCannotBeWritten) {
    start("no folder/road.dat");
    chooseFile("mnuOpen", std::nullopt);
    type("text");
    dialogs.expectBox(saveQuestion, Buttons::YesNoCancel, Answer::Yes);
    dialogs.expectBox("The file could not be written.  Its text is still in the editor.");
    click("mnuExit");
    ASSERT_TRUE(isOpen());
    EXPECT_EQ(shown(), "text");
}

TEST_F(Editor, PrintsAsManyLinesAPageAsAsked) {
    start();
    openNew("road.txt", "one\ntwo\n\nlost");
    for (const std::optional<std::string>& answer :
         {std::optional<std::string>("2"), {"0"}, {""}, {std::nullopt}}) {
        dialogs.expectInput("Number of lines per page", answer);
        click("mnuPrint");
    }
    const std::string margin(11, ' ');
    ASSERT_EQ(printer.jobs.size(), 3U) << "two pages, and one without a break";
    EXPECT_THAT(printer.jobs[0].lines, ElementsAre("", "", "", "", "", margin + "one", margin + "two"));
    EXPECT_EQ(printer.jobs[1].face, "Courier New");
    EXPECT_EQ(printer.jobs[1].size, 10);
    EXPECT_TRUE(printer.jobs[1].bold);
    EXPECT_THAT(printer.jobs[1].lines, ElementsAre("", "", "", margin + "page  2", "", margin));
    EXPECT_EQ(printer.jobs[2].lines.size(), 8U);

    printer.jobs.clear();
    click("mnuTS");
    choose(*screens.loaded("frmHelp1"), "mnuPrint");
    EXPECT_TRUE(printer.jobs.empty()) << "for the rest of the run no help text can be printed: kept";
}

TEST_F(Editor, HasAClipboard) {
    start();
    openNew("road.txt", "no\u00a0break\r\nend\r\n");
    box().selectAll();
    click("mnuCopy");
    EXPECT_EQ(QGuiApplication::clipboard()->text(), QString::fromUtf8("no\u00a0break\nend\n"));
    click("mnuCut");
    EXPECT_EQ(shown(), "");
    click("mnuPast");
    click("mnuPast");
    EXPECT_EQ(saved("road.txt"), "no\u00a0break\r\nend\r\nno\u00a0break\r\nend\r\n");
}

TEST_F(Editor, LeadsToTheManualAndTheSheets) {
    start();
    const char* const entries[] = {"mnuHelp", "mnuTolstrat", "mnuTolplate", "mnuLayer",   "mnuSlabs",
                                   "mnuTS",   "mnuTP",       "mnuGeneral1", "mnuGeneral2"};
    for (std::size_t section = 1; const char* entry : entries) {  // the first is that of the main screen
        click(entry);
        EXPECT_EQ(screens.loaded("frmHelp1")->control<Label>("Label1").caption(),
                  manualSections()[section++].title);
    }
    for (const auto& [entry, sheet] : {std::pair{"mnuBed1", "frmBed1"}, {"mnuPan6", "frmPan6"}}) {
        click(entry);
        EXPECT_NE(screens.loaded(sheet), nullptr);
    }
}

}  // namespace
