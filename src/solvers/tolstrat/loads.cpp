#include "solvers/tolstrat/loads.h"

#include "solvers/tolstrat/damage.h"

namespace {

int count(double value) { return static_cast<int>(value); }

}  // namespace

layered_theory::Load wheelsOf(const LayeredSet& set, int group) {
    const LayeredSet::Load& load = set.LOADL[group];
    layered_theory::Load wheels{load.CR.number(), load.CP.number(), {}};
    const int kind = count(load.LOAD.number());
    if (kind == 0) {
        wheels.wheels = {{0, 0}};
        return wheels;
    }
    const double spacing = kind > 1 ? load.XW.number() : 0;
    for (int axle = 0; axle < kind; ++axle) {
        wheels.wheels.push_back({axle * spacing, 0});
        if (load.YW.number() != 0) wheels.wheels.push_back({axle * spacing, load.YW.number()});
    }
    return wheels;
}

std::vector<layered_theory::Position> pointsOf(const LayeredSet& set, int group) {
    const LayeredSet::Load& load = set.LOADL[group];
    std::vector<layered_theory::Position> points;
    for (int j = 1; j <= count(load.NR.number()); ++j) {
        if (load.LOAD.number() == 0) {
            points.push_back({set.RC[group][j].number(), 0});
        } else {
            points.push_back({set.PT[group][j].XPT.number(), set.PT[group][j].YPT.number()});
        }
    }
    return points;
}

std::vector<layered_theory::Depth> depthsOf(const LayeredSet& set) {
    std::vector<layered_theory::Depth> depths;
    if (set.NDAMA > 0) {
        for (const DamageLocation& l : damageLocations(set)) depths.push_back({l.z, l.layer - 1});
        return depths;
    }
    for (int i = 1; i <= count(set.NZ); ++i) depths.push_back({set.ZC[i].number()});
    return depths;
}

layered_theory::Structure structureOf(const LayeredSet& set, int period) {
    layered_theory::Structure structure;
    const int layers = count(set.NL);
    for (int i = 1; i <= layers; ++i) {
        const double thickness = i < layers ? set.LAYER[i].TH.number() : 0;
        structure.layers.push_back({thickness, set.EMOD[period][i].number(), set.LAYER[i].PR.number()});
        if (i < layers) structure.bonded.push_back(set.NBOND == 1 || set.INTF[i] == 1);
    }
    return structure;
}

double responsesOf(const LayeredSet& set) { return set.NDAMA > 0 ? 9 : set.NSTD; }
