// Slabs on their foundation for a given state of contact: the linear systems under the
// contact cycles.
//
// Two kinds. On a liquid foundation every node's area has springs of its own, the matrix
// is sparse, and a new state is a new numeric factorisation in the old pattern. On a
// solid or layered foundation all areas act on each other; there the slabs are condensed
// to the nodes' areas once, and a state, a season or a load case costs only a dense
// factorisation of that size or less.
#pragma once

#include <Eigen/SparseCholesky>
#include <memory>

#include "solvers/plate/structure.h"

namespace plate {

/// Where a load case starts. Forces and slips count from the data set before, if any; the
/// displacements of a Response are what its own loads add.
struct Start {
    Vector gap;             ///< per node
    Vector reaction;        ///< per node: precompression
    Vector slip;            ///< per loose bar: w of side a less w of side b
    Vector barForce;        ///< per loose bar
    Vector displacement{};  ///< unknowns that the data set before left, empty for none
};

struct State {
    std::vector<char> contact;     ///< per node
    std::vector<signed char> bar;  ///< per loose bar: 0 within its play, else the sign of its slip
    bool operator==(const State&) const = default;
};

struct Response {
    bool supported = true;  ///< false: something can move freely; the rest is void
    Vector d{};             ///< unknowns of Structure
    Vector reaction{};      ///< per node, compression positive, all of it
    Vector opening{};  ///< per node out of contact: distance to the foundation, negative when inside; else 0
    Vector ground{};   ///< nodal loads by which the foundation answers these loads alone
    Vector slip{}, barForce{};  ///< per loose bar, all of it
    double residual = 0;        ///< norm of the unbalanced nodal loads over that of the loads
};

class System {
  public:
    virtual ~System() = default;
    /// Multiplies the foundation's stiffness. Forgets factorisations when it changes.
    virtual void season(double FSAF) = 0;
    virtual Response solve(const Start& start, const State& state, const Vector& f) = 0;
};

/// @param modulus of subgrade reaction at each node, for FSAF = 1
std::unique_ptr<System> liquidSystem(const Structure& structure, const Mesh& mesh, const Vector& modulus);
/// @param flexibility of the foundation, nodes x nodes, for FSAF = 1
std::unique_ptr<System> condensedSystem(const Structure& structure, const Mesh& mesh, Matrix flexibility);

/// Keeps the factor of the first state seen, with which every load case begins, and of the last one.
template <class Factor>
class FactorCache {
  public:
    /// The factor of `state`; make(factor) fills a new one and returns whether it succeeded.
    template <class Make>
    Factor* find(const State& state, Make make) {
        for (Slot& slot : slots_)
            if (slot.used && slot.state == state) return slot.good ? &slot.factor : nullptr;
        Slot& slot = slots_[slots_[0].used ? 1 : 0];
        slot.used = true;
        slot.state = state;
        slot.good = make(slot.factor);
        return slot.good ? &slot.factor : nullptr;
    }
    void clear() { slots_[0].used = slots_[1].used = false; }

  private:
    struct Slot {
        bool used = false, good = false;
        State state;
        Factor factor;
    };
    std::array<Slot, 2> slots_;
};

using SparseFactor = Eigen::SimplicialLLT<Sparse, Eigen::Lower>;

/// Whether a factorisation went through and every pivot kept more than 1e-13 of its
/// diagonal entry. A slab that nothing supports loses all but rounding, some 1e-16.
bool sound(const SparseFactor& factor, const Sparse& matrix);

}  // namespace plate
