// The layered plot: shows the pages of the layered solver's plot file, one after
// the other, while it loads. It has no controls; afterwards it stands blank until
// it is closed or unloaded.
#pragma once

#include "plots/frm_plot_screen.h"

class frmBEDPLOT : public PlotScreen {
    Q_OBJECT
  public:
    explicit frmBEDPLOT(Program& program) : PlotScreen(program, "frmBEDPLOT", "BEDPLOT") {}

    /// Plots the file that belongs to the store's FileName.
    void Form_Load() override;
};
