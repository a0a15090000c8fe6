#include "slab/frm_slabs.h"

#include "store/store.h"

frmSlabs::frmSlabs(Program& program) : frmTableBoard("frmSlabs", "Slab", 6, program) {}

/// The word has a capital here: kept.
void frmSlabs::Form_Load() {
    frmTableBoard::Form_Load();
    for (int n = 1; n <= buttonCount(); ++n)
        if (label(n).caption() == "input") label(n).setCaption("Input");
}

std::string frmSlabs::buttonCaption(int n) const { return "Slab&" + std::to_string(n); }

/// The store of a slab counts, also of one that the data set does not have.
void frmSlabs::button_Click(int n) {
    Store& store = program_.store;
    store.CurSlab = n;
    const SlabSet::Slab& slab = store.slab[set_].SLAB[n];
    if (slab.NX == 0 || slab.NY == 0) {
        showMessage("NX or NY for slab " + std::to_string(n) + " in the 'Arrange' menu is 0");
        return;
    }
    selectTable(kind_.GridCols);
    program_.screens.load("frmspreadb");
}
