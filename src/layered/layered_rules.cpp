#include "layered/layered_rules.h"

#include "store/store.h"

namespace {

constexpr int layers = 19, depths = 19, interfaces = 18;
constexpr int periods = 12, groups = 12, sequences = 12;
constexpr int newTimes = 11, clearedTimes = 12;  // the store holds 15
constexpr int clearedPoints = 24;                // the store holds 25

using General = Single LayeredSet::*;
using Free = Variant LayeredSet::*;

constexpr General GENL[] = {
    &LayeredSet::MATL, &LayeredSet::NDAMA, &LayeredSet::NPY,   &LayeredSet::NLG,  &LayeredSet::DEL,
    &LayeredSet::NL,   &LayeredSet::NZ,    &LayeredSet::ICL,   &LayeredSet::NSTD, &LayeredSet::NBOND,
    &LayeredSet::NLBT, &LayeredSet::NLTC,  &LayeredSet::NUNIT,
};
constexpr Free NOLGEN[] = {
    &LayeredSet::NOLAY, &LayeredSet::ITENOL, &LayeredSet::RCNOL,  &LayeredSet::XCNOL,
    &LayeredSet::YCNOL, &LayeredSet::SLD,    &LayeredSet::DELNOL,
};
constexpr Free VISGEN[] = {&LayeredSet::DUR, &LayeredSet::NVL, &LayeredSet::NTYME};

void setGeneralDefaults(LayeredSet& set) {
    set.TITLE.clear();
    set.MATL = 1;
    set.NDAMA = 0;
    set.NPY = 1;
    set.NLG = 1;
    set.DEL = 0.001F;
    set.NL = 3;
    set.NZ = 0;
    set.ICL = 80;
    set.NSTD = 9;
    set.NBOND = 1;
    set.NLBT = 1;
    set.NLTC = 1;
    set.NUNIT = 0;

    set.NOLAY = 1;
    set.ITENOL = 15;
    set.RCNOL = set.XCNOL = set.YCNOL = set.SLD = 0;
    set.DELNOL = 0.01;

    set.DUR = 0.1;
    set.NVL = 1;
    set.NTYME = newTimes;
}

void setTableDefaults(LayeredSet& set) {
    static constexpr Double times[newTimes] = {0.001, 0.003, 0.01, 0.03, 0.1, 0.3, 1, 3, 10, 30, 100};
    for (int t = 1; t <= newTimes; ++t) set.TYME[t] = times[t - 1];
    for (int i = 1; i <= 12; ++i) {
        set.KGRAN[i] = {.K2 = 0.5, .K0 = 0.6};
        set.KCLAY[i] = {.K2 = 6.2, .K3 = 1110, .K4 = 178, .K0 = 0.8};
        set.RELAX[i] = 0.5F;
        set.DAMBT[i].FT1 = 0.0796;
        set.DAMBT[i].FT2 = 3.291;
        set.DAMBT[i].FT3 = 0.854;
        set.DAMTC[i].FT4 = 1.365E-09F;
        set.DAMTC[i].FT5 = 4.477F;
    }
}

void clearLayersAndLoads(LayeredSet& set) {
    for (int z = 1; z <= depths; ++z) set.ZC[z] = 0;
    for (int i = 1; i <= interfaces; ++i) set.INTF[i] = 0;
    for (int l = 1; l <= layers; ++l) set.LAYER[l] = {};
    for (int p = 1; p <= periods; ++p) {
        for (int l = 1; l <= layers; ++l) set.EMOD[p][l] = 0;
        for (int g = 1; g <= groups; ++g) set.TNLR[p][g] = 0;
    }
    for (int g = 1; g <= groups; ++g) {
        set.LOADL[g] = {};
        set.LOADL[g].NR = "";  // the load table must be confirmed once
        for (int p = 1; p <= clearedPoints; ++p) {
            set.RC[g][p] = 0;
            set.PT[g][p] = {};
        }
    }
}

void clearNonlinearAndViscous(LayeredSet& set) {
    for (int n = 1; n <= sequences; ++n) {
        set.NOLLAY[n] = {.LAYNO = 0, .ZCNOL = 0, .NCLAY = ""};
        set.VISLAY[n].LNV = 0;
        for (int t = 1; t <= clearedTimes; ++t) set.CREEP[n][t] = 0;
        for (int p = 1; p <= periods; ++p) {
            set.KPER[n][p] = {};
            set.KPERX[n][p] = {};
        }
    }
}

void copyCounted(const LayeredSet& from, LayeredSet& to) {
    to.TITLE = from.TITLE;
    for (const General field : GENL) to.*field = from.*field;
    for (const Free field : NOLGEN) to.*field = from.*field;
    for (const Free field : VISGEN) to.*field = from.*field;
    copyTo(from.TYME, to.TYME, from.NTYME);
    copyTo(from.ZC, to.ZC, from.NZ);
    copyTo(from.INTF, to.INTF, from.NL - 1);
    copyTo(from.CREEP, to.CREEP, from.NVL, from.NTYME);
    copyTo(from.KPER, to.KPER, from.NOLAY, from.NPY);
    copyTo(from.KCLAY, to.KCLAY, from.NOLAY);
    copyTo(from.LAYER, to.LAYER, from.NL);
    copyTo(from.NOLLAY, to.NOLLAY, from.NOLAY);
    copyTo(from.KGRAN, to.KGRAN, from.NOLAY);
    copyTo(from.EMOD, to.EMOD, from.NPY, from.NL);
    copyTo(from.TNLR, to.TNLR, from.NPY, from.NLG);
    for (int g = 1; g <= lastIndex(from.NLG); ++g) {
        to.LOADL[g] = from.LOADL[g];
        for (int p = 1; p <= lastIndex(from.LOADL[g].NR); ++p) {
            to.RC[g][p] = from.RC[g][p];
            to.PT[g][p] = from.PT[g][p];
        }
    }
    copyTo(from.RELAX, to.RELAX, from.NPY);
    copyTo(from.KGRAN, to.KGRAN, from.NPY);  // once more, by periods: kept
    copyTo(from.DAMBT, to.DAMBT, from.NLBT);
    copyTo(from.DAMTC, to.DAMTC, from.NLTC);
    copyTo(from.VISLAY, to.VISLAY, from.NVL);
    copyTo(from.TEMP, to.TEMP, from.NPY, from.NVL);
}

constexpr Missing<LayeredSet> missingData[] = {
    {[](const LayeredSet& set) { return isZero(set.LAYER[1].TH); },
     "You forgot to enter the layer thickness by clicking the Layer menu."},
    {[](const LayeredSet& set) { return set.MATL < 3 && isZero(set.EMOD[1][1]); },
     "You forgot to enter the elastic modulus by clicking the moduli menu."},
    {[](const LayeredSet& set) { return isZero(set.LOADL[1].CR); },
     "You forgot to enter the load by clicking the Load menu."},
    {[](const LayeredSet& set) { return isNonlinear(set) && isZero(set.NOLLAY[1].LAYNO); },
     "You forgot to enter the Nonseasonal Information by clicking the Nonlinear\\Nonseasonal menu."},
    {[](const LayeredSet& set) { return isNonlinear(set) && isZero(set.KPER[1][1][2]); },
     "You forgot to enter the seasonal input parameters by clicking the Nonlinear\\Seasonal\\Layer No. "
     "menu."},
    {[](const LayeredSet& set) { return isViscous(set) && isZero(set.VISLAY[1].LNV); },
     "You forgot to enter the Viscoelastic Layer Information by clicking the Viscoelastic\\layer menu."},
    {[](const LayeredSet& set) { return isViscous(set) && set.CREEP[1][1] == 0; },
     "You forgot to enter the creep compliances by clicking the Viscoelastic\\Creep\\Layer No. menu."},
};

/// Leaving the general information keeps a "done".
constexpr StatusRules statusRules(bool (*zcoordNeedsInput)(const LayeredSet&), bool keepsDone) {
    return {{
        {"lblNonlinear", isNonlinear, keepsDone},
        {"lblViscoelastic", isViscous, keepsDone},
        {"lblZcoord", zcoordNeedsInput, keepsDone},
        {"lblInterface", [](const LayeredSet& set) { return set.NBOND == 0; }, keepsDone},
        {"lblDamage", [](const LayeredSet& set) { return set.NDAMA != 0; }, keepsDone},
    }};
}

}  // namespace

const StatusRules colorCodeRules = statusRules([](const LayeredSet& set) { return set.NDAMA == 0; }, false);
const StatusRules generalRules = statusRules([](const LayeredSet& set) { return set.NZ != 0; }, true);

void setNewFileDefaults(LayeredSet& set) {
    setGeneralDefaults(set);
    setTableDefaults(set);
    clearLayersAndLoads(set);
    clearNonlinearAndViscous(set);
}

void setUnitDefaults(LayeredSet& set) {
    const bool si = set.NUNIT != 0;
    for (int i = 1; i <= 12; ++i) {
        set.VISLAY[i].BETA = si ? 0.2034 : 0.113;
        set.VISLAY[i].TEMPREF = si ? 21.1 : 70.0;
        for (int j = 1; j <= 12; ++j) set.TEMP[i][j] = si ? 21.1 : 70.0;
        if (si) set.DAMBT[i].FT1 = 0.414;
    }
}

void Initial(Store& store, int n) {
    try {
        copyCounted(store.layered[1], store.layered[n]);
    } catch (const RunTimeError&) {
    }
}

std::optional<std::string> ErrCheck1(Store& store) {
    store.CurLayDS = 1;
    for (const auto& missing : missingData) {
        if (missing.holds(store.layered[1])) return missing.message;
    }
    return std::nullopt;
}

bool timesNeedInput(const LayeredSet& set) { return set.NTYME != Variant(newTimes); }

bool temperaturesNeedInput(const LayeredSet& set) {
    const Variant& reference = set.VISLAY[1].TEMPREF;
    return !reference.isNumeric() || (reference.number() != 70 && reference.number() != 21.1);
}
