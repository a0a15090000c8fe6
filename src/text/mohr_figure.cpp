#include "text/mohr_figure.h"

#include <cmath>
#include <numbers>
#include <utility>

#include "text/figure.h"
#include "text/sheets.h"

namespace {

// The diagram stands on the left, its legend on the right.
constexpr float height = 3885;
constexpr float originX = 900, originY = 3300;
constexpr float right = 6000, top = 350;
constexpr float legendX = 6350;

constexpr float degrees = 35;                               ///< PHI as it is drawn
constexpr float SIGMAV = 3900, SIGMAH = SIGMAV * 0.27099F;  ///< sigma-v tan^2(45 - PHI/2)

void drawAxes(Figure& figure) {
    figure.arrow(originX - 300, originY, right, originY);
    figure.arrow(originX, originY + 200, originX, top);
    figure.text(right - 1050, originY + 330, "Normal stress");
    figure.text(originX + 110, top - 40, "Shear stress");
}

/// The envelope, and the circle of the stresses that just reach it.
void drawEnvelope(Figure& figure) {
    const float angle = degrees * std::numbers::pi_v<float> / 180;
    const float reach = 3800;
    figure.line(originX, originY, originX + reach, originY - reach * std::tan(angle), ink::red, 3);
    figure.text(originX + reach - 2150, originY - reach * std::tan(angle) + 20, "Failure envelope", 10,
                ink::red, true);
    figure.arc(originX, originY, 900, 0, degrees, ink::blue);
    figure.text(originX + 430, originY - 280, "PHI", 10, ink::blue, true);

    const float radius = (SIGMAV - SIGMAH) / 2, centre = originX + (SIGMAV + SIGMAH) / 2;
    figure.arc(centre, originY, radius, 0, 180, ink::black, 2);
    const float touchX = centre - radius * std::sin(angle), touchY = originY - radius * std::cos(angle);
    figure.dashed(centre, originY, touchX, touchY);
    figure.circle(touchX, touchY, 45, ink::red, ink::red);
    for (const auto& [stress, name] : {std::pair{SIGMAH, "SIGH"}, {SIGMAV, "SIGV"}}) {
        figure.circle(originX + stress, originY, 40, ink::black);
        figure.centred(originX + stress, originY + 80, name, 10, ink::black, true);
    }
}

void drawLegend(Figure& figure) {
    float y = 700;
    for (const auto& [symbol, meaning] : {std::pair{"PHI", "= Angle of internal friction"},
                                          {"SIGV", "= Vertical stress"},
                                          {"SIGH", "= Horizontal stress"}}) {
        figure.text(legendX, y, symbol, 10, ink::black, true);
        figure.text(legendX + 620, y, meaning, 10);
        y += 330;
    }
    y += 200;
    for (const char* line : {"A circle that touches the envelope:", "SIGH = SIGV tan^2(45 - PHI/2)", "",
                             "A circle above it is not possible:", "the horizontal stress is raised",
                             "until its circle touches."}) {
        figure.text(legendX, y, line, 9);
        y += 260;
    }
}

}  // namespace

Page mohrFigure() {
    Figure figure(sheetWidth, height);
    drawAxes(figure);
    drawEnvelope(figure);
    drawLegend(figure);
    return figure.page();
}
