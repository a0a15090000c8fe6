#include "slab/frm_dowel.h"

#include "store/store.h"
#include "text/pages.h"

namespace {

std::vector<ValueRow> rows(SlabSet& set) {
    return {
        {.box = "txtYmsb",
         .caption = set.NUNIT != 0 ? "Young's modulus of steel bars in kPa                                   "
                                     "                   "
                                     "(YMSB)"
                                   : "Young's modulus of steel bars in psi                                   "
                                     "                    "
                                     "(YMSB)",
         .field = &set.YMSB,
         .emptiedByClick = false},
        {.box = "txtPrsb",
         .caption =
             "Poisson's ratio of steel dowel bars                                                      "
             "     (PRSB)",
         .field = &set.PRSB},
    };
}

}  // namespace

frmDowel::frmDowel(Program& program)
    : ValueForm("frmDowel", program.dialogs, program.printer),
      program_(program),
      set_(program.store.slab[program.store.CurSlabDS]) {
    build(rows(set_));
}

void frmDowel::Form_Load() {
    const Store& store = program_.store;
    setCaption("Elastic Properties of Dowel Bars for Data Set No. " + Str(store.CurSlabDS));
    showFields();
    setHelp(textPage("frm_dowel", store.NL));
    present();
}

void frmDowel::cmdOk_Click() {
    if (!storeFields()) return;
    program_.screens.done("frmOptional", "lblDowel");
    program_.screens.unload(name());
}
