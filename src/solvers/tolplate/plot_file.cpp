#include "solvers/tolplate/plot_file.h"

#include <cmath>

#include "solvers/plot_single.h"
#include "solvers/tolplate/plate_problem.h"
#include "solvers/tolplate/units.h"

namespace {

Single single(const Variant& value) { return ToSingle(value.number()); }

void addSlabs(PanProblem& pan, const SlabSet& set) {
    pan.TITLE = set.TITLE;
    pan.NFOUND = set.NFOUND;
    pan.NDAMA = set.NDAMA;
    pan.NPY = set.NPY;
    pan.NLG = set.NLG;
    pan.NSLAB = set.NSLAB;
    pan.NJOINT = set.NJOINT;
    pan.NLAYER = set.NLAYER;
    pan.NSX = set.NSX;
    pan.NSY = set.NSY;
    pan.NUNIT = set.NUNIT == 0 ? 0 : 1;
    for (int s = 1; s <= set.NSLAB; ++s) {
        const SlabSet::Slab& slab = set.SLAB[s];
        pan.NX[s] = slab.NX;
        pan.NY[s] = slab.NY;
        const Integer sides[] = {slab.JONO1, slab.JONO2, slab.JONO3, slab.JONO4};
        for (int side = 1; side <= 4; ++side) pan.JONO[s][side] = sides[side - 1];
        pan.X[s] = slab.X;
        pan.Y[s] = slab.Y;
    }
    for (int k = 1; k <= set.NLAYER; ++k) {
        pan.T[k] = set.LAYER[k].T;
        pan.PR[k] = set.LAYER[k].PR;
        pan.YM[k] = ToLong(static_cast<Double>(set.LAYER[k].YM));
    }
}

void addLoads(PanProblem& pan, const SlabSet& set) {
    pan.NUDL = set.NUDL;
    for (int g = 1; g <= set.NLG; ++g)
        for (int i = 1; i <= set.NUDL[g]; ++i) {
            const SlabSet::Area& a = set.AREA[g][i];
            pan.areas[g][i] = {a.LS.integer(), single(a.XL1), single(a.XL2),
                               single(a.YL1),  single(a.YL2), single(a.QQ)};
        }
    pan.NCNF = set.NCNF;
    pan.NNMX = set.NNMX;
    pan.NNMY = set.NNMY;
    for (int i = 1; i <= set.NCNF; ++i) pan.NN[i] = set.FORCE[i].NN, pan.FF[i] = set.FORCE[i].FF;
    for (int i = 1; i <= set.NNMX; ++i) pan.NNX[i] = set.MOMENTX[i].NNX, pan.FMX[i] = set.MOMENTX[i].FMX;
    for (int i = 1; i <= set.NNMY; ++i) pan.NNY[i] = set.MOMENTY[i].NNY, pan.FMY[i] = set.MOMENTY[i].FMY;
    for (int p = 1; p <= set.NPY; ++p)
        for (int g = 1; g <= set.NLG && set.NDAMA != 0; ++g) pan.TNLR[g][p] = single(set.TNLR[p][g]);
}

void addFoundation(PanProblem& pan, const SlabSet& set) {
    pan.FSAF = set.FSAF;
    if (set.NFOUND == 0)
        pan.SUBMOD = ToSingle(set.SUBMOD.number() * slabUnits(set.NUNIT).plotSubgrade);
    else if (set.NFOUND == 1) {
        pan.YMS = single(set.YMS);
        pan.PRS = single(set.PRS);
    } else {
        pan.NL = set.NL.integer();
        for (int k = 1; k <= pan.NL; ++k) {
            if (k < pan.NL) pan.TH[k] = single(set.FOUNDATION[k].TH);
            pan.E[k] = single(set.FOUNDATION[k].E);
            pan.PRBF[k] = single(set.FOUNDATION[k].PRBF);
        }
    }
}

/// The two numbers of a node and layer that the table holds. Moments have the sign that the contour page
/// states for all it draws: minus for tension at the bottom.
struct Pair {
    double x, y;
};

Pair tableValue(const SlabSet& set, const plate::LayerResult& l) {
    const double unit = slabUnits(set.NUNIT).perStress;
    return tableKind(set) == PanProblem::MomentTable ? Pair{-l.mx, -l.my} : Pair{l.sx / unit, l.sy / unit};
}

const plate::LayerResult& layerAt(const plate::Case& c, int node, int k) {
    return c.nodes[static_cast<std::size_t>(node - 1)].layers[static_cast<std::size_t>(k - 1)];
}

void addTable(PanProblem& pan, const SlabSet& set, const plate::Case& c) {
    pan.NSTRESS = tableKind(set);
    if (pan.NSTRESS == PanProblem::NoTable) return;
    pan.LN = static_cast<Integer>(loadedSlab(set, static_cast<int>(c.group) + 1));
    for (int node = nodesBefore(set, pan.LN) + 1; node <= nodesBefore(set, pan.LN + 1); ++node) {
        ++pan.NNP;
        for (int k = 1; k <= set.NLAYER; ++k) {
            const auto [x, y] = tableValue(set, layerAt(c, node, k));
            pan.SX[pan.NNP][k] = plotSingle(x);
            pan.SY[pan.NNP][k] = plotSingle(y);
        }
    }
}

/// The principal stress of largest magnitude, with its sign.
double largest(const plate::LayerResult& l) { return std::abs(l.s2) > std::abs(l.s1) ? l.s2 : l.s1; }

/// Keeps the node of a value beyond what was found before; a missing sign stays 0 at the first node.
struct Extreme {
    int node;
    double value = 0;

    void takeIf(bool beyond, int at, double x) {
        if (beyond) node = at, value = x;
    }
    void put(Integer& toNode, Single& toValue) const {
        toNode = static_cast<Integer>(node);
        toValue = plotSingle(value);
    }
};

void addExtremes(PanResults::Layer& to, const SlabSet& set, const plate::Case& c,
                 const std::vector<int>& nodes, int k) {
    Extreme leastX{nodes[0]}, mostX{nodes[0]}, leastY{nodes[0]}, mostY{nodes[0]};
    for (int node : nodes) {
        const auto [x, y] = tableValue(set, layerAt(c, node, k));
        leastX.takeIf(x < leastX.value, node, x);
        mostX.takeIf(x > mostX.value, node, x);
        leastY.takeIf(y < leastY.value, node, y);
        mostY.takeIf(y > mostY.value, node, y);
    }
    leastX.put(to.NMIX, to.SMIX);
    mostX.put(to.NPLX, to.SPLX);
    leastY.put(to.NMIY, to.SMIY);
    mostY.put(to.NPLY, to.SPLY);
}

PanResults results(const SlabSet& set, const plate::Case& c) {
    const int group = static_cast<int>(c.group) + 1;
    const auto nodes = reportedNodes(set, group);
    PanResults page;
    for (int k = 1; k <= set.NLAYER; ++k) {
        PanResults::Layer& to = page.layers[k];
        const LargestStress most = largestStress(set, c, k);
        to.NMAX = static_cast<Single>(most.node);
        to.SMAX = plotSingle(most.value);
        to.NOFF = static_cast<Integer>(nodesBefore(set, loadedSlab(set, group)));
        if (tableKind(set) != PanProblem::NoTable) addExtremes(to, set, c, nodes, k);
    }
    return page;
}

}  // namespace

Integer tableKind(const SlabSet& set) {
    if (set.NPRINT != 0) return PanProblem::NoTable;
    return set.NNMX != 0 || set.NNMY != 0 ? PanProblem::MomentTable : PanProblem::StressTable;
}

LargestStress largestStress(const SlabSet& set, const plate::Case& c, int layer) {
    const auto nodes = reportedNodes(set, static_cast<int>(c.group) + 1);
    LargestStress found{nodes[0], 0};
    for (int node : nodes) {
        const double stress = largest(layerAt(c, node, layer));
        if (std::abs(stress) > std::abs(found.value)) found = {node, stress};
    }
    found.value /= slabUnits(set.NUNIT).perStress;
    return found;
}

PanRun panRun(const SlabSet& set, const plate::Solution& solution, const DamageSum& damage) {
    PanRun run;
    addSlabs(run.problem, set);
    addLoads(run.problem, set);
    addFoundation(run.problem, set);
    addTable(run.problem, set, solution.cases.back());
    for (std::size_t i = 0; i < solution.cases.size(); ++i) {
        const plate::Case& c = solution.cases[i];
        PanResults& page = run.results[static_cast<int>(c.period) + 1][static_cast<int>(c.group) + 1];
        page = results(set, c);
        for (int k = 1; k <= set.NLAYER && set.NDAMA != 0; ++k)
            page.CIDX[k] = plotSingle(damage.cases[i][static_cast<std::size_t>(k - 1)].index);
    }
    run.problem.DESLIFE = plotSingle(damage.life);
    return run;
}
