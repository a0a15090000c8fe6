#include "solvers/plate/flexibility.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace plate {
namespace {

// ---- The potential 1/r ----------------------------------------------------------

/// Fourth integral of 1/r, see the header. Even in x and y.
double fourthIntegral(double x, double y) {
    const double r = std::hypot(x, y);
    double sum = -r * r * r / 6;
    if (x != 0) sum += x * x * y / 2 * std::asinh(y / std::abs(x));
    if (y != 0) sum += x * y * y / 2 * std::asinh(x / std::abs(y));
    return sum;
}

/// Second, fourth and sixth moments of the difference of two even spreads of widths
/// `wide` and `slim`.
struct Moments {
    double m2, m4, m6;
};
Moments moments(double wide, double slim) {
    const double p2 = wide * wide / 4, q2 = slim * slim / 4;
    const double a2 = p2 / 3, b2 = q2 / 3, a4 = p2 * p2 / 5, b4 = q2 * q2 / 5;
    return {a2 + b2, a4 + 6 * a2 * b2 + b4,
            p2 * p2 * p2 / 7 + 15 * a4 * b2 + 15 * a2 * b4 + q2 * q2 * q2 / 7};
}

/// Mean of 1/r over two small rectangles with centres dx, dy apart, by the derivatives of
/// 1/r along x and y: of order n + m along (x, y).
double expanded(double dx, double dy, const Moments& mx, const Moments& my) {
    const double x = dx * dx, y = dy * dy, s = x + y, r = std::sqrt(s);
    const double r5 = s * s * r, r9 = r5 * s * s, r13 = r9 * s * s;
    const double d2x = (2 * x - y) / r5, d2y = (2 * y - x) / r5;
    const double d4x = 3 * (8 * x * x - 24 * x * y + 3 * y * y) / r9;
    const double d4y = 3 * (8 * y * y - 24 * x * y + 3 * x * x) / r9;
    const double d22 = 3 * (-4 * x * x + 27 * x * y - 4 * y * y) / r9;
    const auto sixth = [&](double u, double v) {  // along u six times
        return 45 * (16 * u * u * u - 120 * u * u * v + 90 * u * v * v - 5 * v * v * v) / r13;
    };
    const auto fourTwo = [&](double u, double v) {  // along u four times, along v twice
        return 45 * (-8 * u * u * u + 116 * u * u * v - 101 * u * v * v + 6 * v * v * v) / r13;
    };
    return 1 / r + (d2x * mx.m2 + d2y * my.m2) / 2 + (d4x * mx.m4 + d4y * my.m4) / 24 +
           d22 * mx.m2 * my.m2 / 4 + (sixth(x, y) * mx.m6 + sixth(y, x) * my.m6) / 720 +
           (fourTwo(x, y) * mx.m4 * my.m2 + fourTwo(y, x) * my.m4 * mx.m2) / 48;
}

/// Signs of the differences of borders, [border of p][border of q], in the double integral.
constexpr double sign(std::size_t p, std::size_t q) { return p == q ? -1 : 1; }

// ---- The smooth part of a layered foundation ---------------------------------------

/// `smooth` on a table, evenly spaced in asinh(r / scale), by cubic interpolation. The
/// table holds smooth(r) sqrt(r^2 + scale^2), which tends to a constant far away.
class RadialTable {
  public:
    RadialTable(const SurfaceKernel& kernel, double farthest) : scale_(kernel.scale) {
        const double end = std::asinh(farthest / scale_);
        const auto points = static_cast<int>(end / step) + 4;
        for (int i = -1; i < points; ++i) {  // even in r: one point mirrored
            const double r = scale_ * std::sinh(step * std::abs(i));
            values_.push_back(kernel.smooth(r) * std::hypot(r, scale_));
        }
    }
    double operator()(double r) const {
        const double t = std::asinh(r / scale_) / step;
        const auto i = static_cast<std::size_t>(t);
        const double u = t - static_cast<double>(i);
        const double *v = &values_[i], a = v[0], b = v[1], c = v[2], d = v[3];
        const double value =
            b + u * ((c - a) / 2 + u * (a - 2.5 * b + 2 * c - d / 2 + u * (d - a + 3 * (b - c)) / 2));
        return value / std::hypot(r, scale_);
    }

  private:
    static constexpr double step = 0.03;
    double scale_;
    std::vector<double> values_;
};

/// Mean of f over the difference of two even spreads, along one axis: three points,
/// exact to degree 5.
struct Rule {
    double at, side, middle;
};
Rule differenceRule(double wide, double slim) {
    const Moments m = moments(wide, slim);
    const double side = m.m2 * m.m2 / m.m4 / 2;
    return {std::sqrt(m.m4 / m.m2), side, 1 - 2 * side};
}

double meanSmooth(const RadialTable& table, double dx, double dy, const Rule& rx, const Rule& ry) {
    const std::array<double, 3> wx{rx.side, rx.middle, rx.side}, wy{ry.side, ry.middle, ry.side};
    double sum = 0;
    for (std::size_t i = 0; i < 3; ++i)
        for (std::size_t j = 0; j < 3; ++j) {
            const double x = dx + (static_cast<double>(i) - 1) * rx.at,
                         y = dy + (static_cast<double>(j) - 1) * ry.at;
            sum += wx[i] * wy[j] * table(std::hypot(x, y));
        }
    return sum;
}

/// Rectangles further apart than this times their size count as points with moments.
constexpr double farApart = 20, farForSmooth = 10;

double diagonal(const Rectangle& r) { return std::hypot(r.x1 - r.x0, r.y1 - r.y0); }
double distance(const Rectangle& p, const Rectangle& q) {
    return std::hypot(p.x0 + p.x1 - q.x0 - q.x1, p.y0 + p.y1 - q.y0 - q.y1) / 2;
}

double evenRule(const RadialTable& table, const Rectangle& p, const Rectangle& q) {
    return meanSmooth(table, (p.x0 + p.x1 - q.x0 - q.x1) / 2, (p.y0 + p.y1 - q.y0 - q.y1) / 2,
                      differenceRule(p.x1 - p.x0, q.x1 - q.x0), differenceRule(p.y1 - p.y0, q.y1 - q.y0));
}

/// Cuts both rectangles to parts over which `smooth` changes little.
double cutToParts(const RadialTable& table, const Rectangle& p, const Rectangle& q, double scale) {
    const double dx = (p.x0 + p.x1 - q.x0 - q.x1) / 2, dy = (p.y0 + p.y1 - q.y0 - q.y1) / 2;
    const double px = p.x1 - p.x0, py = p.y1 - p.y0, qx = q.x1 - q.x0, qy = q.y1 - q.y0;
    const double between =
        std::hypot(std::max(0., std::abs(dx) - (px + qx) / 2), std::max(0., std::abs(dy) - (py + qy) / 2));
    const double part = (scale + between) / 2;
    const auto cuts = [part](double side) { return std::ceil(side / part); };
    const double npx = cuts(px), npy = cuts(py), nqx = cuts(qx), nqy = cuts(qy);
    const Rule rx = differenceRule(px / npx, qx / nqx), ry = differenceRule(py / npy, qy / nqy);
    double sum = 0;
    for (double i = 0.5; i < npx; ++i)
        for (double j = 0.5; j < npy; ++j)
            for (double k = 0.5; k < nqx; ++k)
                for (double l = 0.5; l < nqy; ++l)
                    sum += meanSmooth(table, dx + px * (i / npx - 0.5) - qx * (k / nqx - 0.5),
                                      dy + py * (j / npy - 0.5) - qy * (l / nqy - 0.5), rx, ry);
    return sum / (npx * npy * nqx * nqy);
}

/// A node's area and the node in it, which divides it into the elements' quarters.
struct Area {
    Rectangle whole;
    double x, y;

    template <class Use>
    void quarters(Use use) const {
        for (const auto& [x0, x1] : {std::pair{whole.x0, x}, std::pair{x, whole.x1}})
            for (const auto& [y0, y1] : {std::pair{whole.y0, y}, std::pair{y, whole.y1}})
                if (x1 > x0 && y1 > y0) use(Rectangle{x0, x1, y0, y1});
    }
};

/// Near areas are taken quarter by quarter, so that an area cut by an axis of symmetry and its image
/// are together exactly the whole area.
double meanSmooth(const RadialTable& table, const Area& p, const Area& q, double scale) {
    if (distance(p.whole, q.whole) > farForSmooth * std::max(diagonal(p.whole), diagonal(q.whole)))
        return evenRule(table, p.whole, q.whole);
    double sum = 0;
    p.quarters([&](const Rectangle& a) {
        q.quarters([&](const Rectangle& b) { sum += a.area() * b.area() * cutToParts(table, a, b, scale); });
    });
    return sum / (p.whole.area() * q.whole.area());
}

// ---- Slab by slab --------------------------------------------------------------------

/// Borders of a slab's node areas; mirrored ones run downward and keep the order of nodes.
struct Borders {
    std::vector<double> x, y;
    std::vector<double> nodeX, nodeY;  ///< the nodes between them
};

Borders bordersOf(const Mesh& mesh, std::size_t slab) {
    const auto first = static_cast<std::size_t>(mesh.first[slab]),
               last = static_cast<std::size_t>(mesh.first[slab + 1]);
    const auto [originX, originY] = mesh.origin[slab];
    Borders b;
    b.x.push_back(mesh.nodes[first].tributary.x0);
    b.y.push_back(mesh.nodes[first].tributary.y0);
    for (std::size_t n = first; n < last; ++n) {
        const Node& node = mesh.nodes[n];
        if (node.tributary.x1 > b.x.back()) {
            b.x.push_back(node.tributary.x1);
            b.nodeX.push_back(node.x + originX);
        }
        if (b.x.size() == 2) {
            b.y.push_back(node.tributary.y1);
            b.nodeY.push_back(node.y + originY);
        }
    }
    return b;
}

Borders mirroredX(Borders b, double line) {
    for (auto* list : {&b.x, &b.nodeX})
        for (double& x : *list) x = 2 * line - x;
    return b;
}
Borders mirroredY(Borders b, double line) {
    for (auto* list : {&b.y, &b.nodeY})
        for (double& y : *list) y = 2 * line - y;
    return b;
}

Area areaOf(const Borders& b, std::size_t i, std::size_t j) {
    return {{std::min(b.x[i], b.x[i + 1]), std::max(b.x[i], b.x[i + 1]), std::min(b.y[j], b.y[j + 1]),
             std::max(b.y[j], b.y[j + 1])},
            b.nodeX[i],
            b.nodeY[j]};
}

/// Rectangles share borders: the fourth integral is found once for each
/// pair of borders of two slabs.
class BorderTable {
  public:
    BorderTable(const Borders& p, const Borders& q) : nqx_(q.x.size()), nqy_(q.y.size()), npy_(p.y.size()) {
        for (double px : p.x)
            for (double qx : q.x)
                for (double py : p.y)
                    for (double qy : q.y) values_.push_back(fourthIntegral(px - qx, py - qy));
    }
    double at(std::size_t px, std::size_t qx, std::size_t py, std::size_t qy) const {
        return values_[((px * nqx_ + qx) * npy_ + py) * nqy_ + qy];
    }

  private:
    std::size_t nqx_, nqy_, npy_;
    std::vector<double> values_;
};

double meanBetween(const Rectangle& p, const Rectangle& q, const auto& integral) {
    const double dx = (p.x0 + p.x1 - q.x0 - q.x1) / 2, dy = (p.y0 + p.y1 - q.y0 - q.y1) / 2;
    if (std::hypot(dx, dy) > farApart * std::max(diagonal(p), diagonal(q)))
        return expanded(dx, dy, moments(p.x1 - p.x0, q.x1 - q.x0), moments(p.y1 - p.y0, q.y1 - q.y0));
    double sum = 0;
    for (std::size_t i = 0; i < 2; ++i)
        for (std::size_t k = 0; k < 2; ++k)
            for (std::size_t j = 0; j < 2; ++j)
                for (std::size_t l = 0; l < 2; ++l) sum += sign(i, k) * sign(j, l) * integral(i, k, j, l);
    return std::abs(sum) / (p.area() * q.area());  // borders of a mirror image run backward
}

/// Adds the influence of slab q's areas, with borders `source`, on slab p's areas.
void addPair(Eigen::MatrixXd& F, const Mesh& mesh, std::size_t p, const Borders& target, std::size_t q,
             const Borders& source, const SurfaceKernel& kernel, const RadialTable* smooth) {
    const BorderTable table(target, source);
    const double factor = (1 - kernel.PR * kernel.PR) / (std::numbers::pi * kernel.YM);
    const std::size_t npy = target.y.size() - 1, nqy = source.y.size() - 1;
    for (std::size_t i = 0; i + 1 < target.x.size(); ++i)
        for (std::size_t j = 0; j < npy; ++j)
            for (std::size_t k = 0; k + 1 < source.x.size(); ++k)
                for (std::size_t l = 0; l < nqy; ++l) {
                    const auto row = mesh.first[p] + static_cast<int>(i * npy + j);
                    const auto column = mesh.first[q] + static_cast<int>(k * nqy + l);
                    if (column > row) continue;
                    const Area a = areaOf(target, i, j), b = areaOf(source, k, l);
                    double mean = factor * meanBetween(a.whole, b.whole, [&](auto u, auto v, auto s, auto t) {
                                      return table.at(i + u, k + v, j + s, l + t);
                                  });
                    if (smooth) mean += meanSmooth(*smooth, a, b, kernel.scale);
                    F(row, column) += mean;
                }
}

double farthestDistance(const Mesh& mesh, const Mirrors& mirrors) {
    double x0 = 1e300, x1 = -1e300, y0 = 1e300, y1 = -1e300;
    const auto include = [&](double x, double y) {
        x0 = std::min(x0, x), x1 = std::max(x1, x), y0 = std::min(y0, y), y1 = std::max(y1, y);
    };
    for (const Node& n : mesh.nodes) {
        include(n.tributary.x0, n.tributary.y0);
        include(n.tributary.x1, n.tributary.y1);
        if (mirrors.x)
            include(2 * *mirrors.x - n.tributary.x1, y0), include(2 * *mirrors.x - n.tributary.x0, y0);
        if (mirrors.y)
            include(x0, 2 * *mirrors.y - n.tributary.y1), include(x0, 2 * *mirrors.y - n.tributary.y0);
    }
    return std::hypot(x1 - x0, y1 - y0);
}

}  // namespace

double meanInverseDistance(const Rectangle& p, const Rectangle& q) {
    const std::array<double, 2> px{p.x0, p.x1}, qx{q.x0, q.x1}, py{p.y0, p.y1}, qy{q.y0, q.y1};
    return meanBetween(
        p, q, [&](auto i, auto k, auto j, auto l) { return fourthIntegral(px[i] - qx[k], py[j] - qy[l]); });
}

Eigen::MatrixXd flexibility(const Mesh& mesh, const SurfaceKernel& kernel, const Mirrors& mirrors) {
    std::optional<RadialTable> smooth;
    if (kernel.smooth) smooth.emplace(kernel, farthestDistance(mesh, mirrors) * 1.01);
    Eigen::MatrixXd F = Eigen::MatrixXd::Zero(mesh.count(), mesh.count());
    const std::size_t slabs = mesh.first.size() - 1;
    for (std::size_t p = 0; p < slabs; ++p)
        for (std::size_t q = 0; q <= p; ++q) {
            if (mesh.group[p] != mesh.group[q]) continue;
            const Borders target = bordersOf(mesh, p), source = bordersOf(mesh, q);
            std::vector<Borders> images{source};
            if (mirrors.x) images.push_back(mirroredX(source, *mirrors.x));
            if (mirrors.y)
                for (std::size_t i = images.size(); i-- > 0;)
                    images.push_back(mirroredY(images[i], *mirrors.y));
            for (const Borders& image : images)
                addPair(F, mesh, p, target, q, image, kernel, smooth ? &*smooth : nullptr);
        }
    return F.selfadjointView<Eigen::Lower>();
}

}  // namespace plate
