// The slab plot: shows the pages of the slab solver's plot file, one after
// the other, while it loads. It has no controls; afterwards it stands blank until
// it is closed or unloaded.
#pragma once

#include "plots/frm_plot_screen.h"

class frmPANPLOT : public PlotScreen {
    Q_OBJECT
  public:
    explicit frmPANPLOT(Program& program) : PlotScreen(program, "frmPANPLOT", "PANPLOT") {}

    /// Plots the file that belongs to the store's FileName.
    void Form_Load() override;
};
