// General information of a layered data set: the title and the thirteen numbers
// that decide what the other menus ask for.
#pragma once

#include "platform/qt/value_form.h"
#include "store/program.h"

struct LayeredSet;

class frmGeneral1 : public ValueForm {
    Q_OBJECT
  public:
    explicit frmGeneral1(Program& program);
    void Form_Load() override;

  private:
    void cmdOk_Click() override;

    Program& program_;
    LayeredSet& set_;  ///< the data set that was current at load, whatever becomes current meanwhile
};
