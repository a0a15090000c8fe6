#include "plots/frm_bedplot.h"

#include <optional>

#include "plots/layered_plot.h"

void frmBEDPLOT::Form_Load() {
    std::optional<LayeredPlot> plot;
    runPlot([&] { plot.emplace(plotFile(".BED")); },
            [&] {
                while (const auto page = plot->next()) present(*page);
            });
}
