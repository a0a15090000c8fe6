#include "layered/layered_rules.h"

#include <gmock/gmock.h>

#include "store/store.h"

namespace {

/// A set in which every place that a new file may or may not clear holds a 7.
LayeredSet usedSet() {
    LayeredSet set;
    set.TITLE = "older deck";
    for (int i = 1; i <= 19; ++i) {
        set.ZC[i] = 7;
        set.INTF[i] = 7;
        set.LAYER[i] = {7, 7, 7};
        set.DAMBT[i] = {7, 7, 7, 7};
        set.DAMTC[i] = {7, 7, 7};
    }
    for (int t = 1; t <= 15; ++t) set.TYME[t] = 7;
    for (int i = 1; i <= 12; ++i) {
        set.LOADL[i] = {7, 7, 7, 7, 7, 7};
        set.NOLLAY[i] = {7, 7, 7};
        set.VISLAY[i] = {7, 7, 7};
        for (int p = 1; p <= 25; ++p) {
            set.RC[i][p] = 7;
            set.PT[i][p] = {7, 7};
        }
        for (int t = 1; t <= 15; ++t) set.CREEP[i][t] = 7;
        for (int l = 1; l <= 19; ++l) set.EMOD[i][l] = 7;
        for (int j = 1; j <= 12; ++j) set.TEMP[i][j] = 7;
    }
    return set;
}

TEST(NewFileDefaults, ClearAsFarAsTheyReachAndNoFurther) {
    LayeredSet set = usedSet();
    setNewFileDefaults(set);
    EXPECT_EQ(set.TITLE, "");
    EXPECT_EQ(set.ZC[19], Variant(0));
    EXPECT_EQ(set.INTF[18], 0);
    EXPECT_EQ(set.INTF[19], 7);
    EXPECT_EQ(set.LAYER[19].GAM, Variant(0));
    EXPECT_EQ(set.EMOD[12][19], Variant(0));
    EXPECT_EQ(set.CREEP[12][12], 0);
    EXPECT_EQ(set.CREEP[12][13], 7);
    EXPECT_EQ(set.TYME[11], Variant(100));
    EXPECT_EQ(set.TYME[12], Variant(7));
    EXPECT_EQ(set.LOADL[12].XW, Variant(0));
    EXPECT_EQ(set.RC[12][24], Variant(0));
    EXPECT_EQ(set.RC[12][25], Variant(7));
    EXPECT_EQ(set.PT[1][25].YPT, Variant(7));
    EXPECT_EQ(set.DAMBT[12].FT1, Variant(0.0796));
    EXPECT_EQ(set.DAMBT[13].FT1, Variant(7));
    EXPECT_EQ(set.DAMBT[1].LNBT, Variant(7));
    EXPECT_EQ(set.DAMTC[13].FT5, 7);
    EXPECT_EQ(set.VISLAY[1].LNV, Variant(0));
    EXPECT_EQ(set.VISLAY[1].TEMPREF, Variant(7));
    EXPECT_EQ(set.TEMP[1][1], Variant(7));
}

TEST(NewFileDefaults, WaitForTheTablesByAnEmptyTextAndPrintAsShortNumbers) {
    LayeredSet set;
    setNewFileDefaults(set);
    EXPECT_TRUE(set.LOADL[12].NR.isEmptyText());
    EXPECT_TRUE(set.NOLLAY[12].NCLAY.isEmptyText());
    EXPECT_EQ(numberText(set.DEL), ".001");
    EXPECT_EQ(set.DELNOL.text(), ".01");
    EXPECT_EQ(set.KCLAY[12].K3.text(), "1110");
    EXPECT_EQ(set.DAMBT[1].FT2.text(), "3.291");
    EXPECT_EQ(numberText(set.DAMTC[1].FT4), "1.365E-09");
}

TEST(UnitDefaults, FollowTheSystemOfUnits) {
    LayeredSet set;
    setNewFileDefaults(set);
    setUnitDefaults(set);
    EXPECT_EQ(set.VISLAY[12].BETA, Variant(0.113));
    EXPECT_EQ(set.TEMP[12][12], Variant(70));
    EXPECT_EQ(set.DAMBT[12].FT1, Variant(0.0796));
    set.NUNIT = 1;
    setUnitDefaults(set);
    EXPECT_EQ(set.VISLAY[12].BETA, Variant(0.2034));
    EXPECT_EQ(set.VISLAY[1].TEMPREF.text(), "21.1");
    EXPECT_EQ(set.TEMP[1][12], Variant(21.1));
    EXPECT_EQ(set.DAMBT[12].FT1, Variant(0.414));
    EXPECT_EQ(set.DAMBT[13].FT1, Variant(0));
}

class Copying : public ::testing::Test {
  protected:
    Copying() {
        first = usedSet();
        first.NPY = 2;
        first.NLG = 2;
        first.NL = 3;
        first.NZ = 4;
        first.NVL = 1;
        first.NTYME = 11;
        first.NOLAY = 2;
        first.NLBT = 2;
        first.NLTC = 1;
        first.LOADL[1].NR = 3;
        first.LOADL[2].NR = "2";  // as a table cell stores it
    }
    Store store;
    LayeredSet& first = store.layered[1];
    LayeredSet& third = store.layered[3];
};

TEST_F(Copying, ReachesAsFarAsTheCountsOfTheFirstSet) {
    Initial(store, 3);
    EXPECT_EQ(third.TITLE, "older deck");
    EXPECT_EQ(third.NZ, 4);
    EXPECT_EQ(third.ZC[4], Variant(7));
    EXPECT_EQ(third.ZC[5], Variant(0));
    EXPECT_EQ(third.INTF[2], 7);
    EXPECT_EQ(third.INTF[3], 0);
    EXPECT_EQ(third.EMOD[2][3], Variant(7));
    EXPECT_EQ(third.EMOD[3][1], Variant(0));
    EXPECT_EQ(third.RC[1][3], Variant(7));
    EXPECT_EQ(third.RC[2][2], Variant(7));
    EXPECT_EQ(third.RC[2][3], Variant(0));
    EXPECT_EQ(third.DAMBT[2].FT3, Variant(7));
    EXPECT_EQ(third.DAMTC[2].FT5, 0);
    EXPECT_EQ(third.TEMP[2][1], Variant(7));
    EXPECT_EQ(third.TEMP[2][2], Variant(0));
    EXPECT_EQ(store.layered[2].TITLE, "");
}

TEST_F(Copying, EndsInSilenceWhereACountIsNoNumber) {
    first.LOADL[1].NR = "";
    Initial(store, 3);
    EXPECT_EQ(third.EMOD[1][1], Variant(7));
    EXPECT_TRUE(third.LOADL[1].NR.isEmptyText());
    EXPECT_EQ(third.LOADL[2].CR, Variant(0));
    EXPECT_EQ(third.DAMBT[1].FT1, Variant(0));
    EXPECT_EQ(third.VISLAY[1].BETA, Variant(0));
}

TEST_F(Copying, EndsInSilenceAtTheBoundOfTheStore) {
    first.NPY = 13;
    Initial(store, 3);
    EXPECT_EQ(third.NPY, 13);
    EXPECT_EQ(third.ZC[4], Variant(7));
    EXPECT_EQ(third.LAYER[1].TH, Variant(0)) << "seasonal parameters of period 13 come before the layers";
}

struct MissingCase {
    const char* what;
    void (*remove)(LayeredSet& set);
    const char* message;
};

LayeredSet completeSet(Single MATL) {
    LayeredSet set;
    set.MATL = MATL;
    set.LAYER[1].TH = 4;
    set.EMOD[1][1] = "5E5";
    set.LOADL[1].CR = 4.5;
    set.NOLLAY[1].LAYNO = 2;
    set.KPER[1][1][2] = 10000;
    set.VISLAY[1].LNV = 1;
    set.CREEP[1][1] = 1e-6F;
    return set;
}

TEST(MissingData, IsToldInOrderAndOnlyForTheFirstSet) {
    const MissingCase cases[] = {
        {"creep", [](LayeredSet& set) { set.CREEP[1][1] = 0; },
         "You forgot to enter the creep compliances by clicking the Viscoelastic\\Creep\\Layer No. menu."},
        {"LNV", [](LayeredSet& set) { set.VISLAY[1].LNV = 0; },
         "You forgot to enter the Viscoelastic Layer Information by clicking the Viscoelastic\\layer menu."},
        {"K1", [](LayeredSet& set) { set.KPER[1][1][2] = ""; },
         "You forgot to enter the seasonal input parameters by clicking the "
         "Nonlinear\\Seasonal\\Layer No. menu."},
        {"LAYNO", [](LayeredSet& set) { set.NOLLAY[1].LAYNO = "0"; },
         "You forgot to enter the Nonseasonal Information by clicking the Nonlinear\\Nonseasonal menu."},
        {"CR", [](LayeredSet& set) { set.LOADL[1].CR = 0; },
         "You forgot to enter the load by clicking the Load menu."},
        {"TH", [](LayeredSet& set) { set.LAYER[1].TH = ""; },
         "You forgot to enter the layer thickness by clicking the Layer menu."},
    };
    Store store;
    store.layered[1] = completeSet(4);
    store.CurLayDS = 2;  // empty, but nobody looks at it
    EXPECT_EQ(ErrCheck1(store), std::nullopt);
    EXPECT_EQ(store.CurLayDS, 1);
    for (const MissingCase& c : cases) {  // each comes before those that are missing already
        c.remove(store.layered[1]);
        EXPECT_EQ(ErrCheck1(store), c.message) << c.what;
    }
}

TEST(MissingData, DependsOnTheMaterial) {
    Store store;
    LayeredSet& set = store.layered[1];
    for (const Single MATL : {1.F, 2.F, 3.F, 4.F}) {
        set = completeSet(MATL);
        set.EMOD[1][1] = 0;
        EXPECT_EQ(ErrCheck1(store).has_value(), MATL < 3) << MATL;
        set = completeSet(MATL);
        set.NOLLAY[1].LAYNO = 0;
        EXPECT_EQ(ErrCheck1(store).has_value(), MATL == 2 || MATL == 4) << MATL;
        set = completeSet(MATL);
        set.CREEP[1][1] = 0;
        EXPECT_EQ(ErrCheck1(store).has_value(), MATL >= 3) << MATL;
    }
}

std::string asking(const StatusRules& rules, const LayeredSet& set) {
    std::string labels;
    for (const auto& rule : rules) {
        if (rule.needsInput(set)) labels += std::string(rule.label).substr(3) + " ";
    }
    return labels;
}

TEST(StatusWords, DifferOnlyInWhatAsksForDepths) {
    LayeredSet set;
    setNewFileDefaults(set);
    EXPECT_EQ(asking(colorCodeRules, set), "Zcoord ");
    EXPECT_EQ(asking(generalRules, set), "");
    set.NDAMA = 1;
    set.NZ = 5;
    set.NBOND = 2;  // opens the interface table, and yet asks for nothing
    EXPECT_EQ(asking(colorCodeRules, set), "Damage ");
    EXPECT_EQ(asking(generalRules, set), "Zcoord Damage ");
    set.MATL = 4;
    set.NBOND = 0;
    EXPECT_EQ(asking(generalRules, set), "Nonlinear Viscoelastic Zcoord Interface Damage ");
}

}  // namespace
