#include "layered/layered_rules.h"

#include <gmock/gmock.h>

#include "store/store.h"

namespace {

std::string texts(const std::vector<Variant>& values) {
    std::string joined;
    for (const Variant& value : values) joined += (joined.empty() ? "" : " ") + value.text();
    return joined;
}

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
    EXPECT_TRUE(set.LOADL[12].NR.isEmptyText());
    EXPECT_TRUE(set.NOLLAY[12].NCLAY.isEmptyText());
    EXPECT_EQ(texts({set.INTF[18], set.CREEP[12][12], set.TYME[11], set.RC[12][24], set.VISLAY[1].LNV,
                     set.DAMBT[12].FT1}),
              "0 0 100 0 0 .0796");
    EXPECT_EQ(texts({set.INTF[19], set.CREEP[12][13], set.TYME[12], set.RC[12][25], set.PT[1][25].YPT,
                     set.DAMBT[13].FT1, set.DAMBT[1].LNBT, set.DAMTC[13].FT5, set.VISLAY[1].TEMPREF,
                     set.TEMP[1][1]}),
              "7 7 7 7 7 7 7 7 7 7");
}

TEST(UnitDefaults, FollowTheSystemOfUnits) {
    LayeredSet set;
    setNewFileDefaults(set);
    setUnitDefaults(set);
    EXPECT_EQ(set.VISLAY[1].TEMPREF, Variant(70));
    set.NUNIT = 1;
    setUnitDefaults(set);
    EXPECT_EQ(texts({set.VISLAY[12].BETA, set.TEMP[12][12], set.DAMBT[12].FT1, set.DAMBT[13].FT1}),
              ".2034 21.1 .414 0");
}

class Copying : public ::testing::Test {
  protected:
    Copying() {
        first = usedSet();
        first.NPY = first.NLG = first.NLBT = 2;
        first.NLTC = 1;
        first.NL = 3;
        first.NZ = 4;
        first.NVL = 1;
        first.NTYME = 11;
        first.NOLAY = 2;
        first.LOADL[1].NR = 3;
        first.LOADL[2].NR = "2";  // as a table cell stores it
    }
    Store store;
    LayeredSet& first = store.layered[1];
    LayeredSet& third = store.layered[3];
};

TEST_F(Copying, ReachesAsFarAsTheCountsOfTheFirstSet) {
    Initial(store, 3);
    EXPECT_EQ(texts({third.ZC[4], third.EMOD[2][3], third.RC[2][2], third.DAMBT[2].FT3, third.TEMP[2][1]}),
              "7 7 7 7 7");
    EXPECT_EQ(texts({third.ZC[5], third.INTF[3], third.RC[2][3], third.DAMTC[2].FT5, third.TEMP[2][2]}),
              "0 0 0 0 0");
    EXPECT_EQ(store.layered[2].TITLE, "");
}

TEST_F(Copying, EndsInSilenceWhereACountIsNoNumberOrBeyondTheStore) {
    first.LOADL[1].NR = "";
    Initial(store, 3);
    EXPECT_TRUE(third.LOADL[1].NR.isEmptyText());
    EXPECT_EQ(texts({third.EMOD[1][1], third.LOADL[2].CR, third.DAMBT[1].FT1, third.VISLAY[1].BETA}),
              "7 0 0 0");
    first.NPY = 13;  // seasonal parameters come before the layers
    Initial(store, 4);
    EXPECT_EQ(texts({store.layered[4].NPY, store.layered[4].ZC[4], store.layered[4].LAYER[1].TH}), "13 7 0");
}

TEST(MissingData, AnEmptyTextCountsAsZeroAndOnlyTheFirstSetIsLookedAt) {
    Store store;
    LayeredSet& set = store.layered[1];
    set.MATL = 2;
    set.LAYER[1].TH = 4;
    set.EMOD[1][1] = "5E5";
    set.LOADL[1].CR = 4.5;
    set.NOLLAY[1].LAYNO = 2;
    set.KPER[1][1][2] = 10000;
    EXPECT_EQ(ErrCheck1(store), std::nullopt);
    // Each comes before the one that is missing already.
    const std::pair<Variant*, const char*> values[] = {{&set.KPER[1][1][2], "Seasonal\\Layer No."},
                                                       {&set.NOLLAY[1].LAYNO, "Nonseasonal Information"},
                                                       {&set.LAYER[1].TH, "layer thickness"}};
    for (const auto& [value, menu] : values) {
        *value = "";
        EXPECT_THAT(ErrCheck1(store).value_or(""), ::testing::HasSubstr(menu));
    }
}

TEST(StatusWords, DifferOnlyInWhatAsksForDepths) {
    LayeredSet set;
    setNewFileDefaults(set);
    const auto asking = [&](const StatusRules& rules) {
        std::string labels;
        for (const auto& rule : rules)
            if (rule.needsInput(set)) labels += std::string(rule.label).substr(3) + " ";
        return labels;
    };
    EXPECT_EQ(asking(colorCodeRules), "Zcoord ");
    EXPECT_EQ(asking(generalRules), "");
    set.NDAMA = 1;
    set.NZ = 5;
    set.NBOND = 2;  // opens the interface table, and yet asks for nothing
    EXPECT_EQ(asking(colorCodeRules), "Damage ");
    EXPECT_EQ(asking(generalRules), "Zcoord Damage ");
    set.MATL = 4;
    set.NBOND = 0;
    EXPECT_EQ(asking(generalRules), "Nonlinear Viscoelastic Zcoord Interface Damage ");
}

}  // namespace
