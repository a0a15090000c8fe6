#include "solvers/tolstrat/csv.h"

#include <map>
#include <string>

#include "solvers/csv_cells.h"
#include "solvers/tolstrat/loads.h"

CsvTable::CsvTable(std::ostream& out, bool timed, const char* columnsBehindGroup) : out_(out), timed_(timed) {
    out << "set,period,group," << (timed ? "time," : "") << columnsBehindGroup << '\n';
}

std::ostream& CsvTable::row(int set, int period, int group, std::optional<double> time) {
    out_ << set << ',' << period << ',' << group;
    if (timed_) out_ << ',' << (time ? csvNumber(*time) : "");
    return out_;
}

void writeResponseRows(CsvTable& table, const LayeredSet& set, int n, const GroupResult& group) {
    const bool stresses = responsesOf(set) >= 5, strains = responsesOf(set) >= 9;
    auto response = group.result.responses.begin();
    for (std::size_t point = 0; point < group.points.size(); ++point) {
        for (const auto& depth : group.depths) {
            const auto& [w, s, e, ps, pe, converged] = *response++;
            std::ostream& out = table.row(n, group.period, group.group, group.time) << ',' << point + 1;
            csvCells(out, {group.points[point].x, group.points[point].y, depth.z, w});
            csvCells(out, {s.xx, s.yy, s.zz, s.xy, s.xz, s.yz}, stresses);
            csvCells(out, {e.xx, e.yy, e.zz, e.xy, e.xz, e.yz}, strains);
            csvCells(out, {ps[0], ps[1], ps[2]}, stresses);
            csvCells(out, {pe[0], pe[1], pe[2]}, strains);
            out << '\n';
        }
    }
}

void writeModuliRows(CsvTable& table, int n, const Viscoelasticity& creep, const GroupResult& group) {
    std::map<int, double> moduli;  // by layer
    for (const ViscousLayer& l : creep.layers)
        moduli[l.layer] = group.moduli[static_cast<std::size_t>(l.layer - 1)];
    for (int iteration = 0; iteration <= group.iterations.count(); ++iteration) {
        for (std::size_t k = 0; k < group.nonlinear.size(); ++k)
            moduli[group.nonlinear[k].layer] =
                group.iterations.moduli[static_cast<std::size_t>(iteration)][k];
        for (const auto& [layer, modulus] : moduli)
            table.row(n, group.period, group.group, group.time)
                << ',' << iteration << ',' << layer << ',' << csvNumber(modulus) << '\n';
    }
}

void writeDamageRows(CsvTable& table, const LayeredSet& set, int n, const GroupDamage& group) {
    const auto locations = damageLocations(set);
    for (std::size_t j = 0; j < locations.size(); ++j) {
        const auto axle = [&](int which, const AxleDamage& damage) {
            std::ostream& out = table.row(n, group.period, group.group, group.time)
                                << ',' << which << ',' << j + 1 << ',' << locations[j].layer << ','
                                << (locations[j].kind == DamageKind::Bottom ? "bottom" : "top");
            csvCells(out, {damage.strain, damage.allowed, damage.ratio});
            out << '\n';
        };
        axle(1, group.locations[j].primary);
        if (group.locations[j].secondary) axle(2, *group.locations[j].secondary);
    }
}
