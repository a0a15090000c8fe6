#include "plots/contour_tracer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace {

constexpr int black = 0, lightBlue = 9, lightRed = 12;

/// The solid segment of a cell that always has a label.
constexpr int lastTarget = 4;

struct Corner {
    Single x, y, s;
};
using Corners = std::array<Corner, 4>;

/// Where level c crosses the edge from a to b, nothing where it passes by. A level that touches an end
/// crosses there.
std::optional<Kernel::Point> crossing(const Corner& a, const Corner& b, Single c) {
    const bool crossed = (a.s >= c && b.s <= c) || (a.s <= c && b.s >= c);
    if (!crossed) return std::nullopt;
    const Single t = a.s == b.s ? 0 : finite(finite(c - a.s) / finite(b.s - a.s));
    return Kernel::Point{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)};
}

/// One cell with all its levels.
class Cell {
  public:
    Cell(Kernel& kernel, const Corners& corners, int target)
        : q(kernel), corners_(corners), target_(target) {}

    void trace(const Contours& contours) {
        Single lowest = corners_[0].s;
        for (const Corner& corner : corners_) lowest = std::min(lowest, corner.s);
        for (const Contours::Level& level : contours.levels) {
            // Levels descend: none of the others can cross the cell either.
            if (level.c < lowest || level.c < contours.CBOT) return;
            trace(level);
        }
    }

  private:
    /// All later crossings are joined with the first one: four of them make a fan.
    void trace(const Contours::Level& level) {
        std::optional<Kernel::Point> first;
        for (std::size_t edge = 0; edge < corners_.size(); ++edge) {
            const auto point = crossing(corners_[edge], corners_[(edge + 1) % corners_.size()], level.c);
            if (!point) continue;
            const Kernel::Point mapped = q.QRtoI(point->ix, point->iy);
            if (first)
                segment(level, *first, mapped);
            else
                first = mapped;
        }
    }

    void segment(const Contours::Level& level, Kernel::Point a, Kernel::Point b) {
        q.DrawStyle = level.solid ? Kernel::Pen::Solid : Kernel::Pen::Dotted;
        q.Line(a.ix, a.iy, b.ix, b.iy, QBColor(level.c >= 0 ? lightRed : lightBlue));
        q.DrawStyle = Kernel::Pen::Solid;
        if (!level.solid) return;
        ++count_;
        if (count_ == target_ || count_ == lastTarget) label(level.c, a, b);
    }

    void label(Single c, Kernel::Point a, Kernel::Point b) {
        const Single dx = b.ix - a.ix, dy = b.iy - a.iy;
        if (std::sqrt(dx * dx + dy * dy) <= 300) return;
        const std::string text = Format(c, "#0.##");
        const auto length = static_cast<Single>(text.size());
        q.Font = {"MS Serif", 7};
        q.QGTxt(text, black, std::nearbyint((a.ix + b.ix) / 2 - 25 * length),
                std::nearbyint((a.iy + b.iy) / 2 - 75));
        q.Font = {"Courier New", 10};
    }

    Kernel& q;
    Corners corners_;
    int target_;
    int count_ = 0;  ///< solid segments so far
};

bool forceAt(const PanProblem& pan, int node) {
    for (int m = 1; m <= pan.NCNF; ++m)
        if (pan.NN[m].number() == node && pan.FF[m].number() != 0) return true;
    return false;
}

}  // namespace

void QCntou(Kernel& q, const PanProblem& pan, const Contours& contours) {
    const auto &X = pan.X[pan.LN], &Y = pan.Y[pan.LN];
    const int NX = pan.NX[pan.LN], NY = pan.NY[pan.LN];
    q.ForeColor = QBColor(black);
    for (int i = 1; i < NX; ++i)
        for (int j = 1; j < NY; ++j) {
            const auto corner = [&](int a, int b) { return Corner{X[a], Y[b], contours.SGRID[a][b]}; };
            const Corners corners = {corner(i, j), corner(i + 1, j), corner(i + 1, j + 1), corner(i, j + 1)};
            const int target = forceAt(pan, NY * (i - 1) + j) ? lastTarget : 1;
            Cell(q, corners, target).trace(contours);
        }
}
