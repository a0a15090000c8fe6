// General information of a slab data set: the title, the sixteen numbers that
// decide what the other menus ask for, and three choices for the words under them.
#pragma once

#include "platform/qt/value_form.h"
#include "store/program.h"

struct SlabSet;

class frmGeneral : public ValueForm {
    Q_OBJECT
  public:
    explicit frmGeneral(Program& program);
    void Form_Load() override;

  private:
    QLayout* makeUnder() override;
    void cmdOk_Click() override;

    Program& program_;
    SlabSet& set_;  ///< the data set that was current at load, whatever becomes current meanwhile
};
