#include "solvers/tolplate/echo.h"

#include "solvers/report_lines.h"
#include "solvers/tolplate/plate_problem.h"
#include "solvers/tolplate/units.h"

namespace {

constexpr std::array<const char*, 3> FOUNDATIONS = {"liquid", "solid (elastic half-space)", "layered"};
constexpr std::array<const char*, 3> DAMAGE = {"none", "PCA criteria", "the user's coefficients"};

std::string withUnit(const std::string& name, const char* unit) { return name + ", " + unit; }

/// Pairs of a node and its value, where there are any.
void pairs(std::ostream& out, const std::string& name, int entries, auto node, auto value) {
    if (entries == 0) return;
    row(out, name + ": nodes", 1, entries, node);
    row(out, "    values", 1, entries, value);
}

void nodes(std::ostream& out, const std::string& name, int entries, const auto& list) {
    if (entries > 0)
        row(
            out, name, 1, entries, [&](int i) { return list[i]; }, 12);
}

void general(std::ostream& out, const SlabSet& set, const SlabUnits& u) {
    const auto word = [](const auto& words, int i) { return words.at(static_cast<std::size_t>(i)); };
    item(out, "Foundation NFOUND", set.NFOUND, word(FOUNDATIONS, set.NFOUND));
    item(out, "Damage analysis NDAMA", set.NDAMA, word(DAMAGE, set.NDAMA));
    item(out, "Periods NPY", set.NPY);
    item(out, "Load groups NLG", set.NLG);
    item(out, "Slabs NSLAB", set.NSLAB);
    item(out, "Joints NJOINT", set.NJOINT);
    item(out, "Slab layers NLAYER", set.NLAYER,
         set.NLAYER == 1 ? "" : (set.NBOND == 1 ? "bonded: one composite section" : "unbonded"));
    item(out, "Slab weight NWT", set.NWT.number(), set.NWT.number() == 1 ? "acts" : "");
    item(out, "Contact cycles NCYCLE", set.NCYCLE.number(),
         set.NCYCLE.number() > 1 ? "contact is checked" : "full contact, tension allowed");
    if (set.INPUT.number() == 1)
        item(out, "Continuation INPUT", 1, "gaps and precompressions of the data set before");
    item(out, "Tolerance DEL", set.DEL.number());
    item(out, "Checked node NNCK", set.NNCK);
    item(out, withUnit("Its greatest deflection FMAX", u.length), set.FMAX.number(),
         set.FMAX.number() == 0 ? "no limit" : "");
    item(out, "Detailed printout MDPO", set.MDPO, set.MDPO == 1 ? "all nodes" : "");
    item(out, "Nodes for printout NPRINT", set.NPRINT, set.NPRINT == 0 ? "all of the loaded slab" : "");
    nodes(out, "Nodes for printout NP", set.NPRINT, set.NP);
}

void slabs(std::ostream& out, const SlabSet& set, const SlabUnits& u) {
    for (int s = 1; s <= set.NSLAB; ++s) {
        const SlabSet::Slab& slab = set.SLAB[s];
        line(out);
        line(
            out,
            printed("  Slab %d: %d x %d nodes, numbers %d to %d; joints left %d, right %d, bottom %d, top %d",
                    s, slab.NX, slab.NY, nodesBefore(set, s) + 1, nodesBefore(set, s + 1), slab.JONO1,
                    slab.JONO2, slab.JONO3, slab.JONO4));
        row(out, withUnit("X", u.length), 1, slab.NX, [&](int i) { return slab.X[i]; });
        row(out, withUnit("Y", u.length), 1, slab.NY, [&](int i) { return slab.Y[i]; });
    }
    line(out);
    const auto property = [&](const std::string& name, auto value) {
        row(out, name, 1, set.NLAYER, [&](int k) { return value(set.LAYER[k]); });
    };
    property(withUnit("Thickness T", u.length), [](const auto& l) { return l.T; });
    property("Poisson's ratio PR", [](const auto& l) { return l.PR; });
    property(withUnit("Young's modulus YM", u.stress), [](const auto& l) { return l.YM; });
    if (set.NWT.number() == 1)
        property(withUnit("Unit weight GAMA", u.weight), [](const auto& l) { return l.GAMA; });
    const auto thickness = [&](const char* name, int entries, const auto& list) {
        pairs(
            out, withUnit(name, u.length), entries, [&](int i) { return list[i].NT.number(); },
            [&](int i) { return list[i].T.number(); });
    };
    thickness("T of layer 1 replaced", set.NAT1, set.THICK1);
    thickness("T of layer 2 replaced", set.NAT2, set.THICK2);
    nodes(out, "Nodes on x axis of symmetry", set.NSX, set.NODSX);
    nodes(out, "Nodes on y axis of symmetry", set.NSY, set.NODSY);
    if (set.NTEMP.number() == 1) {
        item(out, withUnit("Temperature TEMP", u.temperature), set.TEMP.number(), "bottom less top");
        item(out, std::string("Expansion CT per ") + u.temperature, set.CT.number());
    }
}

void foundation(std::ostream& out, const SlabSet& set, const SlabUnits& u) {
    line(out);
    if (set.NFOUND == 0) {
        item(out, withUnit("Subgrade modulus SUBMOD", u.subgrade), set.SUBMOD.number());
        pairs(
            out, withUnit("Other SUBMOD", u.subgrade), count(set.NAS.number()),
            [&](int i) { return set.SUBGRADE[i].NS.number(); },
            [&](int i) { return set.SUBGRADE[i].SUBMOD.number(); });
    } else if (set.NFOUND == 1) {
        item(out, withUnit("Young's modulus YMS", u.stress), set.YMS.number());
        item(out, "Poisson's ratio PRS", set.PRS.number());
    } else {
        const int layers = count(set.NL.number());
        if (layers > 1)
            row(out, withUnit("Thickness TH", u.length), 1, layers - 1,
                [&](int k) { return set.FOUNDATION[k].TH.number(); });
        row(out, withUnit("Young's modulus E", u.stress), 1, layers,
            [&](int k) { return set.FOUNDATION[k].E.number(); });
        row(out, "Poisson's ratio PRBF", 1, layers, [&](int k) { return set.FOUNDATION[k].PRBF.number(); });
        line(out, "  The integration for the layers goes on until it is exact; MAXIC is not needed.");
    }
    row(out, "Seasonal factor FSAF", 1, set.NPY, [&](int p) { return set.FSAF[p]; });
    nodes(out, "Nodes not in contact NODNC", count(set.NOTCON.number()), set.NODNC);
    if (set.INPUT.number() == 0)
        pairs(
            out, withUnit("Gaps", u.length), count(set.NGAP.number()),
            [&](int i) { return set.GAP[i].NG.number(); }, [&](int i) { return set.GAP[i].CURL.number(); });
}

void joints(std::ostream& out, const SlabSet& set, const SlabUnits& u) {
    if (set.NJOINT == 0) return;
    line(out);
    item(out, withUnit("Dowel steel YMSB", u.stress), set.YMSB.number());
    item(out, "            PRSB", set.PRSB.number());
    const auto property = [&](const std::string& name, auto value) {
        row(out, name, 1, set.NJOINT, [&](int j) { return value(set.JOINT[j]).number(); });
    };
    property(withUnit("Shear spring SPCON1", u.shearSpring), [](const auto& j) { return j.SPCON1; });
    property(withUnit("Moment spring SPCON2", u.momentSpring), [](const auto& j) { return j.SPCON2; });
    property(withUnit("Dowel support SCKV", u.subgrade), [](const auto& j) { return j.SCKV; });
    property(withUnit("Bar diameter BD", u.length), [](const auto& j) { return j.BD; });
    property(withUnit("Bar spacing BS", u.length), [](const auto& j) { return j.BS; });
    property(withUnit("Joint width WJ", u.length), [](const auto& j) { return j.WJ; });
    property(withUnit("Gap at the bar GDC", u.length), [](const auto& j) { return j.GDC; });
    for (int j = 1; j <= set.NJOINT; ++j)
        if (const int bars = count(set.JOINT[j].NNAJ.number()); bars > 0)
            row(out, printed("Bars BARNO of joint %d", j), 1, bars,
                [&](int i) { return set.JOINT[j].BARNO[i].number(); });
}

void loads(std::ostream& out, const SlabSet& set, const SlabUnits& u) {
    for (int g = 1; g <= set.NLG; ++g) {
        line(out);
        line(out, printed("  Load group %d: %d loaded areas; ", g, set.NUDL[g]) + u.length + ", " + u.stress);
        if (set.NUDL[g] > 0) line(out, "    LS        XL1        XL2        YL1        YL2         QQ");
        for (int i = 1; i <= set.NUDL[g]; ++i) {
            const SlabSet::Area& a = set.AREA[g][i];
            line(out, printed("  %4.0f %10.6g %10.6g %10.6g %10.6g %10.6g", a.LS.number(), a.XL1.number(),
                              a.XL2.number(), a.YL1.number(), a.YL2.number(), a.QQ.number()));
        }
    }
    const auto concentrated = [&](const std::string& name, int entries, auto node, auto value) {
        pairs(out, name, entries, node, value);
    };
    concentrated(
        withUnit("Force FF down", u.force), set.NCNF, [&](int i) { return set.FORCE[i].NN; },
        [&](int i) { return set.FORCE[i].FF; });
    concentrated(
        withUnit("Moment in x FMX", u.moment), set.NNMX, [&](int i) { return set.MOMENTX[i].NNX; },
        [&](int i) { return set.MOMENTX[i].FMX; });
    concentrated(
        withUnit("Moment in y FMY", u.moment), set.NNMY, [&](int i) { return set.MOMENTY[i].NNY; },
        [&](int i) { return set.MOMENTY[i].FMY; });
}

void damage(std::ostream& out, const SlabSet& set, const SlabUnits& u) {
    if (set.NDAMA == 0) return;
    line(out);
    const auto property = [&](const std::string& name, auto value) {
        row(out, name, 1, set.NLAYER, [&](int k) { return value(set.LAYER[k]); });
    };
    property(withUnit("Modulus of rupture PMR", u.stress), [](const auto& l) { return l.PMR; });
    if (set.NDAMA == 2) {
        property("Fatigue coefficient F1", [](const auto& l) { return l.F1; });
        property("Fatigue coefficient F2", [](const auto& l) { return l.F2; });
    }
    for (int p = 1; p <= set.NPY; ++p)
        row(out, printed("Repetitions TNLR, period %d", p), 1, set.NLG,
            [&](int g) { return set.TNLR[p][g].number(); });
}

}  // namespace

void writeSlabEcho(std::ostream& out, const SlabSet& set, int n) {
    const SlabUnits& units = slabUnits(set.NUNIT);
    line(out);
    line(out, std::string(78, '='));
    line(out, printed("Data set %d: ", n) + set.TITLE);
    line(out);
    line(out, std::string("Input, units: ") + units.length + ", " + units.stress + ", " + units.force);
    general(out, set, units);
    slabs(out, set, units);
    foundation(out, set, units);
    joints(out, set, units);
    loads(out, set, units);
    damage(out, set, units);
}
