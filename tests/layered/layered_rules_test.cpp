#include "layered/layered_rules.h"

#include <gmock/gmock.h>

#include <sstream>

#include "layered/layered_deck.h"
#include "store/store.h"
#include "support/example_files.h"

namespace {

std::string texts(const std::vector<Variant>& values) {
    std::string joined;
    for (const Variant& value : values) joined += (joined.empty() ? "" : " ") + value.text();
    return joined;
}

std::string texts(const std::vector<Cell>& cells) {
    std::vector<Variant> values;
    for (const Cell& cell : cells)
        values.push_back(std::visit([](auto* held) { return Variant(*held); }, cell));
    return texts(values);
}

TEST(NewFileDefaults, ClearAsFarAsTheyReachAndNoFurther) {
    LayeredSet set;
    const std::vector<Cell> reached = {&set.INTF[18],     &set.CREEP[12][12], &set.TYME[11],
                                       &set.EMOD[12][19], &set.RC[12][24],    &set.VISLAY[1].LNV,
                                       &set.DAMBT[12].FT1};
    const std::vector<Cell> beyond = {&set.INTF[19],      &set.CREEP[12][13], &set.TYME[12],
                                      &set.RC[12][25],    &set.PT[1][25].YPT, &set.DAMBT[13].FT1,
                                      &set.DAMBT[1].LNBT, &set.DAMTC[13].FT5, &set.VISLAY[1].TEMPREF,
                                      &set.TEMP[1][1]};
    for (const auto& cells : {reached, beyond}) {
        for (const Cell& cell : cells) {
            ListReader seven = ListReader::fromText("7");
            readCell(seven, cell);
        }
    }
    set.TITLE = "older deck";
    setNewFileDefaults(set);
    EXPECT_EQ(set.TITLE, "");
    EXPECT_TRUE(set.LOADL[12].NR.isEmptyText());
    EXPECT_TRUE(set.NOLLAY[12].NCLAY.isEmptyText());
    EXPECT_EQ(texts(reached), "0 0 100 0 0 0 .0796");
    EXPECT_EQ(texts(beyond), "7 7 7 7 7 7 7 7 7 7");
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

TEST(Copying, ReachesAsFarAsTheCountsOfTheFirstSet) {
    for (const char* deck : {"BED1.DAT", "BED2.DAT", "BED6.DAT"}) {
        Store store;
        readLayeredDeck(TOLMARK_SOURCE_DIR "/examples/" + std::string(deck), store);
        LayeredSet& first = store.layered[1];
        first.ZC[5] = first.EMOD[1][4] = first.RC[2][5] = first.DAMBT[2].FT3 = first.TEMP[2][2] = 7;
        Initial(store, 3);
        const LayeredSet& third = store.layered[3];
        EXPECT_EQ(
            texts({third.ZC[5], third.EMOD[1][4], third.RC[2][5], third.DAMBT[2].FT3, third.TEMP[2][2]}),
            "0 0 0 0 0");
        EXPECT_EQ(store.layered[2].TITLE, "");
        first = third;
        std::ostringstream copied;
        ListWriter out(copied);
        saveLayeredDeck(store, out);
        out.close();
        EXPECT_EQ(copied.str(), example(deck));
    }
}

TEST(Copying, EndsInSilenceWhereACountIsNoNumberOrBeyondTheStore) {
    Store store;
    LayeredSet& first = store.layered[1];
    first.NPY = first.NLG = first.NL = first.NLBT = 1;
    first.ZC[1] = first.EMOD[1][1] = first.DAMBT[1].FT1 = first.LAYER[1].TH = 7;
    first.NZ = 1;
    first.NOLAY = first.NTYME = first.NVL = 1;
    first.LOADL[1].NR = "";
    Initial(store, 3);
    EXPECT_TRUE(store.layered[3].LOADL[1].NR.isEmptyText());
    EXPECT_EQ(texts({store.layered[3].EMOD[1][1], store.layered[3].DAMBT[1].FT1}), "7 0");
    first.NPY = 13;  // seasonal parameters come before the layers
    Initial(store, 4);
    EXPECT_EQ(texts({store.layered[4].NPY, store.layered[4].ZC[1], store.layered[4].LAYER[1].TH}), "13 7 0");
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
