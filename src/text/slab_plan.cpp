#include "text/slab_plan.h"

#include <algorithm>
#include <cmath>

#include "platform/numbers.h"

namespace {

int whole(const Variant& value) { return static_cast<int>(value.number()); }

/// From plan to page.
struct Scale {
    float left, base, twips;
    float x(double plan) const { return left + static_cast<float>(plan) * twips; }
    float y(double plan) const { return base - static_cast<float>(plan) * twips; }
};

/// Both units where they have room, else the deck's.
std::string lengthWithin(float room, double inches) {
    const std::string both = inBothUnits(Quantity::Length, inches);
    return widthOf(both, 9) < room ? both : numberText(inches) + " in.";
}

void drawGrid(Figure& figure, const SlabSet& set, const Arrangement& where, const Scale& to) {
    constexpr Colour gridLine = 0xB4B8C0;
    for (int s = 1; s <= set.NSLAB; ++s) {
        const SlabSet::Slab& slab = set.SLAB[s];
        const float x1 = to.x(where.left(s)), x2 = to.x(where.left(s) + lengthOf(slab));
        const float y1 = to.y(where.base(s)), y2 = to.y(where.base(s) + breadthOf(slab));
        figure.box(x1, y2, x2, y1, concrete);
        for (int i = 2; i < slab.NX; ++i) {
            const float x = to.x(where.left(s) + slab.X[i]);
            figure.line(x, y1, x, y2, gridLine);
        }
        for (int i = 2; i < slab.NY; ++i) {
            const float y = to.y(where.base(s) + slab.Y[i]);
            figure.line(x1, y, x2, y, gridLine);
        }
        figure.line(x1, y1, x2, y1);
        figure.line(x1, y2, x2, y2);
        figure.line(x1, y1, x1, y2);
        figure.line(x2, y1, x2, y2);
    }
}

void nameSlabs(Figure& figure, const SlabSet& set, const Arrangement& where, const Scale& to) {
    if (set.NSLAB == 1) return;
    for (int s = 1; s <= set.NSLAB; ++s)
        figure.centred(to.x(where.left(s) + lengthOf(set.SLAB[s]) / 2),
                       to.y(where.base(s) + breadthOf(set.SLAB[s]) / 2) - 110, "Slab " + std::to_string(s), 9,
                       ink::black, true);
}

/// A joint is drawn once, at the slab on its left or below it, with strokes for its bars.
void drawJoints(Figure& figure, const SlabSet& set, const Arrangement& where, const Scale& to) {
    constexpr float bar = 60;
    for (int s = 1; s <= set.NSLAB; ++s) {
        const SlabSet::Slab& slab = set.SLAB[s];
        const double right = where.left(s) + lengthOf(slab), top = where.base(s) + breadthOf(slab);
        const auto spacing = [&](int joint) { return set.JOINT[joint].BS.number(); };
        if (const int j = slab.JONO2; j > 0) {
            figure.line(to.x(right), to.y(where.base(s)), to.x(right), to.y(top), ink::blue, 3);
            for (double y = spacing(j) / 2; y < breadthOf(slab); y += spacing(j))
                figure.line(to.x(right) - bar, to.y(where.base(s) + y), to.x(right) + bar,
                            to.y(where.base(s) + y), ink::blue);
            figure.text(to.x(right) + 80, to.y(top) + 60, "Joint " + std::to_string(j), 8, ink::blue);
        }
        if (const int j = slab.JONO4; j > 0) {
            figure.line(to.x(where.left(s)), to.y(top), to.x(right), to.y(top), ink::blue, 3);
            for (double x = spacing(j) / 2; x < lengthOf(slab); x += spacing(j))
                figure.line(to.x(where.left(s) + x), to.y(top) - bar, to.x(where.left(s) + x),
                            to.y(top) + bar, ink::blue);
            figure.text(to.x(where.left(s)) + 120, to.y(top) - 290, "Joint " + std::to_string(j), 8,
                        ink::blue);
        }
    }
}

void drawAreas(Figure& figure, const SlabSet& set, const Arrangement& where, const Scale& to, int group) {
    for (int i = 1; i <= set.NUDL[group]; ++i) {
        const SlabSet::Area& a = set.AREA[group][i];
        const double x = where.left(whole(a.LS)), y = where.base(whole(a.LS));
        figure.box(to.x(x + a.XL1.number()), to.y(y + a.YL2.number()), to.x(x + a.XL2.number()),
                   to.y(y + a.YL1.number()), loaded, ink::red);
    }
}

/// Forces as spots, the larger the heavier; moments as strokes across the edge on which they act.
void drawConcentrated(Figure& figure, const SlabSet& set, const Arrangement& where, const Scale& to) {
    constexpr float largestSpot = 100, smallestSpot = 35, stroke = 130;
    double most = 0;
    for (int i = 1; i <= set.NCNF; ++i) most = std::max(most, std::abs(set.FORCE[i].FF));
    for (int i = 1; i <= set.NNMX; ++i) {
        const NodePlace at = placeOf(set, where, static_cast<int>(set.MOMENTX[i].NNX));
        const float outward = at.x > where.width() / 2 ? stroke : -stroke;
        figure.line(to.x(at.x), to.y(at.y), to.x(at.x) + outward, to.y(at.y), ink::blue, 2);
    }
    for (int i = 1; i <= set.NNMY; ++i) {
        const NodePlace at = placeOf(set, where, static_cast<int>(set.MOMENTY[i].NNY));
        const float outward = at.y > where.depth() / 2 ? -stroke : stroke;
        figure.line(to.x(at.x), to.y(at.y), to.x(at.x), to.y(at.y) + outward, ink::blue, 2);
    }
    for (int i = 1; i <= set.NCNF; ++i) {
        const NodePlace at = placeOf(set, where, static_cast<int>(set.FORCE[i].NN));
        const auto part = static_cast<float>(std::sqrt(std::abs(set.FORCE[i].FF) / most));
        figure.circle(to.x(at.x), to.y(at.y), std::max(largestSpot * part, smallestSpot), ink::red, ink::red);
    }
}

/// The axes reach beyond the slab, as the part that is not modelled does.
void drawSymmetry(Figure& figure, const SlabSet& set, const Arrangement& where, const Scale& to) {
    constexpr float beyond = 150;
    if (set.NSY > 0)
        figure.dashed(to.x(0), to.y(0) + beyond, to.x(0), to.y(where.depth()) - beyond, ink::red);
    if (set.NSX > 0)
        figure.dashed(to.x(0) - beyond, to.y(0), to.x(where.width()) + beyond, to.y(0), ink::red);
}

void drawDimensions(Figure& figure, const SlabSet& set, const Arrangement& where, const Scale& to) {
    const float above = to.y(where.depth()) - 200, beside = to.x(where.width()) + 260;
    for (int s = 1; s <= set.NSLAB; ++s) {
        const SlabSet::Slab& slab = set.SLAB[s];
        if (slab.JONO4 == 0) {
            const float x1 = to.x(where.left(s)), x2 = to.x(where.left(s) + lengthOf(slab));
            figure.dimensionAcross(x1, x2, above, lengthWithin(x2 - x1, lengthOf(slab)));
        }
        if (slab.JONO2 == 0)
            figure.dimensionDown(beside, to.y(where.base(s) + breadthOf(slab)), to.y(where.base(s)),
                                 inBothUnits(Quantity::Length, breadthOf(slab)), true);
    }
}

}  // namespace

double lengthOf(const SlabSet::Slab& slab) { return slab.X[slab.NX]; }
double breadthOf(const SlabSet::Slab& slab) { return slab.Y[slab.NY]; }

Arrangement::Arrangement(const SlabSet& set) : corners_(static_cast<std::size_t>(set.NSLAB)) {
    corners_[0].known = true;
    for (int round = 1; round < set.NSLAB; ++round)
        for (int s = 1; s <= set.NSLAB; ++s)
            if (corners_[static_cast<std::size_t>(s - 1)].known) hang(set, s);
    double x = 0, y = 0;
    for (const Corner& c : corners_) {
        x = std::min(x, c.x);
        y = std::min(y, c.y);
    }
    for (int s = 1; s <= set.NSLAB; ++s) {
        Corner& c = corners_[static_cast<std::size_t>(s - 1)];
        c.x -= x;
        c.y -= y;
        width_ = std::max(width_, c.x + lengthOf(set.SLAB[s]));
        depth_ = std::max(depth_, c.y + breadthOf(set.SLAB[s]));
    }
}

/// Places the slabs that share a joint with `from`.
void Arrangement::hang(const SlabSet& set, int from) {
    const SlabSet::Slab& here = set.SLAB[from];
    const Corner c = corners_[static_cast<std::size_t>(from - 1)];
    for (int s = 1; s <= set.NSLAB; ++s) {
        Corner& other = corners_[static_cast<std::size_t>(s - 1)];
        const SlabSet::Slab& there = set.SLAB[s];
        if (other.known) continue;
        if (here.JONO2 > 0 && here.JONO2 == there.JONO1) other = {c.x + lengthOf(here), c.y, true};
        if (here.JONO1 > 0 && here.JONO1 == there.JONO2) other = {c.x - lengthOf(there), c.y, true};
        if (here.JONO4 > 0 && here.JONO4 == there.JONO3) other = {c.x, c.y + breadthOf(here), true};
        if (here.JONO3 > 0 && here.JONO3 == there.JONO4) other = {c.x, c.y - breadthOf(there), true};
    }
}

NodePlace placeOf(const SlabSet& set, const Arrangement& where, int node) {
    int s = 1;
    while (node > set.SLAB[s].NX * set.SLAB[s].NY) {
        node -= set.SLAB[s].NX * set.SLAB[s].NY;
        ++s;
    }
    const SlabSet::Slab& slab = set.SLAB[s];
    return {s, where.left(s) + slab.X[(node - 1) / slab.NY + 1],
            where.base(s) + slab.Y[(node - 1) % slab.NY + 1]};
}

void drawSlabPlan(Figure& figure, const SlabSet& set, const Arrangement& where, const PlanFrame& frame) {
    constexpr float aboveForSizes = 500, besideForSizes = 1250;
    const float room = frame.right - frame.left - (frame.sized ? besideForSizes : 0);
    const float high = frame.bottom - frame.top - aboveForSizes;
    const float twips =
        std::min(room / static_cast<float>(where.width()), high / static_cast<float>(where.depth()));
    const Scale to{frame.left, frame.top + aboveForSizes + static_cast<float>(where.depth()) * twips, twips};
    drawGrid(figure, set, where, to);
    drawJoints(figure, set, where, to);
    drawAreas(figure, set, where, to, frame.group);
    drawConcentrated(figure, set, where, to);
    nameSlabs(figure, set, where, to);
    drawSymmetry(figure, set, where, to);
    if (frame.sized) drawDimensions(figure, set, where, to);
}
