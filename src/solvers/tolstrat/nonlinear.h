// Nonlinear layers: moduli that depend on the stress at one point of the layer, found by iteration.
//
// Granular materials: E = K1 theta^K2, theta the sum of the principal stresses (Hicks and Monismith 1971,
// Highway Res. Rec. 345), which the strength of the material limits by the Mohr-Coulomb rule. Fine-grained
// soils: two straight lines over the deviator stress (Thompson and Robnett 1979, Transp. Eng. J. 105, TE1).
// Stresses are those of the loads plus those of the weight of the layers; compression is positive.
#pragma once

#include <array>
#include <functional>
#include <variant>
#include <vector>

#include "layered/layered_set.h"
#include "solvers/layered_theory/layered_theory.h"

/// What took the place of the modulus that the stresses give. PHI, EMIN and EMAX are the user's; the least
/// sum of stresses and the least part of K1 keep a modulus above 0.
enum class ModulusLimit { None, PHI, EMIN, EMAX, LeastTheta, LeastK1 };

struct LawModulus {
    double modulus;
    ModulusLimit limit;
};

/// Stresses and K1 in one unit.
struct GranularLaw {
    double K1, K2;
    /// Angle of internal friction in degrees: 0 and 90 allow no tension; above 90 there is no limit on the
    /// stresses and PHI is the least modulus.
    double PHI;
    double leastTheta;

    /// @param s principal total stresses, the largest first
    LawModulus modulus(const std::array<double, 3>& s) const;
};

/// Stresses and moduli in one unit; K2 is the deviator stress at the break point, where the modulus is K1.
struct ClayLaw {
    double K1, K2, K3, K4;
    double EMIN, EMAX;  ///< EMAX 0: no upper limit

    LawModulus modulus(const std::array<double, 3>& s) const;
};

struct NonlinearLayer {
    int layer;                    ///< from 1
    layered_theory::Position at;  ///< of its stress point
    layered_theory::Depth depth;
    double vertical, horizontal;  ///< geostatic stresses there
    std::variant<GranularLaw, ClayLaw> law;

    /// @param stress from the loads, at the stress point
    LawModulus modulus(layered_theory::Tensor stress) const;
};

/// The nonlinear layers of a data set in one period under one load group, in the order of the deck; none for
/// MATL 1 and 3.
std::vector<NonlinearLayer> nonlinearLayers(const LayeredSet& set, int period, int group);

/// The moduli with which an iteration begins: those of the deck, and where they are 0 K1.
std::vector<double> startModuli(const LayeredSet& set, int period, const std::vector<NonlinearLayer>& layers);

/// How an iteration goes on and ends.
struct IterationControl {
    double relax;      ///< part of the way to the law's modulus that a step goes, above 0 and at most 1
    double tolerance;  ///< relative change of the moduli
    int most;          ///< iterations
};

/// The way of the moduli, [iteration][nonlinear layer]: first those of the start, last those of the results.
struct Iterations {
    std::vector<std::vector<double>> moduli;
    std::vector<double> changes;       ///< of each iteration: largest |E of the law - E| / E before its step
    std::vector<ModulusLimit> limits;  ///< that held in the last iteration, by nonlinear layer
    bool converged = true;

    int count() const { return static_cast<int>(changes.size()); }
};

/// Stresses from the loads at the stress points, for given moduli of the nonlinear layers.
using StressesOf = std::function<std::vector<layered_theory::Tensor>(const std::vector<double>& moduli)>;

/// Takes steps of E += relax (E of the law - E) until no layer's modulus is off by more than the tolerance.
/// That is tested before the step, which is taken all the same.
Iterations iterateModuli(const std::vector<NonlinearLayer>& layers, std::vector<double> start,
                         const IterationControl& control, const StressesOf& stressesOf);
