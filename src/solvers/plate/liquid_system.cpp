// Liquid foundation (Winkler, 1867): each point of a node's area in contact presses back with the node's
// modulus k times the deflection there. With Q_i the integral of N N^T over the area A of node i, the
// nodal loads are k Q_i d - k A gap C_i and sum up to the reaction R = k A (C_i^T d - gap).
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
        : s_(structure),
          mesh_(mesh),
          modulus_(modulus),
          matrix_(withBars(structure)),
          bed_(matrix_),
          base_(values()),
          rigid_(structure.rigidMotions()) {
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
        if (!factor) return lost();
        const Vector rhs = rightHandSide(start, state, f);
        const auto full = matrix_.selfadjointView<Eigen::Lower>();
        Vector d = factor->solve(rhs);
        d += factor->solve(rhs - full * d);
        balance(f + startLoads(start, state), d);
        Response r = forces(start, state, d);
        const double scale = std::max(f.norm(), rhs.norm());
        r.residual = scale > 0 ? (rhs - full * d).norm() / scale : 0;
        return r;
    }

  private:
    static Response lost() {
        Response r;
        r.supported = false;
        return r;
    }

    using Positions = std::array<int, 144>;

    /// The structure's matrix with room for the loose bars.
    static Sparse withBars(const Structure& s) {
        std::vector<Eigen::Triplet<double>> bars;
        for (const LooseBar& bar : s.looseBars())
            bars.emplace_back(std::max(bar.wA, bar.wB), std::min(bar.wA, bar.wB), 0);
        Sparse room(s.unknowns(), s.unknowns());
        room.setFromTriplets(bars.begin(), bars.end());
        Sparse sum = s.stiffness() + room;
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

    bool touches(const State& state, Eigen::Index node) const {
        return state.contact[static_cast<std::size_t>(node)] != 0;
    }
    double modulus(Eigen::Index node) const { return FSAF_ * modulus_(node); }
    /// Spring of a node's area.
    double spring(Eigen::Index node) const { return modulus(node) * s_.nodeAreas()(node); }

    void assemble(const State& state) {
        if (assembledFSAF_ == FSAF_ && assembled_ == state) return;
        assembled_ = state;
        assembledFSAF_ = FSAF_;
        double* bed = bed_.valuePtr();
        std::fill(bed, bed + bed_.nonZeros(), 0.);
        for (std::size_t e = 0; e < mesh_.elements.size(); ++e)
            for (int c = 0; c < 4; ++c) {
                const Element& element = mesh_.elements[e];
                const int node = element.nodes[static_cast<std::size_t>(c)];
                if (!touches(state, node)) continue;
                const Matrix12 q = products_(c, element.a, element.b) * modulus(node);
                for (std::size_t i = 0; i < 144; ++i)
                    if (positions_[e][i] >= 0) bed[positions_[e][i]] += q.data()[i];
            }
        values() = base_ + Eigen::Map<Vector>(bed, bed_.nonZeros());
        double* value = matrix_.valuePtr();
        for (std::size_t b = 0; b < state.bar.size(); ++b) {
            if (!state.bar[b]) continue;
            const LooseBar& bar = s_.looseBars()[b];
            value[position(bar.wA, bar.wA)] += bar.stiffness;
            value[position(bar.wB, bar.wB)] += bar.stiffness;
            value[position(std::max(bar.wA, bar.wB), std::min(bar.wA, bar.wB))] -= bar.stiffness;
        }
    }

    /// Downward nodal loads that stand for gaps in contact and for lost precompression.
    Vector startLoads(const Start& start, const State& state) const {
        Vector forces(modulus_.size());
        for (Eigen::Index n = 0; n < forces.size(); ++n)
            forces(n) = touches(state, n) ? spring(n) * start.gap(n) : start.reaction(n);
        return s_.areas() * forces + unevenness(start, state);
    }

    /// Pressure and gap of the data set before are not even over a node's area but follow its
    /// displacements d: (Q_i - A C_i C_i^T) d times k beside the mean. It counts where a node has
    /// closed (against) or opened (for) since.
    Vector unevenness(const Start& start, const State& state) const {
        Vector sum = Vector::Zero(s_.unknowns());
        if (start.displacement.size() == 0) return sum;
        Vector k(modulus_.size());
        for (Eigen::Index n = 0; n < k.size(); ++n)
            k(n) = modulus(n) * ((start.gap(n) == 0) - touches(state, n));
        for (const Element& e : mesh_.elements) {
            const auto at = s_.unknowns(e);
            Vector12 d = Vector12::Zero(), load = Vector12::Zero();
            for (std::size_t i = 0; i < 12; ++i)
                if (at[i] >= 0) d(static_cast<Eigen::Index>(i)) = start.displacement(at[i]);
            for (int c = 0; c < 4; ++c)
                if (const double now = k(e.nodes[static_cast<std::size_t>(c)]); now != 0)
                    load += now * (products_(c, e.a, e.b) * d);
            for (std::size_t i = 0; i < 12; ++i)
                if (at[i] >= 0) sum(at[i]) += load(static_cast<Eigen::Index>(i));
        }
        const Vector mean = s_.areas().transpose() * start.displacement;
        return sum - s_.areas() * Vector(k.cwiseProduct(s_.nodeAreas()).cwiseProduct(mean));
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

    /// Moves the slabs as rigid bodies until the foundation carries the loads. In exact numbers there is
    /// nothing to move; rounding in the slabs' much larger stiffness leaves a rest.
    void balance(const Vector& load, Vector& d) const {
        const auto bed = bed_.selfadjointView<Eigen::Lower>();
        const Matrix carried = bed * rigid_;
        d += rigid_ * (rigid_.transpose() * carried).ldlt().solve(rigid_.transpose() * (load - bed * d));
    }

    Response forces(const Start& start, const State& state, const Vector& d) const {
        Response r;
        r.d = d;
        const Vector mean = s_.areas().transpose() * d;
        r.ground = bed_.selfadjointView<Eigen::Lower>() * d - startLoads(start, state);
        r.reaction = r.opening = Vector::Zero(mean.size());
        for (Eigen::Index n = 0; n < mean.size(); ++n)
            if (touches(state, n))
                r.reaction(n) = start.reaction(n) + spring(n) * (mean(n) - start.gap(n));
            else
                r.opening(n) = start.gap(n) - mean(n) - (spring(n) > 0 ? start.reaction(n) / spring(n) : 0);
        r.slip = r.barForce = Vector::Zero(static_cast<Eigen::Index>(state.bar.size()));
        for (std::size_t b = 0; b < state.bar.size(); ++b) {
            const LooseBar& bar = s_.looseBars()[b];
            const auto i = static_cast<Eigen::Index>(b);
            r.slip(i) = start.slip(i) + d(bar.wA) - d(bar.wB);
            if (state.bar[b]) r.barForce(i) = bar.stiffness * (r.slip(i) - state.bar[b] * bar.play);
        }
        return r;
    }

    const Structure& s_;
    const Mesh& mesh_;
    QuarterProducts products_;
    Vector modulus_;
    Sparse matrix_, bed_;  // all, and the foundation's part in the same pattern
    Vector base_;          // values of the slabs and joints
    Matrix rigid_;
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
