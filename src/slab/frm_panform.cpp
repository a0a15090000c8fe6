#include "slab/frm_panform.h"

#include "slab/slab_deck.h"
#include "slab/slab_rules.h"
#include "store/frm_main_link.h"
#include "store/frm_status_words.h"

namespace {

using Set = SlabSet;

/// The table of the foundation, or the form of a solid one, by the kind of foundation.
const char* selectFoundation(Store& store, const Set& set) {
    if (set.NFOUND == 1) {
        store.CurTopRow = 1;
        return "frmSolid";
    }
    selectMainTable(store, set.NFOUND == 0 ? 221 : 223, 3, 1);
    store.MainRows = 2;
    return "frmSpreada";
}

const std::array<DataMenu<Set>, 10> dataMenus = {{
    {"mnuGeneral", "&General", "lblGeneral", "input", "General information on key parameters for TOLPLATE",
     nullptr, "",
     [](Store& store, const Set&) {
         store.TableKind = 202;
         return "frmGeneral";
     }},
    {"mnuCurling", "&Curling", "lblCurling", "default",
     "Curling of slabs including contact conditions and gaps", nullptr, "",
     [](Store& store, const Set&) {
         store.TableKind = 204;
         return "frmCurling";
     }},
    {"mnuSlab", "Sla&b", "lblSlab", "input",
     "Slab and joint arrangement, finite element grid and concrete properties", nullptr, "",
     [](Store&, const Set&) { return "frmSlabData"; }},
    {"mnuUniform", "&Uniform", "lblUniform", "input",
     "Uniformly distributed contact areas and contact pressure", nullptr, "",
     [](Store& store, const Set& set) {
         selectMainTable(store, 209, 2, set.NLG);
         return "frmSpreada";
     }},
    {"mnuRaft", "&Raft", "lblRaft", "default", "Raft on elastic foundation or pavements with point loads",
     nullptr, "",
     [](Store& store, const Set&) {
         selectMainTable(store, 210, 2, 3);
         return "frmSpreada";
     }},
    {"mnuOptional", "Optiona&l", "lblOptional", "default",
     "Other optional information including variable thicknesses, symmetry, printout, and dowel bars", nullptr,
     "",
     [](Store& store, const Set&) {
         store.TableKind = 211;
         return "frmOptional";
     }},
    {"mnuFoundation", "Foundat&ion", "lblFoundation", "input",
     "Information for liquid, solid, or layer foundation", nullptr, "", selectFoundation},
    {"mnuAdjust", "Adjus&t", "lblAdjust", "default", "Foundation seasonal adjustment factor for each period",
     nullptr, "",
     [](Store& store, const Set& set) {
         selectTable(store, 220, 2, set.NPY);
         return "frmspreadb";
     }},
    {"mnuJoint", "&Joint", "lblJoint", "default",
     "Joint information including shear transfer, moment transfer, if any, and dowel information",
     [](const Set& set) { return set.NJOINT != 0; }, "You don't have to click this menu because NJOINT = 0",
     [](Store& store, const Set& set) {
         selectMainTable(store, 224, 9, set.NJOINT);
         return "frmSpread1";
     }},
    // Alone of all it does not count as a change: kept.
    {"mnuDamage", "&Damage", "lblDamage", "default",
     "Modulus of rupture and fatigue property of concrete and volume of traffic",
     [](const Set& set) { return set.NDAMA != 0; }, "You don't have to click this menu because NDAMA = 0.",
     [](Store&, const Set&) { return "frmDamage"; }, false},
}};

}  // namespace

const FrmDeckMenu::Side frmPANFORM::side = {.form = "frmPANFORM",
                                            .caption = "Main Menu of PANFORM",
                                            .helpBox = "txtPanform",
                                            .helpPage = "frm_panform",
                                            .untitled = "Untitled.DAT",
                                            .dataSets = 2,
                                            .dataSet = &Store::CurSlabDS};

frmPANFORM::frmPANFORM(Program& program) : FrmDeckMenu(side, program) {
    build(rowsOf(dataMenus, [this]() -> const Set& { return store_.slab[store_.CurSlabDS]; }));
}

void frmPANFORM::Form_Load() {
    FrmDeckMenu::Form_Load();
    store_.TableKind = 201;
}

/// Only data set 1 is made anew.
void frmPANFORM::newFile() {
    DataSet2Clicks = 0;
    store_.GeneralOpens = store_.ArrangeVisits = 0;
    setNewFileDefaults(store_.slab[1]);
    for (const char* label : {"lblCurling", "lblRaft", "lblOptional", "lblAdjust", "lblJoint", "lblDamage"})
        control<StatusLabel>(label).blueDefault();
    control<StatusLabel>("lblUniform").input();
}

/// A later click, after a deck of one data set was read, brings no copy and leaves the words: kept.
void frmPANFORM::makeDataSet(int n) {
    if (++DataSet2Clicks != 1) return;
    copyToDataSet2(store_);
    ColorCode(n);
}

DeckReadResult frmPANFORM::readDeck(const std::string& path, const std::function<void()>& countRead) {
    return readSlabDeck(path, store_, countRead);
}

void frmPANFORM::saveDeck(const std::string& path) { saveSlabDeck(store_, path); }

std::vector<std::string> frmPANFORM::ErrCheck() { return ::ErrCheck(store_); }

void frmPANFORM::ColorCode(int n) { showStatusWords(*this, slabColorCode, store_.slab[n]); }

void frmPANFORM::refreshMainScreen(const std::string& FileName) {
    syncDataPath(program_);
    FrmDeckMenu::refreshMainScreen(FileName);
}
