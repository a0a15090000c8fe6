// Contour lines on a rectangular grid, cell by cell with straight segments; no
// line is kept as a curve.
#pragma once

#include <vector>

#include "platform/bounded.h"
#include "plots/kernel.h"
#include "plots/pan_file.h"

/// What is contoured on the grid of slab LN.
struct Contours {
    struct Level {
        Single c;
        bool solid;  ///< and labelled; otherwise dotted
    };
    Bounded<Bounded<Single, 25>, 25> SGRID;  ///< [x index][y index], in units of the page's scale
    std::vector<Level> levels;               ///< descending
    Single CBOT = 0;                         ///< lower levels are not drawn
};

/// Draws the contours in the kernel's window: levels from 0 up in red, negative ones in blue. A cell with a
/// nodal force at its first corner has its labels further out. Leaves the pen solid and the labels' font
/// behind them.
void QCntou(Kernel& q, const PanProblem& pan, const Contours& contours);
