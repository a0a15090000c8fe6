#include "slab/frm_curling.h"

#include "store/store.h"
#include "text/pages.h"

namespace {

std::vector<ValueRow> rows(SlabSet& set) {
    const bool si = set.NUNIT != 0;
    return {
        {"txtNotCon",
         "Number of nodes not in contact                                                         (NOTCON)",
         &set.NOTCON},
        {"txtNgap",
         "Number of nodes with initial gaps                                                            "
         "(NGAP)",
         &set.NGAP},
        {"txtInput",
         "Input of gaps from previous problem (1=yes, 0=no)                                   (INPUT)",
         &set.INPUT},
        {"txtNtemp",
         "Temperature curling (1=yes, 0=no)                                                        (NTEMP)",
         &set.NTEMP},
        {"txtNwt",
         "Weight of slabs (1=yes, 0=no)                                                                  "
         "(NWT)",
         &set.NWT},
        {"txtNcycle",
         "Maximum number of cycles for checking contact                                   (NCYCLE)",
         &set.NCYCLE},
        {"txtTemp",
         si ? "Temperature differential between top and bottom in C                               (TEMP)"
            : "Temperature differential between top and bottom in F                               (TEMP)",
         &set.TEMP},
        {"txtCt",
         si ? "Coefficient of thermal expansion per C                                                        "
              " "
              "(CT)"
            : "Coefficient of thermal expansion per F                                                        "
              " "
              "(CT)",
         &set.CT},
        {"txtDel",
         "Tolerance for iteration                                                                            "
         "  "
         "(DEL)",
         &set.DEL},
        {"txtFmax",
         si ? "Maximum allowable deflection in cm                                                        "
              "(FMAX)"
            : "Maximum allowable deflection in in.                                                        "
              "(FMAX)",
         &set.FMAX},
    };
}

std::vector<Check> contactTest(const SlabSet& set) {
    return {{[&] { return set.NFOUND != 0 && set.NCYCLE.number() > 1 && set.NOTCON != Variant(0); },
             "When NFOUND > 0 and NCYCLE > 1, NOTCON should always be 0."}};
}

}  // namespace

frmCurling::frmCurling(Program& program)
    : ValueForm("frmCurling", program.dialogs, program.printer),
      program_(program),
      set_(program.store.slab[program.store.CurSlabDS]) {
    build(rows(set_));
}

void frmCurling::Form_Load() {
    const Store& store = program_.store;
    setCaption("Curling and Contact Conditions for Data Set No. " + Str(store.CurSlabDS));
    program_.screens.done("frmPANFORM", "lblCurling");  // whatever the user does afterwards
    showFields();
    setHelp(textPage("frm_curling", store.NL));
    present();
}

/// Joints and lists ask for input again, even where they said "done": kept.
void frmCurling::cmdOk_Click() {
    if (!storeFields() || !passes(contactTest(set_))) return;
    if (set_.NJOINT != 0) program_.screens.input("frmPANFORM", "lblJoint");
    if (set_.NOTCON != Variant(0) || set_.NGAP != Variant(0))
        program_.screens.input("frmPANFORM", "lblOptional");
    program_.screens.unload(name());
}
