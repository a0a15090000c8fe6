#include "layered/layered_check.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/layered_stores.h"

namespace {

std::string sentenceOf(const Store& store) {
    const auto fault = checkLayeredDeck(store);
    return fault ? fault->sentence : "";
}

TEST(LayeredCheck, NamesFieldCardAndDemand) {
    const auto good = threeLayerStore();
    EXPECT_EQ(sentenceOf(*good), "");
    const struct {
        void (*spoil)(LayeredSet& s);
        const char* sentence;
    } rows[] = {
        {[](LayeredSet& s) { s.MATL = 5; }, "MATL is 5, card (3), data set 1: MATL must be 1, 2, 3 or 4"},
        {[](LayeredSet& s) { s.NPY = 13; }, "NPY is 13, card (3), data set 1: there must be 1 to 12 periods"},
        {[](LayeredSet& s) { s.NLG = 0; },
         "NLG is 0, card (3), data set 1: there must be 1 to 12 load groups"},
        {[](LayeredSet& s) { s.DEL = 0; },
         "DEL is 0, card (4), data set 1: the tolerance must be greater than 0"},
        {[](LayeredSet& s) { s.DEL = std::nanf(""); },
         "DEL is not finite, card (4), data set 1: a number is needed"},
        {[](LayeredSet& s) { s.NL = 0; }, "NL is 0, card (5), data set 1: there must be 1 to 19 layers"},
        {[](LayeredSet& s) { s.NL = 20; }, "NL is 20, card (5), data set 1: there must be 1 to 19 layers"},
        {[](LayeredSet& s) { s.NL = 2.5f; }, "NL is 2.5, card (5), data set 1: there must be 1 to 19 layers"},
        {[](LayeredSet& s) { s.NZ = 0; },
         "NZ is 0, card (5), data set 1: there must be 1 to 19 depths, or with a damage analysis 0 to 19"},
        {[](LayeredSet& s) { s.NZ = 40; },
         "NZ is 40, card (5), data set 1: there must be 1 to 19 depths, or with a damage analysis 0 to 19"},
        {[](LayeredSet& s) { s.ICL = 0; },
         "ICL is 0, card (5), data set 1: there must be 1 cycle of integration or more"},
        {[](LayeredSet& s) { s.NSTD = 3; }, "NSTD is 3, card (5), data set 1: NSTD must be 1, 5 or 9"},
        {[](LayeredSet& s) { s.LAYER[2].TH = "-8"; },
         "TH(2) is -8, card (6), data set 1: the thickness must be greater than 0"},
        {[](LayeredSet& s) { s.LAYER[1].TH = ""; },
         "TH(1) is empty, card (6), data set 1: a number is needed"},
        {[](LayeredSet& s) { s.LAYER[3].PR = .51; },
         "PR(3) is .51, card (7), data set 1: Poisson's ratio must be above -1 and at most .5"},
        {[](LayeredSet& s) { s.LAYER[3].PR = -1; },
         "PR(3) is -1, card (7), data set 1: Poisson's ratio must be above -1 and at most .5"},
        {[](LayeredSet& s) { s.ZC[2] = -.1; },
         "ZC(2) is -.1, card (8), data set 1: the depth must not be negative"},
        {[](LayeredSet& s) { s.NBOND = 0, s.INTF[1] = 2; },
         "INT(1) is 2, card (10), data set 1: INT must be 0 or 1"},
        {[](LayeredSet& s) { s.EMOD[1][2] = 0; },
         "E(1, 2) is 0, card (11), data set 1: the modulus must be greater than 0"},
        {[](LayeredSet& s) { s.LOADL[1].LOAD = 4; },
         "LOAD(1) is 4, card (13), data set 1: LOAD must be 0, 1, 2 or 3"},
        {[](LayeredSet& s) { s.LOADL[1].CR = 0; },
         "CR(1) is 0, card (14), data set 1: the contact radius must be greater than 0"},
        {[](LayeredSet& s) { s.LOADL[1].CP = -1; },
         "CP(1) is -1, card (14), data set 1: the contact pressure must be greater than 0"},
        {[](LayeredSet& s) { s.LOADL[1].NR = 26; },
         "NR(1) is 26, card (16), data set 1: there must be 0 to 25 points"},
        {[](LayeredSet& s) { s.LOADL[1].LOAD = 1, s.LOADL[1].NR = -1; },
         "NPT(1) is -1, card (19), data set 1: there must be 0 to 25 points"},
        {[](LayeredSet& s) { s.LOADL[1].LOAD = 2; },
         "XW(1) is 0, card (20), data set 1: the spacing of several axles must be greater than 0"},
        {[](LayeredSet& s) { s.MATL = 2, s.NOLAY = 13; },
         "LAYNO(13), card (26), data set 1: Subscript out of range"},
    };
    for (const auto& row : rows) {
        const auto store = threeLayerStore();
        row.spoil(store->layered[1]);
        EXPECT_EQ(sentenceOf(*store), row.sentence);
    }
}

TEST(LayeredCheck, LooksOnlyAtWhatTheDeckUses) {
    const auto store = threeLayerStore();
    LayeredSet& s = store->layered[1];
    s.LAYER[3].TH = "XXX";
    s.INTF[1] = 7;
    s.LOADL[1].XW = s.LOADL[2].CR = -1;
    EXPECT_EQ(sentenceOf(*store), "");

    s.MATL = 3;
    s.NVL = s.VISLAY[1].LNV = 2;  // the second of NVL layers is not entered yet
    s.NVL = 1;
    s.EMOD[1][2] = 0;
    EXPECT_EQ(sentenceOf(*store), "") << "a viscoelastic layer needs no modulus";
    s.EMOD[1][1] = 0;
    EXPECT_NE(sentenceOf(*store), "");

    const auto two = threeLayerStore();
    two->NPROB = 2;
    EXPECT_EQ(sentenceOf(*two), "MATL is 0, card (3), data set 2: MATL must be 1, 2, 3 or 4");
    two->NPROB = 6;
    EXPECT_EQ(sentenceOf(*two), "NPROB is 6, card (1): there must be 1 to 5 data sets");
}

}  // namespace
