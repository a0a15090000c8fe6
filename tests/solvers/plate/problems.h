// Small slab problems and the numbers read from them.
#pragma once

#include <algorithm>
#include <cmath>

#include "solvers/plate/plate.h"

namespace plate {

inline std::vector<double> lines(double length, int elements) {
    std::vector<double> at;
    for (int i = 0; i <= elements; ++i) at.push_back(length * i / elements);
    return at;
}

/// Grid lines that lie close together at 0 and grow by `ratio` towards `length`.
inline std::vector<double> graded(double length, int elements, double ratio) {
    std::vector<double> at;
    for (int i = 0; i <= elements; ++i)
        at.push_back(length * (std::pow(ratio, i) - 1) / (std::pow(ratio, elements) - 1));
    return at;
}

/// One slab, lb and in.: 10 in. of 4,000,000 psi on 100 pci, areas of one load group.
inline Problem oneSlab(std::vector<double> x, std::vector<double> y, std::vector<LoadedArea> areas = {}) {
    Problem p;
    p.slabs = {{std::move(x), std::move(y), {}}};
    p.layers = {{10, 0.15, 4e6, 0.0868}};
    p.foundation.SUBMOD = 100;
    p.foundation.YMS = 1e4;
    p.foundation.PRS = 0.4;
    p.groups = {std::move(areas)};
    return p;
}

inline double rigidity(const SlabLayer& l) { return l.YM * l.T * l.T * l.T / 12 / (1 - l.PR * l.PR); }

/// Number, from 1, of the node of a slab at grid lines i and j.
inline int nodeAt(const Problem& p, int i, int j, std::size_t slab = 0) {
    int first = 1;
    for (std::size_t s = 0; s < slab; ++s)
        first += static_cast<int>(p.slabs[s].X.size() * p.slabs[s].Y.size());
    return first + i * static_cast<int>(p.slabs[slab].Y.size()) + j;
}

/// All nodes of slab 1 on grid line i, or on grid line j.
inline std::vector<int> columnAt(const Problem& p, int i) {
    std::vector<int> nodes;
    for (int j = 0; j < static_cast<int>(p.slabs[0].Y.size()); ++j) nodes.push_back(nodeAt(p, i, j));
    return nodes;
}
inline std::vector<int> rowAt(const Problem& p, int j) {
    std::vector<int> nodes;
    for (int i = 0; i < static_cast<int>(p.slabs[0].X.size()); ++i) nodes.push_back(nodeAt(p, i, j));
    return nodes;
}

/// Grid lines on two axes of symmetry, which x and y begin at: the slab is a quarter of the whole.
inline Problem quarterSlab(std::vector<double> x, std::vector<double> y, std::vector<LoadedArea> areas = {}) {
    Problem p = oneSlab(std::move(x), std::move(y), std::move(areas));
    p.NODSX = rowAt(p, 0);
    p.NODSY = columnAt(p, 0);
    return p;
}

inline std::vector<int> joined(std::vector<int> a, const std::vector<int>& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

/// 8 in. of the first modulus on a half-space of the second.
inline Foundation layered(double E1, double E2) {
    Foundation f;
    f.kind = FoundationKind::Layer;
    f.TH = {8};
    f.E = {E1, E2};
    f.PRBF = {0.4, 0.4};
    return f;
}

/// The same slab again on the right of the first, with a joint between them.
inline void addNeighbour(Problem& p, const Joint& joint) {
    p.slabs.push_back(p.slabs[0]);
    p.slabs[0].JONO[1] = 1;
    p.slabs[1].JONO[0] = 1;
    p.joints = {joint};
    p.YMSB = 29e6;
    p.PRSB = 0.3;
}

/// On a slab of 60 in., beside its right side.
inline const std::vector<LoadedArea> JOINT_WHEEL{{1, 40, 60, 0, 20, 80}};

/// Two slabs side by side with a joint between them, loaded on the left one beside it.
inline Problem twoSlabs(const Joint& joint) {
    Problem p = oneSlab(lines(60, 5), lines(96, 6), JOINT_WHEEL);
    addNeighbour(p, joint);
    return p;
}

/// Four slabs of unequal spans, joints in both directions.
inline Problem unequalSlabs() {
    Problem p = oneSlab({0, 30, 50}, lines(96, 4));
    p.slabs = {{{0, 30, 50}, {0, 20, 80}, {0, 1, 0, 3}},
               {{0, 30, 50}, {0, 40}, {0, 2, 3, 0}},
               {{0, 60, 70, 90}, {0, 20, 80}, {1, 0, 0, 4}},
               {{0, 60, 70, 90}, {0, 40}, {2, 0, 4, 0}}};
    p.joints.assign(4, {500, 20000, 1e6, 1, 12, 0.1, 0, {}});
    p.YMSB = 29e6;
    p.foundation.TH = {6}, p.foundation.E = {3e4, 8e3}, p.foundation.PRBF = {0.3, 0.45};
    return p;
}

/// A slab with weight that a warm bottom lifts at its corners, in contact where it presses.
inline Problem curled(FoundationKind kind) {
    Problem p = oneSlab(lines(180, 9), lines(144, 8));
    p.foundation.kind = kind;
    p.NWT = true;
    p.TEMP = 30;
    p.CT = 5e-6;
    p.NCYCLE = 15;
    return p;
}

inline const NodeResult& at(const Solution& s, int node, std::size_t which = 0) {
    return s.cases[which].nodes[static_cast<std::size_t>(node - 1)];
}

inline double largestStress(const Case& c) {
    double s = 0;
    for (const NodeResult& n : c.nodes)
        for (const LayerResult& l : n.layers) s = std::max({s, std::abs(l.s1), std::abs(l.s2)});
    return s;
}

/// Largest difference of deflection between two runs, over the largest deflection.
inline double difference(const Case& a, const Case& b) {
    double largest = 0, off = 0;
    for (std::size_t n = 0; n < a.nodes.size(); ++n) {
        largest = std::max(largest, std::abs(a.nodes[n].w));
        off = std::max(off, std::abs(a.nodes[n].w - b.nodes[n].w));
    }
    return off / largest;
}

}  // namespace plate
