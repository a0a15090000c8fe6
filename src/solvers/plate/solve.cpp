#include <algorithm>
#include <cmath>
#include <numeric>

#include "solvers/plate/plate.h"

namespace plate {
namespace {

// ---- Making the system ---------------------------------------------------------------

/// Where the axes of symmetry stand in the plan.
Mirrors mirrors(const Problem& problem, const Mesh& mesh) {
    const auto at = [&](const std::vector<int>& nodes, std::size_t axis) -> std::optional<double> {
        if (nodes.empty()) return {};
        const Node& n = mesh.nodes[static_cast<std::size_t>(nodes[0] - 1)];
        return (axis == 0 ? n.x : n.y) + mesh.origin[static_cast<std::size_t>(n.slab)][axis];
    };
    return {at(problem.NODSY, 0), at(problem.NODSX, 1)};
}

std::unique_ptr<System> makeSystem(const Problem& problem, const Mesh& mesh, const Structure& structure) {
    const Foundation& ground = problem.foundation;
    if (ground.kind != FoundationKind::Liquid)
        return condensedSystem(structure, mesh,
                               flexibility(mesh, surfaceKernel(ground), mirrors(problem, mesh)));
    Vector modulus = Vector::Constant(mesh.count(), ground.SUBMOD);
    for (const NodeValue& v : ground.NS) modulus(v.node - 1) = v.value;
    return liquidSystem(structure, mesh, modulus);
}

// ---- The start of a period ---------------------------------------------------------------

Vector orZeros(const std::vector<double>& values, Eigen::Index size) {
    if (values.empty()) return Vector::Zero(size);
    return Eigen::Map<const Vector>(values.data(), size);
}

/// State that period `period` continues from; empty for a fresh start.
ContactState before(const Problem& problem, std::size_t period) {
    if (problem.previous.empty()) return {};
    return problem.previous[std::min(period, problem.previous.size() - 1)];
}

Start makeStart(const Problem& problem, const Mesh& mesh, const Structure& structure, std::size_t period) {
    const auto bars = static_cast<Eigen::Index>(structure.looseBars().size());
    Start start{Vector::Zero(mesh.count()), Vector::Zero(mesh.count()), Vector::Zero(bars),
                Vector::Zero(bars)};
    if (problem.previous.empty()) {
        for (const NodeValue& g : problem.NG) start.gap(g.node - 1) = g.value;
        return start;
    }
    const ContactState left = before(problem, period);
    start.gap = orZeros(left.gap, mesh.count());
    if (!left.displacement.empty()) start.displacement = structure.restrict(left.displacement);
    start.reaction = orZeros(left.reaction, mesh.count());
    for (Eigen::Index b = 0; b < bars && !left.slip.empty(); ++b) {
        const LooseBar& bar = structure.looseBars()[static_cast<std::size_t>(b)];
        const double slip = left.slip[static_cast<std::size_t>(bar.pair)];
        start.slip(b) = slip;
        start.barForce(b) = bar.stiffness * std::copysign(std::max(0., std::abs(slip) - bar.play), slip);
    }
    return start;
}

// ---- From unknowns to results -------------------------------------------------------------

/// Mean over the elements at each node of their curvature there, a row per node.
/// Curvatures are taken at the 2 x 2 Gauss points, where they are best (Barlow, 1976), and
/// run bilinearly to the corners.
Matrix nodalCurvatures(const Mesh& mesh, const Vector& all) {
    Matrix sum = Matrix::Zero(mesh.count(), 3);
    Vector count = Vector::Zero(mesh.count());
    const double far = std::sqrt(3.);
    for (const Element& e : mesh.elements) {
        Vector12 d;
        for (std::size_t i = 0; i < 12; ++i)
            d(static_cast<Eigen::Index>(i)) = all(3 * e.nodes[i / 3] + static_cast<int>(i % 3));
        std::array<Eigen::Vector3d, 4> gauss;
        for (std::size_t g = 0; g < 4; ++g)
            gauss[g] = curvature(corners[g][0] / far, corners[g][1] / far, e.a, e.b) * d;
        for (std::size_t c = 0; c < 4; ++c) {
            Eigen::Vector3d at = Eigen::Vector3d::Zero();
            for (std::size_t g = 0; g < 4; ++g)
                at += (1 + far * corners[c][0] * corners[g][0]) * (1 + far * corners[c][1] * corners[g][1]) /
                      4 * gauss[g];
            sum.row(e.nodes[c]) += at.transpose();
            count(e.nodes[c]) += 1;
        }
    }
    return count.cwiseInverse().asDiagonal() * sum;
}

LayerResult layerResult(const Section::Layer& layer, const Eigen::Vector3d& curvature) {
    const Eigen::Vector3d m = layer.moment * curvature;
    const Eigen::Vector3d s = -(layer.bottom * curvature);
    const double centre = (s(0) + s(1)) / 2, radius = std::hypot((s(0) - s(1)) / 2, s(2));
    return {m(0), m(1), m(2), s(0), s(1), s(2), centre + radius, centre - radius};
}

std::vector<NodeResult> nodeResults(const Problem& problem, const Mesh& mesh, const Structure& structure,
                                    const Start& start, const ContactResult& contact) {
    const Vector all = structure.expand(contact.response.d);
    Matrix curvatures = nodalCurvatures(mesh, all);
    // An axis of symmetry has no twist; the elements on one side of it alone give some.
    for (const auto* axis : {&problem.NODSX, &problem.NODSY})
        for (const int n : *axis) curvatures(n - 1, 2) = 0;
    std::vector<NodeResult> results;
    for (int n = 0; n < mesh.count(); ++n) {
        const Section& section = structure.section(n);
        const double free = structure.thermalCurvature(section.thickness);
        const Eigen::Vector3d bending = curvatures.row(n).transpose() - Eigen::Vector3d(free, free, 0);
        NodeResult r{all(3 * n),
                     all(3 * n + 1),
                     all(3 * n + 2),
                     contact.response.reaction(n) - start.reaction(n),
                     contact.state.contact[static_cast<std::size_t>(n)] != 0,
                     {}};
        for (std::size_t k = 0; k < problem.layers.size(); ++k)
            r.layers.push_back(layerResult(section.layer[k], bending));
        results.push_back(std::move(r));
    }
    return results;
}

std::vector<JointResult> jointResults(const Mesh& mesh, const Structure& structure, const Start& start,
                                      const Response& response) {
    Matrix forces = structure.jointForces(response.d);
    for (Eigen::Index b = 0; b < response.barForce.size(); ++b)
        forces(structure.looseBars()[static_cast<std::size_t>(b)].pair, 0) +=
            response.barForce(b) - start.barForce(b);
    std::vector<JointResult> results;
    for (std::size_t j = 0; j < mesh.joints.size(); ++j)
        for (const JointNode& n : mesh.joints[j].nodes) {
            const auto pair = results.size();
            results.push_back({static_cast<int>(j) + 1, n.a + 1, n.b + 1,
                               forces(static_cast<Eigen::Index>(pair), 0),
                               forces(static_cast<Eigen::Index>(pair), 1), structure.bars()[pair]});
        }
    return results;
}

/// Loads and reactions do the same work in every rigid motion that symmetry allows.
Equilibrium equilibrium(const Structure& structure, const Start& start, const Response& response,
                        std::size_t group, const Vector& f) {
    const Vector reactions = response.reaction - start.reaction;
    Equilibrium e{structure.totalForce(group), reactions.sum(), 0, 0};
    const double scale = std::max(std::abs(e.load), reactions.cwiseAbs().sum());
    if (!(scale > 0)) return e;
    e.forceError = std::abs(e.load - e.reaction) / scale;
    const Matrix motions = structure.rigidMotions();
    const Vector work = motions.transpose() * (f - response.ground);
    const Vector arms = motions.cwiseAbs().colwise().maxCoeff();
    e.momentError = work.cwiseAbs().cwiseQuotient(arms).maxCoeff() / scale;
    return e;
}

std::vector<double> toVector(const Vector& v) { return {v.data(), v.data() + v.size()}; }

ContactState stateAfter(const Mesh& mesh, const ContactState& before, const Response& response,
                        const Vector& all) {
    ContactState state{toVector(response.opening), toVector(response.reaction), toVector(all), {}};
    for (std::size_t i = 0; i < before.displacement.size(); ++i)
        state.displacement[i] += before.displacement[i];
    for (const JointLine& line : mesh.joints)
        for (const JointNode& n : line.nodes) {
            const std::size_t pair = state.slip.size();
            state.slip.push_back((before.slip.empty() ? 0 : before.slip[pair]) + all(3 * n.a) - all(3 * n.b));
        }
    return state;
}

// ---- One load case -------------------------------------------------------------------------

Fault unsupported(std::size_t period, std::size_t group) {
    const auto p = std::to_string(period + 1), g = std::to_string(group + 1);
    Fault fault;
    fault.field = "NCYCLE";
    fault.period = static_cast<int>(period) + 1;
    fault.group = static_cast<int>(group) + 1;
    fault.text = "Period " + p + ", load group " + g +
                 ": the foundation cannot hold the slabs, because too few nodes are in contact; "
                 "check the nodes not in contact, the gaps, the weight and the loads that lift.";
    return fault;
}

}  // namespace

Solution solve(const Problem& problem) {
    Solution solution;
    solution.fault = check(problem);
    if (solution.fault) return solution;
    const Mesh mesh = makeMesh(problem);
    const Structure structure(problem, mesh);
    const auto system = makeSystem(problem, mesh, structure);
    std::vector<char> apart(mesh.nodes.size(), 0);
    for (int n : problem.NODNC) apart[static_cast<std::size_t>(n - 1)] = 1;

    const std::size_t groups = problem.groups.size();
    std::vector<Vector> loads;
    for (std::size_t g = 0; g < groups; ++g) loads.push_back(structure.loads(g));
    std::vector<std::size_t> periods(problem.FSAF.size());
    std::iota(periods.begin(), periods.end(), 0);
    // Equal seasons one after the other, so that they share factors.
    std::stable_sort(periods.begin(), periods.end(),
                     [&](std::size_t a, std::size_t b) { return problem.FSAF[a] < problem.FSAF[b]; });

    solution.cases.resize(periods.size() * groups);
    for (std::size_t p : periods) {
        system->season(problem.FSAF[p]);
        const Start start = makeStart(problem, mesh, structure, p);
        for (std::size_t g = 0; g < groups; ++g) {
            const ContactResult contact =
                findContact(*system, structure, start, loads[g], apart, problem.NCYCLE);
            if (!contact.response.supported) return {unsupported(p, g), {}};
            const Vector all = structure.expand(contact.response.d);
            Case& c = solution.cases[p * groups + g];
            c.period = p;
            c.group = g;
            c.nodes = nodeResults(problem, mesh, structure, start, contact);
            c.joints = jointResults(mesh, structure, start, contact.response);
            c.contact = contact.report;
            c.equilibrium = equilibrium(structure, start, contact.response, g, loads[g]);
            c.residual = contact.response.residual;
            c.residualPassed = !(c.residual <= problem.DEL);
            c.deflectionPassed = problem.FMAX > 0 && std::abs(all(3 * (problem.NNCK - 1))) > problem.FMAX;
            c.state = stateAfter(mesh, before(problem, p), contact.response, all);
        }
    }
    return solution;
}

}  // namespace plate
