// The board of layers: one table per nonlinear or viscoelastic layer.
#pragma once

#include "layered/frm_table_board.h"

class frmLayer : public frmTableBoard {
    Q_OBJECT
  public:
    explicit frmLayer(Program& program) : frmTableBoard("frmLayer", "Layer", 12, program) {}

  private:
    std::string buttonCaption(int n) const override;
    void button_Click(int n) override;
    void openSeasonalTable(int n);
};
