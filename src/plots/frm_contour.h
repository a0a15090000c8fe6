// The contour plot: proposes a contour interval for each page, shows the pages of
// the slab solver's plot file one after the other while it loads, and stands blank
// afterwards.
#pragma once

#include "plots/frm_plot_screen.h"

class frmCONTOUR : public PlotScreen {
    Q_OBJECT
  public:
    explicit frmCONTOUR(Program& program) : PlotScreen(program, "frmCONTOUR", "CONTOUR") {}

    /// Plots the file that belongs to the store's FileName. A run that cannot be contoured is told in a
    /// message box; an empty answer to the contour interval unloads the form.
    void Form_Load() override;
};
