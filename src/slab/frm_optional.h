// The menu of data that a simple slab does not need: lists of thicker places, of
// nodes and of gaps, and the dowel bars.
#pragma once

#include "store/frm_data_menu.h"

class frmOptional : public FrmSecondMenu {
    Q_OBJECT
  public:
    explicit frmOptional(Program& program);
    void Form_Load() override;

  private:
    static const Kind kind;
};
