#include "slab/frm_damage.h"

namespace {

using Set = SlabSet;

const std::array<DataMenu<Set>, 2> menus = {{
    {"mnuFatigue", "&Fatigue Properties", "lblFatigue", "input",
     "modulus of rupture and fatigue coefficients for each slab layer", nullptr, "",
     [](Store& store, const Set& set) {
         selectTable(store, 205, set.NDAMA == 2 ? 4 : 2, set.NLAYER != 1 ? 2 : 1);
         return "frmSpread3";
     }},
    {"mnuVolume", "&Volume of Traffic", "lblVolume", "input",
     "number of repetitions of each load group during each period", nullptr, "",
     [](Store& store, const Set&) {
         store.TableKind = 225;
         return "frmPeriod";
     }},
}};

}  // namespace

const FrmSecondMenu::Kind frmDamage::kind = {.form = "frmDamage",
                                             .caption = "Damage Analysis for Data Set N0.",  // a zero: kept
                                             .helpPage = "frm_damage",
                                             .okButton = "cmdOk",
                                             .caller = "frmPANFORM",
                                             .label = "lblDamage",
                                             .dataSet = &Store::CurSlabDS};

frmDamage::frmDamage(Program& program) : FrmSecondMenu(kind, program) {
    build(rowsOf(menus, [this]() -> const Set& { return store_.slab[set_]; }));
}
