#include "plots/frm_bedplot.h"

#include <optional>

#include "plots/layered_plot.h"

void frmBEDPLOT::Form_Load() {
    setUpPage();
    std::optional<LayeredPlot> plot;
    try {
        plot.emplace(plotFile(".BED"));
    } catch (const RunTimeError&) {
        fail("File not found");
        return;
    }
    try {
        while (const auto page = plot->next()) present(*page);
    } catch (const RunTimeError&) {
        fail("Data error");
    }
}
