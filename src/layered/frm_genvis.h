// General values of the viscoelastic layers: the load's duration, and how many
// layers and times there are.
#pragma once

#include "platform/qt/value_form.h"
#include "store/program.h"

struct LayeredSet;

class frmGenvis : public ValueForm {
    Q_OBJECT
  public:
    explicit frmGenvis(Program& program);
    void Form_Load() override;

  private:
    void cmdOk_Click() override;

    Program& program_;
    LayeredSet& set_;  ///< the data set that was current at load
};
