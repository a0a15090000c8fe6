#include "layered/frm_nonlinear_layer.h"

#include "store/store.h"
#include "text/pages.h"

namespace {

std::vector<ValueRow> rows(LayeredSet::Granular& constants) {
    return {
        {"txtK2",
         "Nonlinear exponent for granular materials                                                     (K2)",
         &constants.K2},
        {"txtK0",
         "Coefficient of earth pressure at rest                                                             "
         "(K0)",
         &constants.K0},
    };
}

std::vector<ValueRow> rows(LayeredSet::Clay& constants, bool si) {
    return {
        {"txtK2",
         si ? "Deviator stress at break point for clay in kPa                                                "
              "      (K2)"
            : "Deviator stress at break point for clay in psi                                                "
              "      (K2)",
         &constants.K2},
        {"txtK3",
         "Slope when deviator stress smaller than K2                                                        "
         "(K3)",
         &constants.K3},
        {"txtK4",
         "Slope when deviator stress greater than K2                                                        "
         "(K4)",
         &constants.K4},
        {"txtK0",
         "Coefficient of earth pressure at rest                                                              "
         "     (K0)",
         &constants.K0},
    };
}

}  // namespace

frmNonlinearLayer::frmNonlinearLayer(const std::string& name, Program& program)
    : ValueForm(name, program.dialogs, program.printer),
      program_(program),
      place_(currentPlace(program.store)),
      lines_(program.store.MainLines),
      set_(program.store.layered[place_.dataSet]) {
    printedSize = 9;
}

void frmNonlinearLayer::show(const std::string& material, const std::string& helpPage) {
    LayeredSet::NonlinearLayer beyond;
    setCaption("Nonseasonal Input Parameters for Layer No." + Str(ofLine(set_.NOLLAY, beyond).LAYNO) + " (" +
               material + ") and Data Set No." + Str(Long{place_.dataSet}));
    showFields();
    setHelp(textPage(helpPage, program_.store.NL));
    present();
}

void frmNonlinearLayer::leave(int lines) {
    Store& store = program_.store;
    program_.screens.unload(name());
    restorePlace(store, place_);
    store.MainCols = 4;
    store.MainLines = lines;
    program_.screens.load("frmSpread1");
}

frmGranular::frmGranular(Program& program) : frmNonlinearLayer("frmGranular", program) {
    build(rows(ofLine(set_.KGRAN, beyond_)), "cmdOK");
}

void frmGranular::Form_Load() { show("Granular", "frm_granular"); }

void frmGranular::cmdOk_Click() {
    storeFields();
    set_.NOLAY = Variant(lines_);
    leave(lines_);
}

frmClay::frmClay(Program& program) : frmNonlinearLayer("frmClay", program) {
    build(rows(ofLine(set_.KCLAY, beyond_), set_.NUNIT != 0), "cmdOK");
}

/// In a new file every visit puts the default of K2 back, at once and not at OK: kept.
void frmClay::Form_Load() {
    if (program_.store.NewFile == 1) ofLine(set_.KCLAY, beyond_).K2 = set_.NUNIT == 0 ? 6.2 : 42.75;
    show("Clay", "frm_clay");
}

void frmClay::cmdOk_Click() {
    storeFields();
    leave(set_.NOLAY.integer());
}
