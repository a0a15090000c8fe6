// The steel of the dowel bars.
#pragma once

#include "platform/qt/value_form.h"
#include "store/program.h"

struct SlabSet;

class frmDowel : public ValueForm {
    Q_OBJECT
  public:
    explicit frmDowel(Program& program);
    void Form_Load() override;

  private:
    void cmdOk_Click() override;

    Program& program_;
    SlabSet& set_;
};
