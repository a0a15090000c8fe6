#include "slab/slab_rules.h"

#include <gmock/gmock.h>

#include "platform/run_time_error.h"
#include "support/deck_texts.h"
#include "support/slab_stores.h"

namespace {

/// Counts as large as a new file clears the places behind them.
void raiseCounts(SlabSet& s) {
    s.NPY = 12;
    s.NLG = 7;
    s.NLAYER = 2;
    s.NSLAB = 6;
    s.NJOINT = 7;
    s.NDAMA = 1;
    for (Integer SlabSet::*list :
         {&SlabSet::NPRINT, &SlabSet::NAT1, &SlabSet::NAT2, &SlabSet::NCNF, &SlabSet::NNMX, &SlabSet::NNMY})
        s.*list = 120;
    s.NSX = s.NSY = 50;
    s.NOTCON = s.NGAP = s.NAS = 120;
    s.NL = 6;
    for (int n = 1; n <= 6; ++n) s.SLAB[n].NX = s.SLAB[n].NY = 15;
    for (int group = 1; group <= 7; ++group) s.NUDL[group] = 24;
    for (int joint = 1; joint <= 7; ++joint) s.JOINT[joint].NNAJ = 15;
}

TEST(SlabNewFile, LeavesNothingOfWhatWasThere) {
    RandomSlabStores stores(7);
    SlabSet fresh;
    for (int round = 0; round < 40; ++round) {
        SlabSet used = stores.next()->slab[1];
        setNewFileDefaults(used);
        setNewFileDefaults(fresh);
        ASSERT_EQ(valuesOf(used, slabCards()), valuesOf(fresh, slabCards()));
        for (SlabSet* s : {&used, &fresh}) {
            raiseCounts(*s);
            s->NFOUND = static_cast<Integer>(round % 3);
        }
        ASSERT_EQ(valuesOf(used, slabCards()), valuesOf(fresh, slabCards()));
    }
    EXPECT_EQ(fresh.FSAF[12], 1);
    EXPECT_EQ(fresh.JOINT[7].BARNO[1], Variant(0));
    EXPECT_EQ(fresh.JOINT[7].BARNO[15], Variant(1));
}

TEST(SlabNewFile, LeavesTheLastGroupsAndCoordinates) {
    SlabSet s;
    s.SLAB[6].X[16] = s.SLAB[6].Y[16] = s.NUDL[8] = 5;
    s.AREA[8][1].QQ = s.TNLR[12][8] = 5;
    setNewFileDefaults(s);
    EXPECT_EQ(s.SLAB[6].X[16] + s.SLAB[6].Y[16] + s.NUDL[8], 15);
    EXPECT_EQ(s.AREA[8][1].QQ, Variant(5));
    EXPECT_EQ(s.TNLR[12][8], Variant(5));
}

TEST(SlabNewFile, UnitsDecideSixValues) {
    SlabSet s;
    const auto values = [&] {
        setUnitDefaults(s);
        return s.CT.text() + " " + s.FMAX.text() + " " + s.YMSB.text() + " " + numberText(s.LAYER[1].GAMA) +
               " " + numberText(s.LAYER[1].PMR) + " " + numberText(s.LAYER[1].YM);
    };
    EXPECT_EQ(values(), ".000005 1 29000000 150 500 4000000");
    s.NUNIT = 2;
    EXPECT_EQ(values(), ".000009 2.54 200000000 23.6 3450 2.76E+07");
}

TEST(SlabDataSet2, GetsWhatTheCountsReach) {
    RandomSlabStores stores(99);
    for (int round = 0; round < 40; ++round) {
        SCOPED_TRACE(round);
        const auto store = stores.next();
        SlabSet &from = store->slab[1], &copy = store->slab[2];
        copy = SlabSet();
        copyToDataSet2(*store);
        from.UL = from.CL = 0;  // the status is its own
        from.TC = 0;
        ASSERT_EQ(valuesOf(copy, slabCards()), valuesOf(from, slabCards()));
    }
}

TEST(SlabDataSet2, KeepsWhatLiesBehindTheCounts) {
    const auto store = singleSlabStore();
    SlabSet &from = store->slab[1], &copy = store->slab[2];
    from.SLAB[1].X[4] = from.SLAB[2].X[1] = 9;
    from.NJOINT = 1;
    from.JOINT[1].NNAJ = 2;
    from.FSAF[2] = from.NP[1] = 9;
    from.LAYER[2].PMR = 9;
    copyToDataSet2(*store);
    EXPECT_EQ(copy.SLAB[1].X[4] + copy.SLAB[2].X[1] + copy.FSAF[2] + copy.NP[1], 0);
    EXPECT_EQ(copy.JOINT[1].BARNO[2], Variant(1));
    EXPECT_EQ(copy.JOINT[1].BARNO[3], Variant(0));
    EXPECT_EQ(copy.LAYER[2].PMR, 9) << "layer properties in full, whatever NLAYER says";

    from.NPRINT = 121;
    EXPECT_THROW(copyToDataSet2(*store), RunTimeError);
    EXPECT_EQ(copy.NP[1], 9) << "what lies in front of the failure is copied";
}

TEST(SlabErrCheck, TellsTheFirstThingThatIsMissing) {
    const struct {
        void (*spoil)(SlabSet& s);
        const char* message;
    } rows[] = {
        {[](SlabSet& s) { s.SLAB[1].NY = 0; }, "NX or NY by clicking Slab\\Arrangement menu."},
        {[](SlabSet& s) { s.LAYER[1].T = 0; }, "slab thickness (T) by clicking Slab\\Properties menu."},
        {[](SlabSet& s) { s.NJOINT = 1, s.JOINT[1].BD = ""; },
         "the Joint Information by clicking the Joint menu."},
        {[](SlabSet& s) { s.NPRINT = 1; },
         "the nodal numbers for printout (NP) by clicking Optional\\Node Printout menu."},
        {[](SlabSet& s) { s.NSX = 1; },
         "the nodal numbers on x axis of symmetry (NODSX) by clicking Optional\\Node X SYMMETRY menu."},
        {[](SlabSet& s) { s.NSY = 1; },
         "the nodal numbers on y axis of symmetry (NODSY) by clicking Optional\\Node Y SYMMETRY menu."},
        {[](SlabSet& s) { s.NOTCON = 1.0; },
         "the nodal numbers not in contact (NODNC) by clicking Optional\\Node Not Contact menu"},
        {[](SlabSet& s) { s.NGAP = 1.0; }, "the amount of gaps (GAP) by clicking Optional\\Gaps menu"},
        {[](SlabSet& s) { s.NAT1 = 1; },
         "the additional thicknesses (T1) by clicking Optional\\Add.T.Layer1 menu."},
        {[](SlabSet& s) { s.NAT2 = 1; },
         "the additional thicknesses (T2) by clicking Optional\\Add.T.Layer2 menu."},
    };
    const auto store = singleSlabStore();
    store->CurSlabDS = 2;
    EXPECT_EQ(ErrCheck(*store), std::vector<std::string>{});
    EXPECT_EQ(store->CurSlabDS, 1) << "kept, whatever the buttons show";
    for (auto row = std::rbegin(rows); row != std::rend(rows); ++row) {  // each row beats all behind it
        row->spoil(store->slab[1]);
        EXPECT_EQ(ErrCheck(*store),
                  std::vector<std::string>{"You forgot to enter " + std::string(row->message)});
    }
    SlabSet& s = store->slab[1] = singleSlabStore()->slab[1];
    s.NJOINT = s.NSX = s.NODSX[1] = 1;
    s.JOINT[1].SPCON1 = "100";
    EXPECT_TRUE(ErrCheck(*store).empty()) << "a spring is as good as a bar";
}

TEST(SlabErrCheck, ARaftHasThreeLimitsThatAllAreTold) {
    const auto store = singleSlabStore();
    SlabSet& s = store->slab[1];
    s.NDAMA = 1;
    s.NPY = s.NLG = 2;
    EXPECT_TRUE(ErrCheck(*store).empty());
    s.NNMY = 1;
    const char* const limits[] = {
        "Raft foundation doesn't need damage analysis, please change NDAMA to 0 by clicking the General "
        "menu.",
        "Raft foundation limits only to one period, please change NPY to 1 by clicking the General menu.",
        "Raft foundation limits only to one load group, please change NLG to 1 by clicking the General "
        "menu."};
    EXPECT_THAT(ErrCheck(*store), testing::ElementsAreArray(limits));
    s.NPY = 1;
    EXPECT_THAT(ErrCheck(*store), testing::ElementsAre(limits[0], limits[2]));
}

template <class Rules>
std::string words(const Rules& rules, const SlabSet& set) {
    std::string text;
    for (const auto& rule : rules)
        text += std::string(rule.label).substr(3) + (rule.needsInput(set) ? "! " : " ") +
                (rule.keepsDone ? "kept " : "");
    return text;
}

TEST(SlabWords, GoByTheDataSet) {
    SlabSet s;  // a second data set whose status nobody has decided asks for nothing
    s.NPY = 1;
    EXPECT_EQ(words(slabColorCode, s), "Adjust Joint Optional Damage Uniform Curling Raft ");
    s.NPY = 0;
    s.NJOINT = s.NSY = s.NDAMA = s.TC = 1;
    s.UL = s.CL = 1.0;
    EXPECT_EQ(words(slabColorCode, s), "Adjust! Joint! Optional! Damage! Uniform! Curling! Raft! ");
    EXPECT_EQ(words(slabGeneralRules, s), "Uniform! Curling! Raft! Adjust! kept Joint! kept Optional! kept ");
    EXPECT_TRUE(slabDamageRule.keepsDone && slabDamageRule.needsInput(s));
    EXPECT_STREQ(slabColorCode[2].otherwise, "defaulr");
    EXPECT_STREQ(slabGeneralRules[5].otherwise, "default");
}

TEST(SlabArrangement, NoDowelAtTheEndOfAJointAndThreeNodesForDamage) {
    SlabSet s;
    setNewFileDefaults(s);
    s.NSLAB = 3;
    s.NJOINT = 4;
    for (int n = 1; n <= 3; ++n) {
        s.SLAB[n].NX = static_cast<Integer>(3 + n);
        s.SLAB[n].NY = static_cast<Integer>(6 + n);
    }
    s.SLAB[1].JONO2 = s.SLAB[2].JONO1 = 1;  // the first slab that names it decides
    s.SLAB[2].JONO4 = s.SLAB[3].JONO3 = 2;
    s.SLAB[3].JONO2 = 4;  // nobody names joint 3
    std::string ends;
    setArrangementDefaults(s);
    for (int joint = 1; joint <= 4; ++joint)
        for (int node = 2; node <= 15; ++node)
            if (s.JOINT[joint].BARNO[node] == Variant(0))
                ends += std::to_string(joint) + ":" + std::to_string(node) + " ";
    EXPECT_EQ(ends, "1:7 2:5 4:9 ");
    const struct {
        Integer NDAMA, NPRINT;
        const char* nodes;
    } rows[] = {{0, 3, "0 0 0"}, {1, 2, "0 0 0"}, {1, 3, "1 15 29"}, {2, 0, "1 15 29"}};
    for (const auto& row : rows) {
        s.NP = {};
        s.NDAMA = row.NDAMA;
        s.NPRINT = row.NPRINT;
        setArrangementDefaults(s);
        EXPECT_EQ(numberText(s.NP[1]) + " " + numberText(s.NP[2]) + " " + numberText(s.NP[3]), row.nodes);
    }
}

TEST(SlabRaft, MayMoveMore) {
    SlabSet s;
    const auto FMAX = [&] {
        s.FMAX = 1;
        setRaftDefault(s);
        return s.FMAX.text();
    };
    EXPECT_EQ(FMAX(), "1") << "no concentrated load, no raft";
    s.NNMX = 1;
    EXPECT_EQ(FMAX(), "10");
    s.NUNIT = 1;
    EXPECT_EQ(FMAX(), "25.4");
}

}  // namespace
