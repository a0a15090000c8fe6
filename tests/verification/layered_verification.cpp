// Circles and wheels on layered half-spaces.
#include <algorithm>
#include <cmath>
#include <numbers>

#include "solvers/layered_theory/reference.h"
#include "solvers/report_lines.h"
#include "solvers/tolstrat/analysis.h"
#include "support/layered_roads.h"
#include "verification/rows.h"

namespace verification {
namespace {

using namespace layered_theory;

constexpr double a = 6, q = 100;  // contact radius in in., contact pressure in psi

AxisymmetricResponse solveAt(const Structure& structure, double r, double z, double pressure = q) {
    return solveAxisymmetric({&structure, 1}, a, pressure, {&r, 1}, std::vector<Depth>{{z}})[0].responses[0];
}

void closedForms() {
    head("Closed forms",
         "A circle of radius 6 in. under 100 psi on a half-space, E = 10000 psi, PR = .3, entered as three "
         "equal layers of 2 in., 3 in. and infinite thickness, so that the whole machinery works.",
         1e-9);
    const double E = 10000, nu = .3;
    const Structure layers{{{2, E, nu}, {3, E, nu}, {0, E, nu}}, {}};
    for (double z : {2., 6., 30.}) {
        const AxisymmetricResponse y = solveAt(layers, 0, z), right = reference::onAxis(E, nu, a, q, z);
        const auto rowOf = [&](const char* name, double expected, double computed, double scale) {
            row(printed(name, z), "Foster and Ahlvin 1954", expected, computed, scale);
        };
        const double stress = std::max(right.szz, std::abs(right.srr));
        rowOf("w, r = 0, z = %g in.", right.w, y.w, right.w);
        rowOf("szz, r = 0, z = %g in., psi", right.szz, y.szz, stress);
        rowOf("srr, r = 0, z = %g in., psi", right.srr, y.srr, stress);
    }
    const double centre = 2 * (1 - nu * nu) * q * a / E;
    row("w, centre of the surface, in.", "Boussinesq 1885", centre, solveAt(layers, 0, 0).w, centre);
    row("w, edge of the surface, in.", "Love 1929", 2 / M_PI * centre, solveAt(layers, a, 0).w, centre);
    const auto w = static_cast<double>(reference::surfaceOfHalfSpace(nu, a, 2 * a).w),
               outside = q * (1 + nu) / E * w;
    row("w, surface, r = 12 in., in.", "Love 1929", outside, solveAt(layers, 2 * a, 0).w, outside);
}

void publishedTables() {
    head("Published tables",
         "Pressure on the interface below the centre of the load, two layers, PR = .5, thickness = radius, "
         "as a share of the contact pressure. The source has three digits.",
         1e-3);
    for (const auto& [ratio, pressure] : {std::pair(1., .646), {10., .292}, {100., .081}})
        row(printed("E1/E2 = %g", ratio), "Fox 1948", pressure,
            solveAt({{{a, ratio, .5}, {0, 1, .5}}, {}}, 0, a).szz / q, 1, "%.3f");
}

void secondCalculation() {
    head("A second calculation",
         "The same responses by another route: impedances of the layers from matrix exponentials in extended "
         "precision and a brute quadrature. The quantity shown is the radial strain at the place named; the "
         "error is relative to the largest strain there.",
         1e-6);
    const Structure road{{{6, 4e5, .35}, {8, 3e4, .3}, {0, 8e3, .45}}, {}},
        stiffOverSoft{{{6, 1e6, .3}, {0, 1e3, .4}}, {}}, softOverStiff{{{6, 1e3, .5}, {0, 1e6, .2}}, {}},
        twoLayers{{{6, 4e5, .35}, {0, 8e3, .45}}, {}},
        thinTop{{{.6, 1e6, .3}, {6, 1e3, .5}, {0, 1e4, .2}}, {}},
        frictionless{{{6, 1e3, .3}, {6, 1e6, .5}, {0, 1e3, .2}}, {false, false}},
        stepped{{{6, 1e5, .3}, {6, 1e4, .5}, {0, 1e3, .4}}, {}};
    const struct {
        const char* name;
        Structure structure;
        double r, z;
    } cases[] = {
        {"three layers, r = 0, z = 6", road, 0, 6},
        {"three layers, r = 13.5, z = 14.001", road, 13.5, 14.001},
        {"1000:1, r = 6 (edge), z = 6", stiffOverSoft, 6, 6},
        {"1:1000, PR = .5, r = 0, z = 3", softOverStiff, 0, 3},
        {"surface, r = 3, z = 0", stiffOverSoft, 3, 0},
        {"just below the surface, z = .001", twoLayers, 3, .001},
        {"thin stiff layer (.6 in.), z = .6", thinTop, 0, .6},
        {"frictionless interfaces, z = 12", frictionless, 0, 12},
        {"far point, r = 600, z = 6", stepped, 600, 6},
        {"19 layers, 5 of 18 interfaces frictionless, z = 18", reference::nineteenLayers(a, 1e3), 0, 18},
    };
    for (const auto& [name, structure, r, z] : cases) {
        const AxisymmetricResponse expected = reference::solve(structure, a, q, {r}, z)[0];
        const double scale =
            std::max({std::abs(expected.err), std::abs(expected.ett), std::abs(expected.ezz)});
        row(name, "second calculation", expected.err, solveAt(structure, r, z).err, scale);
    }
}

void viscoelasticHalfSpace() {
    head("Viscoelastic half-space",
         "Deflection at the centre of a load of 50 psi on a circle of 6 in., PR = .3, of the compliance D(t) "
         "= 1e-6 + 9e-6 (1 - exp(-t/T)) per psi, given with seven digits at 11 times from .001 to 100 sec. "
         "The first T is one of the series, the other two show what collocation leaves.",
         1e-3);
    const auto deflections = [&](double duration, const ExponentialCreep& creep) {
        const auto store = viscousHalfSpace(duration, HALF_DECADES, creep);
        const LayeredSet& set = store->layered[1];
        std::vector<double> w;
        for (const auto& result : solveGroup(set, viscoelasticity(set, 1), 1, 1, 1))
            w.push_back(result.result.responses[0].w);
        return w;
    };
    ExponentialCreep creep;
    creep.tau = std::sqrt(.1 * .3);
    const auto stationary = deflections(0, creep);
    for (std::size_t i : {0, 4, 10}) {
        const double t = HALF_DECADES[i], expected = centreDeflection(creep.at(t));
        row(printed("stationary load, %g sec, in.", t), "Boussinesq 1885", expected, stationary[i], expected);
    }
    for (double tau : {creep.tau, .07, .4}) {
        creep.tau = tau;
        const double expected = centreDeflection(atPeak(.1, [&](double t) { return creep.at(t); }));
        row(printed("moving load, .1 sec, T = %.4g sec, in.", tau), "convolution by summation", expected,
            deflections(.1, creep)[0], expected);
    }
}

void nonlinearLayer() {
    head("Nonlinear layer",
         "Modulus in psi of a granular layer of 12 in. on a linear subgrade, where E = K1 theta^K2 meets "
         "theta of E, DELNOL = 1e-10. PHI = 0 allows no tension.",
         1e-9);
    const auto store = nonlinearStore();
    LayeredSet& set = store->layered[1];
    set.NOLAY = 1, set.ITENOL = 200, set.DELNOL = 1e-10;
    for (double PHI : {0., 45.}) {
        set.KPER[1][1][1] = PHI;
        const double least = PHI == 0 ? 0 : std::pow(std::tan((45 - PHI / 2) * std::numbers::pi / 180), 2);
        double below = 1000, above = 1e6;
        while (above - below > 1e-10 * below) {
            const double E = (below + above) / 2;
            const auto y = solveAt({{{12, E, .35}, {0, 7000, .45}}, {}}, 0, 6, 60);
            const double weight = 135 * 6 / 1728., vertical = y.szz + weight;
            const double theta = vertical + 2 * std::max(y.srr + .6 * weight, least * vertical);
            (6000 * std::sqrt(theta) > E ? below : above) = E;
        }
        row(printed("PHI = %g", PHI), "bisection", below, solveGroup(set, {}, 1, 1, 1)[0].moduli[0], below);
    }
}

}  // namespace

void layered() {
    closedForms();
    publishedTables();
    secondCalculation();
    viscoelasticHalfSpace();
    nonlinearLayer();
}

}  // namespace verification
