// Slabs on liquid, solid and layered foundations.
#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "solvers/plate/element.h"
#include "solvers/plate/structure.h"
#include "solvers/report_lines.h"
#include "verification/closed_forms.h"
#include "verification/rows.h"

namespace verification {
namespace {

using namespace plate;
using enum FoundationKind;

constexpr const char* digits = "%.6g";
const struct {
    FoundationKind kind;
    std::string name;
} foundations[] = {{Liquid, "liquid"}, {Solid, "solid"}, {Layer, "layered"}};

Solution solved(const Problem& p) {
    Solution s = solve(p);
    if (s.fault) throw std::logic_error(s.fault->text);
    return s;
}

/// A value that must be the expected one; its error is relative to itself.
void same(const std::string& name, const char* source, double expected, double computed) {
    row(name, source, expected, computed, std::abs(expected), digits);
}

/// Something that must vanish, as a share of what it could be.
void nothing(const std::string& name, const char* source, double share) {
    row(name, source, 0, std::abs(share), 1, "%.6f");
}

void rigidBodies() {
    head("Slabs: rigid bodies",
         "120 x 80 in., 10 in. of 4e6 psi, on a liquid foundation of 100 pci. The even pressure comes as "
         "three loaded areas that cut the unequal elements; stress as a share of 100 times the pressure. The "
         "stiff slab, 4e12 psi, carries 1000 lb 36 in. right of and 20 in. below its centre; error relative "
         "to the mean w.",
         1e-6);
    Problem weight = oneSlab({0, 5, 40, 41, 90, 120}, {0, 30, 33, 80}), even = weight;
    weight.NWT = true;
    even.groups = {{{1, 0, 57.3, 0, 80, 2}, {1, 57.3, 120, 0, 11.1, 2}, {1, 57.3, 120, 11.1, 80, 2}}};
    const struct {
        std::string name;
        const Problem& problem;
        double q;
    } rows[] = {{"2 psi", even, 2}, {"weight alone, .0868 pci", weight, .868}};
    for (const auto& [name, problem, q] : rows) {
        const Solution s = solved(problem);
        const auto [least, most] = std::ranges::minmax(s.cases[0].nodes, {}, &NodeResult::w);
        same(name + ", least w, in.", "q / k", q / 100, least.w);
        same(name + ", largest w, in.", "q / k", q / 100, most.w);
        nothing(name + ", largest stress", "no bending", largestStress(s.cases[0]) / (100 * q));
    }
    Problem stiff = oneSlab(lines(120, 5), lines(80, 4));
    stiff.layers[0].YM = 4e12;
    stiff.FF = {{nodeAt(stiff, 4, 1), 1000}};
    const Solution tilted = solved(stiff);
    for (const auto& [i, j] : {std::pair{0, 0}, {5, 0}, {0, 4}, {5, 4}}) {
        const double x = 24 * i - 60, y = 20 * j - 40, A = 120 * 80;
        const double w = 1000 / A * (1 + 12 * 36 * x / (120 * 120) - 12 * 20 * y / (80 * 80)) / 100;
        row(printed("stiff slab, corner at %g", x) + printed(", %g in., w", y), "P/A + M x/I", w,
            at(tilted, nodeAt(stiff, i, j)).w, 1000 / A / 100, digits);
    }
    const Problem loaded = oneSlab(lines(120, 6), lines(96, 4), {{1, 10, 30, 0, 20, 80}});
    Problem heavy = loaded;
    heavy.NWT = true;
    same("largest stress under a wheel, with weight, psi", "without weight",
         largestStress(solved(loaded).cases[0]), largestStress(solved(heavy).cases[0]));
}

/// Largest force inside an unequal patch under w = x^2 - y^2/2 + .3 x y, over all its forces.
double forceInsidePatch() {
    const Problem p = oneSlab({0, 7, 20, 26}, {0, 5, 17, 20});
    const Mesh mesh = makeMesh(p);
    const plate::Structure structure(p, mesh);
    Vector d(structure.unknowns());
    for (int n = 0; n < mesh.count(); ++n) {
        const auto& [slab, x, y, tributary] = mesh.nodes[static_cast<std::size_t>(n)];
        d.segment<3>(3 * n) << x * x - y * y / 2 + .3 * x * y, y - .3 * x, 2 * x + .3 * y;
    }
    const Vector force = structure.stiffness().selfadjointView<Eigen::Lower>() * d;
    double inside = 0;
    for (int i : {1, 2})
        for (int j : {1, 2}) inside = std::max(inside, force.segment<3>(3 * (nodeAt(p, i, j) - 1)).norm());
    return inside / force.norm();
}

void elements() {
    head("Slabs: the element",
         "Patch of unequal elements under constant curvature. Free curl: 60 x 48 in. on next to no support, "
         "stress as a share of E CT TEMP. Convergence: a quarter-loaded slab of 96 x 72 in. between four "
         "axes of symmetry, at x = 24, y = 18 in., on n x n elements; the order is that of the step from 16 "
         "to 32.",
         .1);
    nothing("force inside the patch", "patch test", forceInsidePatch());
    Problem curl = oneSlab({0, 13, 50, 60}, {0, 22, 30, 48});
    curl.TEMP = 30, curl.CT = 5e-6;
    curl.foundation.SUBMOD = 1e-6;
    const Solution free = solved(curl);
    nothing("free curl, largest stress", "no stress", largestStress(free.cases[0]) / (4e6 * 5e-6 * 30));
    same("free curl, ry at x = 60 less at x = 0", "-CT TEMP / T x 60", -5e-6 * 30 / 10 * 60,
         at(free, nodeAt(curl, 3, 1)).ry - at(free, nodeAt(curl, 0, 1)).ry);
    std::vector<double> errors[2];
    for (int n : {8, 16, 32}) {
        Problem p = oneSlab(lines(96, n), lines(72, n), {{1, 0, 48, 0, 36, 50}});
        p.NODSX = joined(rowAt(p, 0), rowAt(p, n));
        p.NODSY = joined(columnAt(p, 0), columnAt(p, n));
        const Guided exact = guidedSlab(p.layers[0], 100, 96, 72, 48, 36, 50, 24, 18);
        const Solution s = solved(p);
        const NodeResult& node = at(s, nodeAt(p, n / 4, n / 4));
        same(printed("w, n = %d, in.", n), "cosine series", exact.w, node.w);
        same(printed("moment, n = %d, lb", n), "cosine series", exact.mx, node.layers[0].mx);
        errors[0].push_back(std::abs(node.w - exact.w));
        errors[1].push_back(std::abs(node.layers[0].mx - exact.mx));
    }
    row("order of w", "2", 2, std::log2(errors[0][1] / errors[0][2]), 2, "%.3f");
    row("order of the moment", "2", 2, std::log2(errors[1][1] / errors[1][2]), 2, "%.3f");
}

void largeSlabs() {
    head("Slabs: large slabs against Hankel integrals",
         "100 psi on 20 x 20 in. in the middle; a quarter of the slab on a graded grid, 10 in. of 4e6 psi, "
         "PR = .15. Liquid: 100 pci, 600 in. square. Solid: E = 10000 psi, PR = .4, 800 in. square.",
         1e-2);
    const std::vector<LoadedArea> wheel{{1, 0, 10, 0, 10, 100}};
    const Problem liquid = quarterSlab(graded(300, 32, 1.09), graded(300, 32, 1.09), wheel);
    Problem solid = quarterSlab(graded(400, 22, 1.13), graded(400, 22, 1.13), wheel);
    solid.foundation.kind = Solid;
    const struct {
        std::string name;
        const Problem& problem;
        double (*bed)(double);
    } rows[] = {{"liquid", liquid, [](double) { return 100.; }},
                {"solid", solid, [](double m) { return m * 1e4 / (2 * .84); }}};
    for (const auto& [name, problem, bed] : rows) {
        const Centre exact = infinitePlate(problem.layers[0], 100, 10, bed);
        const Solution s = solved(problem);
        same(name + ", w, in.", "Hankel integral", exact.w, at(s, 1).w);
        same(name + ", moment, lb", "Hankel integral", exact.moment, at(s, 1).layers[0].mx);
    }
}

void wheels() {
    head("Slabs: Westergaard",
         "10000 lb on 16 x 16 in., 10 in. of 4e6 psi, PR = .15, 100 pci, 600 in. square. The formulas are "
         "approximations for a circle, at the corner a fit by Ioannides, Thompson and Barenberg (1985): the "
         "differences are theirs, too.",
         .1);
    const double side = 16, P = 10000, q = P / side / side;
    const auto grid = graded(300, 26, 1.08);
    const Problem interior = quarterSlab(grid, grid, {{1, 0, side / 2, 0, side / 2, q}}),
                  corner = oneSlab(grid, grid, {{1, 0, side, 0, side, q}});
    Problem edge = oneSlab(grid, grid, {{1, 0, side / 2, 0, side, q}});
    edge.NODSY = columnAt(edge, 0);
    const Westergaard exact = westergaard(corner.layers[0], 100, P, side);
    const Solution in = solved(interior), ed = solved(edge), co = solved(corner);
    same("interior, w, in.", "Westergaard 1926", exact.interior.w, at(in, 1).w);
    same("interior, stress, psi", "Westergaard 1926", exact.interior.stress, at(in, 1).layers[0].sx);
    same("edge, w, in.", "Westergaard 1948", exact.edge.w, at(ed, 1).w);
    same("edge, stress, psi", "Westergaard 1948", exact.edge.stress, at(ed, 1).layers[0].sx);
    same("corner, w, in.", "Ioannides et al. 1985", exact.corner.w, at(co, 1).w);
    // The top is in tension: at the bottom the same stress is compression.
    same("corner, stress, psi", "Ioannides et al. 1985", -exact.corner.stress, largestStress(co.cases[0]));
}

void curling() {
    head("Slabs: curling",
         "Bottom 20 degrees warmer than the top, CT = 5e-6, full contact, 100 pci. The strip is 150 in. "
         "wide.",
         1e-3);
    const double full = 4e6 * 5e-6 * 20 / (2 * .85);
    Problem wide = quarterSlab(graded(500, 20, 1.05), graded(500, 20, 1.05));
    Problem strip = quarterSlab(lines(20, 2), lines(75, 50));
    strip.NODSY = joined(columnAt(strip, 0), columnAt(strip, 2));
    for (Problem* p : {&wide, &strip}) p->TEMP = 20, p->CT = 5e-6;
    same("infinite slab, stress, psi", "E CT TEMP / (2 (1 - PR))", full, at(solved(wide), 1).layers[0].sx);
    const double factor = stripFactor(strip.layers[0], 100, 150);
    const Solution s = solved(strip);
    same("strip, stress across, psi", "Westergaard 1927", full * (1 - factor), at(s, 1).layers[0].sy);
    same("strip, stress along, psi", "Westergaard 1927", full * (1 - .15 * factor), at(s, 1).layers[0].sx);
}

void wholeAndParts() {
    head("Slabs: the same problem in two ways",
         "The expected value is another run's. A quarter between two axes of symmetry and the whole slab; "
         "one slab and two with a rigid joint; two with a free joint and one alone; layers of equal "
         "constants and a half-space.",
         1e-6);
    for (const auto& [kind, name] : foundations) {
        Problem full = oneSlab({0, 10, 25, 60, 95, 110, 120}, {0, 20, 48, 76, 96}, {{1, 50, 70, 40, 56, 80}});
        if (kind == Layer) full.foundation = plate::layered(5e4, 1e4);
        full.foundation.kind = kind;
        Problem quarter = quarterSlab({0, 35, 50, 60}, {0, 28, 48}, {{1, 0, 10, 0, 8, 80}});
        quarter.foundation = full.foundation;
        for (Problem* p : {&full, &quarter}) p->TEMP = 10, p->CT = 5e-6;
        const Solution a = solved(full), b = solved(quarter);
        const NodeResult &whole = at(a, nodeAt(full, 3, 2)), &part = at(b, 1);
        same("quarter, " + name + ", w at the centre, in.", "whole slab", whole.w, part.w);
        same("quarter, " + name + ", stress there, psi", "whole slab", whole.layers[0].sx, part.layers[0].sx);
        same("quarter, " + name + ", s1 on an axis, psi", "whole slab",
             at(a, nodeAt(full, 4, 2)).layers[0].s1, at(b, nodeAt(quarter, 1, 0)).layers[0].s1);
        same("quarter, " + name + ", w at the corner, in.", "whole slab", at(a, nodeAt(full, 6, 4)).w,
             at(b, nodeAt(quarter, 3, 2)).w);
    }
    const Problem one = oneSlab(lines(120, 10), lines(96, 6), JOINT_WHEEL),
                  alone = oneSlab(lines(60, 5), lines(96, 6), JOINT_WHEEL);
    const Solution whole = solved(one), rigid = solved(twoSlabs({1e11, 1e12, 0, 0, 0, 0, 0, {}})),
                   left = solved(alone), loose = solved(twoSlabs({}));
    same("rigid joint, w beside it, loaded slab, in.", "one slab", at(whole, nodeAt(one, 5, 0)).w,
         at(rigid, nodeAt(alone, 5, 0)).w);
    same("rigid joint, w in the other slab, 24 in. on, in.", "one slab", at(whole, nodeAt(one, 7, 0)).w,
         at(rigid, 42 + nodeAt(alone, 2, 0)).w);
    same("free joint, w beside it, loaded slab, in.", "slab alone", at(left, nodeAt(alone, 5, 0)).w,
         at(loose, nodeAt(alone, 5, 0)).w);
    nothing("free joint, w of the other slab, share", "no load", at(loose, 43).w / at(loose, 36).w);
    Problem ground = oneSlab(lines(120, 8), lines(96, 6), {{1, 0, 20, 0, 20, 80}});
    ground.foundation.kind = Solid;
    const Solution solid = solved(ground);
    ground.foundation = plate::layered(1e4, 1e4);
    same("equal layers, w at the loaded corner, in.", "half-space", at(solid, 1).w, at(solved(ground), 1).w);
}

void twoLayers() {
    head("Slabs: two layers",
         "6 in. on 4 in., liquid foundation: ratios at the node below the load. Bonded: modulus times "
         "distance from the neutral axis; unbonded: modulus times thickness.",
         1e-9);
    const Problem one = oneSlab(lines(120, 8), lines(96, 6), {{1, 10, 30, 0, 20, 80}});
    Problem p = one;
    p.layers = {{6, .15, 4e6, 0}, {4, .15, 4e6, 0}};
    p.NBOND = true;
    const int node = nodeAt(p, 1, 0);
    const Solution equal = solved(p), single = solved(one);
    same("bonded, equal moduli, w, in.", "one slab of 10 in.", at(single, node).w, at(equal, node).w);
    same("bonded, equal moduli, lower stress, psi", "one slab of 10 in.", at(single, node).layers[0].sx,
         at(equal, node).layers[1].sx);
    const auto ratio = [&](const Problem& q) {
        const Solution s = solved(q);
        return at(s, node).layers[0].sx / at(s, node).layers[1].sx;
    };
    same("bonded, equal moduli, upper / lower stress", "(6 - 5) / (10 - 5)", 1. / 5, ratio(p));
    p.layers[1].YM = 2e6;  // neutral axis at (4 6 3 + 2 4 8) / (4 6 + 2 4) = 4.25 in.
    same("bonded, 2:1, upper / lower stress", "2 (6 - 4.25) / (10 - 4.25)", 2 * 1.75 / 5.75, ratio(p));
    p.NBOND = false;
    same("unbonded, 2:1, upper / lower stress", "2 x 6 / 4", 3, ratio(p));
}

void reciprocity() {
    head("Slabs: reciprocity",
         "Four slabs of unequal spans with springs and dowels in both directions: deflection in the fourth "
         "slab under a force of 1000 lb in the first, and the other way round; rotations likewise under "
         "moments.",
         1e-9);
    for (const auto& [kind, name] : foundations) {
        Problem p = unequalSlabs();
        p.foundation.kind = kind;
        const int A = 3, B = nodeAt(p, 2, 0, 3);
        Problem there = p, back = p;
        there.FF = {{A, 1000}}, back.FF = {{B, 1000}};
        same(name + ", w, in.", "loads exchanged", at(solved(there), B).w, at(solved(back), A).w);
        there.FF.clear(), back.FF.clear();
        there.FMX = {{A, 1000}}, back.FMY = {{B, 1000}};
        same(name + ", rotation", "loads exchanged", at(solved(there), B).rx, at(solved(back), A).ry);
    }
}

void contact() {
    head("Slabs: contact",
         "180 x 144 in. with weight, bottom 30 degrees warmer than the top, a gap of .05 in. under the nodes "
         "of the loaded corner, 40 psi on 30 x 30 in. there: what carries it, and the worst of all nodes.",
         1e-9);
    for (const auto& [kind, name] : {foundations[0], foundations[1]}) {
        Problem p = curled(kind);
        p.groups = {{{1, 0, 30, 0, 30, 40}}};
        for (int i : {0, 1})
            for (int j : {0, 1}) p.NG.push_back({nodeAt(p, i, j), .05});
        const Solution s = solved(p);
        const Case& c = s.cases[0];
        const double load = .868 * 180 * 144 + 40 * 30 * 30;
        double carried = 0, pull = 0, overlap = 0;
        for (std::size_t n = 0; n < c.nodes.size(); ++n) {
            carried += c.nodes[n].reaction;
            pull = std::max(pull, -c.state.reaction[n] / load);
            overlap = std::max(overlap, -c.state.gap[n]);
        }
        same(name + ", sum of reactions, lb", "loads and weight", load, carried);
        nothing(name + ", force balance", "equilibrium", c.equilibrium.forceError);
        nothing(name + ", moment balance", "equilibrium", c.equilibrium.momentError);
        nothing(name + ", largest pull of a node", "pressure only", pull);
        nothing(name + ", deepest node inside the foundation, in.", "no overlap", overlap);
    }
}

}  // namespace

void slabs() {
    rigidBodies();
    elements();
    largeSlabs();
    wheels();
    curling();
    wholeAndParts();
    twoLayers();
    reciprocity();
    contact();
}

}  // namespace verification
