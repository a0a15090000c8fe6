#include "solvers/tolstrat/report.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "plots/bed_file.h"
#include "solvers/report_lines.h"
#include "solvers/tolstrat/damage_report.h"
#include "solvers/tolstrat/loads.h"
#include "solvers/tolstrat/materials_report.h"
#include "solvers/tolstrat/plot_file.h"
#include "solvers/tolstrat/units.h"

namespace {

using layered_theory::Response;

/// Components below this share of the largest beside them are round-off and print as 0.
constexpr double ROUND_OFF = 1e-12;

bool smaller(double a, double b) { return std::abs(a) < std::abs(b); }

constexpr std::array<const char*, 4> MATERIAL_WORDS = {"all layers linear elastic", "nonlinear layers",
                                                       "viscoelastic layers",
                                                       "nonlinear and viscoelastic layers"};

constexpr std::array<const char*, 4> LOAD_WORDS = {"single axle, single tire", "single axle, dual tires",
                                                   "tandem axles", "tridem axles"};

void writeLoadEcho(std::ostream& out, const LayeredSet& set, int group, const Units& units) {
    const LayeredSet::Load& load = set.LOADL[group];
    const int kind = count(load.LOAD.number());
    const int points = count(load.NR.number());
    line(out);
    line(out, printed("  Load group %d", group));
    item(out, "LOAD", kind, LOAD_WORDS.at(static_cast<std::size_t>(kind)));
    item(out, "Contact radius CR", load.CR.number(), units.length);
    item(out, "Contact pressure CP", load.CP.number(), units.stress);
    if (kind == 0) {
        row(out, std::string("Radial coordinates RC, ") + units.length, 1, points,
            [&](int j) { return set.RC[group][j].number(); });
        return;
    }
    item(out, "Dual spacing YW along y", load.YW.number(), units.length);
    if (kind > 1) item(out, "Axle spacing XW along x", load.XW.number(), units.length);
    const double wheel = 2 * load.CR.number(), YW = load.YW.number();
    if ((YW > 0 && YW < wheel) || (kind > 1 && load.XW.number() < wheel))
        line(out,
             "  *** Warning: loaded areas overlap, and their pressures are added; are CR and CP, or XW and "
             "YW, "
             "exchanged? ***");
    row(out, std::string("Points XPT, ") + units.length, 1, points,
        [&](int j) { return set.PT[group][j].XPT.number(); });
    row(out, std::string("       YPT, ") + units.length, 1, points,
        [&](int j) { return set.PT[group][j].YPT.number(); });
}

/// A block of the result table: its head, its columns, and how a response fills them.
struct Block {
    double fromNstd;
    const char* title;
    std::array<const char*, 9> heads;
    std::array<double, 9> (*values)(const Response&);
    bool stress;
};

std::array<double, 9> components(const layered_theory::Tensor& t, const std::array<double, 3>& principal) {
    return {t.xx, t.yy, t.zz, t.xy, t.xz, t.yz, principal[0], principal[1], principal[2]};
}

constexpr std::array<Block, 2> BLOCKS = {
    Block{5,
          "Stresses",
          {"sxx", "syy", "szz", "sxy", "sxz", "syz", "s1", "s2", "s3"},
          [](const Response& r) { return components(r.stress, r.principalStress); },
          true},
    Block{9,
          "Strains",
          {"exx", "eyy", "ezz", "exy", "exz", "eyz", "e1", "e2", "e3"},
          [](const Response& r) { return components(r.strain, r.principalStrain); },
          false}};

std::string placeText(const GroupResult& group, std::size_t point, std::size_t depth) {
    const auto& at = group.points[point];
    return printed(" %4zu %10.5g %10.5g %10.7g", point + 1, at.x, at.y, group.depths[depth].z);
}

constexpr const char* PLACE_HEAD = "   Pt          x          y          z";

/// Calls `write(point, depth, response)` in the order of the tables.
void eachResponse(const GroupResult& group, auto write) {
    for (std::size_t point = 0; point < group.points.size(); ++point) {
        for (std::size_t depth = 0; depth < group.depths.size(); ++depth) {
            write(point, depth, group.result.responses[point * group.depths.size() + depth]);
        }
    }
}

}  // namespace

void writeHeading(std::ostream& out, const std::string& deck, int dataSets) {
    line(out, "TOLSTRAT " TOLMARK_VERSION ": stresses, strains and displacements of layered pavements");
    line(out, "Data file: " + deck);
    line(out, printed("Data sets: %d", dataSets));
    line(out, "Elastic layers, last one infinite; circular uniform vertical loads, superposed.");
    line(out, "Compression and downward displacement are positive; shear strains are tensor components.");
    line(out, "At an interface the values are those at the bottom of the upper layer.");
}

void writeEcho(std::ostream& out, const LayeredSet& set, int n, const Viscoelasticity& creep) {
    const Units& units = unitsOf(set.NUNIT);
    const int layers = count(set.NL);
    line(out);
    line(out, std::string(78, '='));
    line(out, printed("Data set %d: ", n) + set.TITLE);
    line(out);
    line(out, std::string("Input, units: ") + units.length + ", " + units.stress);
    item(out, "Material type MATL", set.MATL, MATERIAL_WORDS.at(static_cast<std::size_t>(set.MATL - 1)));
    item(out, "Periods NPY", set.NPY);
    item(out, "Load groups NLG", set.NLG);
    item(out, "Tolerance of integration DEL", set.DEL);
    item(out, "Maximum cycles ICL", set.ICL);
    const double responses = responsesOf(set);
    item(out, "Responses NSTD", set.NSTD,
         responses == 1   ? "displacements"
         : responses == 5 ? "displacements, stresses"
                          : "displacements, stresses, strains");
    item(out, "Layers NL", layers);
    row(out, std::string("Thickness TH, ") + units.length, 1, layers - 1,
        [&](int i) { return set.LAYER[i].TH.number(); });
    row(out, "Poisson's ratio PR", 1, layers, [&](int i) { return set.LAYER[i].PR.number(); });
    if (set.NBOND == 1) {
        line(out, "  All interfaces bonded");
    } else {
        row(out, "Interfaces INT (1 bonded)", 1, layers - 1, [&](int i) { return set.INTF[i]; });
    }
    for (int period = 1; period <= count(set.NPY); ++period) {
        row(out, printed("Modulus E of period %d, ", period) + units.stress, 1, layers,
            [&](int i) { return set.EMOD[period][i].number(); });
    }
    if (set.NDAMA == 0)
        row(out, std::string("Depths ZC, ") + units.length, 1, count(set.NZ),
            [&](int i) { return set.ZC[i].number(); });
    for (int group = 1; group <= count(set.NLG); ++group) writeLoadEcho(out, set, group, units);
    writeMaterialEcho(out, set, creep);
    if (set.NDAMA > 0) writeDamageEcho(out, set);
}

void writeResults(std::ostream& out, const LayeredSet& set, const Viscoelasticity& creep,
                  const GroupResult& group) {
    const Units& units = unitsOf(set.NUNIT);
    line(out);
    line(out, std::string(78, '-'));
    line(out,
         printed("Period %d, load group %d%s: %d cycles of integration", group.period, group.group,
                 group.time ? printed(", time %.7g sec", *group.time).c_str() : "", group.result.cycles));
    if (!group.result.converged) {
        line(out,
             printed("*** ICL = %d cycles were reached before the tolerance DEL was met: rows marked * are "
                     "less accurate. Raise ICL. ***",
                     count(set.ICL)));
    }
    writeModuli(out, set, creep, group);

    line(out);
    line(out, std::string("Vertical displacement w, ") + units.length);
    line(out, std::string(PLACE_HEAD) + "            w");
    eachResponse(group, [&](std::size_t point, std::size_t depth, const Response& response) {
        line(out, placeText(group, point, depth) + cell(response.w) + (response.converged ? "" : " *"));
    });

    for (const Block& block : BLOCKS) {
        if (responsesOf(set) < block.fromNstd) continue;
        line(out);
        line(out, block.title + (block.stress ? std::string(", ") + units.stress : ""));
        std::string head = PLACE_HEAD;
        for (const char* name : block.heads) head += printed(" %12s", name);
        line(out, head);
        eachResponse(group, [&](std::size_t point, std::size_t depth, const Response& response) {
            const auto values = block.values(response);
            const double largest = std::abs(*std::max_element(values.begin(), values.end(), smaller));
            std::string text = placeText(group, point, depth);
            for (double value : values) text += cell(std::abs(value) < ROUND_OFF * largest ? 0 : value);
            line(out, text + (response.converged ? "" : " *"));
        });
    }
    if (set.NDAMA == 2) writeDamageDetail(out, set, group);
}

void writePlotNotes(std::ostream& out, const LayeredSet& set) {
    for (int group = 1; group <= count(set.NLG); ++group) {
        if (set.LOADL[group].LOAD.number() == 0 && set.LOADL[group].NR.number() > BedProblem::RADIAL_POINTS) {
            line(out);
            line(out,
                 printed("Note: load group %d has more than %d radial coordinates, with which BEDPLOT stops.",
                         group, BedProblem::RADIAL_POINTS));
        }
    }
    if (!fitsPlotFile(set)) {
        line(out);
        line(out, printed("Note: NLBT and NLTC together are more than %d locations, which a plot file cannot "
                          "hold: there is none.",
                          PLOTTED_LOCATIONS));
    }
    if (set.NL == 1) {
        line(out);
        line(out, "Note: a half-space has no layers, which the plot cannot show.");
    }
}
