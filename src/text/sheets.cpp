#include "text/sheets.h"

#include "text/layered_figure.h"
#include "text/mohr_figure.h"
#include "text/slab_figure.h"

namespace {

const LayeredFigure::Layer asphalt{"Hot mix asphalt", 0xC9CDD3}, base{"Granular base", 0xE6DCC3},
    subgrade{"Subgrade", 0xF2ECDD}, clay{"Clay subgrade", 0xEFE3D3};

Sheet layeredSheet(int number, int printHeight, std::vector<LayeredFigure::Layer> layers) {
    const std::string n = std::to_string(number);
    const LayeredFigure figure{"BED" + n, std::move(layers), static_cast<float>(printHeight)};
    return {"frmBed" + n,   "Example " + n + " for TOLSTRAT",          "sheet_bed" + n, printHeight,
            "mnuPrintText", [figure] { return layeredFigure(figure); }};
}

Sheet slabSheet(int number, int printHeight) {
    const std::string n = std::to_string(number);
    const SlabFigure figure{"PAN" + n, static_cast<float>(printHeight)};
    return {"frmPan" + n,   "Example " + n + " for TOLPLATE",       "sheet_pan" + n, printHeight,
            "mnuPrintText", [figure] { return slabFigure(figure); }};
}

}  // namespace

const std::vector<Sheet>& sheets() {
    static const std::vector<Sheet> all = {
        layeredSheet(1, 4170, {asphalt, base, subgrade}),
        layeredSheet(2, 3750, {base, clay}),
        layeredSheet(3, 5000, {asphalt, subgrade}),
        layeredSheet(4, 3580, {asphalt, base, subgrade}),
        layeredSheet(5, 4800, {asphalt, subgrade}),
        layeredSheet(6, 5220, {asphalt, base, clay}),
        slabSheet(1, 4100),
        slabSheet(2, 3950),
        slabSheet(3, 4400),
        slabSheet(4, 4450),
        slabSheet(5, 4400),
        slabSheet(6, 4900),
        {"frmMohr", "Failure Envelope of Granular Materials", "sheet_mohr", 3885, "PrintText", mohrFigure},
    };
    return all;
}
