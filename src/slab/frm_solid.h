// The two constants of a solid foundation.
#pragma once

#include "platform/qt/value_form.h"
#include "store/program.h"

struct SlabSet;

class frmSolid : public ValueForm {
    Q_OBJECT
  public:
    explicit frmSolid(Program& program);
    void Form_Load() override;

  private:
    void cmdOk_Click() override;

    Program& program_;
    SlabSet& set_;
};
