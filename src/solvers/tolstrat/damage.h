// Damage of a year's traffic: fatigue at the bottom of asphalt layers, permanent deformation at the top of
// others.
//
// Allowed repetitions: Nf = FT1 e^-FT2 E^-FT3 for the largest horizontal tension e at a layer's bottom, E its
// modulus in that period (Finn et al. 1977, 4th Int. Conf. Struct. Design of Asphalt Pavements); Nd = FT4
// e^-FT5 for the vertical compressive strain at a layer's top (Dorman and Metcalf 1965, Highway Res. Rec.
// 71). Damage ratios, repetitions over allowed repetitions, are summed (Miner 1945, J. Appl. Mech. 12).
#pragma once

#include <limits>
#include <optional>
#include <vector>

#include "layered/layered_set.h"
#include "solvers/layered_theory/layered_theory.h"

struct GroupResult;

enum class DamageKind { Bottom, Top };

/// Where damage is looked for, and the constants of its law.
struct DamageLocation {
    DamageKind kind;
    int layer;  ///< from 1
    double z;
    double factor, strainExponent, modulusExponent;  ///< FT1, FT2, FT3 or FT4, FT5, 0
};

/// The locations of a damage analysis, layer bottoms first.
std::vector<DamageLocation> damageLocations(const LayeredSet& set);

/// The strain that does damage, positive in that sense: at a bottom the largest tension in the horizontal
/// plane, at a top the vertical compression.
/// @param strain compression positive
double damagingStrain(DamageKind kind, const layered_theory::Tensor& strain);

/// Allowed repetitions; infinity for a strain that is not above 0.
double allowedRepetitions(const DamageLocation& location, double strain, double modulus);

/// What axles do at a location.
struct AxleDamage {
    double strain = 0;
    double allowed = std::numeric_limits<double>::infinity();
    double ratio = 0;
};

struct LocationDamage {
    std::size_t point;   ///< of the primary strain
    double modulus;      ///< of the layer
    AxleDamage primary;  ///< under an axle
    /// Of tandem and tridem axles: the strain is what the primary one exceeds that between the axles by; the
    /// ratio counts both gaps between three axles.
    std::optional<AxleDamage> secondary;
    double betweenAxles = 0;  ///< strain there
};

struct GroupDamage {
    int period, group;
    std::optional<double> time;
    double repetitions;
    std::vector<LocationDamage> locations;
};

/// Whether a load group does damage by more than one axle.
bool damagesByAxles(const LayeredSet& set, int group);

/// Whether a point lies midway between axles rather than under one.
bool isBetweenAxles(const LayeredSet& set, int group, const layered_theory::Position& point);

/// The damage by one load group in one period.
GroupDamage damageOf(const LayeredSet& set, const GroupResult& result);

/// A year's damage.
struct DamageSum {
    static constexpr double LONGEST_LIFE = 9999.99, SHORTEST_LIFE = 0.01;  ///< years, as the plot shows them

    std::vector<double> ratios;  ///< by location, primary and secondary
    int KBT = 0, KTC = 0;        ///< location of the largest sum among the bottoms and among the tops, from 1
    double DRBT = 0, DRTC = 0;   ///< those sums
    double life = LONGEST_LIFE;  ///< years until the larger of them is 1, within the limits
    bool lifeLimited = true;
};

DamageSum sumDamage(const LayeredSet& set, const std::vector<GroupDamage>& groups);
