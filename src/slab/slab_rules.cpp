#include "slab/slab_rules.h"

#include "store/store.h"

namespace {

constexpr int clearedGroups = 7;        // the store holds 12
constexpr int clearedCoordinates = 15;  // the store holds 25

constexpr Integer SlabSet::*general[] = {
    &SlabSet::NFOUND, &SlabSet::NDAMA,  &SlabSet::NPY,  &SlabSet::NLG,    &SlabSet::NLAYER, &SlabSet::NBOND,
    &SlabSet::NSLAB,  &SlabSet::NJOINT, &SlabSet::NNCK, &SlabSet::NPRINT, &SlabSet::NSX,    &SlabSet::NSY,
    &SlabSet::MDPO,   &SlabSet::NUNIT,  &SlabSet::NAT1, &SlabSet::NAT2,
};
constexpr Integer SlabSet::*concentrated[] = {&SlabSet::NCNF, &SlabSet::NNMX, &SlabSet::NNMY};
constexpr Variant SlabSet::*control[] = {
    &SlabSet::NOTCON, &SlabSet::NGAP, &SlabSet::INPUT, &SlabSet::NTEMP, &SlabSet::NWT,
    &SlabSet::NCYCLE, &SlabSet::TEMP, &SlabSet::CT,    &SlabSet::DEL,   &SlabSet::FMAX,
};
constexpr Variant SlabSet::*foundation[] = {
    &SlabSet::NL,  &SlabSet::MAXIC, &SlabSet::NAS,  &SlabSet::SUBMOD,
    &SlabSet::YMS, &SlabSet::PRS,   &SlabSet::YMSB, &SlabSet::PRSB,
};

void setNumbers(SlabSet& set) {
    for (const auto field : general) set.*field = 0;
    for (const auto field : concentrated) set.*field = 0;
    for (const auto field : control) set.*field = 0;
    for (const auto field : foundation) set.*field = 0;
    set.TITLE.clear();
    set.UL = 1;
    set.TC = 2;
    set.CL = 2;
    set.NPY = set.NLG = set.NLAYER = set.NSLAB = set.NNCK = 1;
    set.NCYCLE = 1;
    set.DEL = 0.001;
    set.MAXIC = 30;
    set.PRSB = 0.3;
}

void clearSlabsAndLoads(SlabSet& set) {
    for (int n = 1; n <= decltype(set.SLAB)::last; ++n) {
        SlabSet::Slab& slab = set.SLAB[n];
        slab.NX = slab.NY = slab.JONO1 = slab.JONO2 = slab.JONO3 = slab.JONO4 = 0;
        for (int i = 1; i <= clearedCoordinates; ++i) slab.X[i] = slab.Y[i] = 0;
    }
    for (int group = 1; group <= clearedGroups; ++group) {
        set.NUDL[group] = 0;
        set.AREA[group] = {};
        for (int period = 1; period <= 12; ++period) set.TNLR[period][group] = 0;
    }
}

void setLists(SlabSet& set) {
    set.LAYER = {};
    set.LAYER[1].PR = 0.15F;
    for (int period = 1; period <= 12; ++period) set.FSAF[period] = 1;
    set.JOINT = {};
    for (int joint = 1; joint <= decltype(set.JOINT)::last; ++joint) {
        for (int node = 2; node <= 15; ++node) set.JOINT[joint].BARNO[node] = 1;
    }
    set.FORCE = {};
    set.MOMENTX = {};
    set.MOMENTY = {};
    set.NODNC = set.NP = {};
    set.NODSX = set.NODSY = {};
    set.THICK1 = set.THICK2 = {};
    set.GAP = {};
    set.SUBGRADE = {};
    set.FOUNDATION = {};
}

void copySlabs(const SlabSet& from, SlabSet& to) {
    for (int n = 1; n <= from.NSLAB; ++n) {
        const SlabSet::Slab& slab = from.SLAB[n];
        SlabSet::Slab& copy = to.SLAB[n];
        copy.NX = slab.NX;
        copy.NY = slab.NY;
        copy.JONO1 = slab.JONO1;
        copy.JONO2 = slab.JONO2;
        copy.JONO3 = slab.JONO3;
        copy.JONO4 = slab.JONO4;
        copyTo(slab.X, copy.X, slab.NX);
        copyTo(slab.Y, copy.Y, slab.NY);
    }
}

void copyJoints(const SlabSet& from, SlabSet& to) {
    for (int n = 1; n <= from.NJOINT; ++n) {
        const SlabSet::Joint& joint = from.JOINT[n];
        const auto BARNO = to.JOINT[n].BARNO;
        to.JOINT[n] = joint;
        to.JOINT[n].BARNO = BARNO;
        copyTo(joint.BARNO, to.JOINT[n].BARNO, joint.NNAJ);
    }
}

void copyLists(const SlabSet& from, SlabSet& to) {
    copyTo(from.THICK1, to.THICK1, from.NAT1);
    copyTo(from.THICK2, to.THICK2, from.NAT2);
    copyTo(from.FORCE, to.FORCE, from.NCNF);
    copyTo(from.MOMENTX, to.MOMENTX, from.NNMX);
    copyTo(from.MOMENTY, to.MOMENTY, from.NNMY);
    copyTo(from.NODNC, to.NODNC, from.NOTCON);
    copyTo(from.NP, to.NP, from.NPRINT);
    copyTo(from.NODSX, to.NODSX, from.NSX);
    copyTo(from.NODSY, to.NODSY, from.NSY);
    copyTo(from.GAP, to.GAP, from.NGAP);
    copyTo(from.FSAF, to.FSAF, from.NPY);
    copyTo(from.SUBGRADE, to.SUBGRADE, from.NAS);
    copyTo(from.FOUNDATION, to.FOUNDATION, from.NL);
}

#define HOLDS(condition) [](const SlabSet& s) -> bool { return condition; }

bool lacksFirst(const Variant& count, const Variant& first) { return !isZero(count) && isZero(first); }

const Missing<SlabSet> missingData[] = {
    {HOLDS(s.SLAB[1].NX == 0 || s.SLAB[1].NY == 0),
     "You forgot to enter NX or NY by clicking Slab\\Arrangement menu."},
    {HOLDS(s.LAYER[1].T == 0), "You forgot to enter slab thickness (T) by clicking Slab\\Properties menu."},
    {HOLDS(s.NJOINT != 0 && isZero(s.JOINT[1].SPCON1) && isZero(s.JOINT[1].BD)),
     "You forgot to enter the Joint Information by clicking the Joint menu."},
    {HOLDS(lacksFirst(s.NPRINT, s.NP[1])),
     "You forgot to enter the nodal numbers for printout (NP) by clicking Optional\\Node Printout menu."},
    {HOLDS(lacksFirst(s.NSX, s.NODSX[1])),
     "You forgot to enter the nodal numbers on x axis of symmetry (NODSX) by clicking Optional\\Node X "
     "SYMMETRY menu."},
    {HOLDS(lacksFirst(s.NSY, s.NODSY[1])),
     "You forgot to enter the nodal numbers on y axis of symmetry (NODSY) by clicking Optional\\Node Y "
     "SYMMETRY menu."},
    {HOLDS(lacksFirst(s.NOTCON, s.NODNC[1])),
     "You forgot to enter the nodal numbers not in contact (NODNC) by clicking Optional\\Node Not Contact "
     "menu"},
    {HOLDS(lacksFirst(s.NGAP, s.GAP[1].NG)),
     "You forgot to enter the amount of gaps (GAP) by clicking Optional\\Gaps menu"},
    {HOLDS(lacksFirst(s.NAT1, s.THICK1[1].NT)),
     "You forgot to enter the additional thicknesses (T1) by clicking Optional\\Add.T.Layer1 menu."},
    {HOLDS(lacksFirst(s.NAT2, s.THICK2[1].NT)),
     "You forgot to enter the additional thicknesses (T2) by clicking Optional\\Add.T.Layer2 menu."},
};

bool isRaft(const SlabSet& s) { return s.NCNF != 0 || s.NNMX != 0 || s.NNMY != 0; }

const Missing<SlabSet> raftLimits[] = {
    {HOLDS(s.NDAMA != 0),
     "Raft foundation doesn't need damage analysis, please change NDAMA to 0 by clicking the General menu."},
    {HOLDS(s.NPY != 1),
     "Raft foundation limits only to one period, please change NPY to 1 by clicking the General menu."},
    {HOLDS(s.NLG != 1),
     "Raft foundation limits only to one load group, please change NLG to 1 by clicking the General menu."},
};

constexpr auto severalPeriods = HOLDS(s.NPY != 1);
constexpr auto joints = HOLDS(s.NJOINT != 0);
constexpr auto optionalLists = HOLDS(s.NAT1 != 0 || s.NAT2 != 0 || s.NSX != 0 || s.NSY != 0 || s.NPRINT != 0);
constexpr auto damage = HOLDS(s.NDAMA != 0);
constexpr auto withUL = HOLDS(s.UL == Variant(1));
constexpr auto withTC = HOLDS(s.TC == 1);
constexpr auto withCL = HOLDS(s.CL == Variant(1));

/// The end node of the joint, where the slab that names it first has no more nodes along that side.
Integer endNode(const SlabSet& set, int joint) {
    for (int n = 1; n <= decltype(set.SLAB)::last && n <= set.NSLAB; ++n) {
        const SlabSet::Slab& slab = set.SLAB[n];
        if (slab.JONO1 == joint || slab.JONO2 == joint) return slab.NY;
        if (slab.JONO3 == joint || slab.JONO4 == joint) return slab.NX;
    }
    return 0;
}

}  // namespace

const std::array<StatusRule<SlabSet>, 7> slabColorCode = {{
    {"lblAdjust", severalPeriods},
    {"lblJoint", joints},
    {"lblOptional", optionalLists, false, "defaulr"},
    {"lblDamage", damage},
    {"lblUniform", withUL},
    {"lblCurling", withTC},
    {"lblRaft", withCL},
}};

const std::array<StatusRule<SlabSet>, 6> slabGeneralRules = {{
    {"lblUniform", withUL},
    {"lblCurling", withTC},
    {"lblRaft", withCL},
    {"lblAdjust", severalPeriods, true},
    {"lblJoint", joints, true},
    {"lblOptional", optionalLists, true},
}};

const StatusRule<SlabSet> slabDamageRule = {"lblDamage", damage, true};

void setNewFileDefaults(SlabSet& set) {
    setNumbers(set);
    clearSlabsAndLoads(set);
    setLists(set);
}

void setUnitDefaults(SlabSet& set) {
    const bool si = set.NUNIT != 0;
    set.CT = si ? 0.000009 : 0.000005;
    set.FMAX = si ? 2.54 : 1.0;
    set.LAYER[1].GAMA = si ? 23.6F : 150.0F;
    set.LAYER[1].PMR = si ? 3450.0F : 500.0F;
    set.LAYER[1].YM = si ? 2.76E7F : 4.0E6F;
    set.YMSB = si ? 2.0E8 : 2.9E7;
}

void copyToDataSet2(Store& store) {
    const SlabSet& from = store.slab[1];
    SlabSet& to = store.slab[2];
    to.TITLE = from.TITLE;
    for (const auto field : general) to.*field = from.*field;
    for (const auto field : concentrated) to.*field = from.*field;
    for (const auto field : control) to.*field = from.*field;
    for (const auto field : foundation) to.*field = from.*field;
    to.LAYER = from.LAYER;
    copySlabs(from, to);
    copyTo(from.NUDL, to.NUDL, from.NLG);
    for (int group = 1; group <= from.NLG; ++group)
        copyTo(from.AREA[group], to.AREA[group], from.NUDL[group]);
    copyJoints(from, to);
    copyTo(from.TNLR, to.TNLR, from.NPY, from.NLG);
    copyLists(from, to);
}

std::vector<std::string> ErrCheck(Store& store) {
    store.CurSlabDS = 1;
    const SlabSet& set = store.slab[1];
    for (const auto& missing : missingData)
        if (missing.holds(set)) return {missing.message};
    std::vector<std::string> messages;
    for (const auto& limit : raftLimits)
        if (isRaft(set) && limit.holds(set)) messages.emplace_back(limit.message);
    return messages;
}

void setArrangementDefaults(SlabSet& set) {
    for (int joint = 1; joint <= decltype(set.JOINT)::last && joint <= set.NJOINT; ++joint) {
        const Integer node = endNode(set, joint);
        if (node > 0 && node <= 15) set.JOINT[joint].BARNO[node] = 0;
    }
    if (set.NDAMA == 2 || (set.NDAMA == 1 && set.NPRINT == 3)) {
        const Integer NY = set.SLAB[1].NY;
        set.NP[1] = 1;
        set.NP[2] = static_cast<Integer>(2 * NY + 1);
        set.NP[3] = static_cast<Integer>(4 * NY + 1);
    }
}

void setRaftDefault(SlabSet& set) {
    if (isRaft(set)) set.FMAX = set.NUNIT != 0 ? 25.4 : 10.0;
}
