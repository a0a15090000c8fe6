#include "layered/layered_check.h"

#include <algorithm>
#include <cmath>

#include "layered/layered_cards.h"
#include "store/card_check.h"
#include "store/store.h"

namespace {

using Set = LayeredSet;

/// A depth counts as within a layer when it misses the boundary by this part of itself: thicknesses of seven
/// digits add up with rounding errors.
constexpr Double BOUNDARY_TOLERANCE = 1e-6;

bool isWithinLayer(const LayeredSet& s, int layer, Double z) {
    Double top = 0;
    for (int i = 1; i < layer; ++i) top += s.LAYER[i].TH.number();
    if (z < top * (1 - BOUNDARY_TOLERANCE)) return false;
    if (layer == static_cast<int>(s.NL)) return true;
    return z <= (top + s.LAYER[layer].TH.number()) * (1 + BOUNDARY_TOLERANCE);
}

bool nonlinearBefore(const LayeredSet& s, int n, Double layer) {
    for (int k = 1; k < n; ++k)
        if (s.NOLLAY[k].LAYNO.number() == layer) return true;
    return false;
}

bool viscoelasticBefore(const LayeredSet& s, int n, Double layer) {
    for (int k = 1; k < n; ++k)
        if (s.VISLAY[k].LNV.number() == layer) return true;
    return false;
}

/// True when `layer` is one of the nonlinear layers. Cards further on may not have been looked at yet.
bool isNonlinear(const LayeredSet& s, int layer) {
    if ((s.MATL != 2 && s.MATL != 4) || !s.NOLAY.isNumeric()) return false;
    for (int n = 1; n <= std::min(s.NOLAY.number(), 12.0); ++n)
        if (s.NOLLAY[n].LAYNO.isNumeric() && s.NOLLAY[n].LAYNO.number() == layer) return true;
    return false;
}

/// The lists of nonlinear and viscoelastic layers name layers throughout. Where they do not, as when a deck
/// could not be read so far, nothing can be said of a modulus of 0; their own rules tell what is wrong.
bool listsNameLayers(const LayeredSet& s) {
    const auto all = [](const Variant& count, const auto& layers, auto number) {
        if (!count.isNumeric() || !isWhole(count.number(), 1, 12)) return false;
        for (int n = 1; n <= static_cast<int>(count.number()); ++n)
            if (const Variant& layer = number(layers[n]); !layer.isNumeric() || layer.number() < 1)
                return false;
        return true;
    };
    const bool nonlinear = s.MATL == 2 || s.MATL == 4;
    return (!nonlinear || all(s.NOLAY, s.NOLLAY, [](const auto& l) { return l.LAYNO; })) &&
           (!isViscous(s) || all(s.NVL, s.VISLAY, [](const auto& l) { return l.LNV; }));
}

/// The plot file holds moduli as whole numbers of this size.
constexpr Double LARGEST_MODULUS = 2147483647;

/// The work of the integration grows with the distance between wheel and point over the contact radius; what
/// is farther away than this is a slip of the pen.
constexpr Double FARTHEST_RADII = 10000;
constexpr const char* NEAR_DEMAND = "the distance must be at most 10000 contact radii";

bool isNear(const LayeredSet& s, int group, Double distance) {
    return std::abs(distance) <= FARTHEST_RADII * s.LOADL[group].CR.number();
}

bool isNearAll(const LayeredSet& s, Double distance) {
    for (int group = 1; group <= static_cast<int>(s.NLG); ++group)
        if (!isNear(s, group, distance)) return false;
    return true;
}

/// Damage is done by the strains at the points.
Double leastPoints(const LayeredSet& s) { return s.NDAMA > 0 ? 1 : 0; }
constexpr const char* POINTS_DEMAND = "there must be 0 to 25 points, for a damage analysis at least 1";

#define HOLDS VALUE_HOLDS

const ValueRule<Set> rules[] = {
    {3, "MATL", HOLDS(isWhole(x, 1, 4)), "MATL must be 1, 2, 3 or 4"},
    {3, "NDAMA", HOLDS(isWhole(x, 0, 2)), "NDAMA must be 0, 1 or 2"},
    {3, "NPY", HOLDS(isWhole(x, 1, 12)), "there must be 1 to 12 periods"},
    {3, "NLG", HOLDS(isWhole(x, 1, 12)), "there must be 1 to 12 load groups"},
    {4, "DEL", HOLDS(x > 0), "the tolerance must be greater than 0"},
    {5, "NL", HOLDS(isWhole(x, 1, 19)), "there must be 1 to 19 layers"},
    {5, "NZ", HOLDS(s.NDAMA > 0 || isWhole(x, 1, 19)), "there must be 1 to 19 depths"},
    {5, "ICL", HOLDS(x >= 1), "there must be 1 cycle of integration or more"},
    {5, "ICL", HOLDS(x <= 32767), "there must be at most 32767 cycles of integration"},
    {5, "NSTD", HOLDS(x == 1 || x == 5 || x == 9), "NSTD must be 1, 5 or 9"},
    {6, "TH", HOLDS(x > 0), "the thickness must be greater than 0"},
    {7, "PR", HOLDS(x > -1 && x <= .5), "Poisson's ratio must be above -1 and at most .5"},
    {8, "ZC", HOLDS(x >= 0), "the depth must not be negative"},
    {10, "INT", HOLDS(x == 0 || x == 1), "INT must be 0 or 1"},
    {11, "E", HOLDS(s.MATL != 1 || x > 0), "the modulus must be greater than 0"},
    {11, "E",
     HOLDS(x > 0 || isViscoelastic(s, at.k) || (x == 0 && (isNonlinear(s, at.k) || !listsNameLayers(s)))),
     "the modulus must be greater than 0; 0 is for nonlinear and viscoelastic layers only, cards (26) and "
     "(37)"},
    {11, "E", HOLDS(x <= LARGEST_MODULUS || isViscoelastic(s, at.k)), "the modulus must be below 2147483648"},
    {13, "LOAD", HOLDS(isWhole(x, 0, 3)), "LOAD must be 0, 1, 2 or 3"},
    {14, "CR", HOLDS(x > 0), "the contact radius must be greater than 0"},
    {14, "CP", HOLDS(x > 0), "the contact pressure must be greater than 0"},
    {16, "NR", HOLDS(isWhole(x, leastPoints(s), 25)), POINTS_DEMAND},
    {17, "RC", HOLDS(x >= 0), "the radial coordinate must not be negative"},
    {17, "RC", HOLDS(isNear(s, at.i, x)), NEAR_DEMAND},
    {19, "NPT", HOLDS(isWhole(x, leastPoints(s), 25)), POINTS_DEMAND},
    {20, "XW", HOLDS(s.LOADL[at.i].LOAD.number() > 1 ? x > 0 : x >= 0),
     "the spacing of several axles must be greater than 0"},
    {20, "YW", HOLDS(x >= 0), "the spacing must not be negative"},
    {20, "XW", HOLDS(isNear(s, at.i, x)), NEAR_DEMAND},
    {20, "YW", HOLDS(isNear(s, at.i, x)), NEAR_DEMAND},
    {20, "XPT", HOLDS(isNear(s, at.i, x)), NEAR_DEMAND},
    {20, "YPT", HOLDS(isNear(s, at.i, x)), NEAR_DEMAND},

    {25, "NOLAY", HOLDS(isWhole(x, 1, 12)), "there must be 1 to 12 nonlinear layers"},
    {25, "ITENOL", HOLDS(isWhole(x, 1, 32767)), "there must be 1 iteration or more"},
    {26, "LAYNO", HOLDS(isWhole(x, 1, s.NL)), "there is no such layer"},
    {26, "LAYNO", HOLDS(!nonlinearBefore(s, at.k, x)), "the layer is among the nonlinear ones already"},
    {27, "ZCNOL", HOLDS(isWithinLayer(s, s.NOLLAY[at.k].LAYNO.integer(), x)),
     "the stress point must lie in its layer, LAYNO of card (26)"},
    {28, "RCNOL", HOLDS(isNearAll(s, x)), NEAR_DEMAND},
    {28, "XCNOL", HOLDS(isNearAll(s, x)), NEAR_DEMAND},
    {28, "YCNOL", HOLDS(isNearAll(s, x)), NEAR_DEMAND},
    {28, "SLD", HOLDS(x >= 0 && x <= 100), "the slope of load distribution must be 0 to 100"},
    {28, "DELNOL", HOLDS(x > 0), "the tolerance must be greater than 0"},
    {29, "RELAX", HOLDS(x > 0 && x <= 1), "the relaxation factor must be above 0 and at most 1"},
    {30, "GAM", HOLDS(x >= 0), "the unit weight must not be negative"},
    {31, "K0", HOLDS(x >= 0), "the coefficient of earth pressure must not be negative"},
    {33, "EMIN", HOLDS(x >= 0), "the least modulus must not be negative"},
    {33, "EMAX", HOLDS(x == 0 || x >= s.KPER[at.j][at.i][1].number()),
     "the greatest modulus must not be below EMIN; 0 is no limit"},
    {33, "PHI", HOLDS(x >= 0), "the angle of internal friction must not be negative"},
    {33, "K1", HOLDS(x > 0), "the nonlinear coefficient must be greater than 0"},

    {36, "DUR", HOLDS(x >= 0), "the load duration must not be negative"},
    {37, "NVL", HOLDS(isWhole(x, 1, 12)), "there must be 1 to 12 viscoelastic layers"},
    {37, "LNV", HOLDS(isWhole(x, 1, s.NL)), "there is no such layer"},
    {37, "LNV", HOLDS(!viscoelasticBefore(s, at.k, x)), "the layer is among the viscoelastic ones already"},
    {37, "LNV", HOLDS(!isNonlinear(s, static_cast<int>(x))), "the layer is nonlinear, card (26)"},
    {38, "NTYME", HOLDS(isWhole(x, 1, 15)), "there must be 1 to 15 times"},
    {39, "TYME", HOLDS(x > 0), "the time must be greater than 0"},
    {39, "TYME", HOLDS(at.k == 1 || x > s.TYME[at.k - 1].number()),
     "each time must be greater than the one before"},
    {42, "CREEP", HOLDS(x > 0), "the creep compliance must be greater than 0"},

    {46, "NLBT", HOLDS(isWhole(x, 0, 19)), "there must be 0 to 19 layer bottoms"},
    {46, "NLTC", HOLDS(isWhole(x, 0, 19)), "there must be 0 to 19 layer tops"},
    {46, "NLTC", HOLDS(x > 0 || s.NLBT > 0),
     "a damage analysis needs a location, so NLBT or NLTC must be 1 or more"},
    {47, "LNBT", HOLDS(isWhole(x, 1, s.NL - 1)),
     "there is no such layer, or it is the last one, which has no bottom"},
    {48, "LNTC", HOLDS(isWhole(x, 1, s.NL)), "there is no such layer"},
    {49, "TNLR", HOLDS(x >= 0), "the load repetitions must not be negative"},
    {50, "FT1", HOLDS(x > 0), "the coefficient must be greater than 0"},
    {51, "FT4", HOLDS(x > 0), "the coefficient must be greater than 0"},
};

}  // namespace

std::optional<DeckFault> checkLayeredSet(const LayeredSet& set, int number, const DeckPlace& end) {
    return checkCards<Set>(layeredCards(), rules, set, number, end);
}

std::optional<DeckFault> checkLayeredDeck(const Store& store, const DeckPlace& end) {
    if (!isWhole(store.NPROB, 1, 5)) {
        const DeckPlace where{0, 1, "NPROB", {}};
        return DeckFault{where, where.text(numberText(store.NPROB)) + ": there must be 1 to 5 data sets"};
    }
    for (int number = 1; number <= store.NPROB; ++number)
        if (auto fault = checkLayeredSet(store.layered[number], number, end)) return fault;
    return std::nullopt;
}
