#include "solvers/tolstrat/damage_report.h"

#include <algorithm>

#include "solvers/report_lines.h"
#include "solvers/tolstrat/loads.h"
#include "solvers/tolstrat/units.h"

namespace {

std::string placeName(const DamageLocation& location) {
    return (location.kind == DamageKind::Bottom ? "bottom of layer " : "top of layer ") +
           std::to_string(location.layer);
}

std::string allowedCell(double allowed) { return printed(" %12.5g", allowed); }

void writeAxle(std::ostream& out, const GroupDamage& group, const LocationDamage& d,
               const DamageLocation& location, std::size_t number, const AxleDamage& axle, int which) {
    line(out, printed(" %6d %5d %4d %8zu  %-18s %5zu %12.7g", group.period, group.group, which, number + 1,
                      placeName(location).c_str(), d.point + 1, d.modulus) +
                  cell(axle.strain) + allowedCell(axle.allowed) + cell(axle.ratio));
}

}  // namespace

void writeDamageEcho(std::ostream& out, const LayeredSet& set) {
    const Units& units = unitsOf(set.NUNIT);
    line(out);
    line(out, "  Damage analysis");
    item(out, "Damage analysis NDAMA", set.NDAMA, set.NDAMA == 1 ? "summary" : "detailed");
    item(out, "Layer bottoms NLBT", set.NLBT);
    item(out, "Layer tops NLTC", set.NLTC);
    int number = 0;
    for (const DamageLocation& l : damageLocations(set)) {
        const std::string place = printed("  Location %d: %s at %.7g %s, allowed repetitions ", ++number,
                                          placeName(l).c_str(), l.z, units.length);
        line(out,
             place + (l.kind == DamageKind::Bottom
                          ? printed("%.7g e^-%.7g E^-%.7g", l.factor, l.strainExponent, l.modulusExponent)
                          : printed("%.7g e^-%.7g", l.factor, l.strainExponent)));
    }
    for (int period = 1; period <= count(set.NPY); ++period)
        row(out, printed("Repetitions TNLR of period %d", period), 1, count(set.NLG),
            [&](int group) { return set.TNLR[period][group]; });
    for (int group = 1; group <= count(set.NLG); ++group) {
        const auto isBetween = [&](const auto& point) { return isBetweenAxles(set, group, point); };
        if (damagesByAxles(set, group) && std::ranges::all_of(pointsOf(set, group), isBetween))
            line(out,
                 printed("  *** Warning: all points of load group %d are at x = XW/2, between its axles, and "
                         "count as under one: the damage may be far too small. Add points under an axle. ***",
                         group));
    }
}

void writeDamageDetail(std::ostream& out, const LayeredSet& set, const GroupResult& result) {
    const Units& units = unitsOf(set.NUNIT);
    const bool axles = damagesByAxles(set, result.group);
    line(out);
    line(out, "Damaging strains: largest horizontal tension at bottoms, vertical compression at tops");
    line(out, printed("   Pt          x          y  Location") + std::string(axles ? "       Strain"
                                                                                     "  Between axles"
                                                                                   : "       Strain"));
    const auto locations = damageLocations(set);
    for (std::size_t point = 0; point < result.points.size(); ++point) {
        const auto& at = result.points[point];
        for (std::size_t j = 0; j < locations.size(); ++j) {
            const auto strainOf = [&](const std::vector<layered_theory::Response>& responses) {
                return damagingStrain(locations[j].kind, responses[point * locations.size() + j].strain);
            };
            std::string text = printed(" %4zu %10.5g %10.5g %9zu", point + 1, at.x, at.y, j + 1) +
                               cell(strainOf(result.result.responses));
            if (axles) text += "  " + cell(strainOf(result.midway));
            line(out, text + (isBetweenAxles(set, result.group, at) ? "   between axles" : ""));
        }
    }
    if (axles)
        line(out, printed("Between axles: at x = XW/2 = %.7g %s and the same y.",
                          set.LOADL[result.group].XW.number() / 2, units.length));
}

void writeDamageSummary(std::ostream& out, const LayeredSet& set, const std::vector<GroupDamage>& groups,
                        const DamageSum& sum) {
    const Units& units = unitsOf(set.NUNIT);
    const auto locations = damageLocations(set);
    line(out);
    line(out, std::string(78, '-'));
    line(out, "Damage");
    if (!groups.empty() && groups.front().time)
        line(out, printed("Of a stationary load the damage is that at the last time, %.7g sec.",
                          *groups.front().time));
    line(out,
         "Axle 1: primary strain, under an axle. Axle 2: secondary, its excess over the strain between "
         "axles; of tridem axles it counts twice.");
    line(out,
         printed(" Period Group Axle Location  %-18s Point  Modulus, %-3s       Strain      Allowed        "
                 "Ratio",
                 "Place", units.stress));
    for (const GroupDamage& group : groups)
        for (std::size_t j = 0; j < locations.size(); ++j) {
            const LocationDamage& d = group.locations[j];
            writeAxle(out, group, d, locations[j], j, d.primary, 1);
            if (d.secondary) writeAxle(out, group, d, locations[j], j, *d.secondary, 2);
        }
    line(out);
    line(out, "Damage ratios of one year");
    for (std::size_t j = 0; j < locations.size(); ++j)
        line(out, printed("  Location %zu, %s: %.7g", j + 1, placeName(locations[j]).c_str(), sum.ratios[j]));
    if (sum.KBT > 0) item(out, "Fatigue cracking", sum.DRBT, printed("at location %d", sum.KBT));
    if (sum.KTC > 0)
        item(out, "Permanent deformation", sum.DRTC, printed("at location %d", count(set.NLBT) + sum.KTC));
    item(out, "Design life, years", sum.life,
         sum.lifeLimited ? printed("*** limited to %g to %.2f years ***", DamageSum::SHORTEST_LIFE,
                                   DamageSum::LONGEST_LIFE)
                         : "");
}
