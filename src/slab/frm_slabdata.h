// The menu of the slabs: their arrangement, their grids and the concrete.
#pragma once

#include "store/frm_data_menu.h"

class frmSlabData : public FrmSecondMenu {
    Q_OBJECT
  public:
    explicit frmSlabData(Program& program);

  private:
    static const Kind kind;
};
