#include "solvers/tolstrat/plot_file.h"

namespace {

Single single(const Variant& value) { return ToSingle(value.number()); }

}  // namespace

BedProblem bedProblem(const LayeredSet& set) {
    BedProblem bed;
    bed.TITLE = set.TITLE;
    bed.MATL = ToInteger(set.MATL);
    bed.NDAMA = ToInteger(set.NDAMA);
    bed.NPY = ToInteger(set.NPY);
    bed.NLG = ToInteger(set.NLG);
    bed.NL = ToInteger(set.NL);
    bed.NZ = ToInteger(set.NZ);
    bed.NUNIT = ToInteger(set.NUNIT);
    for (int i = 1; i <= bed.NL; ++i) {
        if (i < bed.NL) bed.TH[i] = single(set.LAYER[i].TH);
        bed.PR[i] = single(set.LAYER[i].PR);
    }
    for (int i = 1; i <= bed.NZ; ++i) bed.ZC[i] = single(set.ZC[i]);
    for (int period = 1; period <= bed.NPY; ++period) {
        for (int i = 1; i <= bed.NL; ++i) bed.E[period][i] = ToLong(set.EMOD[period][i].number());
    }
    for (int group = 1; group <= bed.NLG; ++group) {
        const LayeredSet::Load& load = set.LOADL[group];
        bed.LOAD[group] = load.LOAD.integer();
        bed.CR[group] = single(load.CR);
        bed.CP[group] = single(load.CP);
        if (bed.LOAD[group] == 0) {
            bed.NR[group] = load.NR.integer();
            for (int j = 1; j <= bed.NR[group]; ++j) bed.RC[group][j] = single(set.RC[group][j]);
        } else {
            bed.NPT[group] = load.NR.integer();
            bed.XW[group] = single(load.XW);
            bed.YW[group] = single(load.YW);
            for (int j = 1; j <= bed.NPT[group]; ++j) {
                bed.XPT[group][j] = single(set.PT[group][j].XPT);
                bed.YPT[group][j] = single(set.PT[group][j].YPT);
            }
        }
    }
    return bed;
}
