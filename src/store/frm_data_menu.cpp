#include "store/frm_data_menu.h"

#include "text/pages.h"

void selectTable(Store& store, int TableKind, int GridCols, const Variant& lines) {
    store.TableKind = TableKind;
    store.GridCols = static_cast<Integer>(GridCols);
    store.TblLines = lines.integer();
}

void selectMainTable(Store& store, int TableKind, int MainCols, const Variant& lines) {
    store.TableKind = TableKind;
    store.MainCols = MainCols;
    store.MainLines = lines.integer();
    store.CurTopRow = 1;
    store.CurGroup = 0;
}

FrmDataMenu::FrmDataMenu(const std::string& name, Program& program)
    : MenuForm(name, program.dialogs, program.printer), program_(program), store_(program.store) {}

void FrmDataMenu::open(const std::string& form) {
    if (Form* opened = program_.screens.load(form)) opened->Show();
}

FrmSecondMenu::FrmSecondMenu(const Kind& kind, Program& program)
    : FrmDataMenu(kind.form, program), kind_(kind), set_(program.store.*kind.dataSet) {}

void FrmSecondMenu::build(const std::vector<MenuRow>& rows) {
    layOut(menuBar(rows), "Text1", {{kind_.okButton, "&OK", [this] { cmdOk_Click(); }}});
}

void FrmSecondMenu::Form_Load() {
    setCaption(kind_.caption + Str(Integer(set_)));
    setHelp(textPage(kind_.helpPage, store_.NL));
    present();
}

/// The data set that is current may have changed since the load.
bool FrmSecondMenu::mayChoose(bool) {
    store_.*kind_.dataSet = set_;
    return true;
}

void FrmSecondMenu::cmdOk_Click() {
    program_.screens.done(kind_.caller, kind_.label);
    program_.screens.unload(name());
}
