// The slabs, joints and loads as matrices and vectors over the free degrees of freedom.
//
// Unknowns are w, rx, ry of every node; rotations that an axis of symmetry holds are
// left out. With d the unknowns, K the stiffness of slabs and joints, and C^T d the mean
// deflections of the nodes' areas, a pressure that is spread evenly over each node's area
// and sums up to forces R there acts on the slabs by the nodal loads -C R. The slabs'
// weight and the gaps act through the same C. So a pressure that balances the load at
// every point leaves no bending, on any grid.
#pragma once

#include <Eigen/Dense>
#include <Eigen/SparseCore>
#include <vector>

#include "solvers/plate/element.h"
#include "solvers/plate/mesh.h"
#include "solvers/plate/section.h"

namespace plate {

using Matrix = Eigen::MatrixXd;
using Vector = Eigen::VectorXd;
using Sparse = Eigen::SparseMatrix<double>;

/// Dowel bars of a node pair that have play: they carry once the faces have moved by `play`.
struct LooseBar {
    int pair;          ///< number of the node pair through all joints
    int wA, wB;        ///< unknowns
    double stiffness;  ///< of all bars of the pair [force/length]
    double play;       ///< GDC
};

class Structure {
  public:
    Structure(const Problem& problem, const Mesh& mesh);

    int unknowns() const { return unknowns_; }
    /// Unknown of component 0 w, 1 rx, 2 ry of a node (from 0), -1 where it is held.
    int unknown(int node, int component) const {
        return index_[static_cast<std::size_t>(3 * node + component)];
    }
    std::array<int, 12> unknowns(const Element& element) const;
    /// All three components of all nodes, 0 where held; and back.
    Vector expand(const Vector& d) const;
    Vector restrict(const std::vector<double>& all) const;

    const Sparse& stiffness() const { return K_; }  ///< lower triangle, diagonal complete
    const Sparse& areas() const { return C_; }      ///< unknowns x nodes
    const Vector& nodeAreas() const { return nodeAreas_; }
    const Section& section(int node) const { return sections_[static_cast<std::size_t>(node)]; }
    const std::vector<LooseBar>& looseBars() const { return bars_; }

    /// Nodal loads of a load group: its areas, and the forces, moments, weight and
    /// temperature that every group has.
    Vector loads(std::size_t group) const;
    /// What all loads of a group sum up to, from the input alone: downward force.
    double totalForce(std::size_t group) const;

    /// Motions that bend nothing, a column each: for every group of slabs w = 1, and w = x and
    /// w = y of the plan where no axis of symmetry forbids it.
    Matrix rigidMotions() const;

    /// Forces that the springs and tight bars of the joints hand over from side a to side b,
    /// for each node pair: column 0 shear (downward on b), column 1 moment about the joint's axis.
    Matrix jointForces(const Vector& d) const;
    /// Bars at each node pair.
    const std::vector<double>& bars() const { return barCounts_; }

    /// Free curvature by temperature of a section this thick.
    double thermalCurvature(double thickness) const { return problem_.CT * problem_.TEMP / thickness; }

  private:
    void numberUnknowns();
    void makeSections();
    void assembleElements(std::vector<Eigen::Triplet<double>>& K);
    void assembleJoints(std::vector<Eigen::Triplet<double>>& K);
    void addAreaLoad(const LoadedArea& area, Vector& f) const;
    Section sectionAt(const Element& element, double xi, double eta) const;

    const Problem& problem_;
    const Mesh& mesh_;
    int unknowns_ = 0;
    std::vector<int> index_;
    std::vector<std::array<double, 2>> thickness_;
    std::vector<Section> sections_;
    Sparse K_, C_;
    Vector nodeAreas_, thermal_;
    std::vector<LooseBar> bars_;
    std::vector<double> barCounts_, barStiffness_;  // per node pair, tight bars only in the latter
};

}  // namespace plate
