#include "layered/frm_table_board.h"

#include "store/store.h"
#include "text/pages.h"

frmTableBoard::frmTableBoard(const std::string& name, const std::string& thing, int buttons, Program& program)
    : BoardForm(name, thing, buttons, program.dialogs, program.printer),
      program_(program),
      kind_(boardKind(program.store.TableKind)),
      set_(program.store.*kind_.dataSet) {}

void frmTableBoard::Form_Load() {
    const Store& store = program_.store;
    selectTable(kind_.GridCols);
    setCaption(kind_.caption + Str(set_));
    const Double live = kind_.live(store, set_).number();
    for (int n = 1; n <= buttonCount() && n <= live; ++n) {
        button(n).setCaption(buttonCaption(n));
        kind_.defaultsStand ? label(n).blueDefault() : label(n).input();
    }
    setHelp(textPage(kind_.helpPage, store.NL));
    present();
}

void frmTableBoard::selectTable(int GridCols) {
    Store& store = program_.store;
    store.*kind_.dataSet = set_;
    store.TableKind = kind_.TableKind;
    store.TblLines = kind_.lines(store, set_).integer();
    if (GridCols > 0) store.GridCols = static_cast<Integer>(GridCols);
}

void frmTableBoard::cmdOk_Click() {
    program_.screens.done(kind_.caller, kind_.label);
    program_.screens.unload(name());
}
