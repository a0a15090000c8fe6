#include "layered/frm_bedform.h"

#include <QFrame>
#include <QGridLayout>
#include <QVBoxLayout>

#include "grid/table_selectors.h"
#include "layered/data_menus.h"
#include "layered/layered_deck.h"
#include "layered/layered_rules.h"
#include "platform/files.h"
#include "store/deck_path.h"
#include "store/frm_main_link.h"
#include "store/frm_status_words.h"
#include "store/store.h"
#include "text/pages.h"

namespace {

constexpr int dataSets = 5;

bool hasLayers(const LayeredSet& set) { return set.NL != 0; }

const DataMenu dataMenus[] = {
    {"mnuGeneral", "&General", "lblGeneral", "input", "General information on key parameters for TOLSTRAT",
     nullptr, "", [](Store& store, const LayeredSet&) { store.TableKind = 102; }, "frmGeneral1"},
    {"mnuZcoord", "&Zcoord", "lblZcoord", "default",
     "Z coordinates, or depth from surface, at which responses are to be computed",
     [](const LayeredSet& set) { return !(set.NDAMA > 0) && set.NZ != 0; },
     "You don't have to click this menu because NZ = 0 or NDAMA=1 or 2.",
     [](Store& store, const LayeredSet& set) { selectTable(store, 103, 2, set.NZ); }, "frmspreadb"},
    {"mnuLayer", "&Layer", "lblLayer", "input",
     "Thickness, Poisson's ratio and unit weight of each layer and subgrade", hasLayers,
     "NL in the 'General' menu is 0",
     [](Store& store, const LayeredSet& set) { selectTable(store, 104, isNonlinear(set) ? 4 : 3, set.NL); },
     "frmSpread2"},
    {"mnuInterface", "&Interface", "lblInterface", "default",
     "Type of interface (either bonded or frictionless) between two layers",
     [](const LayeredSet& set) { return set.NBOND != 1; },
     "You don't have to click this menu because NBOND = 1",
     [](Store& store, const LayeredSet& set) { selectTable(store, 105, 2, set.NL - 1); }, "frmspreadb"},
    {"mnuModuli", "&Moduli", "lblModuli", "input", "Elastic modulus of each layer including the subgrade",
     hasLayers, "NL = 0 in the 'General' menu.",
     [](Store& store, const LayeredSet&) { store.TableKind = 106; }, "frmPeriod"},
    {"mnuLoad", "L&oad", "lblLoad1", "input",
     "Load information including wheel spacing, contact pressure, contact radius, and response points",
     nullptr, "", [](Store& store, const LayeredSet& set) { selectMainTable(store, 107, 7, set.NLG); },
     "frmSpread1"},
    {"mnuNonlinear", "&Nonlinear", "lblNonlinear", "default", "Nonlinear elastic layers", isNonlinear,
     "You don't have to click this menu because there are no nonlinear layers",
     [](Store& store, const LayeredSet&) { store.CurTopRow = 1; }, "frmNonlin"},
    {"mnuViscoelastic", "&Viscoelastic", "lblViscoelastic", "default", "Viscoelastic layers", isViscous,
     "You don't have to click this menu because there are no viscoelastic layers",
     [](Store&, const LayeredSet&) {}, "frmVisco"},
    {"mnuDamage", "&Damage", "lblDamage", "default", "Failure criteria and volume of traffic",
     [](const LayeredSet& set) { return set.NDAMA != 0; },
     "You don't have to click this menu because NDAMA = 0.", [](Store&, const LayeredSet&) {}, "frmDamage1"},
};

std::string numbered(const char* name, int n) { return name + std::to_string(n); }

}  // namespace

frmBEDFORM::frmBEDFORM(Program& program)
    : MenuForm("frmBEDFORM", program.dialogs, program.printer), program_(program), store_(program.store) {
    auto* body = new QVBoxLayout;
    body->setSpacing(10);
    body->addLayout(menuBar(menuRows()));
    auto* line = new QFrame(this);
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);
    body->addWidget(line);
    body->addLayout(dataSetButtons());
    layOut(body, "txtBEDFORM",
           {{"cmdSave", "&Save", [this] { cmdSave_Click(); }},
            {"cmdSaveAs", "Save &As", [this] { cmdSaveAs_Click(); }},
            {"cmdExit", " &Exit", [this] { cmdExit_Click(); }}});
}

std::vector<MenuRow> frmBEDFORM::menuRows() {
    std::vector<MenuRow> rows = {
        {.menu = "mnuFile",
         .caption = "&File",
         .label = "lblFile",
         .word = "input",
         .hint =
             "Click File first, then click New for new file to be created or Old for old file to be edited",
         .entries = {{"mnuNew", "&New", [this] { mnuNew_Click(); }},
                     {"mnuOpen", "&Old", [this] { mnuOpen_Click(); }}}}};
    for (std::size_t i = 0; i < std::size(dataMenus); ++i) {
        const DataMenu& data = dataMenus[i];
        rows.push_back({.menu = data.menu,
                        .caption = data.caption,
                        .label = data.label,
                        .word = data.word,
                        .hint = data.hint,
                        .action = [this, i] { dataMenu_Click(i); }});
    }
    rows.push_back({.menu = "mnuMohr", .caption = "Mohr-&Coulomb", .action = [this] { mnuMohr_Click(); }});
    return rows;
}

QLayout* frmBEDFORM::dataSetButtons() {
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(2);
    for (int n = 1; n <= dataSets; ++n) {
        auto* option = new OptionButton(numbered("optDataSet", n), numbered("Data Set ", n), this);
        option->onClick = [this, n] { optDataSet_Click(n); };
        auto* exists = new StatusLabel(numbered("Label", n), n == 1 ? "Yes" : "No", this);
        exists->setForeColor(n == 1 ? StatusLabel::red : StatusLabel::blue);
        grid->addWidget(option, 0, n, Qt::AlignHCenter);
        grid->addWidget(exists, 1, n, Qt::AlignHCenter);
    }
    return grid;
}

void frmBEDFORM::Form_Load() {
    setCaption("Main Menu of BEDFORM");
    DataDir = withSlash(store_.cmbDirectory);
    store_.FileName = withDatExtension(store_.FileName);
    store_.CurrentFile = store_.FileName;
    control<OptionButton>("optDataSet1").setValue(true);
    setHelp(textPage("frm_bedform", store_.NL));
    present();
}

/// Even a click that is refused counts as a change.
void frmBEDFORM::dataMenu_Click(std::size_t row) {
    const DataMenu& menu = dataMenus[row];
    const LayeredSet& set = store_.layered[store_.CurLayDS];
    SaveState_ = SaveState::Changed;
    if (store_.DataLoaded == 0) {
        showMessage("No data file has been loaded.");
    } else if (menu.wanted && !menu.wanted(set)) {
        showMessage(menu.refusal);
    } else {
        menu.select(store_, set);
        open(menu.form);
    }
}

void frmBEDFORM::mnuMohr_Click() { open("frmMohr"); }

/// A form that is open comes to the front.
void frmBEDFORM::open(const std::string& form) {
    if (Form* opened = program_.screens.load(form)) opened->Show();
}

/// The buttons of the data sets and the words of the data that every deck needs stay as they are, a "done"
/// of an earlier deck included: kept.
void frmBEDFORM::mnuNew_Click() {
    store_.CurrentFile = FilePath = "UNTITLED.DAT";
    store_.NewFile = store_.DataLoaded = 1;
    control<Label>("lblFile").setCaption("Untitled");
    SaveState_ = SaveState::Changed;
    store_.CurLayDS = store_.NPROB = 1;
    store_.CurTopRow = 1;
    store_.GeneralVisits = 0;
    for (int n = 1; n <= dataSets; ++n) {
        store_.SetVisits[n] = 0;
        setNewFileDefaults(store_.layered[n]);
    }
    for (const auto& rule : colorCodeRules) control<StatusLabel>(rule.label).blueDefault();
}

/// After a cancelled dialog it goes on with the path that it has, so the earlier file is read again: kept.
void frmBEDFORM::mnuOpen_Click() {
    const std::string& name = store_.CurrentFile;
    const auto answer = CMDialogBox(FileQuestion::Action::Open, name.empty() ? "" : DataDir + name);
    if (answer && !isFullName(answer->name)) return;
    if (answer) FilePath = answer->name;
    store_.NewFile = store_.GeneralVisits = 0;
    FilePath = completePath(FilePath, DataDir);
    DataDir = DirectoryOf(FilePath);
    setDataPath(program_, DataDir);
    setFileName(program_, nameBehind(DataDir, FilePath));
    store_.DataLoaded = 1;
    readDeck();
}

void frmBEDFORM::readDeck() {
    static const char* const oldFormat =
        "When converting an old DOS data file to the new format , EMIN for granular material is no longer "
        "needed and is replaced by a default angle of internal friction (PHI) of 0 signifying that no "
        "tension "
        "is allowed.  If you don't want to use this default, be sure to change it before saving the file";
    const auto result = readLayeredDeck(FilePath, store_,
                                        {.nprobRead = [this](Integer) { showDataSets(); },
                                         .oldFormatPHI = [this](int) { showMessage(oldFormat); }});
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

/// Labels of data sets that an earlier deck had keep their "Yes".
void frmBEDFORM::showDataSets() {
    if (store_.NPROB > dataSets) return;
    for (int n = 2; n <= store_.NPROB; ++n) {
        auto& exists = control<StatusLabel>(numbered("Label", n));
        exists.setCaption("Yes");
        exists.setForeColor(StatusLabel::red);
    }
}

/// The first click on a data set that the deck does not have makes it, as a copy of the first one.
void frmBEDFORM::optDataSet_Click(int n) {
    store_.CurLayDS = n;
    if (n == 1 || store_.NPROB >= n) {
        ColorCode(n);
        return;
    }
    store_.NPROB = static_cast<Integer>(n);
    if (++store_.SetVisits[n] == 1) Initial(store_, n);
    auto& exists = control<StatusLabel>(numbered("Label", n));
    exists.setCaption("Yes");
    exists.setForeColor(StatusLabel::red);
}

void frmBEDFORM::ColorCode(int n) { showStatusWords(*this, colorCodeRules, store_.layered[n]); }

bool frmBEDFORM::errorFound() {
    const auto missing = ErrCheck1(store_);
    if (missing) showMessage(*missing);
    return missing.has_value();
}

/// Writes the deck; a bare name lies in the data directory.
void frmBEDFORM::Save() {
    FilePath = withDatExtension(FilePath);
    saveLayeredDeck(store_, resolveIn(store_.cmbDirectory, FilePath));
    SaveState_ = SaveState::Saved;
    showMessage("File with a filename of " + FilePath + " has been saved");
}

void frmBEDFORM::cutFilePath() { FilePath = nameBehind(DataDir, FilePath); }

void frmBEDFORM::cmdSave_Click() {
    if (errorFound()) return;
    cutFilePath();
    refreshFileName(program_, FilePath);
    Save();
}

/// A failure ends it without a message.
void frmBEDFORM::cmdSaveAs_Click() {
    const bool missing = errorFound();
    DataDir = withSlash(store_.cmbDirectory);
    if (missing) return;
    try {
        saveUnderDialogName();
    } catch (const RunTimeError&) {
    }
}

/// After a cancelled dialog the deck is saved under the name that it has: kept.
void frmBEDFORM::saveUnderDialogName() {
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
    refreshFileName(program_, FilePath);
}

void frmBEDFORM::cmdExit_Click() {
    if (mayLeave()) program_.screens.unload(name());
}

/// The question before the form goes, by its Exit or by its frame. True when it may go.
bool frmBEDFORM::mayLeave() {
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

std::optional<FileAnswer> frmBEDFORM::CMDialogBox(FileQuestion::Action action, const std::string& proposal) {
    return program_.dialogs.fileDialog({.action = action,
                                        .filter = "Data Files (*.DAT)|*.DAT|",
                                        .filterNumber = 2,
                                        .name = proposal,
                                        .directory = DataDir});
}
