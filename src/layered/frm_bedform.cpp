#include "layered/frm_bedform.h"

#include "layered/layered_deck.h"
#include "layered/layered_rules.h"
#include "store/frm_status_words.h"

namespace {

bool hasLayers(const LayeredSet& set) { return set.NL != 0; }

const std::array<DataMenu<LayeredSet>, 9> dataMenus = {{
    {"mnuGeneral", "&General", "lblGeneral", "input", "General information on key parameters for TOLSTRAT",
     nullptr, "",
     [](Store& store, const LayeredSet&) {
         store.TableKind = 102;
         return "frmGeneral1";
     }},
    {"mnuZcoord", "&Zcoord", "lblZcoord", "default",
     "Z coordinates, or depth from surface, at which responses are to be computed",
     [](const LayeredSet& set) { return !(set.NDAMA > 0) && set.NZ != 0; },
     "You don't have to click this menu because NZ = 0 or NDAMA=1 or 2.",
     [](Store& store, const LayeredSet& set) {
         selectTable(store, 103, 2, set.NZ);
         return "frmspreadb";
     }},
    {"mnuLayer", "&Layer", "lblLayer", "input",
     "Thickness, Poisson's ratio and unit weight of each layer and subgrade", hasLayers,
     "NL in the 'General' menu is 0",
     [](Store& store, const LayeredSet& set) {
         selectTable(store, 104, isNonlinear(set) ? 4 : 3, set.NL);
         return "frmSpread2";
     }},
    {"mnuInterface", "&Interface", "lblInterface", "default",
     "Type of interface (either bonded or frictionless) between two layers",
     [](const LayeredSet& set) { return set.NBOND != 1; },
     "You don't have to click this menu because NBOND = 1",
     [](Store& store, const LayeredSet& set) {
         selectTable(store, 105, 2, set.NL - 1);
         return "frmspreadb";
     }},
    {"mnuModuli", "&Moduli", "lblModuli", "input", "Elastic modulus of each layer including the subgrade",
     hasLayers, "NL = 0 in the 'General' menu.",
     [](Store& store, const LayeredSet&) {
         store.TableKind = 106;
         return "frmPeriod";
     }},
    {"mnuLoad", "L&oad", "lblLoad1", "input",
     "Load information including wheel spacing, contact pressure, contact radius, and response points",
     nullptr, "",
     [](Store& store, const LayeredSet& set) {
         selectMainTable(store, 107, 7, set.NLG);
         return "frmSpread1";
     }},
    {"mnuNonlinear", "&Nonlinear", "lblNonlinear", "default", "Nonlinear elastic layers", isNonlinear,
     "You don't have to click this menu because there are no nonlinear layers",
     [](Store& store, const LayeredSet&) {
         store.CurTopRow = 1;
         return "frmNonlin";
     }},
    {"mnuViscoelastic", "&Viscoelastic", "lblViscoelastic", "default", "Viscoelastic layers", isViscous,
     "You don't have to click this menu because there are no viscoelastic layers",
     [](Store&, const LayeredSet&) { return "frmVisco"; }},
    {"mnuDamage", "&Damage", "lblDamage", "default", "Failure criteria and volume of traffic",
     [](const LayeredSet& set) { return set.NDAMA != 0; },
     "You don't have to click this menu because NDAMA = 0.",
     [](Store&, const LayeredSet&) { return "frmDamage1"; }},
}};

}  // namespace

const FrmDeckMenu::Side frmBEDFORM::side = {.form = "frmBEDFORM",
                                            .caption = "Main Menu of BEDFORM",
                                            .helpBox = "txtBEDFORM",
                                            .helpPage = "frm_bedform",
                                            .untitled = "UNTITLED.DAT",
                                            .dataSets = 5,
                                            .dataSet = &Store::CurLayDS};

frmBEDFORM::frmBEDFORM(Program& program) : FrmDeckMenu(side, program) {
    auto rows = rowsOf(dataMenus, [this]() -> const LayeredSet& { return store_.layered[store_.CurLayDS]; });
    rows.push_back({.menu = "mnuMohr", .caption = "Mohr-&Coulomb", .action = [this] { open("frmMohr"); }});
    build(rows);
}

void frmBEDFORM::newFile() {
    store_.GeneralVisits = 0;
    for (int n = 1; n <= side.dataSets; ++n) {
        store_.SetVisits[n] = 0;
        setNewFileDefaults(store_.layered[n]);
    }
    for (const auto& rule : colorCodeRules) control<StatusLabel>(rule.label).blueDefault();
}

void frmBEDFORM::makeDataSet(int n) {
    if (++store_.SetVisits[n] == 1) Initial(store_, n);
}

DeckReadResult frmBEDFORM::readDeck(const std::string& path, const std::function<void()>& countRead) {
    static const char* const oldFormat =
        "When converting an old DOS data file to the new format , EMIN for granular material is no longer "
        "needed and is replaced by a default angle of internal friction (PHI) of 0 signifying that no "
        "tension "
        "is allowed.  If you don't want to use this default, be sure to change it before saving the file";
    store_.GeneralVisits = 0;
    return readLayeredDeck(path, store_,
                           {.nprobRead = [&](Integer) { countRead(); },
                            .oldFormatPHI = [this](int) { showMessage(oldFormat); }});
}

void frmBEDFORM::saveDeck(const std::string& path) { saveLayeredDeck(store_, path); }

std::vector<std::string> frmBEDFORM::ErrCheck() {
    const auto missing = ErrCheck1(store_);
    return missing ? std::vector{*missing} : std::vector<std::string>{};
}

void frmBEDFORM::ColorCode(int n) { showStatusWords(*this, colorCodeRules, store_.layered[n]); }
