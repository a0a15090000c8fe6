#include "layered/frm_gen_non.h"

#include "store/store.h"
#include "text/pages.h"

namespace {

std::vector<ValueRow> rows(LayeredSet& set) {
    const bool si = set.NUNIT != 0;
    return {
        {"txtNolay",
         "Number of nonlinear layers                                                                         "
         "(NOLAY)",
         &set.NOLAY,
         {{[&] { return set.NOLAY.number() > 12; }, "NOLAY should not be greater than 12."}}},
        {"txtItenol",
         "Maximum number of iterations                                                                    "
         "(ITENOL)",
         &set.ITENOL},
        {"txtRcnol",
         si ? "Radial coordinate for nonlinear analysis in cm                                              "
              "(RCNOL)"
            : "Radial coordinate for nonlinear analysis in in.                                              "
              "(RCNOL)",
         &set.RCNOL},
        {"txtXcnol",
         si ? "X coordinate for nonlinear analysis in cm                                                   "
              "(XPTNOL)"
            : "X coordinate for nonlinear analysis in in.                                                   "
              "(XPTNOL)",
         &set.XCNOL},
        {"txtYcnol",
         si ? "Y coordinate for nonlinear analysis in cm                                                   "
              "(YPTNOL)"
            : "Y coordinate for nonlinear analysis in in.                                                   "
              "(YPTNOL)",
         &set.YCNOL},
        {"txtSld",
         "Slope of load distribution                                                                         "
         "       (SLD)",
         &set.SLD},
        {"txtDelnol",
         "Tolerance for nonlinear analysis                                                                "
         "(DELNOL)",
         &set.DELNOL},
    };
}

}  // namespace

frmGenNon::frmGenNon(Program& program)
    : ValueForm("frmGenNon", program.dialogs, program.printer),
      program_(program),
      set_(program.store.layered[program.store.CurLayDS]) {
    printedSize = 9;
    build(rows(set_), "cmdOK");
    // The default of 1 must be changed where there are more layers: the help page points to the red number.
    QPalette red;
    red.setColor(QPalette::Text, Qt::red);
    control<TextBox>("txtNolay").setPalette(red);
}

void frmGenNon::Form_Load() {
    Store& store = program_.store;
    store.TableKind = 102;  // no longer that of this form: kept
    setCaption("Nonlinear General Information for Data Set No. " + Str(Long{store.CurLayDS}));
    program_.screens.done("frmNonlin", "lblGeneral");  // on entering: a visit that stores nothing counts too
    showFields();
    setHelp(textPage("frm_gen_non", store.NL));
    present();
}

void frmGenNon::cmdOk_Click() {
    if (!storeFields()) return;
    program_.screens.done("frmBEDFORM", "lblNonlinear");
    program_.screens.unload(name());
}
