#include "slab/frm_slabdata.h"

namespace {

using Set = SlabSet;

const std::array<DataMenu<Set>, 4> menus = {{
    {"mnuArrangement", "&Arrangement", "lblArrange", "input", "Arrange of slabs and joint", nullptr, "",
     [](Store& store, const Set& set) {
         selectTable(store, 203, set.NSLAB < 2 ? 3 : 7, set.NSLAB);
         return "frmSpread2";
     }},
    {"mnuXcoordinate", "&X-coordinate", "lblXcoord", "input",
     "X local coordinates of finite element grid for each slab", nullptr, "",
     [](Store& store, const Set&) {
         store.TableKind = 206;
         return "frmSlabs";
     }},
    {"mnuYcoordinate", "&Y-coordinate", "lblYcoord", "input",
     "Y local coordinates of finite element grid for each slab", nullptr, "",
     [](Store& store, const Set&) {
         store.TableKind = 207;
         return "frmSlabs";
     }},
    {"mnuProperties", "&Properties", "lblProperties", "input",
     "Thickness, Poisson's ratio, Young's modulus, and unit weight of concrete", nullptr, "",
     [](Store& store, const Set& set) {
         selectTable(store, 208, set.NWT == Variant(1) ? 5 : 4, set.NLAYER != 1 ? 2 : 1);
         return "frmSpread3";
     }},
}};

}  // namespace

const FrmSecondMenu::Kind frmSlabData::kind = {.form = "frmSlabData",
                                               .caption = "Slab Information for Data Set No",
                                               .helpPage = "frm_slabdata",
                                               .okButton = "cmdOK",
                                               .caller = "frmPANFORM",
                                               .label = "lblSlab",
                                               .dataSet = &Store::CurSlabDS};

frmSlabData::frmSlabData(Program& program) : FrmSecondMenu(kind, program) {
    build(rowsOf(menus, [this]() -> const Set& { return store_.slab[set_]; }));
}
