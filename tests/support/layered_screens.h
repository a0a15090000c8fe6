// The layered screens on a desk of their own.
#pragma once

#include "layered/frm_layered.h"
#include "support/desk_screens.h"

class LayeredScreens : public DeskScreens {
  protected:
    LayeredScreens() : DeskScreens({"frmspreadb", "frmSpread1", "frmSpread2", "frmMohr"}) {
        addLayeredForms(program);
    }
};
