// The menu of the damage analysis of slabs: fatigue of concrete, and the traffic.
#pragma once

#include "store/frm_data_menu.h"

class frmDamage : public FrmSecondMenu {
    Q_OBJECT
  public:
    explicit frmDamage(Program& program);

  private:
    static const Kind kind;
};
