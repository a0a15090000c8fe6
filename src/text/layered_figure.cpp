#include "text/layered_figure.h"

#include <algorithm>
#include <array>

#include "layered/layered_deck.h"
#include "text/example_deck.h"
#include "text/figure.h"
#include "text/sheets.h"

namespace {

// The section on the left, the plans of the load groups on the right, a quarter of an inch from the edges of
// the paper.
constexpr float sectionLeft = 360, sectionRight = 3560, sectionTop = 1200, sectionMargin = 500;
constexpr float plansLeft = 5300, plansRight = 9400, plansTop = 360;

int whole(const Variant& value) { return static_cast<int>(value.number()); }

// --- The section ------------------------------------------------------------------------------------------

/// Tire pressures on the surface: one for each tire across the section.
void drawTires(Figure& figure, const LayeredSet& set) {
    const LayeredSet::Load& load = set.LOADL[1];
    const float middle = (sectionLeft + sectionRight) / 2;
    const bool dual = load.YW.number() != 0;
    const float apart = dual ? 420 : 0, half = 230;
    for (const float centre : dual ? std::vector{middle - apart, middle + apart} : std::vector{middle}) {
        figure.line(centre - half, sectionTop - 350, centre + half, sectionTop - 350);
        for (int arrow = -2; arrow <= 2; ++arrow) {
            const float x = centre + half * static_cast<float>(arrow) / 2;
            figure.arrow(x, sectionTop - 350, x, sectionTop - 10);
        }
    }
    if (set.NLG > 1) return figure.centred(middle, sectionTop - 620, "Load group 1");
    figure.centred(middle, sectionTop - 840, "CR = " + inBothUnits(Quantity::Length, load.CR.number()));
    figure.centred(middle, sectionTop - 620, "CP = " + inBothUnits(Quantity::Pressure, load.CP.number()));
}

std::string modulusText(const LayeredSet& set, int layer) {
    const auto among = [&](const auto& layers, const Variant& count, auto number) {
        for (int n = 1; n <= whole(count); ++n)
            if (number(layers[n]).number() == layer) return true;
        return false;
    };
    if (isNonlinear(set) && among(set.NOLLAY, set.NOLAY, [](const auto& l) { return l.LAYNO; }))
        return "nonlinear elastic";
    if (isViscous(set) && among(set.VISLAY, set.NVL, [](const auto& l) { return l.LNV; }))
        return "viscoelastic";
    if (set.NPY > 1) return "E by period";
    return "E = " + inBothUnits(Quantity::Modulus, set.EMOD[1][layer].number());
}

void drawSection(Figure& figure, const LayeredSet& set, const LayeredFigure& what) {
    const int layers = static_cast<int>(set.NL);
    const float bottom = what.height - sectionMargin;
    double depth = 0;
    for (int i = 1; i < layers; ++i) depth += set.LAYER[i].TH.number();
    // The subgrade takes a third; a thin layer has room for its text all the same.
    const float room = (bottom - sectionTop) * 2 / 3;
    float top = sectionTop;
    for (int i = 1; i <= layers; ++i) {
        const bool last = i == layers;
        const double part = last ? 0 : set.LAYER[i].TH.number() / depth;
        const float below = last ? bottom : top + room * static_cast<float>(0.5 / (layers - 1) + 0.5 * part);
        const auto& [name, fill] = what.layers.at(static_cast<std::size_t>(i - 1));
        figure.box(sectionLeft, top, sectionRight, below, fill, fill);
        figure.line(sectionLeft, top, sectionRight, top, ink::black, 2);
        const float middle = (top + below) / 2;
        const float left = sectionLeft + 120;
        figure.named(left, middle - 220, name, "PR = " + set.LAYER[i].PR.text());
        figure.text(left, middle, modulusText(set, i));
        if (last) {
            figure.text(sectionRight + 100, middle - 110, "infinite", 9, ink::blue);
        } else {
            figure.dimensionDown(sectionRight + 100, top, below,
                                 inBothUnits(Quantity::Length, set.LAYER[i].TH.number()));
        }
        top = below;
    }
}

// --- The plans --------------------------------------------------------------------------------------------

struct Spot {
    double x, y;
};

std::vector<Spot> wheelsOf(const LayeredSet::Load& load) {
    std::vector<Spot> wheels;
    const int kind = whole(load.LOAD);
    for (int axle = 0; axle < std::max(kind, 1); ++axle) {
        const double x = kind > 1 ? axle * load.XW.number() : 0;
        wheels.push_back({x, 0});
        if (kind > 0 && load.YW.number() != 0) wheels.push_back({x, load.YW.number()});
    }
    return wheels;
}

std::vector<Spot> pointsOf(const LayeredSet& set, int group) {
    const LayeredSet::Load& load = set.LOADL[group];
    std::vector<Spot> points;
    for (int j = 1; j <= whole(load.NR); ++j) {
        if (load.LOAD.number() == 0)
            points.push_back({set.RC[group][j].number(), 0});
        else
            points.push_back({set.PT[group][j].XPT.number(), set.PT[group][j].YPT.number()});
    }
    return points;
}

/// Where a plan stands on the page: its origin and its scale.
struct Plan {
    float left, base;
    float twipsPerInch;
    float x(double inches) const { return left + static_cast<float>(inches) * twipsPerInch; }
    float y(double inches) const { return base - static_cast<float>(inches) * twipsPerInch; }
};

void drawPlan(Figure& figure, const LayeredSet& set, int group, const Plan& plan) {
    const LayeredSet::Load& load = set.LOADL[group];
    const auto wheels = wheelsOf(load);
    const double CR = load.CR.number();
    for (const Spot& wheel : wheels)
        figure.circle(plan.x(wheel.x), plan.y(wheel.y), static_cast<float>(CR) * plan.twipsPerInch, 0xDDE3EC);
    for (const Spot& point : pointsOf(set, group)) figure.cross(plan.x(point.x), plan.y(point.y));
    if (wheels.back().x > 0)
        figure.dimensionAcross(plan.x(0), plan.x(load.XW.number()), plan.y(wheels.back().y + CR) - 130,
                               "XW = " + inBothUnits(Quantity::Length, load.XW.number()));
    if (wheels.back().y > 0)
        figure.dimensionDown(plan.x(wheels.back().x + CR) + 150, plan.y(load.YW.number()), plan.y(0),
                             "YW = " + inBothUnits(Quantity::Length, load.YW.number()), true);
}

/// What stands beside and above the wheels, in twips.
constexpr float besidePlan = 1500, abovePlan = 660;

/// The largest plan of a load group that fits a row, with all wheels and points.
Plan planInRow(const LayeredSet& set, int group, float top, float rowHeight) {
    double right = 0, up = 0;
    const double CR = set.LOADL[group].CR.number();
    for (const Spot& wheel : wheelsOf(set.LOADL[group])) {
        right = std::max(right, wheel.x);
        up = std::max(up, wheel.y);
    }
    for (const Spot& point : pointsOf(set, group)) right = std::max(right, point.x - CR);
    const auto wide = static_cast<float>(right + 2 * CR), high = static_cast<float>(up + 2 * CR);
    constexpr float largest = 45, margin = 120;
    const float scale = std::min(
        {(plansRight - plansLeft - besidePlan) / wide, (rowHeight - abovePlan - margin) / high, largest});
    const float radius = static_cast<float>(CR) * scale;
    return {plansLeft + radius, top + abovePlan + high * scale - radius, scale};
}

void drawPlans(Figure& figure, const LayeredSet& set, float height) {
    static constexpr std::array<const char*, 4> kinds = {"single tire", "dual tires", "tandem axles",
                                                         "tridem axles"};
    const int groups = static_cast<int>(set.NLG);
    const float rowHeight = (height - plansTop - 450) / static_cast<float>(groups);
    for (int group = 1; group <= groups; ++group) {
        const LayeredSet::Load& load = set.LOADL[group];
        const float top = plansTop + rowHeight * static_cast<float>(group - 1);
        const std::string title = (groups == 1 ? "Plan" : "Group " + std::to_string(group)) + ": " +
                                  kinds.at(static_cast<std::size_t>(whole(load.LOAD)));
        figure.text(plansLeft, top, title, 9, ink::black, true);
        if (groups > 1)
            figure.text(plansLeft + 2150, top,
                        "CR = " + load.CR.text() + " in., CP = " + load.CP.text() + " psi");
        drawPlan(figure, set, group, planInRow(set, group, top, rowHeight));
    }
    figure.cross(plansLeft + 60, height - 300);
    figure.text(plansLeft + 180, height - 410, "= Response points.  x to the right, y upward");
}

}  // namespace

Page layeredFigure(const LayeredFigure& what) {
    const auto store =
        readExample(what.deck, [](ListReader& in, Store& into) { return readLayeredDeck(in, into); });
    const LayeredSet& set = store->layered[1];
    Figure figure(sheetWidth, what.height);
    drawTires(figure, set);
    drawSection(figure, set, what);
    drawPlans(figure, set, what.height);
    return figure.page();
}
