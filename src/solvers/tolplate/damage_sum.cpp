#include "solvers/tolplate/damage_sum.h"

#include <algorithm>

#include "solvers/tolplate/units.h"

namespace {

LayerDamage layerDamage(const SlabSet& set, const plate::Case& c, int layer) {
    const SlabSet::Layer& material = set.LAYER[layer];
    std::optional<plate::FatigueLaw> law;
    if (set.NDAMA == 2) law = {material.F1, material.F2};
    LayerDamage d{};
    for (int i = 1; i <= 3; ++i) {
        const plate::NodeResult& node = c.nodes[static_cast<std::size_t>(set.NP[i] - 1)];
        d.tension[static_cast<std::size_t>(i - 1)] =
            -node.layers[static_cast<std::size_t>(layer - 1)].sx / slabUnits(set.NUNIT).perStress;
    }
    d.passage = plate::passage(d.tension, material.PMR, law);
    d.ratio = d.passage.peak / material.PMR;
    d.allowed = plate::allowedRepetitions(d.ratio, law);
    const int period = static_cast<int>(c.period) + 1, group = static_cast<int>(c.group) + 1;
    const double repetitions = set.TNLR[period][group].number();
    d.index = repetitions > 0 ? repetitions * d.passage.damage : 0;
    return d;
}

}  // namespace

DamageSum sumDamage(const SlabSet& set, const plate::Solution& solution) {
    DamageSum sum;
    sum.layers.assign(static_cast<std::size_t>(set.NLAYER), 0);
    for (const plate::Case& c : solution.cases) {
        sum.cases.emplace_back();
        for (int k = 1; k <= set.NLAYER; ++k) {
            sum.cases.back().push_back(layerDamage(set, c, k));
            sum.layers[static_cast<std::size_t>(k - 1)] += sum.cases.back().back().index;
        }
    }
    const double life = 1 / *std::ranges::max_element(sum.layers);
    sum.life = std::clamp(life, DamageSum::SHORTEST_LIFE, DamageSum::LONGEST_LIFE);
    sum.limited = sum.life != life;
    return sum;
}
