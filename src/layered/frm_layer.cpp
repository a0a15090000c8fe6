#include "layered/frm_layer.h"

#include "store/store.h"

namespace {

constexpr int seasonal = 112;

/// Number text with its sign blank, also of a number that a table stored as it was typed.
std::string signedText(const Variant& number) {
    return number.isNumeric() ? Str(Variant(number.number())) : Str(number);
}

}  // namespace

std::string frmLayer::buttonCaption(int n) const {
    const Variant layer = kind_.layer(program_.store.layered[set_], n);
    return "&" + std::to_string(n) + "  Layer" + signedText(layer);
}

void frmLayer::button_Click(int n) {
    if (kind_.TableKind == seasonal) {
        openSeasonalTable(n);
        return;
    }
    selectTable(kind_.GridCols);
    program_.store.CurLayer = n;
    program_.screens.load("frmspreadb");
}

/// Granular values, or, for a clay of a new file, the clay types, which lead on to the values. A read file
/// has no clay types: its clay goes to the values at once.
void frmLayer::openSeasonalTable(int n) {
    Store& store = program_.store;
    const bool granular = store.layered[set_].NOLLAY[n].NCLAY.number() == 0;
    const bool clayTypes = !granular && store.NewFile == 1;
    selectTable(granular ? 3 : clayTypes ? 2 : 4);
    store.CurLayer = n;
    program_.screens.load(granular || clayTypes ? "frmspreadb" : "frmSpread2");
}
