// Viscoelastic layers: creep compliances at the temperature of a period, and responses to a load that comes
// and goes.
//
// Time and temperature are exchangeable (Leaderman 1943; Williams, Landel and Ferry 1955): D(t, T) = D(a t,
// TEMPREF), log10 a = BETA (T - TEMPREF), so that a layer is softer when it is warmer. Under a load that
// stays the layers respond at time t like elastic ones with moduli 1/D(t); that quasi-elastic step response
// is superposed for a moving load (Schapery 1965).
#pragma once

#include <span>
#include <vector>

#include "layered/layered_set.h"
#include "solvers/layered_theory/layered_theory.h"
#include "solvers/tolstrat/creep.h"

struct ViscousLayer {
    int layer;                                     ///< from 1
    std::vector<double> given;                     ///< compliances at the reference temperature, one a time
    DirichletSeries series;                        ///< through them
    double largestError;                           ///< of the series between the times, relative
    std::vector<double> shift;                     ///< a, by period from 0
    std::vector<std::vector<double>> compliances;  ///< [period from 0][time]
};

struct Viscoelasticity {
    std::vector<double> times;
    /// What the response at each time counts at the peak of a moving load; empty for a stationary load.
    std::vector<double> weights;
    bool determined = true;  ///< false: the times lie too close for a series
    std::vector<ViscousLayer> layers;

    bool moving() const { return !weights.empty(); }
    bool stationary() const { return !layers.empty() && weights.empty(); }
    /// A stationary load at the reference temperatures needs the given compliances only.
    bool needsSeries() const;
    /// Modulus of a layer: of a stationary load at a time, else that of the compliance superposed with the
    /// load.
    double modulus(const ViscousLayer& layer, int period, std::size_t time) const;
};

/// The viscoelastic layers of a data set, none for MATL 1 and 2.
/// @param number of the data set, for messages
/// @throws std::runtime_error with a sentence where a series gives a compliance that is not above 0
Viscoelasticity viscoelasticity(const LayeredSet& set, int number);

/// The sum of weights times results at the same points and depths. Principal values are those of the
/// superposed tensors.
layered_theory::Result superpose(std::span<const layered_theory::Result> results,
                                 std::span<const double> weights);
