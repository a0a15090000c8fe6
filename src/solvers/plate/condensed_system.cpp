// Solid and layered foundations, condensed to the forces between slabs and ground.
//
// Unknown are the forces q that the nodes' areas (and the loose bars) add, and the forces u
// that undo the pins. The slabs alone could move freely; three springs of stiffness s under
// each, the pins, make their matrix K' = K + E s E^T regular, and u = s E^T d takes them
// away again. With X = [C, bars, -E] and G = X^T K'^-1 X:
//     d = K'^-1 (f - X [q; u])
//     (G + F) q + G_qE u = X_q^T K'^-1 f - g        for what is in contact
//     G_Eq q + (G_EE - 1/s) u = X_E^T K'^-1 f
// F is the ground's flexibility over FSAF, and 1/stiffness on the diagonal for a bar. G is
// found once for all states, seasons and loads. What is not in contact has a known q.
#include <algorithm>

#include "solvers/plate/system.h"

namespace plate {
namespace {

class CondensedSystem : public System {
  public:
    CondensedSystem(const Structure& structure, const Mesh& mesh, Matrix ground)
        : s_(structure),
          nodes_(mesh.count()),
          bars_(static_cast<Eigen::Index>(structure.looseBars().size())),
          F_(std::move(ground)) {
        pinned_ = structure.stiffness();
        rigid_ = structure.rigidMotions();
        for (std::size_t s = 0; s + 1 < mesh.first.size(); ++s) pinSlab(mesh, s);
        makeColumns();
        factor_.compute(pinned_);
        condense();
    }

    void season(double FSAF) override {
        if (FSAF == FSAF_) return;
        FSAF_ = FSAF;
        cache_.clear();
    }

    Response solve(const Start& start, const State& state, const Vector& f) override {
        Factor* factor = cache_.find(state, [&](Factor& fresh) { return makeFactor(state, fresh); });
        if (!factor) return {.supported = false};
        // Forces outside the contact are known: they fall to 0 from where they started.
        Vector q = Vector::Zero(X_.cols());
        q.head(nodes_) = -start.reaction;
        q.segment(nodes_, bars_) = -start.barForce;
        for (int i : factor->active) q(i) = 0;
        const Vector load = f - X_ * q;
        Vector distance(X_.cols() - pins_);  // what each closes before it carries more
        distance.head(nodes_) = start.gap + F_ * q.head(nodes_) / FSAF_;
        for (Eigen::Index b = 0; b < bars_; ++b) {
            const LooseBar& bar = s_.looseBars()[static_cast<std::size_t>(b)];
            distance(nodes_ + b) = state.bar[static_cast<std::size_t>(b)] * bar.play - start.slip(b) +
                                   start.barForce(b) / bar.stiffness;
        }
        Vector d = Vector::Zero(s_.unknowns());
        for (int pass = 0; pass < 2; ++pass) improve(*factor, load, distance, d, q);
        balance(*factor, f, d, q);
        return forces(start, state, f, d, q);
    }

  private:
    struct Factor {
        std::vector<int> active;  // columns of X in contact
        Eigen::LLT<Matrix> links, pins;
        Matrix coupling, solved;  // G_qE and (G + F)^-1 G_qE
        Matrix lever, shift;      // X_q^T rigid and (G + F)^-1 of it
    };

    void pinSlab(const Mesh& mesh, std::size_t slab) {
        const int first = mesh.first[slab], last = mesh.first[slab + 1] - 1;
        int row = 1;  // nodes of a row along y
        while (mesh.nodes[static_cast<std::size_t>(first + row)].x ==
               mesh.nodes[static_cast<std::size_t>(first)].x)
            ++row;
        for (int node : {first, first + row - 1, last}) pinAt_.push_back(s_.unknown(node, 0));
        for (std::size_t p = pinAt_.size() - 3; p < pinAt_.size(); ++p) {
            double& diagonal = pinned_.coeffRef(pinAt_[p], pinAt_[p]);
            pinStiffness_.push_back(diagonal);
            diagonal *= 2;
        }
        pins_ += 3;
    }

    void makeColumns() {
        std::vector<Eigen::Triplet<double>> entries;
        for (int c = 0; c < s_.areas().outerSize(); ++c)
            for (Sparse::InnerIterator it(s_.areas(), c); it; ++it)
                entries.emplace_back(static_cast<int>(it.row()), c, it.value());
        int column = static_cast<int>(nodes_);
        for (const LooseBar& bar : s_.looseBars()) {
            entries.emplace_back(bar.wA, column, 1);
            entries.emplace_back(bar.wB, column++, -1);
        }
        for (int pin : pinAt_) entries.emplace_back(pin, column++, -1);
        X_.resize(s_.unknowns(), column);
        X_.setFromTriplets(entries.begin(), entries.end());
    }

    /// G = X^T K'^-1 X. The triangular solves run over `block` columns at a time, side by side in
    /// memory, so that each entry of the sparse factor is read once for all of them.
    void condense() {
        constexpr Eigen::Index block = 16;
        using Block = Eigen::Matrix<double, Eigen::Dynamic, block, Eigen::RowMajor>;
        const Sparse& L = factor_.matrixL().nestedExpression();
        const int *outer = L.outerIndexPtr(), *inner = L.innerIndexPtr();
        const double* value = L.valuePtr();
        const Sparse rows = factor_.permutationP() * X_;
        const auto n = L.cols();
        Block y(n, block);
        G_.resize(X_.cols(), X_.cols());
        for (Eigen::Index from = 0; from < X_.cols(); from += block) {
            const Eigen::Index width = std::min(block, X_.cols() - from);
            y.setZero();
            Eigen::Index start = n;
            for (Eigen::Index c = 0; c < width; ++c)
                for (Sparse::InnerIterator it(rows, from + c); it; ++it) {
                    y(it.row(), c) = it.value();
                    start = std::min(start, it.row());
                }
            for (Eigen::Index j = start; j < n; ++j) {
                y.row(j) /= value[outer[j]];
                for (int k = outer[j] + 1; k < outer[j + 1]; ++k) y.row(inner[k]) -= value[k] * y.row(j);
            }
            for (Eigen::Index j = n; j-- > 0;) {
                for (int k = outer[j] + 1; k < outer[j + 1]; ++k) y.row(j) -= value[k] * y.row(inner[k]);
                y.row(j) /= value[outer[j]];
            }
            G_.middleCols(from, width) = (rows.transpose() * y).leftCols(width);
        }
    }

    bool makeFactor(const State& state, Factor& factor) const {
        factor.active.clear();
        for (int i = 0; i < nodes_; ++i)
            if (state.contact[static_cast<std::size_t>(i)]) factor.active.push_back(i);
        for (int b = 0; b < bars_; ++b)
            if (state.bar[static_cast<std::size_t>(b)]) factor.active.push_back(static_cast<int>(nodes_) + b);
        const auto m = static_cast<Eigen::Index>(factor.active.size());
        Matrix links(m, m);
        for (Eigen::Index j = 0; j < m; ++j)
            for (Eigen::Index i = j; i < m; ++i) {
                const int row = factor.active[static_cast<std::size_t>(i)],
                          column = factor.active[static_cast<std::size_t>(j)];
                links(i, j) = G_(row, column) + ground(row, column);
            }
        factor.links.compute(links);
        if (factor.links.info() != Eigen::Success) return false;
        factor.coupling = G_(factor.active, Eigen::lastN(pins_));
        factor.solved = factor.links.solve(factor.coupling);
        factor.lever = (X_.transpose() * rigid_)(factor.active, Eigen::all);
        factor.shift = factor.links.solve(factor.lever);
        const Matrix carried = factor.coupling.transpose() * factor.solved;
        Matrix pins = carried - G_.bottomRightCorner(pins_, pins_);
        for (Eigen::Index p = 0; p < pins_; ++p) pins(p, p) += 1 / pinStiffness_[static_cast<std::size_t>(p)];
        factor.pins.compute(pins);
        // Where nothing supports a slab, the difference is no more than rounding.
        return factor.pins.info() == Eigen::Success &&
               (Matrix(factor.pins.matrixL()).diagonal().array().square() >
                1e-10 * carried.diagonal().array())
                   .all();
    }

    double ground(int i, int j) const {
        if (i < nodes_) return F_(i, j) / FSAF_;  // i >= j: a bar is never the column of a node's row
        return i == j ? 1 / s_.looseBars()[static_cast<std::size_t>(i - nodes_)].stiffness : 0;
    }

    /// Adds to d and q what the unbalanced rest of all equations asks for.
    void improve(const Factor& factor, const Vector& load, const Vector& distance, Vector& d,
                 Vector& q) const {
        const auto& active = factor.active;
        const auto m = static_cast<Eigen::Index>(active.size());
        Vector counted = Vector::Zero(q.size());  // `load` has the known forces outside the contact
        for (int i : active) counted(i) = q(i);
        counted.tail(pins_) = q.tail(pins_);
        const Vector rest = load - X_ * counted - pinned_.selfadjointView<Eigen::Lower>() * d;
        const Vector step = factor_.solve(rest);
        const Vector closed = X_.transpose() * (d + step);
        Vector ground = Vector::Zero(X_.cols() - pins_);
        ground.head(nodes_) = F_ * counted.head(nodes_) / FSAF_;
        for (Eigen::Index b = 0; b < bars_; ++b)
            ground(nodes_ + b) = counted(nodes_ + b) / s_.looseBars()[static_cast<std::size_t>(b)].stiffness;
        Vector links(m);
        for (Eigen::Index i = 0; i < m; ++i) {
            const int a = active[static_cast<std::size_t>(i)];
            links(i) = closed(a) - ground(a) - distance(a);
        }
        Vector pins = closed.tail(pins_);
        for (Eigen::Index p = 0; p < pins_; ++p)
            pins(p) += q(q.size() - pins_ + p) / pinStiffness_[static_cast<std::size_t>(p)];
        const Vector u = factor.pins.solve(factor.solved.transpose() * links - pins);
        const Vector change = factor.links.solve(links - factor.coupling * u);
        Vector all = Vector::Zero(q.size());
        for (Eigen::Index i = 0; i < m; ++i) all(active[static_cast<std::size_t>(i)]) = change(i);
        all.tail(pins_) = u;
        q += all;
        d += step - factor_.solve(X_ * all);
    }

    /// Moves the slabs as rigid bodies until the ground carries the loads: in exact numbers by nothing,
    /// with rounding by what very stiff slabs lose.
    void balance(const Factor& factor, const Vector& f, Vector& d, Vector& q) const {
        const Vector missing =
            rigid_.transpose() * (f - X_.leftCols(nodes_ + bars_) * q.head(nodes_ + bars_));
        const Vector move = Matrix(factor.lever.transpose() * factor.shift).ldlt().solve(missing);
        const Vector change = factor.shift * move;
        for (std::size_t i = 0; i < factor.active.size(); ++i)
            q(factor.active[i]) += change(static_cast<Eigen::Index>(i));
        d += rigid_ * move;
    }

    Response forces(const Start& start, const State& state, const Vector& f, const Vector& d,
                    const Vector& q) const {
        Response r;
        r.d = d;
        r.reaction = start.reaction + q.head(nodes_);
        r.opening = start.gap + F_ * q.head(nodes_) / FSAF_ - s_.areas().transpose() * d;
        for (Eigen::Index n = 0; n < nodes_; ++n)
            (state.contact[static_cast<std::size_t>(n)] ? r.opening : r.reaction)(n) = 0;
        r.ground = s_.areas() * q.head(nodes_);
        r.barForce = start.barForce + q.segment(nodes_, bars_);
        r.slip = start.slip + X_.middleCols(nodes_, bars_).transpose() * d;
        const Vector carried = X_.leftCols(nodes_ + bars_) * q.head(nodes_ + bars_);
        const Vector rest = f - carried - s_.stiffness().selfadjointView<Eigen::Lower>() * d;
        const double scale = std::max(f.norm(), carried.norm());
        r.residual = scale > 0 ? rest.norm() / scale : 0;
        return r;
    }

    const Structure& s_;
    Eigen::Index nodes_, bars_, pins_ = 0;
    Matrix F_, G_, rigid_;
    double FSAF_ = 1;
    Sparse pinned_, X_;
    std::vector<int> pinAt_;
    std::vector<double> pinStiffness_;
    SparseFactor factor_;
    FactorCache<Factor> cache_;
};

}  // namespace

std::unique_ptr<System> condensedSystem(const Structure& structure, const Mesh& mesh, Matrix flexibility) {
    return std::make_unique<CondensedSystem>(structure, mesh, std::move(flexibility));
}

}  // namespace plate
