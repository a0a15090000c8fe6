#include "slab/slab_check.h"

#include <limits>

#include "slab/slab_cards.h"
#include "store/card_check.h"
#include "store/store.h"

namespace {

using Set = SlabSet;

/// Largest Poisson's ratio of a layer.
constexpr Double INCOMPRESSIBLE = .5;

bool isNode(Double x, const SlabSet& s) {
    int nodes = 0;
    for (int n = 1; n <= s.NSLAB; ++n) nodes += s.SLAB[n].NX * s.SLAB[n].NY;
    return isWhole(x, 1, nodes);
}

bool isFlag(Double x) { return x == 0 || x == 1; }
bool isRatio(Double x) { return x > -1 && x <= INCOMPRESSIBLE; }

/// Grid line k starts at 0 or lies beyond the one before.
bool grows(const Bounded<Single, 25>& grid, int k) { return k == 1 ? grid[1] == 0 : grid[k] > grid[k - 1]; }

#define HOLDS VALUE_HOLDS

constexpr const char* NODE_DEMAND = "there is no such node";
constexpr const char* FLAG_DEMAND = "it must be 0 or 1";
constexpr const char* LIST_DEMAND = "there must be 0 to 120 entries";
constexpr const char* AXIS_DEMAND = "there must be 0 to 50 nodes";
constexpr const char* GRID_DEMAND = "a slab must have 2 to 25 nodes in each direction";
constexpr const char* LINE_DEMAND = "coordinates must start from 0 and increase";
constexpr const char* THICKNESS_DEMAND = "the thickness must be greater than 0";
constexpr const char* MODULUS_DEMAND = "the modulus must be greater than 0";
constexpr const char* RATIO_DEMAND = "Poisson's ratio must be above -1 and at most .5";
constexpr const char* WEIGHT_DEMAND = "the unit weight must not be negative";
constexpr const char* RUPTURE_DEMAND =
    "the modulus of rupture must be greater than 0 for the damage analysis";
constexpr const char* FATIGUE_DEMAND = "the fatigue coefficient must be greater than 0 when NDAMA is 2";
constexpr const char* SPRING_DEMAND = "it must not be negative";
constexpr const char* JOINT_DEMAND = "there is no such joint";

const ValueRule<Set> rules[] = {
    {3, "NFOUND", HOLDS(isWhole(x, 0, 2)), "NFOUND must be 0, 1 or 2"},
    {3, "NDAMA", HOLDS(isWhole(x, 0, 2)), "NDAMA must be 0, 1 or 2"},
    {3, "NPY", HOLDS(isWhole(x, 1, 12)), "there must be 1 to 12 periods"},
    {3, "NLG", HOLDS(isWhole(x, 1, 12)), "there must be 1 to 12 load groups"},
    {4, "NSLAB", HOLDS(isWhole(x, 1, 6)), "there must be 1 to 6 slabs"},
    {4, "NJOINT", HOLDS(isWhole(x, 0, 7)), "there must be 0 to 7 joints"},
    {5, "NX", HOLDS(isWhole(x, 2, 25)), GRID_DEMAND},
    {5, "NY", HOLDS(isWhole(x, 2, 25)), GRID_DEMAND},
    {5, "JONO1", HOLDS(isWhole(x, 0, s.NJOINT)), JOINT_DEMAND},
    {5, "JONO2", HOLDS(isWhole(x, 0, s.NJOINT)), JOINT_DEMAND},
    {5, "JONO3", HOLDS(isWhole(x, 0, s.NJOINT)), JOINT_DEMAND},
    {5, "JONO4", HOLDS(isWhole(x, 0, s.NJOINT)), JOINT_DEMAND},

    {6, "NLAYER", HOLDS(isWhole(x, 1, 2)), "there must be 1 or 2 slab layers"},
    {6, "NNCK", HOLDS(isNode(x, s)), NODE_DEMAND},
    {6, "NOTCON", HOLDS(isWhole(x, 0, 120)), LIST_DEMAND},
    {6, "NOTCON", HOLDS(x == 0 || s.NFOUND == 0 || !(s.NCYCLE.number() > 1)),
     "it must be 0 on a solid or layer foundation when NCYCLE is above 1"},
    {6, "NGAP", HOLDS(isWhole(x, 0, 120)), LIST_DEMAND},
    {6, "NPRINT", HOLDS(isWhole(x, 0, 120)), LIST_DEMAND},
    {6, "NPRINT", HOLDS(s.NDAMA == 0 || x == 3), "a damage analysis needs 3 nodes on the edge"},
    {6, "INPUT", HOLDS(isFlag(x)), FLAG_DEMAND},
    {6, "NBOND", HOLDS(isFlag(x)), FLAG_DEMAND},
    {6, "NBOND", HOLDS(x == 0 || s.NLAYER == 2), "one slab layer cannot be bonded"},
    {6, "NTEMP", HOLDS(isFlag(x)), FLAG_DEMAND},
    {6, "NWT", HOLDS(isFlag(x)), FLAG_DEMAND},
    {6, "NCYCLE", HOLDS(isWhole(x, 1, 32767)), "there must be 1 cycle or more"},
    {6, "NAT1", HOLDS(isWhole(x, 0, 120)), LIST_DEMAND},
    {6, "NAT2", HOLDS(isWhole(x, 0, 120)), LIST_DEMAND},
    {6, "NAT2", HOLDS(x == 0 || s.NLAYER == 2), "there is no slab layer 2"},
    {6, "NSX", HOLDS(isWhole(x, 0, 50)), AXIS_DEMAND},
    {6, "NSY", HOLDS(isWhole(x, 0, 50)), AXIS_DEMAND},
    {6, "NSY", HOLDS(s.NDAMA == 0 || x > 0), "a damage analysis needs the nodes on the y axis of symmetry"},
    {6, "MDPO", HOLDS(isFlag(x)), FLAG_DEMAND},
    {7, "GAMA(1)", HOLDS(x >= 0), WEIGHT_DEMAND},
    {7, "GAMA(2)", HOLDS(x >= 0), WEIGHT_DEMAND},
    {7, "PMR(1)", HOLDS(x > 0 || s.NDAMA == 0), RUPTURE_DEMAND},
    {7, "PMR(2)", HOLDS(x > 0 || s.NDAMA == 0 || s.NLAYER == 1), RUPTURE_DEMAND},
    {7, "DEL", HOLDS(x > 0), "the tolerance must be greater than 0"},
    {7, "FMAX", HOLDS(x >= 0), "the greatest deflection must not be negative; 0 is no limit"},
    {8, "F1(1)", HOLDS(x > 0 || s.NDAMA != 2), FATIGUE_DEMAND},
    {8, "F1(2)", HOLDS(x > 0 || s.NDAMA != 2 || s.NLAYER == 1), FATIGUE_DEMAND},
    {8, "F2(1)", HOLDS(x > 0 || s.NDAMA != 2), FATIGUE_DEMAND},
    {8, "F2(2)", HOLDS(x > 0 || s.NDAMA != 2 || s.NLAYER == 1), FATIGUE_DEMAND},
    {9, "X", HOLDS(grows(s.SLAB[at.i].X, at.k)), LINE_DEMAND},
    {9, "Y", HOLDS(grows(s.SLAB[at.i].Y, at.k)), LINE_DEMAND},
    {10, "T", HOLDS(x > 0), THICKNESS_DEMAND},
    {10, "PR", HOLDS(isRatio(x)), RATIO_DEMAND},
    {10, "YM", HOLDS(x > 0 && x <= std::numeric_limits<Long>::max()),
     "the modulus must be greater than 0 and at most 2147483647"},
    {11, "NT1", HOLDS(isNode(x, s)), NODE_DEMAND},
    {11, "NT2", HOLDS(isNode(x, s)), NODE_DEMAND},
    {11, "T1", HOLDS(x > 0), THICKNESS_DEMAND},
    {11, "T2", HOLDS(x > 0), THICKNESS_DEMAND},

    {12, "NUDL", HOLDS(isWhole(x, 0, 24)), "there must be 0 to 24 loaded areas"},
    {13, "NCNF", HOLDS(isWhole(x, 0, 120)), LIST_DEMAND},
    {14, "NNMX", HOLDS(isWhole(x, 0, 120)), LIST_DEMAND},
    {14, "NNMY", HOLDS(isWhole(x, 0, 120)), LIST_DEMAND},
    {15, "LS", HOLDS(isWhole(x, 1, s.NSLAB)), "there is no such slab"},
    {16, "NN", HOLDS(isNode(x, s)), NODE_DEMAND},
    {16, "NNX", HOLDS(isNode(x, s)), NODE_DEMAND},
    {16, "NNY", HOLDS(isNode(x, s)), NODE_DEMAND},
    {17, "NODNC", HOLDS(isNode(x, s)), NODE_DEMAND},
    {18, "NP", HOLDS(isNode(x, s)), NODE_DEMAND},
    {19, "NODSX", HOLDS(isNode(x, s)), NODE_DEMAND},
    {20, "NODSY", HOLDS(isNode(x, s)), NODE_DEMAND},
    {21, "NG", HOLDS(isNode(x, s)), NODE_DEMAND},
    {21, "CURL", HOLDS(x >= 0), "the gap must not be negative"},

    {22, "FSAF", HOLDS(x > 0), "the factor must be greater than 0"},
    {24, "NAS", HOLDS(isWhole(x, 0, 120)), LIST_DEMAND},
    {24, "SUBMOD", HOLDS(x > 0), MODULUS_DEMAND},
    {25, "NS", HOLDS(isNode(x, s)), NODE_DEMAND},
    {25, "SUBMOD", HOLDS(x >= 0), "the modulus must not be negative"},
    {28, "YMS", HOLDS(x > 0), MODULUS_DEMAND},
    {28, "PRS", HOLDS(isRatio(x)), RATIO_DEMAND},
    {30, "NL", HOLDS(isWhole(x, 1, 6)), "there must be 1 to 6 foundation layers"},
    {31, "TH", HOLDS(x > 0), THICKNESS_DEMAND},
    {32, "E", HOLDS(x > 0), MODULUS_DEMAND},
    {33, "PRBF", HOLDS(isRatio(x)), RATIO_DEMAND},

    {35, "SPCON1", HOLDS(x >= 0), SPRING_DEMAND},
    {35, "SPCON2", HOLDS(x >= 0), SPRING_DEMAND},
    {35, "SCKV", HOLDS(x >= 0), SPRING_DEMAND},
    {35, "BD", HOLDS(x >= 0), SPRING_DEMAND},
    {35, "BS", HOLDS(x >= 0), SPRING_DEMAND},
    {35, "WJ", HOLDS(x >= 0), SPRING_DEMAND},
    {35, "GDC", HOLDS(x >= 0), SPRING_DEMAND},
    {35, "NNAJ", HOLDS(isWhole(x, 0, 15)), "there must be 0 to 15 nodes on the joint"},
    {36, "BARNO", HOLDS(x >= 0), SPRING_DEMAND},
    {37, "TNLR", HOLDS(x >= 0), "the load repetitions must not be negative"},
};

}  // namespace

std::optional<DeckFault> checkSlabSet(const SlabSet& set, int number) {
    if (auto fault = checkCards<Set>(slabCards(), rules, set, number)) return fault;
    if (number == 1 && set.INPUT.number() != 0) {
        const DeckPlace where = placeOfSlabField("INPUT", number);
        return DeckFault{where, where.text("1") + ": there is no data set before to continue from"};
    }
    return std::nullopt;
}

std::optional<DeckFault> checkSlabDeck(const Store& store) {
    if (!store.SlabNPROB.isNumeric() || !isWhole(store.SlabNPROB.number(), 1, 2)) {
        const DeckPlace where{0, 1, "NPROB", {}};
        return DeckFault{where, where.text(store.SlabNPROB.text()) + ": there must be 1 or 2 data sets"};
    }
    for (int number = 1; number <= store.SlabNPROB.number(); ++number)
        if (auto fault = checkSlabSet(store.slab[number], number)) return fault;
    return std::nullopt;
}

DeckPlace placeOfSlabField(const std::string& field, int number) {
    DeckPlace where{number, 0, field, {}};
    std::size_t closest = std::string::npos;
    for (const Block<Set>& block : slabCards())
        for (const Card<Set>& card : block.cards)
            for (const Run<Set>& run : card.runs)
                for (const Field<Set>& each : run.fields) {
                    const std::string name = each.name;
                    if (!name.starts_with(field) || name.size() >= closest) continue;
                    closest = name.size();
                    where.card = card.number;
                }
    return where;
}
