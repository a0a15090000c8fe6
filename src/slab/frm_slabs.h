// The board of slabs: one table of X or Y coordinates per slab.
#pragma once

#include "layered/frm_table_board.h"

class frmSlabs : public frmTableBoard {
    Q_OBJECT
  public:
    explicit frmSlabs(Program& program);
    void Form_Load() override;

  private:
    std::string buttonCaption(int n) const override;
    void button_Click(int n) override;
};
