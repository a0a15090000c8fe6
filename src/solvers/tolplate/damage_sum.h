// The damage that the predicted repetitions do to the slab layers.
#pragma once

#include <array>
#include <vector>

#include "slab/slab_set.h"
#include "solvers/plate/damage.h"
#include "solvers/plate/plate.h"

/// One slab layer in one period under one load group.
struct LayerDamage {
    std::array<double, 3> tension;  ///< at the three printout nodes, along x, deck units; positive tears
    plate::Passage passage;
    double ratio;    ///< largest tension over the modulus of rupture
    double allowed;  ///< repetitions by that ratio alone, infinite where it does no harm
    double index;    ///< predicted repetitions times the damage of one passage
};

struct DamageSum {
    static constexpr double SHORTEST_LIFE = 0.01, LONGEST_LIFE = 9999.99;  ///< what the plot can show, years

    std::vector<std::vector<LayerDamage>> cases;  ///< [case of the solution][layer]
    std::vector<double> layers;                   ///< sums of the layers' indices in a year
    double life = 0;                              ///< years, of the layer with the greatest sum
    bool limited = false;                         ///< the life was beyond what can be shown
};

/// @pre NDAMA is not 0
DamageSum sumDamage(const SlabSet& set, const plate::Solution& solution);
