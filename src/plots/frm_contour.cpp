#include "plots/frm_contour.h"

#include <optional>

#include "platform/dialogs.h"
#include "plots/contour_plot.h"
#include "store/store.h"

void frmCONTOUR::Form_Load() {
    std::optional<ContourPlot> plot;
    const auto ask = [&](const ContourPage& begun, const std::string& prompt, const std::string& proposal) {
        setCaption(begun.caption);
        display(begun.page);
        return program_.dialogs.InputBox(prompt, "", proposal).value_or("");
    };
    const auto showPages = [&] {
        try {
            while (const auto sheet = plot->next(ask)) present(sheet->page);
        } catch (const NoContours& reason) {
            fail(reason.what());
        }
    };
    runPlot([&] { plot.emplace(plotFile(".PAN"), program_.store.DIRN); }, showPages);
    if (plot && plot->ended()) program_.screens.unload(name());
}
