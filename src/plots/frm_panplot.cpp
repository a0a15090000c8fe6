#include "plots/frm_panplot.h"

#include <optional>

#include "plots/slab_plot.h"

void frmPANPLOT::Form_Load() {
    std::optional<SlabPlot> plot;
    runPlot([&] { plot.emplace(plotFile(".PAN")); },
            [&] {
                while (const auto page = plot->next()) present(*page);
            });
}
