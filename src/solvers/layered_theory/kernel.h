// The layered structure for one value of the transform parameter m.
//
// Transforms (all tension positive here; x = m z, ' = d/dx, G = E / (2 (1 + nu))):
//   w = INT W J0(m r) dm,  u = INT U J1(m r) dm,  szz = INT S J0(m r) dm,  srz = INT T J1(m r) dm.
// With W, U standing for 2 G m times the displacement transforms, Hooke's law and equilibrium are
//   W' = (1 - 2 nu)/(1 - nu) S - nu/(1 - nu) U      U' = 2 T + W
//   S' = -T                                         T' = nu/(1 - nu) S + U/(1 - nu)
// (Sneddon 1951, Fourier Transforms, ch. 10; state form as in Bahar 1972, J. Eng. Mech. Div. 98, EM4).
// Nothing divides by 1 - 2 nu, so nu = 0.5 is a value like any other.
//
// The load is S = -1, T = 0 at the surface. In the surface layer the unknowns are what the layers below
// add to the half-space solution of its own material (half_space.h has that in closed form); what is left
// decays at least like exp(-m (2 h - z)), h being the thickness of that layer.
#pragma once

#include <Eigen/Dense>
#include <array>
#include <vector>

#include "solvers/layered_theory/layered_theory.h"

namespace layered_theory {

/// W, U, S, T at one depth, in this order.
using State = Eigen::Vector4d;

/// A depth found in the structure: layer number and distance below the top of that layer.
struct Place {
    int layer;
    double below;
};

class Kernel {
  public:
    /// @pre structure has been checked
    explicit Kernel(const Structure& structure);

    /// Solves for parameter m > 0.
    void solve(double m);

    /// Transforms at a place for the m last solved; in the surface layer without the half-space part.
    State at(Place place) const;

  private:
    using Basis = Eigen::Matrix4d;  // a column per unknown
    using Tableau = Eigen::Matrix<double, 6, 9, Eigen::RowMajor>;

    struct LayerData {
        double thickness, shearModulus;
        bool last, bonded;               // bonded: to the next layer
        State decaying, decayingLinear;  // (decayingLinear + x decaying) exp(-x) solves the equations
        Eigen::Matrix4d M, N, MN;        // the equations y' = M y, N = M M - I
    };

    bool isThin(const LayerData& layer) const { return !layer.last && m_ * layer.thickness <= 1; }
    Basis basis(const LayerData& layer, double below) const;
    void fillInterface(int upper, Tableau& t) const;

    std::vector<LayerData> layers_;
    std::vector<Eigen::Vector4d> unknowns_;                                 // one column a layer
    std::vector<Eigen::Matrix<double, 4, 9, Eigen::RowMajor>> eliminated_;  // pivot rows, for the way back
    double m_ = 0;
};

}  // namespace layered_theory
