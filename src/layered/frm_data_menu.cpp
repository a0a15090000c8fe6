#include "layered/frm_data_menu.h"

#include "store/store.h"
#include "text/pages.h"

FrmDataMenu::FrmDataMenu(Program& program, const DataMenuForm& form)
    : MenuForm(form.name, program.dialogs, program.printer),
      program_(program),
      form_(form),
      number_(program.store.CurLayDS),
      set_(program.store.layered[number_]) {
    printedSize = 9;
    std::vector<MenuRow> rows;
    for (const DataMenu& menu : form_.menus) {
        rows.push_back({.menu = menu.menu,
                        .caption = menu.caption,
                        .label = menu.label,
                        .word = menu.word,
                        .hint = menu.hint,
                        .action = [this, &menu] { menu_Click(menu); }});
    }
    layOut(menuBar(rows), "Text1", {{"cmdOK", "&OK", [this] { cmdOK_Click(); }}});
    for (const DataMenu& menu : form_.menus) {
        if (menu.needsInput) showStatus(control<StatusLabel>(menu.label), menu.needsInput(set_), false);
    }
}

void FrmDataMenu::Form_Load() {
    setCaption(form_.caption + Str(Long{number_}));
    setHelp(textPage(form_.helpPage, program_.store.NL));
    present();
}

void FrmDataMenu::menu_Click(const DataMenu& menu) {
    if (menu.wanted && !menu.wanted(set_)) {
        showMessage(menu.refusal);
        return;
    }
    program_.store.CurLayDS = number_;
    menu.select(program_.store, set_);
    program_.screens.load(menu.form);
}

/// It tests nothing: the user decides when the data are complete.
void FrmDataMenu::cmdOK_Click() {
    program_.screens.done("frmBEDFORM", form_.doneLabel);
    program_.screens.unload(name());
}
