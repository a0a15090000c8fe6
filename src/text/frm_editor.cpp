#include "text/frm_editor.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>
#include <filesystem>

#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/list_file.h"
#include "platform/qt/menu_bar.h"
#include "store/deck_path.h"
#include "store/frm_main_link.h"
#include "store/store.h"
#include "text/frm_help1.h"
#include "text/frm_sheet.h"
#include "text/text_file.h"

namespace {

/// The hourglass, for as long as it lives.
class WaitCursor {
  public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
};

}  // namespace

frmEditor::frmEditor(Program& program)
    : Form("frmEditor"), program_(program), txtEditor(new ByteTextBox("txtEditor", this)) {
    txtEditor->setAccessibleName("Text of the file");
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(0, 0, 0, 0);
    page->addWidget(txtEditor);
    buildMenus();
}

void frmEditor::buildMenus() {
    const auto section = [this](const std::string& name, const std::string& caption, int number) {
        return MenuEntry{name, caption, [this, number] { showManual(program_, number); }};
    };
    const auto sheets = [this](const std::string& menu, const std::string& caption, const std::string& kind) {
        MenuEntry entry{menu, caption};
        for (int n = 1; n <= 6; ++n) {
            const std::string number = std::to_string(n);
            entry.entries.push_back({"mnu" + kind + number, "Example &" + number,
                                     [this, sheet = "frm" + kind + number] { showSheet(program_, sheet); }});
        }
        return entry;
    };
    const MenuEntry line{};
    const MenuEntry file{"mnuFile",
                         "&File",
                         {},
                         {{"mnuOpen", "&Open", [this] { mnuOpen_Click(); }},
                          {"mnuSave", "&Save", [this] { mnuSave_Click(); }},
                          {"mnuSaveAs", "Save &as", [this] { mnuSaveAs_Click(); }},
                          {"mnuPrint", "&Print", [this] { mnuPrint_Click(); }},
                          {"mnuExit", "E&xit", [this] { mnuExit_Click(); }}}};
    const MenuEntry edit{"mnuEdit",
                         "&Edit",
                         {},
                         {{"mnuCut", "Cu&t", [this] { mnuCut_Click(); }},
                          {"mnuCopy", "&Copy", [this] { mnuCopy_Click(); }},
                          {"mnuPast", "&Paste", [this] { mnuPast_Click(); }}}};
    const MenuEntry help{"mnuManual",
                         "&Help",
                         {},
                         {section("mnuHelp", "Use of &Editor Screen", 2), line,
                          section("mnuTolstrat", "Input Parameters for TOL&STRAT", 3),
                          section("mnuLayer", "&Output Parameters for TOLSTRAT", 5),
                          section("mnuTS", "&Data File for TOLSTRAT", 7), line,
                          section("mnuTolplate", "&Input Parameters for TOLPLATE", 4),
                          section("mnuSlabs", "Output &Parameters for TOLPLATE", 6),
                          section("mnuTP", "Data &File for TOLPLATE", 8)}};
    const MenuEntry examples{
        "mnuExamples",
        "E&xamples",
        {},
        {section("mnuGeneral1", "Examples for TOL&STRAT", 9), sheets("mnuTSEx", "TOLST&RAT sheets", "Bed"),
         line, section("mnuGeneral2", "Examples for TOL&PLATE", 10),
         sheets("mnuTPEx", "TOLP&LATE sheets", "Pan")}};
    layout()->setMenuBar(makeMenuBar({file, edit, help, examples}, this));
}

void frmEditor::Form_Load() {
    setCaption("Editor");
    EdFile = program_.store.FileName;
    place();
    Show();
}

/// The menus of a file answer only after File/Open. True when it was told that there is none.
bool frmEditor::saidNotOpen() {
    if (!EdOpen) program_.dialogs.MsgBox("File not open");
    return !EdOpen;
}

/// The chosen name; nothing when cancelled.
std::optional<std::string> frmEditor::EdDialog(FileQuestion question) {
    question.filter = "All Files (*.*)|*.*|Data Files (*.DAT)|*.DAT|Text Files (*.TXT)|*.TXT|";
    question.filterNumber = 3;
    question.directory = program_.store.cmbDirectory;
    const auto answer = program_.dialogs.fileDialog(question);
    if (!answer) return std::nullopt;
    if (answer->filterNumber == 1 || answer->filterNumber == 2) EdFilter = answer->filterNumber;
    return answer->name;
}

/// After a cancelled dialog the editor counts as open, with an empty text: kept.
void frmEditor::mnuOpen_Click() {
    try {
        program_.desktop.ChDir(program_.store.cmbDirectory);
    } catch (const RunTimeError&) {
        // The dialog then starts in the user's own folder.
    }
    EdOpen = true;
    const auto chosen = EdDialog({.action = FileQuestion::Action::Open, .name = EdFile});
    if (!chosen) return;
    if (const auto path = nameToRead(*chosen, EdFilter)) open(*path);
    showFileNameOfDeck();
}

void frmEditor::open(const std::string& path) {
    EdDir = DirectoryOf(path);
    setDataPath(program_, EdDir);
    if (!readFile(path)) return;
    EdFile = path;
    setCaption(nameBehind(EdDir, EdFile));
    if (txtEditor->isFixed()) {
        program_.dialogs.MsgBox(
            "This file has line ends or characters that would not come back the same when the text is saved. "
            " It "
            "can be read, printed and copied, but not changed.");
    }
}

/// A text file leaves the main screen's file name alone.
void frmEditor::showFileNameOfDeck() {
    if (upperCase(caption()).ends_with(".DAT")) setFileName(program_, caption());
}

bool frmEditor::readFile(const std::string& path) {
    const WaitCursor wait;
    try {
        txtEditor->setBytes(readBytes(path));
    } catch (const RunTimeError&) {
        return false;
    }
    EdSaved = txtEditor->rawText();
    ownFile_ = path;
    return true;
}

/// `replacing`: a file of that name may be replaced without a question. A failed write is silent.
frmEditor::Outcome frmEditor::writeFile(const std::string& name, bool replacing) {
    const std::string path = resolveIn(program_.store.cmbDirectory, name);
    std::error_code unknown;
    const bool another = path != ownFile_ && std::filesystem::is_regular_file(path, unknown);
    if (another && !replacing && !program_.dialogs.mayReplace(path)) return Outcome::Told;
    const WaitCursor wait;
    const auto bytes = txtEditor->bytes();
    if (!bytes) {
        program_.dialogs.MsgBox(
            "The text has characters that cannot be written in the code of this file.  It was not saved.");
        return Outcome::Told;
    }
    try {
        writeFileAtomically(path, *bytes);
    } catch (const RunTimeError&) {
        return Outcome::Failed;
    }
    EdSaved = txtEditor->rawText();
    ownFile_ = path;
    return Outcome::Written;
}

void frmEditor::mnuSave_Click() {
    if (!saidNotOpen()) writeFile(EdFile, false);
    showFileNameOfDeck();
}

void frmEditor::mnuSaveAs_Click() {
    if (!saidNotOpen() && !saveAs()) return;
    showFileNameOfDeck();
}

/// False when the dialog was cancelled.
bool frmEditor::saveAs() {
    const auto chosen = EdDialog({.action = FileQuestion::Action::Save,
                                  .name = nameBehind(EdDir, EdFile),
                                  .pattern = "*.dat",
                                  .defaultExtension = ".DAT"});
    if (!chosen) return false;
    const std::string path = resolveIn(program_.store.cmbDirectory, *chosen);
    if (writeFile(path, true) == Outcome::Written) {
        EdFile = path;
        EdDir = DirectoryOf(EdFile);
        setDataPath(program_, EdDir);
        appendDataPath(program_, EdDir);
    }
    setCaption(nameBehind(EdDir, EdFile));
    return true;
}

void frmEditor::mnuExit_Click() {
    if (!EdOpen) {
        program_.dialogs.MsgBox("File not open.  Click the X at the right upper corner to exit.");
    } else if (mayLeave()) {
        program_.screens.unload(name());
    }
}

/// The question before the form goes, by its Exit or by its frame. True when it may go.
bool frmEditor::mayLeave() {
    if (txtEditor->rawText() == EdSaved) return true;
    const Answer answer = program_.dialogs.MsgBox("Do you like to save the file?", Buttons::YesNoCancel);
    if (answer != Answer::Yes) return answer == Answer::No;
    const Outcome outcome = writeFile(EdFile, false);
    if (outcome == Outcome::Failed)
        program_.dialogs.MsgBox("The file could not be written.  Its text is still in the editor.");
    if (outcome != Outcome::Written) return false;
    showFileNameOfDeck();
    return true;
}

void frmEditor::mnuPrint_Click() {
    if (saidNotOpen()) return;
    const auto answer = program_.dialogs.InputBox("Number of lines per page", "PRINT", Str(Integer{57}));
    if (!answer || answer->empty()) return;
    // For the rest of the run: every text built later has lone line feeds.
    program_.store.NL = "\n";
    const Double lines = std::clamp(Val(*answer), 0.0, 1e6);
    if (!printText(program_.printer, txtEditor->printableText(), static_cast<int>(std::lround(lines)))) {
        program_.dialogs.MsgBox(
            "File too long to be printed.  Click OK to let it print until stop.  You can then temporarily "
            "delete the part already printed and print the remaining part.");
    }
}

void frmEditor::mnuCut_Click() {
    mnuCopy_Click();
    txtEditor->setSelText("");
}

void frmEditor::mnuCopy_Click() {
    QClipboard* clipboard = QGuiApplication::clipboard();
    clipboard->clear();
    clipboard->setText(txtEditor->SelText());
}

void frmEditor::mnuPast_Click() { txtEditor->setSelText(QGuiApplication::clipboard()->text()); }
