// The board of periods: one table per period of the year.
#pragma once

#include "layered/frm_table_board.h"

class frmPeriod : public frmTableBoard {
    Q_OBJECT
  public:
    explicit frmPeriod(Program& program) : frmTableBoard("frmPeriod", "Period", 12, program) {}

  private:
    std::string buttonCaption(int n) const override;
    void button_Click(int n) override;
};
