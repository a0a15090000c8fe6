// One load group of a data set in some of its periods: nonlinear moduli first, then all responses.
#pragma once

#include <optional>
#include <vector>

#include "layered/layered_set.h"
#include "solvers/layered_theory/layered_theory.h"
#include "solvers/tolstrat/nonlinear.h"
#include "solvers/tolstrat/viscoelastic.h"

/// Responses of one load group in one period: at one of the times for a stationary load on viscoelastic
/// layers, at the peak for a moving one.
struct GroupResult {
    int period, group;           ///< from 1
    std::optional<double> time;  ///< of a stationary load on viscoelastic layers
    std::vector<layered_theory::Position> points;
    std::vector<layered_theory::Depth> depths;
    layered_theory::Result result;  ///< responses [point * depths + depth]
    /// The same midway between axles, at the y of each point: for the damage by several axles, else empty.
    std::vector<layered_theory::Response> midway;
    std::vector<NonlinearLayer> nonlinear;
    Iterations iterations;       ///< of the nonlinear layers' moduli
    std::vector<double> moduli;  ///< of all layers, from the top, that the responses belong to
};

/// Load group `group` in periods `first` to `last`, periods outer and times inner. They share the points of
/// integration.
/// @pre the data set has passed checkLayeredSet()
std::vector<GroupResult> solveGroup(const LayeredSet& set, const Viscoelasticity& creep, int group, int first,
                                    int last);
