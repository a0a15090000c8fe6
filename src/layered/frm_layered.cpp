#include "layered/frm_layered.h"

#include "layered/frm_bedform.h"
#include "layered/frm_general1.h"
#include "layered/frm_layer.h"
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
    // A board that is asked for again may be for another kind of table: it comes up anew.
    add<frmPeriod>(program, "frmPeriod", "frmPeriod");
    add<frmLayer>(program, "frmLayer", "frmLayer");
}
