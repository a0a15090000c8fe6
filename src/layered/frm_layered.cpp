#include "layered/frm_layered.h"

#include "layered/frm_bedform.h"
#include "layered/frm_data_menu.h"
#include "layered/frm_gen_non.h"
#include "layered/frm_general1.h"
#include "layered/frm_genvis.h"
#include "layered/frm_layer.h"
#include "layered/frm_nonlinear_layer.h"
#include "layered/frm_period.h"

namespace {

template <class AForm>
void add(Program& program, const std::string& name, const std::string& group = "") {
    program.screens.add(
        name, [&program] { return std::make_unique<AForm>(program); }, group);
}

}  // namespace

void addLayeredForms(Program& program) {
    add<frmBEDFORM>(program, "frmBEDFORM");
    add<frmGeneral1>(program, "frmGeneral1");
    // What is asked for again may be for another data set or another kind of table: it comes up anew.
    add<frmPeriod>(program, "frmPeriod", "frmPeriod");
    add<frmLayer>(program, "frmLayer", "frmLayer");
    for (const DataMenuForm& form : dataMenuForms) {
        program.screens.add(
            form.name, [&program, &form] { return std::make_unique<FrmDataMenu>(program, form); }, form.name);
    }
    add<frmGenNon>(program, "frmGenNon", "frmGenNon");
    add<frmGenvis>(program, "frmGenvis", "frmGenvis");
    add<frmGranular>(program, "frmGranular", "table");  // in the place of auxiliary tables
    add<frmClay>(program, "frmClay", "table");
}
