#include "slab/frm_optional.h"

#include "store/rules.h"

namespace {

using Set = SlabSet;

template <auto count, int TableKind, int GridCols>
const char* openList(Store& store, const Set& set) {
    selectTable(store, TableKind, GridCols, lastIndex(set.*count));
    return "frmspreadb";
}

template <auto count>
bool hasList(const Set& set) {
    return lastIndex(set.*count) != 0;
}

const char* openDowel(Store&, const Set&) { return "frmDowel"; }

const std::array<DataMenu<Set>, 8> menus = {{
    {"mnuNat1", "Add.T.Layer &1", "lblNat1", "default", "Additional thicknesses for slab layer 1",
     hasList<&Set::NAT1>, "You don't have to click this menu because NAT1 = 0", openList<&Set::NAT1, 212, 3>},
    {"mnuNat2", "Add.T.Layer &2", "lblNat2", "default", "Additional thicknesses for slab layer 2",
     hasList<&Set::NAT2>, "You don't have to click this menu because NAT2 = 0", openList<&Set::NAT2, 213, 3>},
    {"mnuNotcon", "Node not &Contact", "lblNotcon", "default",
     "Nodal numbers at which slab and foundation are assumed not in contact", hasList<&Set::NOTCON>,
     "You don't have to click this menu because NOTCON = 0", openList<&Set::NOTCON, 214, 2>},
    {"mnuNprint", "Node &Printout", "lblNprint", "default",
     "Nodal numbers at which stresses are computed and printed", hasList<&Set::NPRINT>,
     "You don't have to click this menu because NPRINT = 0", openList<&Set::NPRINT, 215, 2>},
    {"mnuNsx", "Node &X symmetry", "lblNsx", "default", "Nodal numbers on the x axis of symmetry",
     hasList<&Set::NSX>, "You don't have to click this menu because NSX = 0", openList<&Set::NSX, 216, 2>},
    {"mnuNsy", "Node &Y symmetry", "lblNsy", "default", "Nodal numbers on the y axis of symmetry",
     hasList<&Set::NSY>, "You don't have to click this menu because NSY = 0", openList<&Set::NSY, 217, 2>},
    {"mnuNgap", "&Gaps", "lblNgap", "default", "Initial gaps at designated nodes", hasList<&Set::NGAP>,
     "You don't have to click this menu because NGAP = 0", openList<&Set::NGAP, 218, 3>},
    {"mnuDowel", "&Dowel", "lblDowel", "default", "Elastic modulus and Poisson's ratio of dowel bar",
     hasList<&Set::NJOINT>, "You don't have to click this menu because NJOINT = 0", openDowel},
}};

}  // namespace

const FrmSecondMenu::Kind frmOptional::kind = {.form = "frmOptional",
                                               .caption = "Other Optional Information for Data Set No. ",
                                               .helpPage = "frm_optional",
                                               .okButton = "cmdOk",
                                               .caller = "frmPANFORM",
                                               .label = "lblOptional",
                                               .dataSet = &Store::CurSlabDS};

frmOptional::frmOptional(Program& program) : FrmSecondMenu(kind, program) {
    build(rowsOf(menus, [this]() -> const Set& { return store_.slab[set_]; }));
}

/// A list asks for input whenever it has a count, also when it was filled before. The bars have defaults.
void frmOptional::Form_Load() {
    for (const DataMenu<Set>& menu : menus)
        if (menu.select != openDowel && menu.wanted(store_.slab[set_]))
            control<StatusLabel>(menu.label).input();
    FrmSecondMenu::Form_Load();
}
