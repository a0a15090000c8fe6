#include "store/frm_deck_menu.h"

#include <QFrame>
#include <QGridLayout>
#include <QVBoxLayout>

#include "platform/files.h"
#include "store/deck_path.h"
#include "store/frm_main_link.h"
#include "text/pages.h"

namespace {

std::string numbered(const char* name, int n) { return name + std::to_string(n); }

}  // namespace

FrmDeckMenu::FrmDeckMenu(const Side& side, Program& program) : FrmDataMenu(side.form, program), side_(side) {}

void FrmDeckMenu::build(const std::vector<MenuRow>& dataMenus) {
    std::vector<MenuRow> rows = {fileMenu()};
    rows.insert(rows.end(), dataMenus.begin(), dataMenus.end());
    auto* body = new QVBoxLayout;
    body->setSpacing(10);
    body->addLayout(menuBar(rows));
    auto* line = new QFrame(this);
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    body->addWidget(line);
    body->addLayout(dataSetButtons());
    layOut(body, side_.helpBox,
           {{"cmdSave", "&Save", [this] { cmdSave_Click(); }},
            {"cmdSaveAs", "Save &As", [this] { cmdSaveAs_Click(); }},
            {"cmdExit", " &Exit", [this] { cmdExit_Click(); }}});
}

MenuRow FrmDeckMenu::fileMenu() {
    return {
        .menu = "mnuFile",
        .caption = "&File",
        .label = "lblFile",
        .word = "input",
        .hint =
            "Click File first, then click New for new file to be created or Old for old file to be edited",
        .entries = {{"mnuNew", "&New", [this] { mnuNew_Click(); }},
                    {"mnuOpen", "&Old", [this] { mnuOpen_Click(); }}}};
}

QLayout* FrmDeckMenu::dataSetButtons() {
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(2);
    for (int n = 1; n <= side_.dataSets; ++n) {
        auto* option = new OptionButton(numbered("optDataSet", n), numbered("Data Set ", n), this);
        option->onClick = [this, n] { optDataSet_Click(n); };
        auto* exists = new StatusLabel(numbered("Label", n), n == 1 ? "Yes" : "No", this);
        exists->setForeColor(n == 1 ? StatusLabel::red : StatusLabel::blue);
        grid->addWidget(option, 0, n, Qt::AlignHCenter);
        grid->addWidget(exists, 1, n, Qt::AlignHCenter);
    }
    return grid;
}

void FrmDeckMenu::Form_Load() {
    setCaption(side_.caption);
    DataDir = withSlash(store_.cmbDirectory);
    store_.FileName = withDatExtension(store_.FileName);
    store_.CurrentFile = store_.FileName;
    control<OptionButton>("optDataSet1").setValue(true);
    setHelp(textPage(side_.helpPage, store_.NL));
    present();
}

/// Even a click that is refused counts as a change.
bool FrmDeckMenu::mayChoose(bool countsAsChange) {
    if (countsAsChange) SaveState_ = SaveState::Changed;
    if (store_.DataLoaded == 0) showMessage("No data file has been loaded.");
    return store_.DataLoaded != 0;
}

/// The buttons of the data sets and the words of the data that every deck needs stay as they are, a "done"
/// of an earlier deck included: kept.
void FrmDeckMenu::mnuNew_Click() {
    store_.CurrentFile = FilePath = side_.untitled;
    store_.NewFile = store_.DataLoaded = 1;
    control<Label>("lblFile").setCaption("Untitled");
    SaveState_ = SaveState::Changed;
    setSetCount(1);
    store_.*side_.dataSet = 1;
    store_.CurTopRow = 1;
    newFile();
}

/// After a cancelled dialog it goes on with the path that it has, so the earlier file is read again: kept.
void FrmDeckMenu::mnuOpen_Click() {
    const std::string& name = store_.CurrentFile;
    const auto answer = CMDialogBox(FileQuestion::Action::Open, name.empty() ? "" : DataDir + name);
    if (answer && !isFullName(answer->name)) return;
    if (answer) FilePath = answer->name;
    store_.NewFile = 0;
    FilePath = completePath(FilePath, DataDir);
    DataDir = DirectoryOf(FilePath);
    setDataPath(program_, DataDir);
    setFileName(program_, nameBehind(DataDir, FilePath));
    store_.DataLoaded = 1;
    readFile();
}

void FrmDeckMenu::readFile() {
    const auto result = readDeck(FilePath, [this] {
        // Labels of data sets that an earlier deck had keep their "Yes".
        for (int n = 2; setCount() <= side_.dataSets && n <= setCount(); ++n) showDataSet(n);
    });
    if (result.outcome == DeckReadResult::Outcome::NotADeck) {
        showMessage("Input file is wrong.  Please click File & Old again and select a different file.");
        store_.DataLoaded = 0;
        return;
    }
    // A deck that could not be read whole stays as far as it was read, without a word: kept.
    if (result.outcome == DeckReadResult::Outcome::Complete) {
        ColorCode(1);
        SaveState_ = SaveState::Changed;
    }
    control<Label>("lblFile").setCaption(withoutExtension(nameBehind(DataDir, FilePath)));
}

void FrmDeckMenu::showDataSet(int n) {
    auto& exists = control<StatusLabel>(numbered("Label", n));
    exists.setCaption("Yes");
    exists.setForeColor(StatusLabel::red);
}

/// The first click on a data set that the deck does not have makes it.
void FrmDeckMenu::optDataSet_Click(int n) {
    store_.*side_.dataSet = n;
    if (n == 1 || setCount() >= n) {
        ColorCode(n);
        return;
    }
    setSetCount(n);
    showDataSet(n);
    makeDataSet(n);
}

bool FrmDeckMenu::errorFound() {
    const auto messages = ErrCheck();
    for (const std::string& message : messages) showMessage(message);
    return !messages.empty();
}

void FrmDeckMenu::refreshMainScreen(const std::string& FileName) { refreshFileName(program_, FileName); }

/// Writes the deck; a bare name lies in the data directory.
void FrmDeckMenu::Save() {
    FilePath = withDatExtension(FilePath);
    saveDeck(resolveIn(store_.cmbDirectory, FilePath));
    SaveState_ = SaveState::Saved;
    showMessage("File with a filename of " + FilePath + " has been saved");
}

void FrmDeckMenu::cutFilePath() { FilePath = nameBehind(DataDir, FilePath); }

void FrmDeckMenu::cmdSave_Click() {
    if (errorFound()) return;
    cutFilePath();
    refreshMainScreen(FilePath);
    Save();
}

/// A failure ends it without a message.
void FrmDeckMenu::cmdSaveAs_Click() {
    const bool missing = errorFound();
    DataDir = withSlash(store_.cmbDirectory);
    if (missing) return;
    try {
        saveUnderDialogName();
    } catch (const RunTimeError&) {
    }
}

/// After a cancelled dialog the deck is saved under the name that it has: kept.
void FrmDeckMenu::saveUnderDialogName() {
    cutFilePath();
    if (const auto answer = CMDialogBox(FileQuestion::Action::Save, store_.CurrentFile)) {
        const std::string path = completePath(answer->name, DataDir);
        DataDir = DirectoryOf(path);
        setDataPath(program_, DataDir);
        offerDataPath(program_, DataDir);
        FilePath = nameBehind(DataDir, path);
    }
    Save();
    control<Label>("lblFile").setCaption(withoutExtension(FilePath));
    store_.CurrentFile = FilePath;
    refreshMainScreen(FilePath);
}

void FrmDeckMenu::cmdExit_Click() {
    if (mayLeave()) program_.screens.unload(name());
}

/// The question before the form goes, by its Exit or by its frame. True when it may go.
bool FrmDeckMenu::mayLeave() {
    if (SaveState_ != SaveState::Saved) {
        const Answer answer = program_.dialogs.MsgBox(
            "You have not save the file.  Do you want to save the file?", Buttons::YesNoCancel);
        if (answer != Answer::Yes && answer != Answer::No) return false;
        if (answer == Answer::Yes) {
            if (errorFound()) return false;
            Save();
        }
    }
    store_.DataLoaded = 0;
    return true;
}

std::optional<FileAnswer> FrmDeckMenu::CMDialogBox(FileQuestion::Action action, const std::string& proposal) {
    return program_.dialogs.fileDialog({.action = action,
                                        .filter = "Data Files (*.DAT)|*.DAT|",
                                        .filterNumber = 2,
                                        .name = proposal,
                                        .directory = DataDir});
}
