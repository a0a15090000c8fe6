#include "layered/frm_genvis.h"

#include "layered/layered_rules.h"
#include "platform/qt/menu_form.h"
#include "store/store.h"
#include "text/pages.h"

namespace {

std::vector<ValueRow> rows(LayeredSet& set) {
    return {
        {"txtDur",
         "Load duration (0 for stationary load, 0.1 sec for moving load at 40 mph)             (DUR)",
         &set.DUR},
        {"txtNvl",
         "Number of viscoelastic layers                                                                      "
         "    (NVL)",
         &set.NVL,
         {{[&] { return set.NVL.number() > 12; }, "NVL should not be greater than 12."}}},
        {"txtNtyme",
         "Number of time durations for creep compliances                                           (NTYME)",
         &set.NTYME},
    };
}

}  // namespace

frmGenvis::frmGenvis(Program& program)
    : ValueForm("frmGenvis", program.dialogs, program.printer),
      program_(program),
      set_(program.store.layered[program.store.CurLayDS]) {
    printedSize = 9;
    build(rows(set_), "cmdOK");
}

void frmGenvis::Form_Load() {
    const Store& store = program_.store;
    setCaption("Viscoelastic General Information for Data Set No. " + Str(Long{store.CurLayDS}));
    showFields();
    setHelp(textPage("frm_genvis", store.NL));
    present();
}

void frmGenvis::cmdOk_Click() {
    if (!storeFields()) return;
    if (Form* menu = program_.screens.loaded("frmVisco"))
        showStatus(menu->control<StatusLabel>("lblDuration"), timesNeedInput(set_), false);
    program_.screens.done("frmVisco", "lblGeneral");
    program_.screens.unload(name());
}
