// The menus of the nonlinear, the viscoelastic and the damage data: one form class,
// told by its row what it leads to.
#pragma once

#include <span>

#include "store/frm_data_menu.h"
#include "store/rules.h"

struct MaterialMenu {
    FrmSecondMenu::Kind kind;
    std::span<const DataMenu<LayeredSet>> menus;
    /// Words that the data decide at load.
    std::span<const StatusRule<LayeredSet>> words;
};

/// frmNonlin, frmVisco and frmDamage1.
extern const MaterialMenu materialMenus[3];

class FrmMaterialMenu : public FrmSecondMenu {
    Q_OBJECT
  public:
    /// `menu` must outlive the form.
    FrmMaterialMenu(const MaterialMenu& menu, Program& program);
};
