// Liquid foundation (Winkler, 1867): the pressure at each point of a node's area in contact is the
// modulus there times the deflection, so that the area's stiffness is the integral of N N^T.
#include <algorithm>

#include "solvers/plate/system.h"

namespace plate {

bool sound(const SparseFactor& factor, const Sparse& matrix) {
    if (factor.info() != Eigen::Success) return false;
    const Vector pivot = factor.matrixL().nestedExpression().diagonal();
    const Vector diagonal = factor.permutationP() * Vector(matrix.diagonal());
    return (pivot.array().square() > 1e-13 * diagonal.array()).all();
}

namespace {

class LiquidSystem : public System {
  public:
    LiquidSystem(const Structure& structure, const Mesh& mesh, const Vector& modulus)
        : s_(structure), mesh_(mesh), modulus_(modulus), matrix_(withBars(structure)), base_(values()) {
        for (const Element& e : mesh.elements) positions_.push_back(positionsOf(e));
    }

    void season(double FSAF) override {
        if (FSAF == FSAF_) return;
        FSAF_ = FSAF;
        cache_.clear();
    }

    Response solve(const Start& start, const State& state, const Vector& f) override {
        assemble(state);
        SparseFactor* factor = cache_.find(state, [&](SparseFactor& fresh) {
            if (fresh.rows() == 0) fresh.analyzePattern(matrix_);
            fresh.factorize(matrix_);
            return sound(fresh, matrix_);
        });
        if (!factor) return {.supported = false};
        const Vector rhs = rightHandSide(start, state, f);
        const auto full = matrix_.selfadjointView<Eigen::Lower>();
        Vector d = factor->solve(rhs);
        d += factor->solve(rhs - full * d);
        Response r = forces(start, state, d);
        const double scale = std::max(f.norm(), rhs.norm());
        r.residual = scale > 0 ? (rhs - full * d).norm() / scale : 0;
        return r;
    }

  private:
    using Positions = std::array<int, 144>;

    /// The structure's matrix with room for the loose bars.
    static Sparse withBars(const Structure& s) {
        std::vector<Eigen::Triplet<double>> room;
        for (const LooseBar& bar : s.looseBars()) {
            const auto [low, high] = std::minmax(bar.wA, bar.wB);
            room.emplace_back(high, low, 0);
        }
        Sparse extra(s.unknowns(), s.unknowns());
        extra.setFromTriplets(room.begin(), room.end());
        Sparse sum = s.stiffness() + extra;
        sum.makeCompressed();
        return sum;
    }

    Eigen::Map<Vector> values() { return {matrix_.valuePtr(), matrix_.nonZeros()}; }

    int position(int row, int column) const {
        const int* begin = matrix_.innerIndexPtr() + matrix_.outerIndexPtr()[column];
        const int* end = matrix_.innerIndexPtr() + matrix_.outerIndexPtr()[column + 1];
        return static_cast<int>(std::lower_bound(begin, end, row) - matrix_.innerIndexPtr());
    }

    /// Where an element's entries stand among the values, -1 for those above the diagonal.
    Positions positionsOf(const Element& e) const {
        const auto at = s_.unknowns(e);
        Positions p;
        for (std::size_t i = 0; i < 12; ++i)
            for (std::size_t j = 0; j < 12; ++j)
                p[12 * i + j] = at[j] >= 0 && at[i] >= at[j] ? position(at[i], at[j]) : -1;
        return p;
    }

    double stiffness(Eigen::Index node) const { return FSAF_ * modulus_(node); }

    void assemble(const State& state) {
        if (assembledFSAF_ == FSAF_ && assembled_ == state) return;
        assembled_ = state;
        assembledFSAF_ = FSAF_;
        values() = base_;
        double* value = matrix_.valuePtr();
        for (std::size_t e = 0; e < mesh_.elements.size(); ++e)
            for (int c = 0; c < 4; ++c) {
                const Element& element = mesh_.elements[e];
                const int node = element.nodes[static_cast<std::size_t>(c)];
                if (!state.contact[static_cast<std::size_t>(node)]) continue;
                const Matrix12 q = s_.quarters().product(c, element.a, element.b) * stiffness(node);
                for (std::size_t i = 0; i < 144; ++i)
                    if (positions_[e][i] >= 0) value[positions_[e][i]] += q.data()[i];
            }
        for (std::size_t b = 0; b < state.bar.size(); ++b) {
            if (!state.bar[b]) continue;
            const LooseBar& bar = s_.looseBars()[b];
            const auto [low, high] = std::minmax(bar.wA, bar.wB);
            value[position(low, low)] += bar.stiffness;
            value[position(high, high)] += bar.stiffness;
            value[position(high, low)] -= bar.stiffness;
        }
    }

    /// Downward nodal loads that stand for gaps in contact and for lost precompression.
    Vector startLoads(const Start& start, const State& state) const {
        Vector forces(mesh_.count());
        for (Eigen::Index n = 0; n < forces.size(); ++n)
            forces(n) = state.contact[static_cast<std::size_t>(n)]
                            ? stiffness(n) * s_.nodeAreas()(n) * start.gap(n)
                            : start.reaction(n);
        return s_.areas() * forces;
    }

    Vector rightHandSide(const Start& start, const State& state, const Vector& f) const {
        Vector rhs = f + startLoads(start, state);
        for (std::size_t b = 0; b < state.bar.size(); ++b) {
            const LooseBar& bar = s_.looseBars()[b];
            const auto i = static_cast<Eigen::Index>(b);
            const double before =
                state.bar[b] ? bar.stiffness * (start.slip(i) - state.bar[b] * bar.play) : 0;
            rhs(bar.wA) -= before - start.barForce(i);
            rhs(bar.wB) += before - start.barForce(i);
        }
        return rhs;
    }

    Response forces(const Start& start, const State& state, const Vector& d) const {
        Response r;
        r.d = d;
        const Vector mean = s_.areas().transpose() * d;
        r.reaction = r.opening = Vector::Zero(mesh_.count());
        for (Eigen::Index n = 0; n < mean.size(); ++n) {
            const double k = stiffness(n) * s_.nodeAreas()(n);
            if (state.contact[static_cast<std::size_t>(n)])
                r.reaction(n) = start.reaction(n) + k * (mean(n) - start.gap(n));
            else
                r.opening(n) = start.gap(n) - mean(n) - (k > 0 ? start.reaction(n) / k : 0);
        }
        r.ground = (matrix_.selfadjointView<Eigen::Lower>() * d).eval() -
                   (s_.stiffness().selfadjointView<Eigen::Lower>() * d).eval() - startLoads(start, state);
        r.slip = r.barForce = Vector::Zero(static_cast<Eigen::Index>(state.bar.size()));
        for (std::size_t b = 0; b < state.bar.size(); ++b) {
            const LooseBar& bar = s_.looseBars()[b];
            const auto i = static_cast<Eigen::Index>(b);
            r.slip(i) = start.slip(i) + d(bar.wA) - d(bar.wB);
            if (!state.bar[b]) continue;
            r.barForce(i) = bar.stiffness * (r.slip(i) - state.bar[b] * bar.play);
            const double sprung = bar.stiffness * (d(bar.wA) - d(bar.wB));
            r.ground(bar.wA) -= sprung;
            r.ground(bar.wB) += sprung;
        }
        return r;
    }

    const Structure& s_;
    const Mesh& mesh_;
    Vector modulus_;
    Sparse matrix_;
    Vector base_;
    std::vector<Positions> positions_;
    double FSAF_ = 1, assembledFSAF_ = 0;
    State assembled_;
    FactorCache<SparseFactor> cache_;
};

}  // namespace

std::unique_ptr<System> liquidSystem(const Structure& structure, const Mesh& mesh, const Vector& modulus) {
    return std::make_unique<LiquidSystem>(structure, mesh, modulus);
}

}  // namespace plate
