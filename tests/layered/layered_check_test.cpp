#include "layered/layered_check.h"

#include <gtest/gtest.h>

#include <cmath>

#include "layered/layered_cards.h"
#include "support/layered_roads.h"

namespace {

std::string sentenceOf(const Store& store) {
    const auto fault = checkLayeredDeck(store);
    return fault ? fault->sentence : "";
}

/// Sets the value of a text like "TH(2) is -8" in a data set to what the text says.
class Spoiler : public CardWalker<LayeredSet> {
  public:
    Spoiler(LayeredSet& set, const std::string& text)
        : CardWalker(set, where), text_(text), said_(text.substr(text.find(" is ") + 4)) {
        walk(layeredCards());
        EXPECT_TRUE(found_) << text;
        ListReader in = ListReader::fromText(said_);
        if (auto* const* variant = std::get_if<Variant*>(&*found_))
            **variant = said_ == "empty" ? "" : said_;
        else
            readCell(in, *found_);
    }
    std::string sentence;  ///< its beginning, as the check should put it

  private:
    void value(const Card<LayeredSet>&, const Run<LayeredSet>&, Cell cell) override {
        if (where_.fieldText() + " is " + said_ != text_) return;
        found_ = cell;
        sentence = where_.text(said_) + ", data set 1: ";
    }
    DeckPlace where;
    const std::string text_, said_;
    std::optional<Cell> found_;
};

/// Each of the faults, with "; " between them, alone in a deck that is good otherwise.
void expectFaults(const Store& good, const std::string& faults) {
    EXPECT_EQ(sentenceOf(good), "");
    for (std::size_t at = 0, end = 0; end != std::string::npos; at = end + 2) {
        end = faults.find("; ", at);
        const auto store = std::make_unique<Store>(good);
        const Spoiler spoiler(store->layered[1], faults.substr(at, end - at));
        EXPECT_TRUE(sentenceOf(*store).starts_with(spoiler.sentence))
            << sentenceOf(*store) << "\n  is not " << spoiler.sentence;
    }
}

TEST(LayeredCheck, NamesFieldCardAndDemand) {
    const auto good = threeLayerStore();
    LayeredSet& s = good->layered[1];
    s.NBOND = 0;
    s.LAYER[2].PR = .5;  // incompressible, and allowed
    s.NLG = 2;
    s.LOADL[2] = {2, 4.5F, 100.0F, 13.5F, 48.0F, 0};
    expectFaults(*good,
                 "MATL is 5; NPY is 13; NLG is 0; DEL is 0; NL is 0; NL is 20; NL is 2.5; NZ is 0; NZ is 40; "
                 "ICL is 0; ICL is 1E+09; NSTD is 3; TH(2) is -8; TH(1) is empty; PR(3) is .51; PR(3) is -1; "
                 "ZC(2) is -.1; INT(1) is 2; E(1, 2) is 0; E(1, 2) is 3000000000; LOAD(1) is 4; CR(1) is 0; "
                 "CP(1) is -1; NR(1) is 26; RC(1, 1) is 100000; NPT(2) is -1; XW(2) is 0");
    s.LAYER[1].PR = -1e300;
    EXPECT_EQ(sentenceOf(*good), "PR(1) is -1E+300, card (7), data set 1: the number must be below 3.4E+38");
    s.DEL = std::nanf("");
    EXPECT_EQ(sentenceOf(*good), "DEL is not finite, card (4), data set 1: a number is needed");
    s.MATL = 5;
    EXPECT_EQ(sentenceOf(*good), "MATL is 5, card (3), data set 1: MATL must be 1, 2, 3 or 4");
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
    LayeredSet& s = good->layered[1];
    s.KPER[2][1][2] = 5000;  // EMAX may be below K1, not below EMIN
    s.NLG = 2;
    s.LOADL[2] = {0, 1, 60, 0, 0, 1};
    expectFaults(*good,
                 "E(1, 1) is -1; NOLAY is 0; NOLAY is 13; ITENOL is 0; LAYNO(1) is 0; LAYNO(1) is 3; "
                 "LAYNO(2) is 1; NCLAY(1) is empty; ZCNOL(1) is 12.1; ZCNOL(2) is 11.9; RCNOL is 30000; "
                 "DELNOL is 0; RELAX(1) is 0; RELAX(1) is 1.5; GAM(2) is -120; K0(1) is -1; "
                 "PHI(1, 1) is -5; K1(1, 1) is 0; EMAX(1, 2) is 500");
    s.NOLLAY[2].ZCNOL = 12;
    s.EMOD[1][2] = 0;
    EXPECT_EQ(sentenceOf(*good), "") << "a boundary belongs to both layers; iterations start from K1";
    s.NOLAY = 1;
    EXPECT_TRUE(sentenceOf(*good).starts_with("E(1, 2) is 0, card (11)"));
}

TEST(LayeredCheck, KnowsViscoelasticLayersAndDamage) {
    const auto good = viscousHalfSpace(.1, {.1, 1, 10}, {});
    LayeredSet& viscous = good->layered[1];
    EXPECT_EQ(sentenceOf(*good), "") << "without a modulus";
    viscous.EMOD[1][2] = 1;
    expectFaults(*good,
                 "DUR is -1; NVL is 13; LNV(2) is 0; LNV(2) is 1; NTYME is 16; TYME(1) is 0; TYME(2) is .1; "
                 "CREEP(2, 3) is 0; TEMP(1, 2) is warm");
    viscous.EMOD[1][2] = 0;
    viscous.NVL = 1;
    EXPECT_TRUE(sentenceOf(*good).starts_with("E(1, 2) is 0, card (11)"));

    const auto both = nonlinearStore();
    both->layered[1].MATL = 4;
    both->layered[1].NVL = 1, both->layered[1].VISLAY[1].LNV = 2;
    EXPECT_TRUE(sentenceOf(*both).starts_with("LNV(1) is 2, card (37)")) << sentenceOf(*both);

    const auto damage = damageStore();
    expectFaults(
        *damage,
        "NR(1) is 0; NLBT is 20; LNBT(1) is 3; LNTC(1) is 4; TNLR(1, 1) is -1; FT1(1) is 0; FT4(1) is 0");
    damage->layered[1].NLBT = damage->layered[1].NLTC = 0;
    EXPECT_TRUE(sentenceOf(*damage).starts_with("NLTC is 0, card (46)"));
}

}  // namespace
