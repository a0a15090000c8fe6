#include "solvers/tolstrat/plot_file.h"

#include <cmath>
#include <limits>

#include "layered/layered_cards.h"
#include "solvers/plot_single.h"

namespace {

Single single(const Variant& value) { return ToSingle(value.number()); }

void copyLayers(const LayeredSet& set, BedProblem& bed) {
    for (int i = 1; i <= bed.NL; ++i) {
        if (i < bed.NL) bed.TH[i] = single(set.LAYER[i].TH);
        bed.PR[i] = single(set.LAYER[i].PR);
    }
    for (int period = 1; period <= bed.NPY; ++period)
        for (int i = 1; i <= bed.NL; ++i) {
            const double E = set.EMOD[period][i].number();
            const bool unused = isViscoelastic(set, i) && std::abs(E) > std::numeric_limits<Long>::max();
            bed.E[period][i] = unused ? 0 : ToLong(E);
        }
}

void copyLoad(const LayeredSet& set, int group, BedProblem& bed) {
    const LayeredSet::Load& load = set.LOADL[group];
    bed.LOAD[group] = load.LOAD.integer();
    bed.CR[group] = single(load.CR);
    bed.CP[group] = single(load.CP);
    if (bed.LOAD[group] == 0) {
        bed.NR[group] = load.NR.integer();
        for (int j = 1; j <= bed.NR[group]; ++j) bed.RC[group][j] = single(set.RC[group][j]);
        return;
    }
    bed.NPT[group] = load.NR.integer();
    bed.XW[group] = single(load.XW);
    bed.YW[group] = single(load.YW);
    for (int j = 1; j <= bed.NPT[group]; ++j) {
        bed.XPT[group][j] = single(set.PT[group][j].XPT);
        bed.YPT[group][j] = single(set.PT[group][j].YPT);
    }
}

void copyNonlinearLayer(const LayeredSet& set, int n, BedProblem& bed) {
    const int i = bed.LAYNO[n] = set.NOLLAY[n].LAYNO.integer();
    bed.ZCNOL[n] = single(set.NOLLAY[n].ZCNOL);
    const bool clay = set.NOLLAY[n].NCLAY.number() != 0;
    bed.NCLAY[i] = clay ? 1 : 0;
    bed.K2[i] = single(clay ? set.KCLAY[n].K2 : set.KGRAN[n].K2);
    bed.K0[i] = single(clay ? set.KCLAY[n].K0 : set.KGRAN[n].K0);
    if (clay) bed.K3[i] = single(set.KCLAY[n].K3), bed.K4[i] = single(set.KCLAY[n].K4);
    for (int period = 1; period <= bed.NPY; ++period) {
        const auto& seasonal = set.KPER[n][period];
        bed.K1[period][i] = single(seasonal[clay ? 3 : 2]);
        (clay ? bed.EMIN : bed.PHI)[period][i] = single(seasonal[1]);
        if (clay) bed.EMAX[period][i] = single(seasonal[2]);
    }
}

void copyNonlinear(const LayeredSet& set, BedProblem& bed) {
    bed.NOLAY = set.NOLAY.integer();
    bed.RCNOL = single(set.RCNOL);
    bed.XCNOL = single(set.XCNOL);
    bed.YCNOL = single(set.YCNOL);
    bed.SLD = single(set.SLD);
    for (int i = 1; i <= bed.NL; ++i) bed.GAM[i] = single(set.LAYER[i].GAM);
    for (int n = 1; n <= bed.NOLAY; ++n) copyNonlinearLayer(set, n, bed);
}

void copyViscoelastic(const LayeredSet& set, BedProblem& bed) {
    bed.DUR = single(set.DUR);
    bed.NVL = set.NVL.integer();
    bed.NTYME = set.NTYME.integer();
    for (int t = 1; t <= bed.NTYME; ++t) bed.TYME[t] = single(set.TYME[t]);
    for (int n = 1; n <= bed.NVL; ++n) {
        const int i = bed.LNV[n] = set.VISLAY[n].LNV.integer();
        bed.BETA[i] = single(set.VISLAY[n].BETA);
        bed.TEMPREF[i] = single(set.VISLAY[n].TEMPREF);
        for (int t = 1; t <= bed.NTYME; ++t) bed.CREEP[i][t] = set.CREEP[n][t];
        for (int period = 1; period <= bed.NPY; ++period) bed.TEMP[period][i] = single(set.TEMP[period][n]);
    }
}

/// The plot adds up thicknesses as Singles and marks a bottom as one only where its depth is exactly that.
Single plottedDepth(const DamageLocation& location, const BedProblem& bed) {
    if (location.kind == DamageKind::Top) return ToSingle(location.z);
    Single depth = 0;
    for (int i = 1; i <= location.layer; ++i) depth += bed.TH[i];
    return depth;
}

void copyDamage(const LayeredSet& set, const std::vector<GroupDamage>& groups, const DamageSum& sum,
                BedProblem& bed) {
    bed.NLBT = ToInteger(set.NLBT);
    bed.NLTC = ToInteger(set.NLTC);
    const auto locations = damageLocations(set);
    bed.NZ = static_cast<Integer>(locations.size());
    for (int j = 1; j <= bed.NZ; ++j)
        bed.ZC[j] = plottedDepth(locations[static_cast<std::size_t>(j - 1)], bed);
    for (const GroupDamage& group : groups) {
        bed.TNLR[group.group][group.period] = ToSingle(group.repetitions);
        for (int j = 1; j <= bed.NZ; ++j) {
            const LocationDamage& d = group.locations[static_cast<std::size_t>(j - 1)];
            bed.DRATIO[group.period][group.group][j] = plotSingle(d.primary.ratio);
            if (d.secondary) bed.ADDED[group.period][group.group][j] = plotSingle(d.secondary->ratio);
        }
    }
    bed.KBT = static_cast<Integer>(sum.KBT);
    bed.KTC = static_cast<Integer>(sum.KTC);
    bed.DRBT = plotSingle(sum.DRBT);
    bed.DRTC = plotSingle(sum.DRTC);
    bed.DESLIFE = ToSingle(sum.life);
}

}  // namespace

bool fitsPlotFile(const LayeredSet& set) {
    return set.NDAMA == 0 || set.NLBT + set.NLTC <= PLOTTED_LOCATIONS;
}

BedProblem bedProblem(const LayeredSet& set, const std::vector<GroupDamage>& groups, const DamageSum& sum) {
    BedProblem bed;
    bed.TITLE = set.TITLE;
    bed.MATL = ToInteger(set.MATL);
    bed.NDAMA = ToInteger(set.NDAMA);
    bed.NPY = ToInteger(set.NPY);
    bed.NLG = ToInteger(set.NLG);
    bed.NL = ToInteger(set.NL);
    bed.NUNIT = ToInteger(set.NUNIT);
    copyLayers(set, bed);
    for (int group = 1; group <= bed.NLG; ++group) copyLoad(set, group, bed);
    if (bed.MATL == 2 || bed.MATL == 4) copyNonlinear(set, bed);
    if (bed.MATL == 3 || bed.MATL == 4) copyViscoelastic(set, bed);
    if (bed.NDAMA != 0) {
        copyDamage(set, groups, sum, bed);
    } else {
        bed.NZ = ToInteger(set.NZ);
        for (int i = 1; i <= bed.NZ; ++i) bed.ZC[i] = single(set.ZC[i]);
    }
    return bed;
}
