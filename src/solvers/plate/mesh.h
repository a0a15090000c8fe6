// Nodes, elements and joint lines of the slabs, laid out in one plan.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "solvers/plate/problem.h"

namespace plate {

/// Why a problem cannot be solved; `text` is a whole sentence for the user.
struct Fault {
    std::string field;                                         ///< the deck's name of the wrong value
    int slab = 0, node = 0, joint = 0, period = 0, group = 0;  ///< where; 0 is nowhere
    std::string text;
};

struct Rectangle {
    double x0, x1, y0, y1;
    double area() const { return (x1 - x0) * (y1 - y0); }
};

struct Node {
    int slab;             ///< from 0
    double x, y;          ///< in the slab's coordinates
    Rectangle tributary;  ///< the node's area in the plan: half way to its neighbours
};

struct Element {
    int slab;
    std::array<int, 4> nodes;  ///< round from the lower left
    double x0, y0;             ///< lower left corner in the slab's coordinates
    double a, b;               ///< half sides
};

struct JointNode {
    int a, b;       ///< nodes of the slab on the left of (or below) the joint and of the other
    double along;   ///< coordinate along the joint
    double length;  ///< the node's part of the joint
};

struct JointLine {
    bool vertical;  ///< runs along y
    std::vector<JointNode> nodes;
};

struct Mesh {
    std::vector<int> first;  ///< first node of each slab, and at the end the number of nodes
    std::vector<Node> nodes;
    std::vector<Element> elements;
    std::vector<JointLine> joints;
    /// Offsets of the slabs in the plan, and the group of slabs, linked by joints, that
    /// each belongs to. Groups have no place relative to each other.
    std::vector<std::array<double, 2>> origin;
    std::vector<int> group;

    int count() const { return static_cast<int>(nodes.size()); }
};

/// Lays the slabs out: along a joint two slabs touch, their first nodes side by side;
/// the joint's width is not part of the plan.
/// @pre check(problem) found no fault.
Mesh makeMesh(const Problem& problem);

/// The first fault of a problem, if there is one: counts, signs, nodes and slabs that
/// do not exist, joints that do not fit, loads beside their slab.
std::optional<Fault> check(const Problem& problem);

/// Memory that the solution takes [bytes], within about 20 %: the dense matrices of a solid or
/// layered foundation, or the sparse factor.
double bytesNeeded(const Problem& problem);

}  // namespace plate
