#include "solvers/tolstrat/materials_report.h"

#include <algorithm>
#include <cmath>

#include "solvers/report_lines.h"
#include "solvers/tolstrat/units.h"

namespace {

/// A series that strays from the compliances by more than this is no longer theirs.
constexpr double DOUBTFUL_ERROR = 0.1;

bool isClay(const LayeredSet& set, int n) { return set.NOLLAY[n].NCLAY.number() != 0; }

void writeNonlinearEcho(std::ostream& out, const LayeredSet& set, const Units& units) {
    const int periods = count(set.NPY);
    line(out);
    line(out, "  Nonlinear layers");
    item(out, "Nonlinear layers NOLAY", set.NOLAY.number());
    item(out, "Maximum iterations ITENOL", set.ITENOL.number());
    item(out, "Tolerance of moduli DELNOL", set.DELNOL.number());
    row(out, "Relaxation factors RELAX", 1, periods, [&](int p) { return set.RELAX[p]; });
    item(out, "Stress point, LOAD 0: RCNOL", set.RCNOL.number(), units.length);
    item(out, "Stress point, else: XCNOL", set.XCNOL.number(), units.length);
    item(out, "                    YCNOL", set.YCNOL.number(), units.length);
    item(out, "Slope of load distribution SLD", set.SLD.number(), "added to the radius or x per depth");
    row(out, std::string("Unit weights GAM, ") + units.density, 1, count(set.NL),
        [&](int i) { return set.LAYER[i].GAM.number(); });
    for (int n = 1; n <= set.NOLAY.integer(); ++n) {
        const auto seasonal = [&](const std::string& name, int m, const char* unit) {
            row(out, "  " + name + " by period, " + unit, 1, periods,
                [&](int p) { return set.KPER[n][p][m].number(); });
        };
        line(out, printed("  Layer %d, ", set.NOLLAY[n].LAYNO.integer()) +
                      (isClay(set, n) ? "fine-grained soil" : "granular material"));
        item(out, "  Depth of stress point ZCNOL", set.NOLLAY[n].ZCNOL.number(), units.length);
        if (isClay(set, n)) {
            const auto& clay = set.KCLAY[n];
            item(out, "  Break point deviator stress K2", clay.K2.number(), units.stress);
            item(out, "  Slope below it K3", clay.K3.number());
            item(out, "  Slope above it K4", clay.K4.number());
            item(out, "  Earth pressure at rest K0", clay.K0.number());
            seasonal("EMIN", 1, units.stress);
            seasonal("EMAX", 2, units.stress);
            seasonal("K1", 3, units.stress);
        } else {
            item(out, "  Exponent K2", set.KGRAN[n].K2.number());
            item(out, "  Earth pressure at rest K0", set.KGRAN[n].K0.number());
            row(out, "  PHI, degrees; above 90 the least modulus", 1, periods,
                [&](int p) { return set.KPER[n][p][1].number(); });
            seasonal("K1", 2, units.stress);
        }
    }
}

void writeSeries(std::ostream& out, const ViscousLayer& layer) {
    const DirichletSeries& series = layer.series;
    const int terms = static_cast<int>(series.retardation.size());
    const auto at = [](const std::vector<double>& v) {
        return [&v](int i) { return v[static_cast<std::size_t>(i - 1)]; };
    };
    line(out, "    D(t) = sum of G exp(-t/T) + C through the compliances:");
    if (terms > 0) row(out, "  Retardation times T, sec", 1, terms, at(series.retardation), 4);
    if (terms > 0) row(out, "  Coefficients G", 1, terms, at(series.coefficients), 4);
    item(out, "  Constant C", series.constant);
    item(out, "  Largest error between times, %", 100 * layer.largestError,
         "against straight lines in log-log scales");
    if (layer.largestError > DOUBTFUL_ERROR)
        line(out,
             "    *** Warning: between the times the series strays from the compliances, so that results are "
             "doubtful. Give times a factor of 2 or more apart and compliances that grow. ***");
}

/// The shift factors of a layer, and where they take the times that its results depend on beyond those given.
/// A stationary load has results at all times. At the peak of a moving load half of the load is younger than
/// DUR/4 and all of it than DUR/2. For power laws the error of the superposed compliance is some per cent
/// where DUR/4 falls before the first time or DUR/2 behind the last, and grows from there on.
void writeShifts(std::ostream& out, const LayeredSet& set, const Viscoelasticity& creep,
                 const ViscousLayer& layer) {
    const double first = creep.moving() ? set.DUR.number() / 4 : creep.times.front();
    const double last = creep.moving() ? set.DUR.number() / 2 : creep.times.back();
    for (int period = 1; period <= static_cast<int>(layer.shift.size()); ++period) {
        const double a = layer.shift[static_cast<std::size_t>(period - 1)];
        if (a != 1)
            line(out, printed("    Period %d: log10 of the shift factor %.7g", period, std::log10(a)));
        if (a * first >= creep.times.front() && a * last <= creep.times.back()) continue;
        line(out,
             printed("    *** Warning: in period %d %s count as %.4g to %.4g sec, which leaves the times "
                     "given; beyond them D is that of the series. ***",
                     period, creep.moving() ? "DUR/4 to DUR/2" : "the times", a * first, a * last));
    }
}

void writeViscousEcho(std::ostream& out, const LayeredSet& set, const Viscoelasticity& creep,
                      const Units& units) {
    const int times = static_cast<int>(creep.times.size());
    line(out);
    line(out, "  Viscoelastic layers");
    item(out, "Load duration DUR", set.DUR.number(),
         creep.moving() ? "sec, moving load; results at its peak" : "stationary load; results at all times");
    item(out, "Viscoelastic layers NVL", set.NVL.number());
    row(out, "Times TYME, sec", 1, times, [&](int t) { return set.TYME[t].number(); });
    if (creep.needsSeries() && !creep.determined)
        line(out,
             "  *** Warning: the times lie too close together to determine a series; the one with the "
             "smallest coefficients is used. ***");
    int n = 0;
    for (const ViscousLayer& layer : creep.layers) {
        ++n;
        line(out, printed("  Layer %d", layer.layer));
        item(out, "  Shift constant BETA", set.VISLAY[n].BETA.number(),
             std::string("per ") + units.temperature);
        item(out, "  Reference temperature TEMPREF", set.VISLAY[n].TEMPREF.number(), units.temperature);
        row(out, std::string("  Temperatures TEMP by period, ") + units.temperature, 1, count(set.NPY),
            [&](int p) { return set.TEMP[p][n].number(); });
        row(
            out, std::string("  Compliances CREEP, per ") + units.stress, 1, times,
            [&](int t) { return set.CREEP[n][t]; }, 4);
        for (int t = 2; t <= times; ++t)
            if (set.CREEP[n][t] < set.CREEP[n][t - 1])
                line(out, printed("    *** Warning: CREEP(%d, %d) is smaller than the compliance before it, "
                                  "as if the material stiffened under load. ***",
                                  n, t));
        if (!creep.needsSeries()) {
            line(out, "    The load stays and all temperatures are TEMPREF: the moduli are 1/CREEP.");
            continue;
        }
        writeSeries(out, layer);
        writeShifts(out, set, creep, layer);
    }
}

/// What decided a modulus in place of the stresses; empty when they did.
std::string limitText(const NonlinearLayer& layer, ModulusLimit limit, const Units& units) {
    const auto bounded = [&](const char* by) {
        return printed("Layer %d: the modulus is bounded by %s.", layer.layer, by);
    };
    switch (limit) {
        case ModulusLimit::None:
            break;
        case ModulusLimit::PHI:
            return bounded("PHI");
        case ModulusLimit::EMIN:
            return bounded("EMIN");
        case ModulusLimit::EMAX:
            return bounded("EMAX");
        case ModulusLimit::LeastTheta:
            return printed(
                "*** Warning: layer %d: the sum of the principal stresses is below %g %s and "
                "counts as that. ***",
                layer.layer, std::get<GranularLaw>(layer.law).leastTheta, units.stress);
        case ModulusLimit::LeastK1:
            return printed(
                "*** Warning: layer %d: the deviator stress would leave less than 1 %% of K1, "
                "which is the least modulus. ***",
                layer.layer);
    }
    return "";
}

void writeIterations(std::ostream& out, const GroupResult& result, const Units& units) {
    const Iterations& way = result.iterations;
    line(out);
    line(out, printed("Moduli of the nonlinear layers, %s: %d iterations", units.stress, way.count()));
    std::string head = "  Iteration   Change";
    for (const NonlinearLayer& l : result.nonlinear) head += printed("      Layer %2d", l.layer);
    line(out, head);
    for (std::size_t i = 0; i < way.moduli.size(); ++i) {
        std::string text =
            printed("  %9zu ", i) + (i == 0 ? "       -" : printed("%8.5f", way.changes[i - 1]));
        for (const double E : way.moduli[i]) text += printed(" %13.7g", E);
        line(out, text);
    }
    if (!way.converged)
        line(out, printed("*** Warning: ITENOL = %d iterations were reached and the moduli still changed by "
                          "%.3g, more than DELNOL. Raise ITENOL or lower RELAX. ***",
                          way.count(), way.changes.back()));
    for (std::size_t n = 0; n < result.nonlinear.size(); ++n)
        if (const std::string limit = limitText(result.nonlinear[n], way.limits[n], units); !limit.empty())
            line(out, limit);
}

}  // namespace

void writeMaterialEcho(std::ostream& out, const LayeredSet& set, const Viscoelasticity& creep) {
    const Units& units = unitsOf(set.NUNIT);
    if (set.MATL == 2 || set.MATL == 4) writeNonlinearEcho(out, set, units);
    if (!creep.layers.empty()) writeViscousEcho(out, set, creep, units);
}

void writeModuli(std::ostream& out, const LayeredSet& set, const Viscoelasticity& creep,
                 const GroupResult& result) {
    const Units& units = unitsOf(set.NUNIT);
    if (!result.nonlinear.empty()) writeIterations(out, result, units);
    if (creep.layers.empty()) return;
    line(out);
    line(out, std::string("Moduli of the viscoelastic layers, ") + units.stress +
                  (creep.moving() ? ", of the compliances superposed with the load" : ""));
    for (const ViscousLayer& l : creep.layers)
        line(out, printed("  Layer %d: %.7g", l.layer, result.moduli[static_cast<std::size_t>(l.layer - 1)]));
}
