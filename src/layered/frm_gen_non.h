// General values of the nonlinear layers: how many there are, and where and how
// their stresses are found.
#pragma once

#include "platform/qt/value_form.h"
#include "store/program.h"

struct LayeredSet;

class frmGenNon : public ValueForm {
    Q_OBJECT
  public:
    explicit frmGenNon(Program& program);
    void Form_Load() override;

  private:
    void cmdOk_Click() override;

    Program& program_;
    LayeredSet& set_;  ///< the data set that was current at load
};
