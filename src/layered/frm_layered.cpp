#include "layered/frm_layered.h"

#include "layered/frm_bedform.h"
#include "layered/frm_gen_non.h"
#include "layered/frm_general1.h"
#include "layered/frm_genvis.h"
#include "layered/frm_layer.h"
#include "layered/frm_material_menu.h"
#include "layered/frm_nonlinear_layer.h"
#include "layered/frm_period.h"
#include "store/frm_add.h"

void addLayeredForms(Program& program) {
    addForm<frmBEDFORM>(program, "frmBEDFORM");
    addForm<frmGeneral1>(program, "frmGeneral1");
    // What is asked for again may be for another data set or another kind of table: it comes up anew.
    addForm<frmPeriod>(program, "frmPeriod", "frmPeriod");
    addForm<frmLayer>(program, "frmLayer", "frmLayer");
    for (const MaterialMenu& menu : materialMenus) {
        const std::string form = menu.kind.form;
        program.screens.add(
            form, [&program, &menu] { return std::make_unique<FrmMaterialMenu>(menu, program); }, form);
    }
    addForm<frmGenNon>(program, "frmGenNon", "frmGenNon");
    addForm<frmGenvis>(program, "frmGenvis", "frmGenvis");
    addForm<frmGranular>(program, "frmGranular", "table");  // in the place of auxiliary tables
    addForm<frmClay>(program, "frmClay", "table");
}
