#include "solvers/plate/structure.h"

#include <algorithm>

#include "solvers/plate/dowel.h"

namespace plate {
namespace {

using Triplets = std::vector<Eigen::Triplet<double>>;

/// Adds a symmetric matrix over some unknowns to the lower triangle.
template <class Unknowns, class Local>
void add(Triplets& K, const Unknowns& at, const Local& local) {
    for (std::size_t i = 0; i < at.size(); ++i)
        for (std::size_t j = 0; j < at.size(); ++j)
            if (at[j] >= 0 && at[i] >= at[j])
                K.emplace_back(at[i], at[j],
                               local(static_cast<Eigen::Index>(i), static_cast<Eigen::Index>(j)));
}

/// Integral over a piece of joint of the products of the cubic functions of (w, slope) at
/// both ends, and of the linear functions: an element's w and normal rotation on its side.
Eigen::Matrix4d cubicProducts(double l) {
    Eigen::Matrix4d m;
    m << 156, 22 * l, 54, -13 * l, 22 * l, 4 * l * l, 13 * l, -3 * l * l, 54, 13 * l, 156, -22 * l, -13 * l,
        -3 * l * l, -22 * l, 4 * l * l;
    return m * (l / 420);
}
Eigen::Matrix2d linearProducts(double l) { return Eigen::Matrix2d{{2, 1}, {1, 2}} * (l / 6); }

/// The component that turns along the joint, and the factor that makes it the slope of w there.
struct Turning {
    int along, about;
    double slope;
};
Turning turning(bool vertical) { return vertical ? Turning{1, 2, -1} : Turning{2, 1, 1}; }

/// Stiffness over the unknowns of sides a and b of a spring on their difference.
template <class M>
Eigen::MatrixXd onDifference(const M& m) {
    Eigen::MatrixXd k(2 * m.rows(), 2 * m.rows());
    k << m, -m, -m, m;
    return k;
}

}  // namespace

Structure::Structure(const Problem& problem, const Mesh& mesh) : problem_(problem), mesh_(mesh) {
    numberUnknowns();
    makeSections();
    Triplets K;
    K.reserve(mesh.elements.size() * 78);
    assembleElements(K);
    assembleJoints(K);
    K_.resize(unknowns_, unknowns_);
    K_.setFromTriplets(K.begin(), K.end());
}

void Structure::numberUnknowns() {
    index_.assign(static_cast<std::size_t>(3 * mesh_.count()), 0);
    for (int n : problem_.NODSX) index_[static_cast<std::size_t>(3 * (n - 1) + 1)] = -1;
    for (int n : problem_.NODSY) index_[static_cast<std::size_t>(3 * (n - 1) + 2)] = -1;
    for (int& i : index_)
        if (i == 0) i = unknowns_++;
}

void Structure::makeSections() {
    std::array<double, 2> T{problem_.layers[0].T, problem_.layers.size() > 1 ? problem_.layers[1].T : 0};
    thickness_.assign(mesh_.nodes.size(), T);
    for (const NodeValue& t : problem_.NT1) thickness_[static_cast<std::size_t>(t.node - 1)][0] = t.value;
    for (const NodeValue& t : problem_.NT2) thickness_[static_cast<std::size_t>(t.node - 1)][1] = t.value;
    for (const auto& t : thickness_) sections_.push_back(makeSection(problem_.layers, t, problem_.NBOND));
}

std::array<int, 12> Structure::unknowns(const Element& element) const {
    std::array<int, 12> at;
    for (std::size_t i = 0; i < 12; ++i) at[i] = unknown(element.nodes[i / 3], static_cast<int>(i % 3));
    return at;
}

Vector Structure::expand(const Vector& d) const {
    Vector all = Vector::Zero(static_cast<Eigen::Index>(index_.size()));
    for (std::size_t i = 0; i < index_.size(); ++i)
        if (index_[i] >= 0) all(static_cast<Eigen::Index>(i)) = d(index_[i]);
    return all;
}

Vector Structure::restrict(const std::vector<double>& all) const {
    Vector d(unknowns_);
    for (std::size_t i = 0; i < index_.size(); ++i)
        if (index_[i] >= 0) d(index_[i]) = all[i];
    return d;
}

/// Thicknesses run bilinearly between the nodes.
Section Structure::sectionAt(const Element& element, double xi, double eta) const {
    std::array<double, 2> T{};
    bool even = true;
    for (std::size_t c = 0; c < 4; ++c) {
        const auto& t = thickness_[static_cast<std::size_t>(element.nodes[c])];
        even = even && t == thickness_[static_cast<std::size_t>(element.nodes[0])];
        const double n = (1 + xi * corners[c][0]) * (1 + eta * corners[c][1]) / 4;
        for (std::size_t k = 0; k < 2; ++k) T[k] += n * t[k];
    }
    return even ? section(element.nodes[0]) : makeSection(problem_.layers, T, problem_.NBOND);
}

void Structure::assembleElements(Triplets& K) {
    Triplets C;
    nodeAreas_ = Vector::Zero(mesh_.count());
    thermal_ = Vector::Zero(unknowns_);
    for (int n = 0; n < mesh_.count(); ++n)
        nodeAreas_(n) = mesh_.nodes[static_cast<std::size_t>(n)].tributary.area();
    for (const Element& e : mesh_.elements) {
        const auto at = unknowns(e);
        Matrix12 k = Matrix12::Zero();
        Vector12 f = Vector12::Zero();
        // Curvatures are linear in each coordinate and thickness^3 cubic: three points are exact.
        for (const GaussPoint& p : gauss3)
            for (const GaussPoint& q : gauss3) {
                const Section s = sectionAt(e, p.at, q.at);
                const Curvature b = curvature(p.at, q.at, e.a, e.b);
                const double weight = p.weight * q.weight * e.a * e.b;
                k += b.transpose() * s.stiffness * b * weight;
                const double free = thermalCurvature(s.thickness) * weight;
                f += b.transpose() * (s.stiffness * Eigen::Vector3d(free, free, 0));
            }
        add(K, at, k);
        for (std::size_t i = 0; i < 12; ++i)
            if (at[i] >= 0) thermal_(at[i]) += f(static_cast<Eigen::Index>(i));
        for (int c = 0; c < 4; ++c) {
            const int node = e.nodes[static_cast<std::size_t>(c)];
            const Vector12 mean = quarterIntegral(c, e.a, e.b) / nodeAreas_(node);
            for (std::size_t i = 0; i < 12; ++i)
                if (at[i] >= 0) C.emplace_back(at[i], node, mean(static_cast<Eigen::Index>(i)));
        }
    }
    C_.resize(unknowns_, mesh_.count());
    C_.setFromTriplets(C.begin(), C.end());
}

void Structure::assembleJoints(Triplets& K) {
    int pair = 0;
    for (std::size_t j = 0; j < mesh_.joints.size(); ++j) {
        const Joint& joint = problem_.joints[j];
        const JointLine& line = mesh_.joints[j];
        const auto [along, about, slope] = turning(line.vertical);
        for (std::size_t i = 0; i + 1 < line.nodes.size(); ++i) {
            const JointNode &p = line.nodes[i], &q = line.nodes[i + 1];
            const double l = q.along - p.along;
            const Eigen::Vector4d signs(1, slope, 1, slope);
            add(K,
                std::array{unknown(p.a, 0), unknown(p.a, along), unknown(q.a, 0), unknown(q.a, along),
                           unknown(p.b, 0), unknown(p.b, along), unknown(q.b, 0), unknown(q.b, along)},
                onDifference(Eigen::Matrix4d(signs.asDiagonal() * cubicProducts(l) * signs.asDiagonal() *
                                             joint.SPCON1)));
            add(K,
                std::array{unknown(p.a, about), unknown(q.a, about), unknown(p.b, about),
                           unknown(q.b, about)},
                onDifference(Eigen::Matrix2d(linearProducts(l) * joint.SPCON2)));
        }
        const double bar =
            joint.BD > 0 ? dowelStiffness({joint.SCKV, joint.BD, joint.WJ, problem_.YMSB, problem_.PRSB}) : 0;
        for (std::size_t i = 0; i < line.nodes.size(); ++i, ++pair) {
            const JointNode& n = line.nodes[i];
            double bars = 0;
            if (joint.BD > 0) bars = joint.BARNO.empty() ? n.length / joint.BS : joint.BARNO[i];
            const double stiffness = bars * bar;
            const bool loose = joint.GDC > 0 && stiffness > 0;
            barCounts_.push_back(bars);
            barStiffness_.push_back(loose ? 0 : stiffness);
            if (loose) bars_.push_back({pair, unknown(n.a, 0), unknown(n.b, 0), stiffness, joint.GDC});
            add(K, std::array{unknown(n.a, 0), unknown(n.b, 0)},
                onDifference(Eigen::Matrix<double, 1, 1>(loose ? 0 : stiffness)));
        }
    }
}

Matrix Structure::jointForces(const Vector& d) const {
    const Vector u = expand(d);
    Matrix forces = Matrix::Zero(static_cast<Eigen::Index>(barCounts_.size()), 2);
    Eigen::Index pair = 0;
    for (std::size_t j = 0; j < mesh_.joints.size(); ++j) {
        const Joint& joint = problem_.joints[j];
        const JointLine& line = mesh_.joints[j];
        const auto [along, about, slope] = turning(line.vertical);
        const auto difference = [&](const JointNode& n, int c) { return u(3 * n.a + c) - u(3 * n.b + c); };
        for (std::size_t i = 0; i < line.nodes.size(); ++i, ++pair) {
            const JointNode& n = line.nodes[i];
            forces(pair, 0) += barStiffness_[static_cast<std::size_t>(pair)] * difference(n, 0);
            if (i + 1 == line.nodes.size()) continue;
            const JointNode& q = line.nodes[i + 1];
            const Eigen::Vector4d w(difference(n, 0), slope * difference(n, along), difference(q, 0),
                                    slope * difference(q, along));
            const Eigen::Vector4d shear = joint.SPCON1 * (cubicProducts(q.along - n.along) * w);
            const Eigen::Vector2d moment =
                joint.SPCON2 * (linearProducts(q.along - n.along) *
                                Eigen::Vector2d(difference(n, about), difference(q, about)));
            forces(pair, 0) += shear(0), forces(pair + 1, 0) += shear(2);
            forces(pair, 1) += moment(0), forces(pair + 1, 1) += moment(1);
        }
    }
    return forces;
}

Matrix Structure::rigidMotions() const {
    std::vector<std::array<double, 3>> modes{{1, 0, 0}};  // w = first + second x + third y
    if (problem_.NODSY.empty()) modes.push_back({0, 1, 0});
    if (problem_.NODSX.empty()) modes.push_back({0, 0, 1});
    const auto each = static_cast<Eigen::Index>(modes.size());
    const int groups = *std::max_element(mesh_.group.begin(), mesh_.group.end()) + 1;
    Matrix motions = Matrix::Zero(unknowns_, groups * each);
    for (int n = 0; n < mesh_.count(); ++n) {
        const Node& node = mesh_.nodes[static_cast<std::size_t>(n)];
        const auto slab = static_cast<std::size_t>(node.slab);
        const double x = node.x + mesh_.origin[slab][0], y = node.y + mesh_.origin[slab][1];
        for (Eigen::Index m = 0; m < each; ++m) {
            const auto [one, byX, byY] = modes[static_cast<std::size_t>(m)];
            const std::array values{one + byX * x + byY * y, -byY, byX};
            for (int c = 0; c < 3; ++c)
                if (const int i = unknown(n, c); i >= 0)
                    motions(i, mesh_.group[slab] * each + m) = values[static_cast<std::size_t>(c)];
        }
    }
    return motions;
}

void Structure::addAreaLoad(const LoadedArea& area, Vector& f) const {
    for (const Element& e : mesh_.elements) {
        if (e.slab != area.LS - 1) continue;
        const double xi0 = std::max(-1., (area.XL1 - e.x0) / e.a - 1),
                     xi1 = std::min(1., (area.XL2 - e.x0) / e.a - 1);
        const double eta0 = std::max(-1., (area.YL1 - e.y0) / e.b - 1),
                     eta1 = std::min(1., (area.YL2 - e.y0) / e.b - 1);
        if (!(xi1 > xi0 && eta1 > eta0)) continue;
        const Vector12 load = area.QQ * shapeIntegral(xi0, xi1, eta0, eta1, e.a, e.b);
        const auto at = unknowns(e);
        for (std::size_t i = 0; i < 12; ++i)
            if (at[i] >= 0) f(at[i]) += load(static_cast<Eigen::Index>(i));
    }
}

namespace {
/// Weight over a node's area.
double weight(const Problem& problem, const std::array<double, 2>& T, double area) {
    double sum = 0;
    for (std::size_t k = 0; k < problem.layers.size(); ++k) sum += problem.layers[k].GAMA * T[k];
    return problem.NWT ? sum * area : 0;
}
}  // namespace

Vector Structure::loads(std::size_t group) const {
    Vector f = thermal_;
    for (const LoadedArea& area : problem_.groups[group]) addAreaLoad(area, f);
    Vector weights(mesh_.count());
    for (int n = 0; n < mesh_.count(); ++n)
        weights(n) = weight(problem_, thickness_[static_cast<std::size_t>(n)], nodeAreas_(n));
    f += C_ * weights;
    const auto put = [&](const std::vector<NodeValue>& values, int component) {
        for (const NodeValue& v : values)
            if (const int i = unknown(v.node - 1, component); i >= 0) f(i) += v.value;
    };
    put(problem_.FF, 0);
    put(problem_.FMY, 1);
    put(problem_.FMX, 2);
    return f;
}

double Structure::totalForce(std::size_t group) const {
    double sum = 0;
    for (const LoadedArea& a : problem_.groups[group]) sum += (a.XL2 - a.XL1) * (a.YL2 - a.YL1) * a.QQ;
    for (const NodeValue& v : problem_.FF) sum += v.value;
    for (int n = 0; n < mesh_.count(); ++n)
        sum += weight(problem_, thickness_[static_cast<std::size_t>(n)], nodeAreas_(n));
    return sum;
}

}  // namespace plate
