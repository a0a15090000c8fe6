#include "text/slab_figure.h"

#include <algorithm>
#include <array>
#include <set>

#include "slab/slab_deck.h"
#include "text/example_deck.h"
#include "text/sheets.h"
#include "text/slab_plan.h"

namespace {

// The section on the left, the plans of the load groups on the right, a legend below them, a quarter of an
// inch from the edges of the paper.
constexpr float sectionLeft = 360, sectionRight = 3360, sectionTop = 1300, sectionMargin = 350;
constexpr float plansLeft = 5050, plansRight = 9450, plansTop = 360, legendRow = 240;
constexpr float slabHeight = 560;

int whole(const Variant& value) { return static_cast<int>(value.number()); }

// --- The section ------------------------------------------------------------------------------------------

/// The section spans the plan, so that loads stand above their places.
float sectionX(const Arrangement& where, double x) {
    return sectionLeft + static_cast<float>(x / where.width()) * (sectionRight - sectionLeft);
}

void drawPressures(Figure& figure, const SlabSet& set, const Arrangement& where, int group) {
    constexpr float height = 380, apart = 110;
    std::set<std::pair<double, double>> spans;  // areas behind each other are one in the section
    for (int i = 1; i <= set.NUDL[group]; ++i) {
        const SlabSet::Area& a = set.AREA[group][i];
        const double x = where.left(whole(a.LS));
        spans.insert({x + a.XL1.number(), x + a.XL2.number()});
    }
    for (const auto& [from, to] : spans) {
        const float x1 = sectionX(where, from), x2 = sectionX(where, to);
        figure.line(x1, sectionTop - height, x2, sectionTop - height, ink::red);
        const int arrows = std::max(2, static_cast<int>((x2 - x1) / apart) + 1);
        for (int i = 0; i < arrows; ++i) {
            const float x = x1 + (x2 - x1) * static_cast<float>(i) / static_cast<float>(arrows - 1);
            figure.arrow(x, sectionTop - height, x, sectionTop - 15, ink::red);
        }
    }
}

/// The forces in line with the largest one.
void drawForces(Figure& figure, const SlabSet& set, const Arrangement& where) {
    constexpr float longest = 700, shortest = 350;
    if (set.NCNF == 0) return;
    int heaviest = 1;
    for (int i = 2; i <= set.NCNF; ++i)
        if (set.FORCE[i].FF > set.FORCE[heaviest].FF) heaviest = i;
    const auto place = [&](int i) { return placeOf(set, where, static_cast<int>(set.FORCE[i].NN)); };
    for (int i = 1; i <= set.NCNF; ++i) {
        if (place(i).y != place(heaviest).y) continue;
        const float x = sectionX(where, place(i).x);
        const float length = set.FORCE[i].FF < set.FORCE[heaviest].FF ? shortest : longest;
        figure.arrow(x, sectionTop - length, x, sectionTop - 15, ink::red, 2);
    }
}

/// How a slab free of load would curl, many times enlarged: the corners up where the bottom is warmer.
void drawCurl(Figure& figure, const SlabSet& set, const Arrangement& where) {
    if (set.NTEMP.number() != 1) return;
    constexpr int pieces = 24;
    constexpr float rise = 150;
    const float up = set.TEMP.number() > 0 ? rise : -rise;
    const double length = lengthOf(set.SLAB[1]), middle = set.NSY > 0 ? 0 : length / 2;
    const double reach = length - middle;
    for (int s = 1; s <= set.NSLAB; ++s) {
        if (where.base(s) > 0) continue;
        const auto at = [&](int i) {
            const double x = length * i / pieces, part = (x - middle) / reach;
            const float lift = up * static_cast<float>(part * part);
            return std::pair(sectionX(where, where.left(s) + x),
                             sectionTop - (up > 0 ? lift : lift - up) - 60);
        };
        for (int i = 0; i < pieces; ++i)
            figure.line(at(i).first, at(i).second, at(i + 1).first, at(i + 1).second, ink::blue);
    }
}

void drawSlabSection(Figure& figure, const SlabSet& set, const Arrangement& where) {
    const float bottom = sectionTop + slabHeight;
    figure.box(sectionLeft, sectionTop, sectionRight, bottom, concrete);
    for (int s = 1; s <= set.NSLAB; ++s)
        if (const float x = sectionX(where, where.left(s)); where.base(s) == 0 && where.left(s) > 0)
            figure.line(x, sectionTop, x, bottom, ink::blue, 3);
    // A joint divides the text, too.
    const std::string YM = "YM = " + inBothUnits(Quantity::Modulus, set.LAYER[1].YM),
                      PR = "PR = " + numberText(set.LAYER[1].PR);
    const float left = sectionLeft + 120, right = (sectionLeft + sectionRight) / 2 + 60,
                first = sectionTop + 60, second = sectionTop + 290;
    if (set.NSLAB == 1) {
        figure.named(left, first, "Concrete", PR);
        figure.text(left, second, YM);
    } else {
        const std::size_t unit = YM.find(" (");
        figure.named(left, first, "Concrete", "");
        figure.text(left, second, PR);
        figure.text(right, first, YM.substr(0, unit), 8);
        figure.text(right + 420, second, YM.substr(unit), 8);
    }
    figure.dimensionDown(sectionRight + 100, sectionTop, bottom,
                         inBothUnits(Quantity::Length, set.LAYER[1].T));
}

/// Foundation of a data set: what it is, its Poisson ratio and its modulus.
struct FoundationText {
    std::string name, PR, modulus;
    bool operator==(const FoundationText&) const = default;
};

FoundationText foundationText(const SlabSet& set) {
    if (set.NFOUND == 0)
        return {"Liquid foundation", "",
                "SUBMOD = " + inBothUnits(Quantity::SubgradeModulus, set.SUBMOD.number())};
    return {"Solid foundation", "PRS = " + set.PRS.text(),
            "YMS = " + inBothUnits(Quantity::Modulus, set.YMS.number())};
}

void drawFoundationLayers(Figure& figure, const SlabSet& set, float bottom) {
    constexpr std::array<Colour, 2> soils = {0xE6DCC3, 0xF2ECDD};
    const int layers = whole(set.NL);
    const float top = sectionTop + slabHeight, each = (bottom - top) / static_cast<float>(layers);
    for (int k = 1; k <= layers; ++k) {
        const float y = top + each * static_cast<float>(k - 1), middle = y + each / 2;
        const Colour fill = soils.at(static_cast<std::size_t>(k - 1) % 2);
        figure.box(sectionLeft, y, sectionRight, y + each, fill, fill);
        const SlabSet::FoundationLayer& l = set.FOUNDATION[k];
        figure.named(sectionLeft + 120, middle - 220, "Foundation layer " + std::to_string(k),
                     "PR = " + l.PRBF.text());
        figure.text(sectionLeft + 120, middle, "E = " + inBothUnits(Quantity::Modulus, l.E.number()));
        if (k < layers)
            figure.dimensionDown(sectionRight + 100, y, y + each,
                                 inBothUnits(Quantity::Length, l.TH.number()));
    }
    figure.text(sectionRight + 100, bottom - each / 2 - 110, "infinite", 9, ink::blue);
}

/// Every foundation that the data sets of the deck have, (a), (b).
void drawFoundation(Figure& figure, const Store& store, float bottom) {
    if (store.slab[1].NFOUND == 2) return drawFoundationLayers(figure, store.slab[1], bottom);
    constexpr Colour soil = 0xEEE6D2;
    figure.box(sectionLeft, sectionTop + slabHeight, sectionRight, bottom, soil, soil);
    std::vector<FoundationText> all;
    for (int n = 1; n <= store.SlabNPROB.number(); ++n)
        if (auto text = foundationText(store.slab[n]); all.empty() || all.back() != text)
            all.push_back(std::move(text));
    float y = sectionTop + slabHeight + 130;
    for (std::size_t n = 0; n < all.size(); ++n, y += 620) {
        const std::string letter = all.size() > 1 ? std::string("(") + "ab"[n] + ") " : "";
        figure.named(sectionLeft + 120, y, letter + all[n].name, all[n].PR);
        figure.text(sectionLeft + 120, y + 220, all[n].modulus);
    }
    figure.text(sectionRight + 100, bottom - 400, "infinite", 9, ink::blue);
}

void nameSection(Figure& figure, const SlabSet& first, const SlabSet& last, int group) {
    float y = plansTop;
    figure.text(sectionLeft, y, "Section", 9, ink::black, true);
    if (last.NLG > 1) figure.text(sectionLeft + 900, y, "under load group " + std::to_string(group));
    y += legendRow;
    if (first.NTEMP.number() == 1)
        figure.text(sectionLeft, y,
                    "TEMP = " + inBothUnits(Quantity::TemperatureDifference, first.TEMP.number()) +
                        (first.NWT.number() == 1
                             ? ",  GAMA = " + inBothUnits(Quantity::UnitWeight, first.LAYER[1].GAMA)
                             : ""),
                    9, ink::blue);
}

// --- The plans --------------------------------------------------------------------------------------------

/// "Areas of 4 x 7 and 8 x 7 in."
std::string areaSizes(const SlabSet& set) {
    std::set<std::string> sizes;
    for (int g = 1; g <= set.NLG; ++g)
        for (int i = 1; i <= set.NUDL[g]; ++i) {
            const SlabSet::Area& a = set.AREA[g][i];
            sizes.insert(numberText(a.XL2.number() - a.XL1.number()) + " x " +
                         numberText(a.YL2.number() - a.YL1.number()));
        }
    std::string text;
    for (const std::string& size : sizes) text += (text.empty() ? "" : " and ") + size;
    return text + " in.";
}

template <class Values>
std::string rangeText(Values value, int entries, double below) {
    double least = 0, most = 0;
    for (int i = 1; i <= entries; ++i) {
        const double x = std::abs(value(i));
        if (x >= below) continue;
        least = least == 0 ? x : std::min(least, x);
        most = std::max(most, x);
    }
    return numberText(least) + (most > least ? " to " + numberText(most) : "");
}

void drawLegend(Figure& figure, const SlabSet& set, float y) {
    const float x = plansLeft, text = plansLeft + 260;
    if (set.NSX > 0 || set.NSY > 0) {
        figure.dashed(x, y + 110, x + 200, y + 110, ink::red);
        figure.text(text, y,
                    set.NSX > 0 ? "axes of symmetry; this quarter is modelled"
                                : "axis of symmetry; this half is modelled");
        y += legendRow;
    }
    if (set.UL.number() == 1 && set.NUDL[1] > 0) {
        figure.box(x + 30, y + 40, x + 170, y + 180, loaded, ink::red);
        figure.text(
            text, y,
            areaSizes(set) + ",  QQ = " + inBothUnits(Quantity::Pressure, set.AREA[1][1].QQ.number()));
    } else if (set.NCNF > 0) {
        const auto force = [&](int i) { return set.FORCE[i].FF; };
        double most = 0;
        for (int i = 1; i <= set.NCNF; ++i) most = std::max(most, force(i));
        figure.circle(x + 100, y + 110, 90, ink::red, ink::red);
        figure.text(text, y, "columns, FF = " + inBothUnits(Quantity::Force, most));
        y += legendRow;
        figure.circle(x + 100, y + 110, 35, ink::red, ink::red);
        figure.text(text, y, "walls, FF = " + rangeText(force, set.NCNF, most) + " lb");
        y += legendRow;
        figure.line(x + 30, y + 110, x + 170, y + 110, ink::blue, 2);
        const auto moment = [&](int i) { return set.MOMENTX[i].FMX; };
        figure.text(text, y, "FMX and FMY, " + rangeText(moment, set.NNMX, 1e30) + " in.-lb at a node");
    }
}

void drawPlans(Figure& figure, const SlabSet& set, const Arrangement& where, float height) {
    const int groups = set.NLG;
    constexpr float besideLast = 1050, between = 200;
    const float bottom = height - 850;
    const float each = (plansRight - plansLeft - (groups > 1 ? besideLast : 0)) / static_cast<float>(groups);
    for (int g = 1; g <= groups; ++g) {
        const float left = plansLeft + each * static_cast<float>(g - 1);
        const bool last = g == groups;
        figure.text(left, plansTop, groups == 1 ? "Plan" : "Group " + std::to_string(g), 9, ink::black, true);
        const float right = last ? plansRight : left + each - between;
        drawSlabPlan(figure, set, where, {left, plansTop + 160, right, bottom, g, last});
    }
    drawLegend(figure, set, height - 720);
}

}  // namespace

Page slabFigure(const SlabFigure& what) {
    const auto store =
        readExample(what.deck, [](ListReader& in, Store& into) { return readSlabDeck(in, into); });
    // The first data set tells of the slab at rest, the last one of its loads.
    const SlabSet& first = store->slab[1];
    const SlabSet& set = store->slab[static_cast<int>(store->SlabNPROB.number())];
    const Arrangement where(set);
    const int group = set.NLG;
    Figure figure(sheetWidth, what.height);
    nameSection(figure, first, set, group);
    drawCurl(figure, first, where);
    drawPressures(figure, set, where, group);
    drawForces(figure, set, where);
    drawSlabSection(figure, set, where);
    drawFoundation(figure, *store, what.height - sectionMargin);
    drawPlans(figure, set, where, what.height);
    return figure.page();
}
