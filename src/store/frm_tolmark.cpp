#include "store/frm_tolmark.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QFrame>
#include <QGridLayout>
#include <QShortcut>

#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "store/data_paths.h"
#include "store/frm_file_list.h"
#include "store/store.h"
#include "text/frm_help1.h"

namespace {

const char* const deckPattern = "*.dat";

const char* const noSuchDrive =
    "The default data path is Drive A:, please place a disk in drive A: and then click OK.  If you are not "
    "using Drive A:, you can still click OK but change A:\\ in the DataPath box to the directory you want.";

}  // namespace

// --- The page -------------------------------------------------------------------------------------------

struct frmTOLMARK::ButtonRow {
    const char* name;
    const char* caption;
    const char* about;
    void (frmTOLMARK::*click)();
};

frmTOLMARK::frmTOLMARK(Program& program)
    : Form("frmTOLMARK"), onExit([] { QCoreApplication::exit(0); }), program_(program) {
    setCaption("TOLMARK");
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(28, 20, 28, 16);
    page->setSpacing(14);
    buildHead(*page);
    buildInputs(*page);

    auto* groups = new QHBoxLayout;
    groups->setSpacing(18);
    buildGroup(*groups, "Label2", "Asphalt", "Label5", "Layered systems",
               {{"cmdBedform", "&BEDFORM", "Input of layers and loads", &frmTOLMARK::cmdBedform_Click},
                {"cmdTolstrat", "TOL&STRAT", "Start the layered solver", &frmTOLMARK::cmdTolstrat_Click},
                {"cmdBedplot", "BE&DPLOT", "Plot pavement and results", &frmTOLMARK::cmdBedplot_Click}});
    buildGroup(
        *groups, "Label3", "Concrete", "Label6", "Slabs on a foundation",
        {{"cmdPanform", "&PANFORM", "Input of slabs and loads", &frmTOLMARK::cmdPanform_Click},
         {"cmdTolplate", "TO&LPLATE", "Start the slab solver", &frmTOLMARK::cmdTolplate_Click},
         {"cmdLarge", "&TOLPLATE LARGE RAM", "The same for large problems", &frmTOLMARK::cmdLarge_Click},
         {"cmdPanplot", "PA&NPLOT", "Plot slabs and results", &frmTOLMARK::cmdPanplot_Click},
         {"cmdContour", "&CONTOUR", "Plot stress contours", &frmTOLMARK::cmdContour_Click}});
    page->addLayout(groups, 1);

    auto* foot = new QHBoxLayout;
    foot->addWidget(new Label("Label4", "Click help for information on the use of this Main Screen.", this),
                    1);
    for (const ButtonRow& row : std::initializer_list<ButtonRow>{
             {"cmdEdit", "&EDITOR", "Look at and change decks and results as text",
              &frmTOLMARK::cmdEdit_Click},
             {"cmdHelp", "&HELP", "The use of this Main Screen", &frmTOLMARK::cmdHelp_Click},
             {"cmdExit", "E&XIT", "Keep the list of directories and end the program",
              &frmTOLMARK::cmdExit_Click}}) {
        Button* button = makeButton(row);
        button->setMinimumSize(110, 32);
        foot->addWidget(button);
    }
    page->addLayout(foot);
    lblStatus = new Label("lblStatus", "", this);
    page->addWidget(lblStatus);

    auto* terminal = new QShortcut(QKeySequence("Ctrl+T"), this);
    connect(terminal, &QShortcut::activated, this,
            [this] { dispatch([this] { openTerminalInDataDirectory(); }); });
}

void frmTOLMARK::buildHead(QBoxLayout& page) {
    auto* name = new Label("lblHelp", "TOLMARK", this);
    QFont large = name->font();
    large.setPointSizeF(large.pointSizeF() * 2.6);
    large.setBold(true);
    name->setFont(large);

    Text1 = new HelpBox("Text1", this);
    Text1->setAccessibleName("About TOLMARK");
    Text1->setFocusPolicy(Qt::ClickFocus);
    Text1->setFont(font());
    Text1->setFrameShape(QFrame::NoFrame);
    Text1->viewport()->setAutoFillBackground(false);
    Text1->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    Text1->document()->setDocumentMargin(0);
    Text1->setFixedHeight(4 * fontMetrics().lineSpacing() + 12);

    auto* head = new QHBoxLayout;
    head->setSpacing(24);
    head->addWidget(name);
    head->addWidget(Text1, 1);
    page.addLayout(head);
}

void frmTOLMARK::buildInputs(QBoxLayout& page) {
    auto* pathLabel = new Label("Label1", "Data Path:", this);
    auto* nameLabel = new Label("lblFileName", "Filename:", this);
    nameLabel->setToolTip("Click here for a hint");
    nameLabel->setCursor(Qt::PointingHandCursor);
    nameLabel->onClick = [this] { lblFileName_Click(); };

    cmbDataPath = new ComboBox("cmbDataPath", this);
    cmbDataPath->setAccessibleName("Data Path");
    cmbDataPath->setToolTip(
        "The directory of your data files, with a / at its end. Ctrl+T opens a terminal there.");
    cmbDataPath->onClick = [this] { cmbDataPath_Click(); };
    cmbDataPath->onChange = [this] { cmbDataPath_Change(); };
    cmbFileName = new ComboBox("cmbFileName", this);
    cmbFileName->setAccessibleName("Filename");
    cmbFileName->setToolTip("The data file: choose one from the list or type a new name.");

    auto* inputs = new QGridLayout;
    inputs->setHorizontalSpacing(12);
    inputs->setColumnStretch(1, 1);
    int row = 0;
    for (const auto& [label, box] : {std::pair{pathLabel, cmbDataPath}, {nameLabel, cmbFileName}}) {
        // A long entry widens neither the box nor the form.
        box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        box->setMinimumContentsLength(40);
        box->setMinimumHeight(30);
        inputs->addWidget(label, row, 0);
        inputs->addWidget(box, row++, 1);
    }
    page.addLayout(inputs);
}

void frmTOLMARK::buildGroup(QBoxLayout& page, const char* label, const char* caption, const char* aboutLabel,
                            const char* about, std::initializer_list<ButtonRow> rows) {
    auto* panel = new QFrame(this);
    panel->setFrameShape(QFrame::StyledPanel);
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(16, 12, 16, 16);
    grid->setHorizontalSpacing(14);
    grid->setVerticalSpacing(12);
    grid->setColumnStretch(1, 1);

    auto* title = new Label(label, caption, this);
    QFont bold = title->font();
    bold.setBold(true);
    bold.setPointSizeF(bold.pointSizeF() * 1.25);
    title->setFont(bold);
    grid->addWidget(title, 0, 0);
    grid->addWidget(new Label(aboutLabel, about, this), 0, 1);
    int line = 1;
    for (const ButtonRow& row : rows) {
        Button* button = makeButton(row);
        button->setMinimumSize(190, 36);
        grid->addWidget(button, line, 0);
        grid->addWidget(new QLabel(row.about, this), line++, 1);
    }
    grid->setRowStretch(line, 1);
    page.addWidget(panel, 1);
}

Button* frmTOLMARK::makeButton(const ButtonRow& row) {
    auto* button = new Button(row.name, row.caption, this);
    button->setToolTip(row.about);
    button->onClick = [this, click = row.click] { (this->*click)(); };
    return button;
}

void frmTOLMARK::showStatus(const std::string& text) { lblStatus->setCaption(text); }

// --- Start, and the history of directories ----------------------------------------------------------------

void frmTOLMARK::Form_Load() {
    Store& store = program_.store;
    store.NL = "\r\n";
    place();
    Text1->setTextValue("Version " TOLMARK_VERSION + store.NL +
                        "Structural analysis of asphalt and concrete road pavements" + store.NL +
                        "Input screens and plots for TOLSTRAT, TOLPLATE and TOLGIANT" + store.NL +
                        "Made by the TOLMARK team");
    ProgramDir = program_.desktop.programDirectory() + "/";
    if (ProgramDir.ends_with("//")) ProgramDir.pop_back();
    lastFullDirectory_ = ProgramDir;
    try {
        restoreHistory();
    } catch (const RunTimeError&) {
        startWithProgramDirectory();
    }
    Show();
    cmbFileName->setFocus();
}

void frmTOLMARK::restoreHistory() {
    Store& store = program_.store;
    readDataPaths(historyFile(), store.DataPaths, PathCount);
    store.cmbDirectory = store.DataPaths[1];
    cmbDataPath->setTextValue(store.cmbDirectory);
    for (int i = 1; i <= PathCount; ++i) cmbDataPath->addListItem(store.DataPaths[i]);
    program_.desktop.ChDir(store.cmbDirectory);
    FillFileList(store.cmbDirectory, deckPattern, *cmbFileName);
}

/// The way of a first run, and of a history whose first directory is not there. What was read of the history
/// stays: Exit writes it back behind the program directory.
void frmTOLMARK::startWithProgramDirectory() {
    Store& store = program_.store;
    store.cmbDirectory = ProgramDir;
    try {
        writeDataPaths(historyFile(), store.cmbDirectory, store.DataPaths, 0);
    } catch (const RunTimeError&) {
        // Exit writes the file again, and says so if it cannot.
    }
    cmbDataPath->setTextValue(store.cmbDirectory);
    dispatch([&] { FillFileList(store.cmbDirectory, deckPattern, *cmbFileName); });
}

std::string frmTOLMARK::historyFile() const { return program_.desktop.settingsDirectory() + "/DataPath"; }

/// A bare name lies under the last directory that was typed in full.
std::string frmTOLMARK::completed(const std::string& directory) const {
    return directory.empty() || isFullName(directory) ? directory : lastFullDirectory_ + directory;
}

void frmTOLMARK::cmbDataPath_Click() {
    const std::string typed = cmbDataPath->textValue();
    std::string& directory = program_.store.cmbDirectory;
    try {
        cmbFileName->setTextValue("");
        directory = completed(typed);
        FillFileList(directory, deckPattern, *cmbFileName);
    } catch (const RunTimeError&) {
        program_.dialogs.MsgBox(noSuchDrive);
        return;
    }
    // Runs at every key, and so makes a directory for each part of a name on its way: kept.
    program_.desktop.MkDir(typed, lastFullDirectory_);
    if (isFullName(typed) && typed.ends_with('/')) lastFullDirectory_ = typed;
}

void frmTOLMARK::SyncDataPath() {
    Store& store = program_.store;
    const std::string name = cmbFileName->textValue();
    const std::string directory = completed(cmbDataPath->textValue());
    if (!equalIgnoringCase(directory, store.DataPaths[1])) {
        cmbDataPath->insertListItem(directory, 0);
        const auto dropped = putDataPathFirst(directory, store.DataPaths, PathCount);
        if (dropped && *dropped < cmbDataPath->listCount()) cmbDataPath->removeListItem(*dropped);
        store.cmbDirectory = store.DataPaths[1];
    }
    cmbDataPath->setTextValue(store.cmbDirectory);
    // A bare directory is shown in full from now on; the list that comes with it must not take the name.
    cmbFileName->setTextValue(name);
    store.FileName = name;
}

void frmTOLMARK::cmdExit_Click() {
    // Where the history cannot be written the user is told, and leaves all the same.
    dispatch([this] {
        const Store& store = program_.store;
        std::optional<std::string> first;
        if (!equalIgnoringCase(cmbDataPath->textValue(), store.DataPaths[1])) first = store.cmbDirectory;
        writeDataPaths(historyFile(), first, store.DataPaths, PathCount);
    });
    dispatch(onExit);
}

// --- Other screens and the solvers
// --------------------------------------------------------------------------

void frmTOLMARK::openInput(const std::string& form) {
    SyncDataPath();
    if (Form* screen = program_.screens.load(form)) screen->Show();
}

/// A plot screen has done its work when it is loaded.
void frmTOLMARK::openPlot(const std::string& form) {
    program_.store.FileName = program_.store.cmbDirectory + cmbFileName->textValue();
    if (Form* screen = program_.screens.load(form)) screen->Show();
    program_.screens.unload(form);
}

void frmTOLMARK::cmdHelp_Click() { showManual(program_, 1); }

void frmTOLMARK::startSolver(const std::string& executable) {
    std::string name = cmbFileName->textValue();
    if (upperCase(name).ends_with(".DAT")) {
        name.resize(name.size() - 4);
    } else {
        cmbFileName->setTextValue(name + ".DAT");
    }
    program_.desktop.Shell(ProgramDir + executable, program_.store.cmbDirectory + name);
}

void frmTOLMARK::lblFileName_Click() {
    std::string& NL = program_.store.NL;
    NL = "\n";  // for the rest of the run: every text built later has lone line feeds, as printing expects
    program_.dialogs.MsgBox("Enter New Filename" + NL + "or Select File from List", Buttons::Ok, "Filename");
}

void frmTOLMARK::openTerminalInDataDirectory() {
    program_.desktop.ChDir(program_.store.cmbDirectory);
    program_.desktop.openTerminal(program_.store.cmbDirectory);
}
