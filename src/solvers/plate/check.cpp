// What a problem must fulfil before it is solved.
#include <algorithm>
#include <cmath>
#include <iomanip>
#include <sstream>

#include "solvers/plate/mesh.h"

namespace plate {
namespace {

/// Tolerance for places that should agree, relative to a slab's size: decks hold 7 digits.
constexpr double sameplace = 1e-5;

class Checker {
  public:
    explicit Checker(const Problem& problem) : p_(problem) {}

    std::optional<Fault> run() {
        slabs();
        if (!fault_) layers();
        if (!fault_) joints();
        if (!fault_) fittingJoints();
        if (!fault_) nodes();
        if (!fault_) foundation();
        if (!fault_) loads();
        if (!fault_) contact();
        if (!fault_) symmetry();
        return fault_;
    }

  private:
    /// Records the first fault. `good` is written so that NaN is bad.
    Fault* demand(bool good, const std::string& field, const std::string& text) {
        if (good || fault_) return nullptr;
        fault_ = Fault{};
        fault_->field = field;
        fault_->text = text;
        return &*fault_;
    }

    static std::string s(std::size_t number) { return std::to_string(number + 1); }

    void slabs() {
        demand(!p_.slabs.empty(), "NSLAB", "There must be at least one slab.");
        for (std::size_t i = 0; i < p_.slabs.size(); ++i) {
            coordinates(p_.slabs[i].X, "X", i);
            coordinates(p_.slabs[i].Y, "Y", i);
            nodeCount_ += static_cast<int>(p_.slabs[i].X.size() * p_.slabs[i].Y.size());
        }
    }

    void coordinates(const std::vector<double>& grid, const char* name, std::size_t slab) {
        const bool growing = std::adjacent_find(grid.begin(), grid.end(),
                                                [](double a, double b) { return !(b > a); }) == grid.end();
        if (Fault* f = demand(grid.size() >= 2 && growing, name,
                              "Slab " + s(slab) + ": " + name +
                                  " needs at least two coordinates, each larger than the one before."))
            f->slab = static_cast<int>(slab) + 1;
    }

    void layers() {
        const auto& layers = p_.layers;
        demand(layers.size() == 1 || layers.size() == 2, "NLAYER", "A slab has one or two layers.");
        for (std::size_t k = 0; k < layers.size(); ++k) {
            const std::string of = " of slab layer " + s(k);
            demand(layers[k].T > 0, "T", "The thickness T" + of + " must be above 0.");
            demand(layers[k].YM > 0, "YM", "Young's modulus YM" + of + " must be above 0.");
            demand(layers[k].PR > -1 && layers[k].PR < 1, "PR",
                   "Poisson's ratio PR" + of + " must lie between -1 and 1.");
        }
        demand(!p_.NBOND || layers.size() == 2, "NBOND", "One layer cannot be bonded.");
    }

    void joints() {
        for (std::size_t slab = 0; slab < p_.slabs.size(); ++slab)
            for (std::size_t side = 0; side < 4; ++side) {
                const int j = p_.slabs[slab].JONO[side];
                if (Fault* f = demand(j >= 0 && j <= static_cast<int>(p_.joints.size()), "JONO" + s(side),
                                      "Slab " + s(slab) + ": there is no joint " + std::to_string(j) + "."))
                    f->slab = static_cast<int>(slab) + 1;
            }
        for (std::size_t j = 0; j < p_.joints.size() && !fault_; ++j) {
            constants(j);
            neighbours(j);
        }
    }

    void constants(std::size_t number) {
        const Joint& j = p_.joints[number];
        const auto demandJoint = [&](bool good, const char* field, const std::string& text) {
            if (Fault* f = demand(good, field, "Joint " + s(number) + ": " + text))
                f->joint = static_cast<int>(number) + 1;
        };
        demandJoint(j.SPCON1 >= 0, "SPCON1", "SPCON1 must not be negative.");
        demandJoint(j.SPCON2 >= 0, "SPCON2", "SPCON2 must not be negative.");
        demandJoint(j.BD >= 0, "BD", "BD must not be negative.");
        if (!(j.BD > 0)) return;
        demandJoint(j.SCKV > 0, "SCKV", "dowel bars need a modulus of support SCKV above 0.");
        demandJoint(p_.YMSB > 0, "YMSB", "dowel bars need a Young's modulus YMSB above 0.");
        demandJoint(p_.PRSB > -1, "PRSB", "PRSB must lie above -1.");
        demandJoint(j.WJ >= 0, "WJ", "WJ must not be negative.");
        demandJoint(j.GDC >= 0, "GDC", "GDC must not be negative.");
        demandJoint(j.BS > 0 || !j.BARNO.empty(), "BS",
                    "dowel bars need a spacing BS above 0 or their number at each node.");
        demandJoint(std::all_of(j.BARNO.begin(), j.BARNO.end(), [](double n) { return n >= 0; }), "BARNO",
                    "BARNO must not be negative.");
    }

    /// Each joint lies between a right and a left side, or a top and a bottom side, with nodes side by side.
    void neighbours(std::size_t number) {
        const int joint = static_cast<int>(number) + 1;
        std::array<std::vector<const Slab*>, 4> at;
        for (const Slab& slab : p_.slabs)
            for (std::size_t side = 0; side < 4; ++side)
                if (slab.JONO[side] == joint) at[side].push_back(&slab);
        const auto fits = [&](std::size_t low, std::size_t high) {
            return at[low].size() == 1 && at[high].size() == 1 && at[2 - high + 1].empty() &&
                   at[2 - low + 1].empty();
        };
        const bool vertical = fits(0, 1), horizontal = fits(2, 3);
        if (Fault* f = demand(vertical || horizontal, "JONO",
                              "Joint " + s(number) +
                                  " must lie on the right of one slab and the left of another, or on top of "
                                  "one and below another."))
            f->joint = joint;
        if (fault_) return;
        const auto& a = vertical ? at[1][0]->Y : at[3][0]->X;
        const auto& b = vertical ? at[0][0]->Y : at[2][0]->X;
        bool same = a.size() == b.size();
        for (std::size_t i = 0; same && i < a.size(); ++i)
            same = std::abs((a[i] - a[0]) - (b[i] - b[0])) <= sameplace * (a.back() - a[0]);
        if (Fault* f = demand(same, vertical ? "Y" : "X",
                              "Joint " + s(number) + ": the two slabs must have the same nodes along it."))
            f->joint = joint;
        const auto& bars = p_.joints[number].BARNO;
        if (Fault* f = demand(bars.empty() || bars.size() == a.size(), "NNAJ",
                              "Joint " + s(number) + " has " + std::to_string(a.size()) +
                                  " nodes, but NNAJ is " + std::to_string(bars.size()) + "."))
            f->joint = joint;
    }

    /// Going round by different joints leads to the same place.
    void fittingJoints() {
        const Mesh mesh = makeMesh(p_);
        for (std::size_t j = 0; j < mesh.joints.size(); ++j)
            for (const JointNode& n : mesh.joints[j].nodes) {
                const auto place = [&](int node) {
                    const Node& at = mesh.nodes[static_cast<std::size_t>(node)];
                    const auto& o = mesh.origin[static_cast<std::size_t>(at.slab)];
                    return std::array{at.x + o[0], at.y + o[1]};
                };
                const auto a = place(n.a), b = place(n.b);
                const Slab& slab =
                    p_.slabs[static_cast<std::size_t>(mesh.nodes[static_cast<std::size_t>(n.a)].slab)];
                const double size = slab.X.back() - slab.X[0] + slab.Y.back() - slab.Y[0];
                if (Fault* f = demand(std::hypot(a[0] - b[0], a[1] - b[1]) <= sameplace * size, "JONO",
                                      "Joint " + s(j) +
                                          ": the slabs do not meet there; the joints round a corner lead to "
                                          "different places."))
                    f->joint = static_cast<int>(j) + 1;
            }
    }

    void exists(int node, const char* field) {
        if (Fault* f = demand(node >= 1 && node <= nodeCount_, field,
                              std::string(field) + ": there is no node " + std::to_string(node) +
                                  "; the slabs have nodes 1 to " + std::to_string(nodeCount_) + "."))
            f->node = node;
    }

    void exist(const std::vector<NodeValue>& values, const char* field) {
        for (const NodeValue& v : values) {
            exists(v.node, field);
            if (Fault* f = demand(
                    std::isfinite(v.value), field,
                    std::string(field) + ": the value at node " + std::to_string(v.node) + " is no number."))
                f->node = v.node;
        }
    }

    void nodes() {
        exist(p_.NT1, "NT1"), exist(p_.NT2, "NT2"), exist(p_.FF, "NN"), exist(p_.FMX, "NNX"),
            exist(p_.FMY, "NNY"), exist(p_.NG, "NG");
        exist(p_.foundation.NS, "NS");
        for (int n : p_.NODSX) exists(n, "NODSX");
        for (int n : p_.NODSY) exists(n, "NODSY");
        for (int n : p_.NODNC) exists(n, "NODNC");
        exists(p_.NNCK, "NNCK");
        demand(p_.NT2.empty() || p_.layers.size() == 2, "NAT2", "There is no slab layer 2 for NAT2.");
        for (const auto* list : {&p_.NT1, &p_.NT2})
            for (const NodeValue& t : *list)
                if (Fault* f =
                        demand(t.value > 0, list == &p_.NT1 ? "T1" : "T2",
                               "The thickness at node " + std::to_string(t.node) + " must be above 0."))
                    f->node = t.node;
    }

    void foundation() {
        const Foundation& g = p_.foundation;
        if (g.kind == FoundationKind::Liquid) {
            demand(g.SUBMOD > 0, "SUBMOD", "The modulus of subgrade reaction SUBMOD must be above 0.");
            for (const NodeValue& v : g.NS)
                if (Fault* f = demand(
                        v.value >= 0, "SUBMOD",
                        "The subgrade modulus at node " + std::to_string(v.node) + " must not be negative."))
                    f->node = v.node;
        } else if (g.kind == FoundationKind::Solid)
            elastic(g.YMS, g.PRS, "YMS", "PRS", "of the foundation");
        else {
            demand(!g.E.empty() && g.PRBF.size() == g.E.size() && g.TH.size() + 1 == g.E.size(), "NL",
                   "A layered foundation needs a modulus and a Poisson's ratio for each layer, and a "
                   "thickness for each but the last.");
            for (std::size_t k = 0; k < g.E.size() && !fault_; ++k) {
                elastic(g.E[k], g.PRBF[k], "E", "PRBF", "of foundation layer " + s(k));
                if (k < g.TH.size())
                    demand(g.TH[k] > 0, "TH",
                           "The thickness TH of foundation layer " + s(k) + " must be above 0.");
            }
        }
        demand(!p_.FSAF.empty(), "NPY", "There must be at least one period.");
        for (std::size_t i = 0; i < p_.FSAF.size(); ++i)
            if (Fault* f = demand(p_.FSAF[i] > 0, "FSAF", "Period " + s(i) + ": FSAF must be above 0."))
                f->period = static_cast<int>(i) + 1;
    }

    void elastic(double modulus, double ratio, const char* E, const char* nu, const std::string& of) {
        demand(modulus > 0, E, std::string("Young's modulus ") + E + " " + of + " must be above 0.");
        demand(ratio > -1 && ratio <= 0.5, nu,
               std::string("Poisson's ratio ") + nu + " " + of + " must lie between -1 and 0.5.");
    }

    void loads() {
        demand(!p_.groups.empty(), "NLG", "There must be at least one load group.");
        for (std::size_t g = 0; g < p_.groups.size(); ++g)
            for (std::size_t i = 0; i < p_.groups[g].size(); ++i) {
                const LoadedArea& a = p_.groups[g][i];
                const std::string where = "Load group " + s(g) + ", area " + s(i);
                const auto demandArea = [&](bool good, const char* field, const std::string& text) {
                    if (Fault* f = demand(good, field, where + text))
                        f->group = static_cast<int>(g) + 1, f->slab = a.LS;
                };
                const bool known = a.LS >= 1 && a.LS <= static_cast<int>(p_.slabs.size());
                demandArea(known, "LS", ": there is no slab " + std::to_string(a.LS) + ".");
                if (!known) return;
                const Slab& slab = p_.slabs[static_cast<std::size_t>(a.LS) - 1];
                const auto demandSides = [&](double low, double high, const std::vector<double>& grid,
                                             const std::string& first, const std::string& second) {
                    const double slack = sameplace * (grid.back() - grid.front());
                    const std::string must = " must lie on slab " + std::to_string(a.LS) +
                                             ", which goes from " + number(grid.front()) + " to " +
                                             number(grid.back()) + "; ";
                    demandArea(low >= grid.front() - slack, first.c_str(),
                               must + first + " is " + number(low) + ".");
                    demandArea(high <= grid.back() + slack, second.c_str(),
                               must + second + " is " + number(high) + ".");
                    demandArea(high > low, second.c_str(),
                               ": " + second + " is " + number(high) + " and must be greater than " + first +
                                   ", " + number(low) + ".");
                };
                demandSides(a.XL1, a.XL2, slab.X, "XL1", "XL2");
                demandSides(a.YL1, a.YL2, slab.Y, "YL1", "YL2");
                demandArea(std::isfinite(a.QQ), "QQ", ": the pressure is no number.");
            }
        demand(std::isfinite(p_.TEMP) && std::isfinite(p_.CT), "TEMP", "TEMP or CT is no number.");
    }

    static std::string number(double x) {
        std::ostringstream text;
        text << std::setprecision(7) << x;
        return text.str();
    }

    void contact() {
        demand(p_.NCYCLE >= 1, "NCYCLE", "NCYCLE must be at least 1.");
        demand(p_.DEL > 0, "DEL", "DEL must be above 0.");
        for (const ContactState& state : p_.previous)
            for (const auto* list : {&state.gap, &state.reaction})
                demand(list->empty() || static_cast<int>(list->size()) == nodeCount_, "INPUT",
                       "The data set before has other nodes; INPUT = 1 needs the same slabs.");
        const std::size_t pairs = pairCount();
        for (const ContactState& state : p_.previous)
            demand((state.displacement.empty() ||
                    static_cast<int>(state.displacement.size()) == 3 * nodeCount_) &&
                       (state.slip.empty() || state.slip.size() == pairs),
                   "INPUT", "The data set before has other joints; INPUT = 1 needs the same slabs.");
    }

    std::size_t pairCount() const {
        std::size_t pairs = 0;
        for (const JointLine& line : makeMesh(p_).joints) pairs += line.nodes.size();
        return pairs;
    }

    /// An axis of symmetry runs along an outer grid line of the slabs and holds every node there. On a liquid
    /// foundation both outer lines may be axes, and slabs that no joint links have lines of their own. On one
    /// that spreads pressure mirror images act, too: there the axis is one line for all.
    void symmetry() {
        const Mesh mesh = makeMesh(p_);
        axis(mesh, p_.NODSY, 0, "NODSY");
        axis(mesh, p_.NODSX, 1, "NODSX");
    }

    void axis(const Mesh& mesh, const std::vector<int>& nodes, std::size_t across, const char* field) {
        if (nodes.empty() || fault_) return;
        const bool spreads = p_.foundation.kind != FoundationKind::Liquid;
        const auto slabOf = [&](int n) { return static_cast<std::size_t>(mesh.nodes[index(n)].slab); };
        const auto group = [&](int n) { return spreads ? 0 : mesh.group[slabOf(n)]; };
        const auto place = [&](int n) {
            const Node& node = mesh.nodes[index(n)];
            return (across == 0 ? node.x : node.y) + mesh.origin[slabOf(n)][across];
        };
        for (const int chosen : nodes) {
            double low = 1e300, high = -1e300;
            for (int n = 1; n <= mesh.count(); ++n)
                if (group(n) == group(chosen)) low = std::min(low, place(n)), high = std::max(high, place(n));
            const double slack = sameplace * (high - low), at = place(chosen);
            const bool outer = at <= low + slack || at >= high - slack;
            const auto demandNode = [&](bool good, int node, const std::string& text) {
                if (Fault* f = demand(good, field, "Node " + std::to_string(node) + text)) f->node = node;
            };
            const std::string along = across == 0 ? "along y" : "along x";
            demandNode(outer, chosen,
                       " is no node of the axis of symmetry, which is an edge of the slabs " + along + ".");
            demandNode(!spreads || std::abs(at - place(nodes[0])) <= slack, chosen,
                       " does not lie on the axis of symmetry " + along + " of the nodes before.");
            for (int n = 1; n <= mesh.count() && !fault_; ++n)
                if (group(n) == group(chosen) && std::abs(place(n) - at) <= slack)
                    demandNode(std::ranges::find(nodes, n) != nodes.end(), n,
                               " lies on the axis of symmetry " + along + " of node " +
                                   std::to_string(chosen) +
                                   ", too; all nodes of that grid line must be listed.");
            if (fault_) return;
        }
    }

    static std::size_t index(int node) { return static_cast<std::size_t>(node - 1); }

    const Problem& p_;
    int nodeCount_ = 0;
    std::optional<Fault> fault_;
};

}  // namespace

std::optional<Fault> check(const Problem& problem) { return Checker(problem).run(); }

}  // namespace plate
