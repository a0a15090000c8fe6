#include "slab/frm_solid.h"

#include "store/store.h"
#include "text/pages.h"

namespace {

std::vector<ValueRow> rows(SlabSet& set) {
    return {
        {"txtYms",
         set.NUNIT != 0
             ? "Young's modulus of subgrade in kPa                                                         "
               "(YMS)"
             : "Young's modulus of subgrade in psi                                                          "
               "(YMS)",
         &set.YMS},
        {"txtPrs",
         "Poisson's ratio of subgrade                                                                       "
         "(PRS)",
         &set.PRS},
    };
}

std::vector<Check> zeroTest(const SlabSet& set) {
    return {
        {[&] { return set.YMS == Variant(0) || set.PRS == Variant(0); }, "None of the entries should be 0"}};
}

}  // namespace

frmSolid::frmSolid(Program& program)
    : ValueForm("frmSolid", program.dialogs, program.printer),
      program_(program),
      set_(program.store.slab[program.store.CurSlabDS]) {
    build(rows(set_));
}

void frmSolid::Form_Load() {
    const Store& store = program_.store;
    setCaption("Solid Foundation for Data Set No. " + Str(store.CurSlabDS));
    program_.screens.done("frmPANFORM", "lblFoundation");
    showFields();
    setHelp(textPage("frm_solid", store.NL));
    present();
}

void frmSolid::cmdOk_Click() {
    if (!storeFields() || !passes(zeroTest(set_))) return;
    program_.screens.done("frmPANFORM", "lblFoundation");
    program_.screens.unload(name());
}
