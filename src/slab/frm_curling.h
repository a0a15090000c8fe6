// Curling and contact of a slab data set.
#pragma once

#include "platform/qt/value_form.h"
#include "store/program.h"

struct SlabSet;

class frmCurling : public ValueForm {
    Q_OBJECT
  public:
    explicit frmCurling(Program& program);
    void Form_Load() override;

  private:
    void cmdOk_Click() override;

    Program& program_;
    SlabSet& set_;
};
