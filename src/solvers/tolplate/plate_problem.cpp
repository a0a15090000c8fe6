#include "solvers/tolplate/plate_problem.h"

#include "solvers/tolplate/units.h"

namespace {

int count(const Variant& value) { return static_cast<int>(value.number()); }

template <class Entry>
std::vector<plate::NodeValue> nodeValues(int entries, Entry entry) {
    std::vector<plate::NodeValue> values;
    for (int i = 1; i <= entries; ++i) values.push_back(entry(i));
    return values;
}

plate::NodeValue nodeValue(const Variant& node, const Variant& value, double factor = 1) {
    return {count(node), value.number() * factor};
}

template <class List>
std::vector<int> nodeList(const List& list, int entries) {
    std::vector<int> nodes;
    for (int i = 1; i <= entries; ++i) nodes.push_back(list[i]);
    return nodes;
}

void addSlabs(plate::Problem& p, const SlabSet& set, const SlabUnits& units) {
    for (int n = 1; n <= set.NSLAB; ++n) {
        const SlabSet::Slab& from = set.SLAB[n];
        plate::Slab slab;
        for (int i = 1; i <= from.NX; ++i) slab.X.push_back(from.X[i]);
        for (int i = 1; i <= from.NY; ++i) slab.Y.push_back(from.Y[i]);
        slab.JONO = {from.JONO1, from.JONO2, from.JONO3, from.JONO4};
        p.slabs.push_back(std::move(slab));
    }
    for (int k = 1; k <= set.NLAYER; ++k) {
        const SlabSet::Layer& l = set.LAYER[k];
        p.layers.push_back({l.T, l.PR, l.YM * units.perStress, l.GAMA * units.perWeight});
    }
    p.NBOND = set.NBOND == 1;
    p.NT1 = nodeValues(set.NAT1, [&](int i) { return nodeValue(set.THICK1[i].NT, set.THICK1[i].T); });
    p.NT2 = nodeValues(set.NAT2, [&](int i) { return nodeValue(set.THICK2[i].NT, set.THICK2[i].T); });
}

void addJoints(plate::Problem& p, const SlabSet& set, const SlabUnits& units) {
    p.YMSB = set.YMSB.number() * units.perStress;
    p.PRSB = set.PRSB.number();
    for (int n = 1; n <= set.NJOINT; ++n) {
        const SlabSet::Joint& from = set.JOINT[n];
        plate::Joint joint{from.SPCON1.number(),
                           from.SPCON2.number(),
                           from.SCKV.number() * units.perSubgrade,
                           from.BD.number(),
                           from.BS.number(),
                           from.WJ.number(),
                           from.GDC.number(),
                           {}};
        for (int i = 1; i <= count(from.NNAJ); ++i) joint.BARNO.push_back(from.BARNO[i].number());
        p.joints.push_back(std::move(joint));
    }
}

void addFoundation(plate::Problem& p, const SlabSet& set, const SlabUnits& units) {
    plate::Foundation& ground = p.foundation;
    if (set.NFOUND == 1) {
        ground.kind = plate::FoundationKind::Solid;
        ground.YMS = set.YMS.number() * units.perStress;
        ground.PRS = set.PRS.number();
    } else if (set.NFOUND == 2) {
        ground.kind = plate::FoundationKind::Layer;
        const int layers = count(set.NL);
        for (int k = 1; k <= layers; ++k) {
            const SlabSet::FoundationLayer& l = set.FOUNDATION[k];
            if (k < layers) ground.TH.push_back(l.TH.number());
            ground.E.push_back(l.E.number() * units.perStress);
            ground.PRBF.push_back(l.PRBF.number());
        }
    } else {
        ground.SUBMOD = set.SUBMOD.number() * units.perSubgrade;
        ground.NS = nodeValues(count(set.NAS), [&](int i) {
            return nodeValue(set.SUBGRADE[i].NS, set.SUBGRADE[i].SUBMOD, units.perSubgrade);
        });
    }
    p.FSAF.clear();
    for (int period = 1; period <= set.NPY; ++period) p.FSAF.push_back(set.FSAF[period]);
}

void addLoads(plate::Problem& p, const SlabSet& set, const SlabUnits& units) {
    for (int g = 1; g <= set.NLG; ++g) {
        p.groups.emplace_back();
        for (int i = 1; i <= set.NUDL[g]; ++i) {
            const SlabSet::Area& a = set.AREA[g][i];
            p.groups.back().push_back({count(a.LS), a.XL1.number(), a.XL2.number(), a.YL1.number(),
                                       a.YL2.number(), a.QQ.number() * units.perStress});
        }
    }
    p.FF = nodeValues(set.NCNF, [&](int i) { return nodeValue(set.FORCE[i].NN, set.FORCE[i].FF); });
    p.FMX = nodeValues(set.NNMX, [&](int i) { return nodeValue(set.MOMENTX[i].NNX, set.MOMENTX[i].FMX); });
    p.FMY = nodeValues(set.NNMY, [&](int i) { return nodeValue(set.MOMENTY[i].NNY, set.MOMENTY[i].FMY); });
    p.NWT = set.NWT.number() == 1;
    p.TEMP = set.NTEMP.number() == 1 ? set.TEMP.number() : 0;
    p.CT = set.CT.number();
}

void addContact(plate::Problem& p, const SlabSet& set) {
    p.NODSX = nodeList(set.NODSX, set.NSX);
    p.NODSY = nodeList(set.NODSY, set.NSY);
    p.NODNC = nodeList(set.NODNC, count(set.NOTCON));
    p.NG = nodeValues(count(set.NGAP), [&](int i) { return nodeValue(set.GAP[i].NG, set.GAP[i].CURL); });
    p.NCYCLE = count(set.NCYCLE);
    p.DEL = set.DEL.number();
    p.NNCK = set.NNCK;
    p.FMAX = set.FMAX.number();
}

}  // namespace

plate::Problem plateProblem(const SlabSet& set) {
    const SlabUnits& units = slabUnits(set.NUNIT);
    plate::Problem p;
    addSlabs(p, set, units);
    addJoints(p, set, units);
    addFoundation(p, set, units);
    addLoads(p, set, units);
    addContact(p, set);
    return p;
}

int nodesBefore(const SlabSet& set, int s) {
    int nodes = 0;
    for (int n = 1; n < s; ++n) nodes += set.SLAB[n].NX * set.SLAB[n].NY;
    return nodes;
}

int slabOfNode(const SlabSet& set, int node) {
    int s = 1;
    while (nodesBefore(set, s + 1) < node) ++s;
    return s;
}

int loadedSlab(const SlabSet& set, int group) {
    if (set.NUDL[group] > 0) return count(set.AREA[group][1].LS);
    if (set.NCNF > 0) return slabOfNode(set, static_cast<int>(set.FORCE[1].NN));
    return 1;
}

std::vector<int> reportedNodes(const SlabSet& set, int group) {
    if (set.NPRINT > 0) return nodeList(set.NP, set.NPRINT);
    std::vector<int> nodes;
    const int slab = loadedSlab(set, group);
    for (int n = nodesBefore(set, slab) + 1; n <= nodesBefore(set, slab + 1); ++n) nodes.push_back(n);
    return nodes;
}
