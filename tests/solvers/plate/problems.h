// Small slab problems and the numbers read from them.
#pragma once

#include <gtest/gtest.h>

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

/// One slab, lb and in., without loads: 10 in. of 4,000,000 psi on 100 pci.
inline Problem oneSlab(std::vector<double> x, std::vector<double> y) {
    Problem p;
    p.slabs = {{std::move(x), std::move(y), {}}};
    p.layers = {{10, 0.15, 4e6, 0.0868}};
    p.foundation.SUBMOD = 100;
    p.foundation.YMS = 1e4;
    p.foundation.PRS = 0.4;
    p.groups = {{}};
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

/// Solves one that must go well: no fault, forces and moments in balance, residual small.
inline Solution solved(const Problem& p) {
    Solution s = solve(p);
    EXPECT_FALSE(s.fault) << s.fault->text;
    for (const Case& c : s.cases) {
        EXPECT_LE(c.equilibrium.forceError, 1e-9);
        EXPECT_LE(c.equilibrium.momentError, 1e-9);
        EXPECT_LE(c.residual, 1e-6);
        EXPECT_TRUE(c.contact.settled);
    }
    return s;
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
