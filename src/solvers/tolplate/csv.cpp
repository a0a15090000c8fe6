#include "solvers/tolplate/csv.h"

#include "solvers/csv_cells.h"
#include "solvers/tolplate/plate_problem.h"
#include "solvers/tolplate/units.h"

namespace {

std::ostream& rowStart(std::ostream& out, int n, const plate::Case& c) {
    return out << n << ',' << c.period + 1 << ',' << c.group + 1;
}

}  // namespace

void writeNodeHead(std::ostream& out) {
    out << "set,period,group,slab,node,layer,x,y,w,rx,ry,reaction,contact,mx,my,mxy,sx,sy,sxy,s1,s2\n";
}

void writeNodeRows(std::ostream& out, const SlabSet& set, int n, const plate::Solution& solution) {
    const double unit = slabUnits(set.NUNIT).perStress;
    for (const plate::Case& c : solution.cases) {
        std::size_t node = 0;
        for (int s = 1; s <= set.NSLAB; ++s)
            for (int i = 1; i <= set.SLAB[s].NX; ++i)
                for (int j = 1; j <= set.SLAB[s].NY; ++j) {
                    const plate::NodeResult& r = c.nodes[node++];
                    for (std::size_t k = 0; k < r.layers.size(); ++k) {
                        const plate::LayerResult& l = r.layers[k];
                        rowStart(out, n, c) << ',' << s << ',' << node << ',' << k + 1;
                        csvCells(out, {set.SLAB[s].X[i], set.SLAB[s].Y[j], r.w, r.rx, r.ry, r.reaction});
                        out << (r.contact ? ",yes" : ",no");
                        csvCells(out, {l.mx, l.my, l.mxy});
                        csvCells(out, {l.sx / unit, l.sy / unit, l.sxy / unit, l.s1 / unit, l.s2 / unit});
                        out << '\n';
                    }
                }
    }
}

void writeJointHead(std::ostream& out) { out << "set,period,group,joint,node_a,node_b,shear,moment,bars\n"; }

void writeJointRows(std::ostream& out, int n, const plate::Solution& solution) {
    for (const plate::Case& c : solution.cases)
        for (const plate::JointResult& j : c.joints) {
            rowStart(out, n, c) << ',' << j.joint << ',' << j.nodeA << ',' << j.nodeB;
            csvCells(out, {j.shear, j.moment, j.bars});
            out << '\n';
        }
}
