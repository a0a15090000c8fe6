// Concrete slabs on a foundation: the solver's front door. problem.h says what goes in.
//
//     if (const auto fault = plate::check(problem)) ...        // bad data, with a sentence
//     const plate::Solution solution = plate::solve(problem);
//
// Pure functions, no files, no globals; the same problem gives the same bits.
//
// Theory: thin plates (Kirchhoff) in rectangular elements with 12 degrees of freedom
// (element.h), one or two layers (section.h); liquid, solid or layered foundation
// (liquid_system.cpp, condensed_system.cpp, flexibility.h); joints as springs or dowels
// (dowel.h); contact by an active set (contact.h).
//
// Signs, besides those of problem.h: curvatures and moments are positive when sagging,
// that is with tension at the bottom. Stresses are those at the bottom of each layer and
// negative in tension. Reactions are positive in compression.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "solvers/plate/contact.h"
#include "solvers/plate/flexibility.h"
#include "solvers/plate/mesh.h"
#include "solvers/plate/problem.h"

namespace plate {

/// Carried by one layer at a node; mean of the elements that meet there.
struct LayerResult {
    double mx, my, mxy;  ///< moments per length [force]; of bonded layers about the common neutral axis
    double sx, sy, sxy;  ///< stresses at the layer's bottom [force/length^2]
    double s1, s2;       ///< principal stresses, s1 >= s2
};

struct NodeResult {
    double w, rx, ry;
    double reaction;  ///< force on the node's area that these loads add
    bool contact;
    std::vector<LayerResult> layers;
};

/// What a joint hands over at a node pair, from side a (left or below) to side b.
struct JointResult {
    int joint, nodeA, nodeB;  ///< from 1
    double shear;             ///< force downward on b
    double moment;            ///< right-hand about the joint's axis, on b [force length]
    double bars;              ///< dowel bars that the pair has
};

struct Equilibrium {
    double load;         ///< sum of the loads, downward, from the input alone
    double reaction;     ///< sum of the reactions that they add
    double forceError;   ///< difference over the sum of the reactions' magnitudes or the load
    double momentError;  ///< the same for the work in each rigid motion that symmetry leaves free,
                         ///< per slabs that joints link, over the motion's largest deflection
};

struct Case {
    std::size_t period, group;  ///< from 0
    std::vector<NodeResult> nodes;
    std::vector<JointResult> joints;
    ContactReport contact;
    Equilibrium equilibrium;
    double residual;        ///< relative, see Response
    bool residualPassed;    ///< residual > DEL
    bool deflectionPassed;  ///< |w| at NNCK > FMAX
    ContactState state;     ///< for a data set that continues
};

struct Solution {
    std::optional<Fault> fault;  ///< what stopped the run; `cases` is empty then
    std::vector<Case> cases;     ///< period by period, its groups in order
};

/// Solves all periods and groups. A problem that check() refuses, and one that a load
/// would lift or tip because too little foundation carries it, comes back as a fault.
///
/// The matrices are made once; periods of equal FSAF share their factors, load groups
/// share the first factor, and contact cycles only renew the numbers (liquid foundation)
/// or a dense factor of the nodes in contact.
///
/// Accuracy of the equations: residual about 1e-13, force balance below 1e-9 of the load.
/// Accuracy of the elements: errors fall with the square of their size; beside a loaded
/// area use elements about as large as the area.
Solution solve(const Problem& problem);

/// What the layers below the first change in the surface deflection of a foundation;
/// without `smooth` for a solid one. @pre kind is Solid or Layer
SurfaceKernel surfaceKernel(const Foundation& foundation);

}  // namespace plate
