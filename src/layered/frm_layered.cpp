#include "layered/frm_layered.h"

#include "layered/frm_bedform.h"
#include "layered/frm_general1.h"
#include "layered/frm_layer.h"
#include "layered/frm_period.h"
#include "store/frm_add.h"

void addLayeredForms(Program& program) {
    addForm<frmBEDFORM>(program, "frmBEDFORM");
    addForm<frmGeneral1>(program, "frmGeneral1");
    // A board that is asked for again may be for another kind of table: it comes up anew.
    addForm<frmPeriod>(program, "frmPeriod", "frmPeriod");
    addForm<frmLayer>(program, "frmLayer", "frmLayer");
}
