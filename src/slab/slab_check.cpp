#include "slab/slab_check.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <string_view>
#include <utility>
#include <vector>

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

/// The forces and moments of a raft go with one period, one group and no damage.
bool allowsConcentrated(const Set& s) { return s.NDAMA == 0 && s.NPY == 1 && s.NLG == 1; }

/// Printout nodes of a damage analysis stand on one edge of slab 1 along x, the first on the y axis of
/// symmetry, each further away from it than the one before.
bool isDamagePoint(const Set& s, int k) {
    const int NX = s.SLAB[1].NX, NY = s.SLAB[1].NY;
    const auto column = [&](int node) { return (node - 1) / NY; };
    const auto row = [&](int node) { return (node - 1) % NY; };
    const int axis = column(s.NODSY[1]), at = column(s.NP[k]), edge = row(s.NP[k]);
    if ((edge != 0 && edge != NY - 1) || edge != row(s.NP[1])) return false;
    if (k == 1) return at == axis && (axis == 0 || axis == NX - 1);
    return std::abs(at - axis) > std::abs(column(s.NP[k - 1]) - axis);
}

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
constexpr const char* RAFT_DEMAND =
    "it must be 0 unless NDAMA is 0 and NPY and NLG are 1: a raft has one period, one load group and no "
    "damage analysis";
constexpr const char* JOINT_DEMAND = "there is no such joint";

const ValueRule<Set> rules[] = {
    {3, "NFOUND", HOLDS(isWhole(x, 0, 2)), "NFOUND must be 0, 1 or 2"},
    {3, "NDAMA", HOLDS(isWhole(x, 0, 2)), "NDAMA must be 0, 1 or 2"},
    {3, "NPY", HOLDS(isWhole(x, 1, 12)), "there must be 1 to 12 periods"},
    {3, "NLG", HOLDS(isWhole(x, 1, 12)), "there must be 1 to 12 load groups"},
    {4, "NSLAB", HOLDS(isWhole(x, 1, 6)), "there must be 1 to 6 slabs"},
    {4, "NSLAB", HOLDS(s.NDAMA == 0 || x == 1), "a damage analysis is limited to one slab"},
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
    {6, "NGAP", HOLDS(x == 0 || s.NCYCLE.number() > 1),
     "it must be 0 when NCYCLE is 1, because full contact would pull the gaps shut"},
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
    {6, "NSX", HOLDS(s.NDAMA == 0 || x == 0),
     "it must be 0 for a damage analysis, which has the y axis as its only axis of symmetry"},
    {6, "NSY", HOLDS(s.NDAMA == 0 || x == s.SLAB[1].NY),
     "a damage analysis needs all NY nodes on the y axis of symmetry"},
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
    {13, "NCNF", HOLDS(x == 0 || allowsConcentrated(s)), RAFT_DEMAND},
    {14, "NNMX", HOLDS(isWhole(x, 0, 120)), LIST_DEMAND},
    {14, "NNMX", HOLDS(x == 0 || allowsConcentrated(s)), RAFT_DEMAND},
    {14, "NNMY", HOLDS(isWhole(x, 0, 120)), LIST_DEMAND},
    {14, "NNMY", HOLDS(x == 0 || allowsConcentrated(s)), RAFT_DEMAND},
    {15, "LS", HOLDS(isWhole(x, 1, s.NSLAB)), "there is no such slab"},
    {16, "NN", HOLDS(isNode(x, s)), NODE_DEMAND},
    {16, "NNX", HOLDS(isNode(x, s)), NODE_DEMAND},
    {16, "NNY", HOLDS(isNode(x, s)), NODE_DEMAND},
    {17, "NODNC", HOLDS(isNode(x, s)), NODE_DEMAND},
    {18, "NP", HOLDS(isNode(x, s)), NODE_DEMAND},
    {18, "NP", HOLDS(s.NDAMA == 0 || isDamagePoint(s, at.k)),
     "a damage analysis needs three nodes on one edge along x, the first on the y axis of symmetry, then "
     "outward"},
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

// ---- Continuation ----------------------------------------------------------------

/// What a data set that continues another must have in common with it: the slabs. Moduli may differ, as for
/// slow curling and quick wheels.
constexpr std::string_view commonFields[] = {"NFOUND", "NLAYER", "NBOND", "NSLAB", "NJOINT", "NX",   "NY",
                                             "JONO1",  "JONO2",  "JONO3", "JONO4", "NUNIT",  "NAT1", "NAT2",
                                             "NSX",    "NSY",    "X",     "Y",     "T",      "NT1",  "T1",
                                             "NT2",    "T2",     "NODSX", "NODSY"};

class CommonValues : public CardWalker<Set> {
  public:
    CommonValues(const Set& set, DeckPlace& where) : CardWalker<Set>(const_cast<Set&>(set), where) {}

    std::vector<std::pair<DeckPlace, Double>> values;

  private:
    void value(const Card<Set>&, const Run<Set>&, Cell cell) override {
        if (std::ranges::find(commonFields, where_.field) == std::end(commonFields)) return;
        const Variant held = std::visit([](const auto* each) { return Variant(*each); }, cell);
        values.emplace_back(where_, held.number());
    }
};

/// Both sets hold no fault of their own.
std::optional<DeckFault> checkContinuation(const Set& first, const Set& second) {
    DeckPlace where{2, 0, "", {}}, ignored;
    CommonValues before(first, ignored), now(second, where);
    before.walk(slabCards());
    now.walk(slabCards());
    // Counts stand before their lists, so the first difference is met while the places still agree.
    for (std::size_t i = 0; i < std::min(before.values.size(), now.values.size()); ++i) {
        const auto& [place, x] = now.values[i];
        const Double was = before.values[i].second;
        if (x != was)
            return DeckFault{place, place.text(numberText(x)) + ": it must be " + numberText(was) +
                                        " as in data set 1, which INPUT = 1 continues"};
    }
    if (second.NCYCLE.number() == 1 && first.NCYCLE.number() > 1) {
        const DeckPlace place = placeOfSlabField("NCYCLE", 2);
        return DeckFault{place, place.text("1") +
                                    ": it must be above 1 as in data set 1, because full contact "
                                    "would pull its gaps shut"};
    }
    return std::nullopt;
}

}  // namespace

std::optional<DeckFault> checkSlabSet(const SlabSet& set, int number, const DeckPlace& end) {
    if (auto fault = checkCards<Set>(slabCards(), rules, set, number, end)) return fault;
    if (number == 1 && set.INPUT.number() != 0) {
        const DeckPlace where = placeOfSlabField("INPUT", number);
        return DeckFault{where, where.text("1") + ": there is no data set before to continue from"};
    }
    return std::nullopt;
}

std::optional<DeckFault> checkSlabDeck(const Store& store, const DeckPlace& end) {
    if (!store.SlabNPROB.isNumeric() || !isWhole(store.SlabNPROB.number(), 1, 2)) {
        const DeckPlace where{0, 1, "NPROB", {}};
        return DeckFault{where, where.text(store.SlabNPROB.text()) + ": there must be 1 or 2 data sets"};
    }
    for (int number = 1; number <= store.SlabNPROB.number(); ++number)
        if (auto fault = checkSlabSet(store.slab[number], number, end)) return fault;
    const bool whole = end.card == 0;
    if (whole && store.SlabNPROB.number() == 2 && store.slab[2].INPUT.number() == 1)
        return checkContinuation(store.slab[1], store.slab[2]);
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
