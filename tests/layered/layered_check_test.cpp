#include "layered/layered_check.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/layered_roads.h"

namespace {

std::string sentenceOf(const Store& store) {
    const auto fault = checkLayeredDeck(store);
    return fault ? fault->sentence : "";
}

/// Faults of one card each; the message must begin with field, value and card.
struct SpoiltRow {
    void (*spoil)(LayeredSet& s);
    const char* beginning;
};

void expectFaults(const Store& good, const std::vector<SpoiltRow>& rows) {
    EXPECT_EQ(sentenceOf(good), "");
    for (const SpoiltRow& row : rows) {
        const auto store = std::make_unique<Store>(good);
        row.spoil(store->layered[1]);
        const std::string sentence = sentenceOf(*store);
        EXPECT_TRUE(sentence.starts_with(row.beginning)) << sentence << "\n  is not " << row.beginning;
    }
}

TEST(LayeredCheck, NamesFieldCardAndDemand) {
    expectFaults(
        *threeLayerStore(),
        {{[](LayeredSet& s) { s.MATL = 5; }, "MATL is 5, card (3), data set 1: MATL must be 1, 2, 3 or 4"},
         {[](LayeredSet& s) { s.NPY = 13; }, "NPY is 13, card (3)"},
         {[](LayeredSet& s) { s.NLG = 0; }, "NLG is 0, card (3)"},
         {[](LayeredSet& s) { s.DEL = 0; }, "DEL is 0, card (4)"},
         {[](LayeredSet& s) { s.DEL = std::nanf(""); },
          "DEL is not finite, card (4), data set 1: a number is needed"},
         {[](LayeredSet& s) { s.NL = 0; }, "NL is 0, card (5)"},
         {[](LayeredSet& s) { s.NL = 20; }, "NL is 20, card (5)"},
         {[](LayeredSet& s) { s.NL = 2.5f; }, "NL is 2.5, card (5)"},
         {[](LayeredSet& s) { s.NZ = 0; }, "NZ is 0, card (5)"},
         {[](LayeredSet& s) { s.NZ = 40; }, "NZ is 40, card (5)"},
         {[](LayeredSet& s) { s.ICL = 0; }, "ICL is 0, card (5)"},
         {[](LayeredSet& s) { s.ICL = 1e9f; }, "ICL is 1E+09, card (5)"},
         {[](LayeredSet& s) { s.NSTD = 3; }, "NSTD is 3, card (5)"},
         {[](LayeredSet& s) { s.LAYER[2].TH = "-8"; }, "TH(2) is -8, card (6)"},
         {[](LayeredSet& s) { s.LAYER[1].TH = ""; },
          "TH(1) is empty, card (6), data set 1: a number is needed"},
         {[](LayeredSet& s) { s.LAYER[3].PR = .51; }, "PR(3) is .51, card (7)"},
         {[](LayeredSet& s) { s.LAYER[3].PR = -1; }, "PR(3) is -1, card (7)"},
         {[](LayeredSet& s) { s.LAYER[1].PR = -1e300; },
          "PR(1) is -1E+300, card (7), data set 1: the number must be below 3.4E+38"},
         {[](LayeredSet& s) { s.ZC[2] = -.1; }, "ZC(2) is -.1, card (8)"},
         {[](LayeredSet& s) { s.NBOND = 0, s.INTF[1] = 2; }, "INT(1) is 2, card (10)"},
         {[](LayeredSet& s) { s.EMOD[1][2] = 0; }, "E(1, 2) is 0, card (11)"},
         {[](LayeredSet& s) { s.EMOD[1][2] = 3e9; }, "E(1, 2) is 3000000000, card (11)"},
         {[](LayeredSet& s) { s.LOADL[1].LOAD = 4; }, "LOAD(1) is 4, card (13)"},
         {[](LayeredSet& s) { s.LOADL[1].CR = 0; }, "CR(1) is 0, card (14)"},
         {[](LayeredSet& s) { s.LOADL[1].CP = -1; }, "CP(1) is -1, card (14)"},
         {[](LayeredSet& s) { s.LOADL[1].NR = 26; }, "NR(1) is 26, card (16)"},
         {[](LayeredSet& s) { s.RC[1][1] = 1e5; }, "RC(1, 1) is 100000, card (17)"},
         {[](LayeredSet& s) { s.LOADL[1].LOAD = 1, s.LOADL[1].NR = -1; }, "NPT(1) is -1, card (19)"},
         {[](LayeredSet& s) { s.LOADL[1].LOAD = 2; }, "XW(1) is 0, card (20)"},
         {[](LayeredSet& s) { s.MATL = 2, s.NOLAY = 13; }, "NOLAY is 13, card (25)"}});
}

TEST(LayeredCheck, LooksOnlyAtWhatTheDeckUses) {
    const auto store = threeLayerStore();
    LayeredSet& s = store->layered[1];
    s.LAYER[3].TH = "XXX";
    s.INTF[1] = 7;
    s.LOADL[1].XW = s.LOADL[2].CR = -1;
    EXPECT_EQ(sentenceOf(*store), "");

    s.NDAMA = 1;
    s.NZ = 40;
    s.NLTC = 1, s.DAMTC[1] = {3, 1.365e-9F, 4.477F};
    EXPECT_EQ(sentenceOf(*store), "") << "damage has depths of its own";

    const auto two = threeLayerStore();
    two->NPROB = 2;
    EXPECT_EQ(sentenceOf(*two), "MATL is 0, card (3), data set 2: MATL must be 1, 2, 3 or 4");
    two->NPROB = 6;
    EXPECT_EQ(sentenceOf(*two), "NPROB is 6, card (1): there must be 1 to 5 data sets");
}

TEST(LayeredCheck, KnowsNonlinearLayers) {
    const auto good = nonlinearStore();
    good->layered[1].EMOD[1][2] = 0;        // starts from K1
    good->layered[1].KPER[2][1][2] = 5000;  // EMAX may be below K1, not below EMIN
    expectFaults(*good, {{[](LayeredSet& s) { s.EMOD[1][1] = -1; }, "E(1, 1) is -1, card (11)"},
                         {[](LayeredSet& s) { s.NOLAY = 1; }, "E(1, 2) is 0, card (11)"},
                         {[](LayeredSet& s) { s.NOLAY = 0, s.EMOD[1][2] = 1; }, "NOLAY is 0, card (25)"},
                         {[](LayeredSet& s) { s.ITENOL = 0; }, "ITENOL is 0, card (25)"},
                         {[](LayeredSet& s) { s.NOLLAY[1].LAYNO = 0; }, "LAYNO(1) is 0, card (26)"},
                         {[](LayeredSet& s) { s.NOLLAY[1].LAYNO = 3; }, "LAYNO(1) is 3, card (26)"},
                         {[](LayeredSet& s) { s.NOLLAY[1].LAYNO = 2; }, "LAYNO(2) is 2, card (26)"},
                         {[](LayeredSet& s) { s.NOLLAY[1].NCLAY = ""; }, "NCLAY(1) is empty, card (26)"},
                         {[](LayeredSet& s) { s.NOLLAY[1].ZCNOL = 12.1; }, "ZCNOL(1) is 12.1, card (27)"},
                         {[](LayeredSet& s) { s.NOLLAY[2].ZCNOL = 11.9; }, "ZCNOL(2) is 11.9, card (27)"},
                         {[](LayeredSet& s) { s.NLG = 2, s.LOADL[2] = {0, 1, 60, 0, 0, 1}, s.RCNOL = 30000; },
                          "RCNOL is 30000, card (28)"},
                         {[](LayeredSet& s) { s.DELNOL = 0; }, "DELNOL is 0, card (28)"},
                         {[](LayeredSet& s) { s.RELAX[1] = 0; }, "RELAX(1) is 0, card (29)"},
                         {[](LayeredSet& s) { s.RELAX[1] = 1.5f; }, "RELAX(1) is 1.5, card (29)"},
                         {[](LayeredSet& s) { s.LAYER[2].GAM = -120; }, "GAM(2) is -120, card (30)"},
                         {[](LayeredSet& s) { s.KGRAN[1].K0 = -1; }, "K0(1) is -1, card (31)"},
                         {[](LayeredSet& s) { s.KPER[1][1][1] = -5; }, "PHI(1, 1) is -5, card (33)"},
                         {[](LayeredSet& s) { s.KPER[1][1][2] = 0; }, "K1(1, 1) is 0, card (33)"},
                         {[](LayeredSet& s) { s.KPER[2][1][2] = 500; }, "EMAX(1, 2) is 500, card (33)"}});
    good->layered[1].NOLLAY[2].ZCNOL = 12;
    EXPECT_EQ(sentenceOf(*good), "") << "a boundary belongs to both layers";
    good->layered[1].NOLAY = 1;
    EXPECT_TRUE(sentenceOf(*good).ends_with("cards (26) and (37)")) << "the modulus 0 of layer 2";
}

TEST(LayeredCheck, KnowsViscoelasticLayersAndDamage) {
    const auto good = viscousHalfSpace(.1, {.1, 1, 10}, {});
    expectFaults(*good,
                 {{[](LayeredSet& s) { s.NVL = 1; }, "E(1, 2) is 0, card (11)"},
                  {[](LayeredSet& s) { s.DUR = -1; }, "DUR is -1, card (36)"},
                  {[](LayeredSet& s) { s.NVL = 13; }, "NVL is 13, card (37)"},
                  {[](LayeredSet& s) { s.EMOD[1][2] = 1, s.VISLAY[2].LNV = 0; }, "LNV(2) is 0, card (37)"},
                  {[](LayeredSet& s) { s.EMOD[1][2] = 1, s.VISLAY[2].LNV = 1; }, "LNV(2) is 1, card (37)"},
                  {[](LayeredSet& s) { s.NTYME = 16; }, "NTYME is 16, card (38)"},
                  {[](LayeredSet& s) { s.TYME[1] = 0; }, "TYME(1) is 0, card (39)"},
                  {[](LayeredSet& s) { s.TYME[2] = .1; }, "TYME(2) is .1, card (39)"},
                  {[](LayeredSet& s) { s.CREEP[2][3] = 0; }, "CREEP(2, 3) is 0, card (42)"},
                  {[](LayeredSet& s) { s.TEMP[1][2] = "warm"; }, "TEMP(1, 2) is warm, card (44)"}});

    const auto both = nonlinearStore();
    LayeredSet& s = both->layered[1];
    s.MATL = 4;
    s.NVL = 1, s.VISLAY[1].LNV = 2;
    EXPECT_TRUE(sentenceOf(*both).starts_with("LNV(1) is 2, card (37)")) << sentenceOf(*both);

    expectFaults(*damageStore(), {{[](LayeredSet& s) { s.LOADL[1].NR = 0; }, "NR(1) is 0, card (16)"},
                                  {[](LayeredSet& s) { s.NLBT = 20; }, "NLBT is 20, card (46)"},
                                  {[](LayeredSet& s) { s.NLBT = s.NLTC = 0; }, "NLTC is 0, card (46)"},
                                  {[](LayeredSet& s) { s.DAMBT[1].LNBT = 3; }, "LNBT(1) is 3, card (47)"},
                                  {[](LayeredSet& s) { s.DAMTC[1].LNTC = 4; }, "LNTC(1) is 4, card (48)"},
                                  {[](LayeredSet& s) { s.TNLR[1][1] = -1; }, "TNLR(1, 1) is -1, card (49)"},
                                  {[](LayeredSet& s) { s.DAMBT[1].FT1 = 0; }, "FT1(1) is 0, card (50)"},
                                  {[](LayeredSet& s) { s.DAMTC[1].FT4 = 0; }, "FT4(1) is 0, card (51)"}});
}

}  // namespace
