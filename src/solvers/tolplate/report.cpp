#include "solvers/tolplate/report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <set>

#include "plots/pan_file.h"
#include "solvers/report_lines.h"
#include "solvers/tolplate/plate_problem.h"
#include "solvers/tolplate/plot_file.h"
#include "solvers/tolplate/units.h"

namespace {

int group(const plate::Case& c) { return static_cast<int>(c.group) + 1; }

std::string caseName(const plate::Case& c) {
    return printed("Period %d, load group %d", static_cast<int>(c.period) + 1, group(c));
}

const plate::NodeResult& at(const plate::Case& c, int node) {
    return c.nodes[static_cast<std::size_t>(node - 1)];
}

int nodeCount(const SlabSet& set) { return nodesBefore(set, set.NSLAB + 1); }

/// Nodes whose stresses are printed: the reported ones, with the detailed printout all.
std::vector<int> stressNodes(const SlabSet& set, const plate::Case& c) {
    if (set.MDPO == 0) return reportedNodes(set, group(c));
    std::vector<int> nodes(static_cast<std::size_t>(nodeCount(set)));
    std::iota(nodes.begin(), nodes.end(), 1);
    return nodes;
}

/// What is only round-off beside `scale` prints as 0.
double cleaned(double value, double scale) { return std::abs(value) < 1e-9 * scale ? 0 : value; }

/// The largest values of each kind in a case. Where a kind is round-off all over, as the stresses under even
/// pressure are, it is measured by what causes it: by the deflection, or by the force that acts.
struct Scales {
    double w = 0, rotation = 0, force = 0, lineMoment = 0, moment = 0;
    std::array<double, 2> stress{};  ///< of each slab layer
};

Scales scalesOf(const SlabSet& set, const plate::Case& c) {
    const auto grow = [](double& scale, double value) { scale = std::max(scale, std::abs(value)); };
    Scales scales;
    double reactions = 0, extent = 0;
    for (const plate::NodeResult& r : c.nodes) {
        grow(scales.w, r.w);
        grow(scales.rotation, r.rx), grow(scales.rotation, r.ry);
        reactions += std::abs(r.reaction);
        for (std::size_t k = 0; k < r.layers.size(); ++k) {
            const plate::LayerResult& l = r.layers[k];
            grow(scales.stress[k], l.s1), grow(scales.stress[k], l.s2);
            grow(scales.lineMoment, l.mx), grow(scales.lineMoment, l.my), grow(scales.lineMoment, l.mxy);
        }
    }
    for (int s = 1; s <= set.NSLAB; ++s)
        grow(extent, set.SLAB[s].X[set.SLAB[s].NX]), grow(extent, set.SLAB[s].Y[set.SLAB[s].NY]);
    scales.force = std::max(reactions, std::abs(c.equilibrium.load));
    scales.moment = scales.force * extent;
    grow(scales.rotation, scales.w / extent);
    grow(scales.lineMoment, scales.force);
    for (int k = 1; k <= set.NLAYER; ++k)
        grow(scales.stress[static_cast<std::size_t>(k - 1)],
             scales.force / (set.LAYER[k].T * set.LAYER[k].T));
    return scales;
}

void writeContact(std::ostream& out, const SlabSet& set, const plate::ContactReport& r) {
    const int nodes = nodeCount(set);
    if (!r.checked) return;
    line(out, printed("Contact: %d cycles, %d of %d nodes in contact", r.cycles, r.byRule, nodes));
    if (r.returned > 0 || r.released > 0)
        line(out,
             printed("Check of the contact: %d nodes that would lie inside the foundation returned, %d nodes "
                     "under tension left; %d nodes in contact",
                     r.returned, r.released, r.afterCheck));
    if (r.ranOut && r.settled)
        line(
            out,
            printed("NCYCLE = %d cycles were used up while nodes were under tension; the check went on until "
                    "the contact had settled.",
                    count(set.NCYCLE.number())));
    if (r.restarted)
        line(out, "The cycles took out so many nodes that a slab lost its support; the check began anew.");
}

/// At all nodes. The detailed printout adds what a data set that continues from this one starts with.
void writeDeflections(std::ostream& out, const SlabSet& set, const plate::Case& c, const Scales& scales) {
    const SlabUnits& u = slabUnits(set.NUNIT);
    const bool detailed = set.MDPO == 1;
    line(out);
    line(out, std::string("Deflection w (") + u.length + "), rotations rx, ry, reaction (" + u.force +
                  (detailed ? std::string("); gap (") + u.length + ") and whole reaction left" : ")"));
    line(out, std::string("   Node            w           rx           ry     reaction  contact") +
                  (detailed ? "          gap        whole" : ""));
    for (int n = 1; n <= nodeCount(set); ++n) {
        const plate::NodeResult& r = at(c, n);
        const auto i = static_cast<std::size_t>(n - 1);
        std::string text = printed("  %5d", n) + cell(cleaned(r.w, scales.w));
        for (double turn : {r.rx, r.ry}) text += cell(cleaned(turn, scales.rotation));
        text += cell(cleaned(r.reaction, scales.force)) + printed("%9s", r.contact ? "yes" : "no");
        if (detailed)
            text +=
                cell(cleaned(c.state.gap[i], scales.w)) + cell(cleaned(c.state.reaction[i], scales.force));
        line(out, text);
    }
}

void writeStresses(std::ostream& out, const SlabSet& set, const plate::Case& c, const Scales& scales,
                   int layer) {
    const SlabUnits& u = slabUnits(set.NUNIT);
    line(out);
    line(out, printed("Stresses at the bottom of slab layer %d (", layer) + u.stress + "), moments (" +
                  u.lineMoment + ")");
    line(out,
         "   Node           sx           sy          sxy           s1           s2           mx           my"
         "          mxy");
    const double stress = scales.stress[static_cast<std::size_t>(layer - 1)];
    for (int n : stressNodes(set, c)) {
        const plate::LayerResult& l = at(c, n).layers[static_cast<std::size_t>(layer - 1)];
        std::string text = printed("  %5d", n);
        for (double s : {l.sx, l.sy, l.sxy, l.s1, l.s2}) text += cell(cleaned(s, stress) / u.perStress);
        for (double m : {l.mx, l.my, l.mxy}) text += cell(cleaned(m, scales.lineMoment));
        line(out, text);
    }
    const LargestStress most = largestStress(set, c, layer);
    line(out, printed("Largest principal stress %.6g ", cleaned(most.value, stress / u.perStress)) +
                  u.stress + printed(" at node %d", most.node));
}

void writeJoints(std::ostream& out, const SlabSet& set, const plate::Case& c, const Scales& scales) {
    if (c.joints.empty()) return;
    const SlabUnits& u = slabUnits(set.NUNIT);
    line(out);
    line(out, std::string("Joint forces: shear down on node b (") + u.force + "), moment (" + u.moment + ")");
    line(out, "  Joint  Node a  Node b        shear       moment         bars");
    for (const plate::JointResult& j : c.joints)
        line(out, printed("  %5d  %6d  %6d", j.joint, j.nodeA, j.nodeB) +
                      cell(cleaned(j.shear, scales.force)) + cell(cleaned(j.moment, scales.moment)) +
                      cell(j.bars));
}

}  // namespace

void writeHeading(std::ostream& out, const std::string& program, const std::string& deck, int dataSets) {
    line(out, program + " " TOLMARK_VERSION ": concrete slabs on a foundation");
    line(out, "Data file: " + deck);
    line(out, printed("Data sets: %d", dataSets));
    line(out,
         "Thin plates in rectangular elements. Downward deflection and force are positive, reactions in");
    line(out, "compression, stresses minus for tension at the bottom, moments for sagging.");
    line(out,
         "Applied moments and rotations go by the right-hand rule, x to the right, y up the plan, the third");
    line(out, "axis towards the viewer.");
}

std::vector<std::string> dataWarnings(const SlabSet& set) {
    std::vector<std::string> sentences;
    const bool weight = set.NWT.number() == 1, continues = set.INPUT.number() == 1;
    for (int k = 1; k <= set.NLAYER && weight; ++k)
        if (set.LAYER[k].GAMA == 0)
            sentences.push_back(
                printed("NWT is 1, but GAMA of slab layer %d is 0: this layer has no weight.", k));
    const auto repeated = [&](const char* name, const Variant& entries, auto node) {
        std::set<double> seen;
        for (int i = 1; i <= static_cast<int>(entries.number()); ++i)
            if (const double n = Variant(node(i)).number(); !seen.insert(n).second)
                sentences.push_back(
                    printed("Node %d stands twice in %s; the last entry counts.", static_cast<int>(n), name));
    };
    repeated("NT1", set.NAT1, [&](int i) { return set.THICK1[i].NT; });
    repeated("NT2", set.NAT2, [&](int i) { return set.THICK2[i].NT; });
    repeated("NG", set.NGAP, [&](int i) { return set.GAP[i].NG; });
    if (set.NFOUND == 0) repeated("NS", set.NAS, [&](int i) { return set.SUBGRADE[i].NS; });
    const auto twice = [&](const char* flag, const char* what) {
        sentences.push_back(
            printed("%s is 1 with INPUT = 1: %s acts once more, on top of that of the data set "
                    "before.",
                    flag, what));
    };
    if (continues && weight) twice("NWT", "the weight");
    if (continues && set.NTEMP.number() == 1) twice("NTEMP", "the temperature");
    return sentences;
}

std::vector<std::string> warnings(const SlabSet& set, const plate::Case& c) {
    std::vector<std::string> sentences;
    if (c.deflectionPassed)
        sentences.push_back(printed("The deflection %.6g at node NNCK = %d passes FMAX = %.6g.",
                                    at(c, set.NNCK).w, set.NNCK, set.FMAX.number()));
    if (c.residualPassed)
        sentences.push_back(
            printed("The residual %.3g of the equations passes DEL = %.3g: results are less accurate.",
                    c.residual, set.DEL.number()));
    if (!c.contact.settled)
        sentences.push_back("The contact did not settle: some nodes disagree with their forces.");
    return sentences;
}

void writeDataWarnings(std::ostream& out, const SlabSet& set) {
    for (const std::string& warning : dataWarnings(set)) line(out, "*** " + warning + " ***");
}

void writeCase(std::ostream& out, const SlabSet& set, const plate::Case& c) {
    const SlabUnits& u = slabUnits(set.NUNIT);
    line(out);
    line(out, std::string(78, '-'));
    line(out, caseName(c));
    for (const std::string& warning : warnings(set, c)) line(out, "*** " + warning + " ***");
    writeContact(out, set, c.contact);
    line(out, printed("Loads %.8g ", c.equilibrium.load) + u.force +
                  printed(", reactions %.8g ", c.equilibrium.reaction) + u.force +
                  printed(", out of balance %.1e of the load in force, %.1e in moment",
                          c.equilibrium.forceError, c.equilibrium.momentError));
    const Scales scales = scalesOf(set, c);
    writeDeflections(out, set, c, scales);
    for (int k = 1; k <= set.NLAYER; ++k) writeStresses(out, set, c, scales, k);
    writeJoints(out, set, c, scales);
}

void writeDamage(std::ostream& out, const SlabSet& set, const plate::Solution& solution,
                 const DamageSum& sum) {
    const SlabUnits& u = slabUnits(set.NUNIT);
    line(out);
    line(out, std::string(78, '-'));
    line(out, std::string("Damage by the edge stress in x at the printout nodes (") + u.stress +
                  ", tension positive here)");
    line(out,
         " Period Group Layer       node 1       node 2       node 3 axles       ratio      allowed    "
         "predicted"
         "        index");
    for (std::size_t i = 0; i < solution.cases.size(); ++i) {
        const int p = static_cast<int>(solution.cases[i].period) + 1, g = group(solution.cases[i]);
        for (std::size_t k = 0; k < sum.cases[i].size(); ++k) {
            const LayerDamage& d = sum.cases[i][k];
            std::string text = printed(" %6d %5d %5zu", p, g, k + 1);
            for (double t : d.tension) text += cell(t);
            text += printed(" %5d", static_cast<int>(d.passage.axles)) + printed(" %11.4f", d.ratio);
            text += std::isinf(d.allowed) ? printed(" %12s", "unlimited") : cell(d.allowed);
            line(out, text + cell(set.TNLR[p][g].number()) + cell(d.index));
        }
    }
    line(out,
         "The index counts one cycle from 0 to the largest tension, which the ratio is of, and for each "
         "further");
    line(out, "axle one from the valley between the axles.");
    row(out, "Index of each slab layer in a year", 1, set.NLAYER,
        [&](int k) { return sum.layers[static_cast<std::size_t>(k - 1)]; });
    item(out, "Design life, years", sum.life,
         sum.limited ? printed("*** limited to %g to %.2f years ***", DamageSum::SHORTEST_LIFE,
                               DamageSum::LONGEST_LIFE)
                     : "");
}

void writePlotNotes(std::ostream& out, const SlabSet& set) {
    const auto note = [&](const std::string& text) {
        line(out);
        line(out, "Note: " + text);
    };
    for (int g = 1; g <= set.NLG; ++g)
        if (set.NUDL[g] > PanProblem::PLOTTED_AREAS)
            note(printed("load group %d has %d loaded areas, the plot takes %d.", g, set.NUDL[g],
                         PanProblem::PLOTTED_AREAS));
    const int slab = loadedSlab(set, set.NLG);
    const int nodes = nodesBefore(set, slab + 1) - nodesBefore(set, slab);
    if (tableKind(set) != PanProblem::NoTable && nodes > PanProblem::PLOTTED_NODES)
        note(printed("slab %d has %d nodes, the plot takes %d.", slab, nodes, PanProblem::PLOTTED_NODES));
}
