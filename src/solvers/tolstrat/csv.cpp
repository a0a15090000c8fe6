#include "solvers/tolstrat/csv.h"

#include <cstdio>
#include <initializer_list>

namespace {

std::string number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.10g", value);
    return text;
}

void cells(std::ostream& out, bool wanted, std::initializer_list<double> values) {
    for (double value : values) out << ',' << (wanted ? number(value) : "");
}

}  // namespace

void writeCsvHead(std::ostream& out) {
    out << "set,period,group,point,x,y,z,w,sxx,syy,szz,sxy,sxz,syz,exx,eyy,ezz,exy,exz,eyz,s1,s2,s3,e1,e2,"
           "e3\n";
}

void writeCsvRows(std::ostream& out, const LayeredSet& set, int n, const GroupResult& group) {
    const bool stresses = set.NSTD >= 5, strains = set.NSTD >= 9;
    auto response = group.result.responses.begin();
    for (std::size_t point = 0; point < group.points.size(); ++point) {
        for (const auto& depth : group.depths) {
            const auto& [w, s, e, ps, pe, converged] = *response++;
            out << n << ',' << group.period << ',' << group.group << ',' << point + 1;
            cells(out, true, {group.points[point].x, group.points[point].y, depth.z, w});
            cells(out, stresses, {s.xx, s.yy, s.zz, s.xy, s.xz, s.yz});
            cells(out, strains, {e.xx, e.yy, e.zz, e.xy, e.xz, e.yz});
            cells(out, stresses, {ps[0], ps[1], ps[2]});
            cells(out, strains, {pe[0], pe[1], pe[2]});
            out << '\n';
        }
    }
}
