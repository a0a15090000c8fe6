#include "solvers/tolstrat/damage.h"

#include <algorithm>
#include <cmath>

#include "solvers/tolstrat/analysis.h"

namespace {

using layered_theory::Tensor;

/// Results for the top of a layer are taken this far below its interface, in. or cm.
constexpr double BELOW_INTERFACE = 0.0001;

/// A point is midway between axles when it agrees to this part of their spacing.
constexpr double MIDWAY_TOLERANCE = 1e-6;

double interfaceAbove(const LayeredSet& set, int layer) {
    double depth = 0;
    for (int i = 1; i < layer; ++i) depth += set.LAYER[i].TH.number();
    return depth;
}

/// Number of gaps between axles that do the damage of the secondary strain.
int gaps(const LayeredSet& set, int group) { return set.LOADL[group].LOAD.integer() - 1; }

/// What one location sees of the responses of a load group.
class LocationStrains {
  public:
    LocationStrains(const GroupResult& result, const DamageLocation& location, std::size_t number)
        : result_(result), kind_(location.kind), number_(number) {}

    double at(std::size_t point) const {
        return damagingStrain(kind_, strain(result_.result.responses, point));
    }
    double midway(std::size_t point) const { return damagingStrain(kind_, strain(result_.midway, point)); }

    /// The point of the largest strain, the first of equals.
    std::size_t worst(const std::vector<std::size_t>& points) const {
        return *std::ranges::max_element(points, {}, [this](std::size_t point) { return at(point); });
    }

  private:
    const Tensor& strain(const std::vector<layered_theory::Response>& responses, std::size_t point) const {
        return responses[point * result_.depths.size() + number_].strain;
    }

    const GroupResult& result_;
    DamageKind kind_;
    std::size_t number_;
};

/// The points whose strains count as primary: those under an axle, or all when there is none.
std::vector<std::size_t> primaryPoints(const LayeredSet& set, const GroupResult& result) {
    std::vector<std::size_t> all, underAxle;
    for (std::size_t i = 0; i < result.points.size(); ++i) {
        all.push_back(i);
        if (!isBetweenAxles(set, result.group, result.points[i])) underAxle.push_back(i);
    }
    return underAxle.empty() ? all : underAxle;
}

AxleDamage axleDamage(const DamageLocation& location, double strain, double modulus, double repetitions) {
    const double allowed = allowedRepetitions(location, strain, modulus);
    return {strain, allowed, repetitions > 0 ? repetitions / allowed : 0};
}

}  // namespace

std::vector<DamageLocation> damageLocations(const LayeredSet& set) {
    std::vector<DamageLocation> locations;
    for (int n = 1; n <= static_cast<int>(set.NLBT); ++n) {
        const auto& law = set.DAMBT[n];
        const int layer = law.LNBT.integer();
        locations.push_back({DamageKind::Bottom, layer, interfaceAbove(set, layer + 1), law.FT1.number(),
                             law.FT2.number(), law.FT3.number()});
    }
    for (int n = 1; n <= static_cast<int>(set.NLTC); ++n) {
        const auto& law = set.DAMTC[n];
        const int layer = static_cast<int>(law.LNTC);
        const double z = layer == 1 ? 0 : interfaceAbove(set, layer) + BELOW_INTERFACE;
        locations.push_back({DamageKind::Top, layer, z, law.FT4, law.FT5, 0});
    }
    return locations;
}

double damagingStrain(DamageKind kind, const Tensor& strain) {
    if (kind == DamageKind::Top) return strain.zz;
    return std::hypot((strain.xx - strain.yy) / 2, strain.xy) - (strain.xx + strain.yy) / 2;
}

double allowedRepetitions(const DamageLocation& location, double strain, double modulus) {
    if (strain <= 0) return std::numeric_limits<double>::infinity();
    return location.factor * std::pow(strain, -location.strainExponent) *
           std::pow(modulus, -location.modulusExponent);
}

bool damagesByAxles(const LayeredSet& set, int group) {
    return set.NDAMA > 0 && set.LOADL[group].LOAD.number() > 1;
}

bool isBetweenAxles(const LayeredSet& set, int group, const layered_theory::Position& point) {
    const double XW = set.LOADL[group].XW.number();
    return damagesByAxles(set, group) && std::abs(point.x - XW / 2) <= MIDWAY_TOLERANCE * XW;
}

GroupDamage damageOf(const LayeredSet& set, const GroupResult& result) {
    GroupDamage damage{result.period, result.group, result.time, set.TNLR[result.period][result.group], {}};
    const auto points = primaryPoints(set, result);
    std::size_t number = 0;
    for (const DamageLocation& location : damageLocations(set)) {
        const LocationStrains strains(result, location, number++);
        LocationDamage d;
        d.point = strains.worst(points);
        d.modulus = result.moduli[static_cast<std::size_t>(location.layer - 1)];
        d.primary = axleDamage(location, strains.at(d.point), d.modulus, damage.repetitions);
        if (damagesByAxles(set, result.group)) {
            d.betweenAxles = strains.midway(d.point);
            d.secondary = axleDamage(location, d.primary.strain - d.betweenAxles, d.modulus,
                                     gaps(set, result.group) * damage.repetitions);
        }
        damage.locations.push_back(d);
    }
    return damage;
}

DamageSum sumDamage(const LayeredSet& set, const std::vector<GroupDamage>& groups) {
    DamageSum sum;
    const auto locations = damageLocations(set);
    sum.ratios.resize(locations.size());
    for (const GroupDamage& group : groups)
        for (std::size_t j = 0; j < locations.size(); ++j) {
            const LocationDamage& d = group.locations[j];
            sum.ratios[j] += d.primary.ratio + (d.secondary ? d.secondary->ratio : 0);
        }

    const auto tops = sum.ratios.begin() + static_cast<std::ptrdiff_t>(set.NLBT);
    if (tops != sum.ratios.begin()) {
        const auto largest = std::max_element(sum.ratios.begin(), tops);
        sum.KBT = static_cast<int>(largest - sum.ratios.begin()) + 1;
        sum.DRBT = *largest;
    }
    if (tops != sum.ratios.end()) {
        const auto largest = std::max_element(tops, sum.ratios.end());
        sum.KTC = static_cast<int>(largest - tops) + 1;
        sum.DRTC = *largest;
    }
    const double life = 1 / std::max(sum.DRBT, sum.DRTC);
    sum.life = std::clamp(life, DamageSum::SHORTEST_LIFE, DamageSum::LONGEST_LIFE);
    sum.lifeLimited = sum.life != life;
    return sum;
}
