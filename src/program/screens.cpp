#include "program/screens.h"

#include "grid/frm_table.h"
#include "layered/frm_layered.h"
#include "platform/qt/form.h"
#include "plots/frm_bedplot.h"
#include "plots/frm_contour.h"
#include "plots/frm_panplot.h"
#include "slab/frm_slab.h"
#include "store/frm_tolmark.h"
#include "text/frm_editor.h"
#include "text/frm_help1.h"
#include "text/frm_sheet.h"

namespace {

template <class Screen>
Screens::Make make(Program& program) {
    return [&program] { return std::make_unique<Screen>(program); };
}

}  // namespace

void addScreens(Screens& screens, Program& program) {
    screens.add("frmTOLMARK", make<frmTOLMARK>(program));
    addLayeredForms(program);
    addSlabForms(program);
    addTableForms(program);
    screens.add("frmBEDPLOT", make<frmBEDPLOT>(program));
    screens.add("frmPANPLOT", make<frmPANPLOT>(program));
    screens.add("frmCONTOUR", make<frmCONTOUR>(program));
    screens.add("frmEditor", make<frmEditor>(program));
    screens.add("frmHelp1", make<frmHelp1>(program));
    addSheets(program);
}
