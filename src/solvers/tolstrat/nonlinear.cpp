#include "solvers/tolstrat/nonlinear.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

/// Below this sum of stresses a granular material would have no modulus: psi, kPa.
constexpr double LEAST_THETA = 0.1, LEAST_THETA_SI = 0.7;

/// The lines of a clay end at this part of the modulus at the break point.
constexpr double LEAST_CLAY_PART = 0.01;

/// pcf times in. gives psi, kN/m^3 times cm gives kPa.
constexpr double PCF_INCHES_IN_PSI = 1728, DENSITY_CM_IN_KPA = 100;

double topOf(const LayeredSet& set, int layer) {
    double top = 0;
    for (int i = 1; i < layer; ++i) top += set.LAYER[i].TH.number();
    return top;
}

/// Weight on a horizontal plane at depth z of `layer`.
double weightAbove(const LayeredSet& set, int layer, double z) {
    double weight = set.LAYER[layer].GAM.number() * (z - topOf(set, layer));
    for (int i = 1; i < layer; ++i) weight += set.LAYER[i].GAM.number() * set.LAYER[i].TH.number();
    return weight / (set.NUNIT == 0 ? PCF_INCHES_IN_PSI : DENSITY_CM_IN_KPA);
}

/// A deck's depth may miss the boundary of its layer by rounding.
double withinLayer(const LayeredSet& set, int layer, double z) {
    const double top = topOf(set, layer);
    return layer < static_cast<int>(set.NL) ? std::clamp(z, top, top + set.LAYER[layer].TH.number())
                                            : std::max(z, top);
}

}  // namespace

LawModulus GranularLaw::modulus(const std::array<double, 3>& s) const {
    double theta = s[0] + s[1] + s[2];
    if (PHI <= 90) {
        const double angle = (PHI == 0 ? 90 : PHI) * std::numbers::pi / 180;
        const double least = s[0] * std::pow(std::tan(std::numbers::pi / 4 - angle / 2), 2);
        theta = s[0] + std::max(s[1], least) + std::max(s[2], least);
    }
    const double E = K1 * std::pow(std::max(theta, leastTheta), K2);
    const bool least = PHI > 90 && PHI > E;
    return {least ? PHI : E, theta < leastTheta ? ModulusLimit::LeastTheta
                             : least            ? ModulusLimit::PHI
                                                : ModulusLimit::None};
}

LawModulus ClayLaw::modulus(const std::array<double, 3>& s) const {
    const double deviator = s[0] - (s[1] + s[2]) / 2;
    LawModulus E{K1 + (deviator < K2 ? K3 : K4) * (K2 - deviator), ModulusLimit::None};
    if (E.modulus < EMIN) E = {EMIN, ModulusLimit::EMIN};
    if (EMAX != 0 && E.modulus > EMAX) E = {EMAX, ModulusLimit::EMAX};
    const double least = LEAST_CLAY_PART * K1;
    return E.modulus < least ? LawModulus{least, ModulusLimit::LeastK1} : E;
}

LawModulus NonlinearLayer::modulus(layered_theory::Tensor stress) const {
    stress.xx += horizontal;
    stress.yy += horizontal;
    stress.zz += vertical;
    return std::visit([&](const auto& l) { return l.modulus(layered_theory::principalValues(stress)); }, law);
}

std::vector<NonlinearLayer> nonlinearLayers(const LayeredSet& set, int period, int group) {
    std::vector<NonlinearLayer> layers;
    if (set.MATL != 2 && set.MATL != 4) return layers;
    const bool single = set.LOADL[group].LOAD.number() == 0;
    for (int n = 1; n <= set.NOLAY.integer(); ++n) {
        const int layer = set.NOLLAY[n].LAYNO.integer();
        const double z = set.NOLLAY[n].ZCNOL.number(), spread = set.SLD.number() * z;
        NonlinearLayer l;
        l.layer = layer;
        l.at = single ? layered_theory::Position{set.RCNOL.number() + spread, 0}
                      : layered_theory::Position{set.XCNOL.number() + spread, set.YCNOL.number()};
        l.depth = {withinLayer(set, layer, z), layer - 1};
        l.vertical = weightAbove(set, layer, l.depth.z);
        const auto& seasonal = set.KPER[n][period];
        if (set.NOLLAY[n].NCLAY.number() != 0) {
            const auto& clay = set.KCLAY[n];
            l.horizontal = clay.K0.number() * l.vertical;
            l.law = ClayLaw{seasonal[3].number(), clay.K2.number(),     clay.K3.number(),
                            clay.K4.number(),     seasonal[1].number(), seasonal[2].number()};
        } else {
            l.horizontal = set.KGRAN[n].K0.number() * l.vertical;
            l.law = GranularLaw{seasonal[2].number(), set.KGRAN[n].K2.number(), seasonal[1].number(),
                                set.NUNIT == 0 ? LEAST_THETA : LEAST_THETA_SI};
        }
        layers.push_back(l);
    }
    return layers;
}

std::vector<double> startModuli(const LayeredSet& set, int period,
                                const std::vector<NonlinearLayer>& layers) {
    std::vector<double> start;
    for (const NonlinearLayer& l : layers) {
        const double E = set.EMOD[period][l.layer].number();
        start.push_back(E != 0 ? E : std::visit([](const auto& law) { return law.K1; }, l.law));
    }
    return start;
}

Iterations iterateModuli(const std::vector<NonlinearLayer>& layers, std::vector<double> start,
                         const IterationControl& control, const StressesOf& stressesOf) {
    Iterations way;
    way.limits.resize(layers.size());
    way.moduli.push_back(std::move(start));
    do {
        std::vector<double> moduli = way.moduli.back();
        const auto stresses = stressesOf(moduli);
        double largest = 0;
        for (std::size_t n = 0; n < layers.size(); ++n) {
            const auto [target, limit] = layers[n].modulus(stresses[n]);
            largest = std::max(largest, std::abs(target - moduli[n]) / moduli[n]);
            moduli[n] += control.relax * (target - moduli[n]);
            way.limits[n] = limit;
        }
        way.changes.push_back(largest);
        way.moduli.push_back(std::move(moduli));
        way.converged = largest <= control.tolerance;
    } while (!way.converged && way.count() < control.most);
    return way;
}
