// The menus of the nonlinear, the viscoelastic and the damage data: one form class,
// told by its row what it leads to.
#pragma once

#include "layered/data_menus.h"
#include "platform/qt/menu_form.h"
#include "store/program.h"

class FrmDataMenu : public MenuForm {
    Q_OBJECT
  public:
    FrmDataMenu(Program& program, const DataMenuForm& form);
    void Form_Load() override;

  private:
    void menu_Click(const DataMenu& menu);
    void cmdOK_Click();

    Program& program_;
    const DataMenuForm& form_;
    const int number_;  ///< of the data set that was current at load, whatever becomes current meanwhile
    const LayeredSet& set_;
};
