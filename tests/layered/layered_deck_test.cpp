#include "layered/layered_deck.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "platform/run_time_error.h"
#include "store/deck_kind.h"
#include "support/deck_texts.h"
#include "support/example_files.h"
#include "support/layered_stores.h"
#include "support/temporary_directory.h"

namespace {

using Outcome = DeckReadResult::Outcome;

std::string deckOf(const Store& store) {
    std::ostringstream stream;
    ListWriter out(stream);
    saveLayeredDeck(store, out);
    out.close();
    return stream.str();
}

constexpr const char* threeLayerDeck =
    " 1  (1) NPROB\r\n"
    "Three layers\r\n"
    " 1  0  1  1  (3) MATL NDAMA NPY NLG\r\n"
    " .001  (4) DEL\r\n"
    " 3  2  80  9  0  (5) NL NZ ICL NSTD NUNIT\r\n"
    " 4   8   (6) TH\r\n"
    " .35   .3   .45   (7) PR\r\n"
    " 0   4.0001   (8) ZC\r\n"
    " 1  (9) NBOND\r\n"
    " 400000   25000   7500   (11) E\r\n"
    " 0   (13) LOAD\r\n"
    " 4.5   100   (14) CR CP\r\n"
    " 1   (16) NR\r\n"
    " 0   (17) RC\r\n";

TEST(LayeredDeck, WritesCardsToTheLetter) {
    const auto store = threeLayerStore();
    EXPECT_EQ(deckOf(*store), threeLayerDeck);

    LayeredSet& s = store->layered[1];
    s.LAYER[1].TH = "4.50";  // as typed: a text brings no blanks of its own
    s.LAYER[2].TH = 1.365e-9f;
    s.LAYER[1].PR = "-.5";
    EXPECT_TRUE(
        linesAfter(deckOf(*store), "NUNIT").starts_with("4.50  1.365E-09   (6) TH|-.5  .3   .45   (7) PR|"));
}

TEST(LayeredDeck, CardsComeByTheirConditions) {
    const auto store = threeLayerStore();
    LayeredSet& s = store->layered[1];
    const auto after = [&](const char* label) { return linesAfter(deckOf(*store), label); };
    s.INTF[2] = 1;
    for (const Single NBOND : {0.f, 2.f}) {
        s.NBOND = NBOND;
        EXPECT_TRUE(after("(9) NBOND").starts_with(" 0   1   (10) INT| 400000")) << NBOND;
    }
    s.NL = 1;
    EXPECT_TRUE(after("NSTD NUNIT").starts_with(" .35   (7) PR| 0   4.0001   (8) ZC| 2  (9) NBOND| 400"));
    s.NZ = 0;
    EXPECT_TRUE(after("(7) PR").starts_with(" 2  (9) NBOND"));
    s.NZ = 2;
    s.NDAMA = 1;
    EXPECT_TRUE(after("(7) PR").starts_with(" 2  (9) NBOND"));
    EXPECT_NE(after("(17) RC").find("(46)"), std::string::npos);
    s.LOADL[1].NR = 0;
    s.NDAMA = 0;
    EXPECT_EQ(after("(14) CR CP"), " 0   (16) NR|");
}

/// Without points the label stays away and the next card, or the next data set, goes on on the line.
TEST(LayeredDeck, WheelsWithoutPointsLeaveTheLineOpen) {
    const auto store = threeLayerStore();
    LayeredSet& s = store->layered[1];
    s.NLG = 2;
    s.LOADL[1] = {2, 4.5f, 100.0f, 13.5f, 48.0f, 0};
    s.LOADL[2] = {1, 4.5f, 100.0f, 13.5f, 0, "0"};
    store->NPROB = 2;
    store->layered[2] = threeLayerStore()->layered[1];
    const std::string deck = deckOf(*store);
    const std::string loads = linesAfter(deck, "(11) E");
    EXPECT_NE(loads.find(" 0   (19) NPT| 48   13.5   1   (13) LOAD|"), std::string::npos);
    EXPECT_NE(loads.find("0  (19) NPT| 0   13.5  Three layers| 1  0  1"), std::string::npos);
    const auto read = std::make_unique<Store>();
    ListReader in = ListReader::fromText(deck);
    EXPECT_EQ(readLayeredDeck(in, *read).sentence(), "");
    EXPECT_EQ(read->layered[1].LOADL[2].YW, Variant(13.5));
    EXPECT_EQ(read->layered[2].TITLE, "Three layers");
}

/// Nonlinear and viscoelastic with damage, two periods.
std::unique_ptr<Store> combinedStore() {
    auto store = std::make_unique<Store>();
    EXPECT_EQ(readLayeredDeck(TOLMARK_SOURCE_DIR "/examples/BED6.DAT", *store).sentence(), "");
    return store;
}

TEST(LayeredDeck, NonlinearViscoelasticAndDamageCards) {
    const auto store = combinedStore();
    LayeredSet& s = store->layered[1];
    EXPECT_EQ(deckOf(*store), example("BED6.DAT"));
    s.NVL = 2;  // from two layers on the count has a line of its own
    s.VISLAY[2] = {2, .113, 70};
    EXPECT_NE(linesAfter(deckOf(*store), "(36) DUR").find(" 2 | 1   2   (37) NVL LNV| 11  (38)"),
              std::string::npos);
    s.NVL = 0;
    EXPECT_TRUE(linesAfter(deckOf(*store), "(36) DUR").starts_with(" 0  11  (38) NTYME|"));
    EXPECT_NE(deckOf(*store).find("(39) TYME\r\n 1  1  (46)"), std::string::npos);
    s.NLBT = 0;
    EXPECT_TRUE(
        linesAfter(deckOf(*store), "(48) LNTC").ends_with("(49) TNLR| 1.365E-09   4.477   (51) FT4 FT5|"));
    s.KGRAN[1] = {".5", ".6"};  // close texts keep apart
    EXPECT_NE(deckOf(*store).find(" .5  .6  (31) K2 K0\r\n"), std::string::npos);
}

TEST(LayeredDeck, RandomStoresKeepTheirValues) {
    constexpr unsigned seed = 20240;
    RandomStores stores(seed);
    for (int round = 0; round < 150; ++round) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", store " + std::to_string(round));
        const auto store = stores.next();
        ListReader in = ListReader::fromText(deckOf(*store));
        const auto read = std::make_unique<Store>();
        ASSERT_EQ(readLayeredDeck(in, *read).sentence(), "");
        EXPECT_TRUE(in.endOfFile() || in.nextItem().empty());
        ASSERT_EQ(read->NPROB, store->NPROB);
        for (int n = 1; n <= store->NPROB; ++n)
            ASSERT_EQ(valuesOf(read->layered[n], layeredCards()),
                      valuesOf(store->layered[n], layeredCards()));
        const std::string again = deckOf(*read);  // texts have become numbers: from here on it stays
        ListReader second = ListReader::fromText(again);
        ASSERT_EQ(readLayeredDeck(second, *store).outcome, Outcome::Complete);
        ASSERT_EQ(deckOf(*store), again);
    }
}

TEST(LayeredDeck, OldFormatDiffersInThreePlaces) {
    const auto store = combinedStore();
    store->layered[1].NDAMA = 0;
    store->layered[1].NUNIT = 1;
    std::string old = deckOf(*store);
    for (auto at = old.find(" ("); at != std::string::npos; at = old.find(" (", at + 1)) {
        const auto close = old.find(')', at);
        old.erase(close + 1, old.find('\r', at) - close - 1);
    }
    old = replaced(old, " 80  9  1  (5)", " 80  9  (5)");
    old = replaced(old, " 146   136   122 ", " .0845   .078705  0.0706019 ");

    const auto read = std::make_unique<Store>();
    read->layered[1].NUNIT = 1;
    std::vector<std::string> told;
    LayeredReadHooks hooks;
    hooks.nprobRead = [&](Integer NPROB) { told.push_back("sets " + std::to_string(NPROB)); };
    hooks.oldFormatPHI = [&](int set) {
        told.push_back("PHI " + std::to_string(set));
        EXPECT_EQ(read->layered[set].DEL, .001f) << "told when card (4) has been read";
        EXPECT_EQ(read->layered[set].NL, 0) << "and before the rest";
    };
    ListReader in = ListReader::fromText(old);
    EXPECT_EQ(readLayeredDeck(in, *read, hooks).sentence(), "");
    EXPECT_EQ(told, (std::vector<std::string>{"sets 1", "PHI 1"}));
    LayeredSet& s = read->layered[1];
    EXPECT_EQ(s.NUNIT, 0);
    EXPECT_EQ(s.NSTD, 9);
    EXPECT_EQ(s.KPER[1][2][1], Variant(45));
    const int weights[] = {146, 136, 122};
    for (int layer = 1; layer <= 3; ++layer) {
        EXPECT_TRUE(std::holds_alternative<Integer>(s.LAYER[layer].GAM.value()));
        EXPECT_EQ(s.LAYER[layer].GAM, Variant(weights[layer - 1]));
    }
    EXPECT_NE(deckOf(*read).find(" 80  9  0  (5) NL NZ ICL NSTD NUNIT\r\n"), std::string::npos);

    ListReader heavy = ListReader::fromText(replaced(old, ".0845 ", "146 "));
    const DeckReadResult result = readLayeredDeck(heavy, *read);
    EXPECT_EQ(result.outcome, Outcome::Failed);
    EXPECT_EQ(result.where.text(), "GAM(1), card (30), data set 1");
}

TEST(LayeredDeck, BadDecksAreToldByLineFieldAndCard) {
    const std::string deck = threeLayerDeck;
    const struct {
        std::string text;
        Outcome outcome;
        const char* sentence;
    } rows[] = {
        {replaced(deck, " 4   8 ", " 4   abc "), Outcome::Failed,
         "line 6: TH(2), card (6), data set 1: \"abc\" is no number"},
        {deck.substr(0, deck.find("7500")), Outcome::Failed,
         "line 10: E(1, 3), card (11), data set 1: the file ends here"},
        {replaced(deck, " 1  (1)", " 2  (1)"), Outcome::Failed,
         "line 15: TITLE, card (2), data set 2: the file ends here"},
        {replaced(deck, " 1  (1)", " 6  (1)") + deck + deck, Outcome::Failed,
         "line 16: MATL, card (3), data set 2: \"Three\" is no number; has the title a comma, which ends it?"},
        {replaced(deck, "(9) NBOND", "(9 NBOND"), Outcome::NotADeck,
         "line 9: card (9), data set 1: the label \"(9)\" is not there"},
    };
    for (const auto& row : rows) {
        const auto read = std::make_unique<Store>();
        ListReader in = ListReader::fromText(row.text);
        const DeckReadResult result = readLayeredDeck(in, *read);
        EXPECT_EQ(result.outcome, row.outcome) << row.sentence;
        EXPECT_EQ(result.sentence(), row.sentence);
    }

    std::string many = replaced(deck, " 1  0  1  1  (3)", " 3  0  1  13  (3)");
    const std::string group = deck.substr(deck.find(" 0   (13)"));
    for (int n = 2; n <= 13; ++n) many += group;
    const auto read = std::make_unique<Store>();
    ListReader in = ListReader::fromText(many);
    EXPECT_EQ(readLayeredDeck(in, *read).sentence(),
              "line 59: LOAD(13), card (13), data set 1: more than a data file can hold");
    EXPECT_EQ(read->layered[1].LOADL[12].CR, Variant(4.5)) << "what was read stays";
}

TEST(LayeredDeck, FilesAreFoundIgnoringCase) {
    TemporaryDirectory folder;
    folder.write("road.dat", "old");
    saveLayeredDeck(*threeLayerStore(), folder.path() + "road");
    EXPECT_EQ(folder.read("road.dat"), threeLayerDeck);
    EXPECT_FALSE(std::filesystem::exists(folder.path() + "road.DAT"));
    const auto read = std::make_unique<Store>();
    EXPECT_EQ(readLayeredDeck(folder.path() + "ROAD.DAT", *read).outcome, Outcome::Complete);
    EXPECT_EQ(readLayeredDeck(folder.path() + "none.DAT", *read).sentence(),
              "File not found: " + folder.path() + "none.DAT");
}

TEST(LayeredDeck, WhatCannotBeWrittenLeavesTheOldDeckWhole) {
    const struct {
        void (*spoil)(Store& store);
        Fault fault;
        const char* place;
    } rows[] = {
        {[](Store& s) { s.layered[1].LOADL[1].NR = ""; }, Fault::TypeMismatch,
         "NR(1), card (16), data set 1"},
        {[](Store& s) { s.layered[1].LAYER[2].TH = "1,5"; }, Fault::TypeMismatch,
         "TH(2), card (6), data set 1"},
        {[](Store& s) { s.layered[1].NL = 20; }, Fault::SubscriptOutOfRange, "PR(20), card (7), data set 1"},
        {[](Store& s) { s.layered[1].NPY = 13; }, Fault::SubscriptOutOfRange,
         "E(13, 1), card (11), data set 1"},
        {[](Store& s) { s.NPROB = 2, s.layered[2].NLG = 1, s.layered[2].LOADL[1].NR = ""; },
         Fault::TypeMismatch, "NR(1), card (16), data set 2"},
        {[](Store& s) { s.NPROB = 6; }, Fault::SubscriptOutOfRange, "data set 6"},
        {[](Store& s) { s.layered[1].DEL = std::numeric_limits<Single>::infinity(); }, Fault::Overflow,
         "DEL, card (4), data set 1"},
    };
    TemporaryDirectory folder;
    folder.write("road.DAT", "old");
    for (const auto& row : rows) {
        const auto store = threeLayerStore();
        row.spoil(*store);
        try {
            saveLayeredDeck(*store, folder.path() + "road.DAT");
            ADD_FAILURE() << row.place;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.fault(), row.fault) << row.place;
            EXPECT_TRUE(std::string(error.what()).ends_with(row.place)) << error.what();
        }
        EXPECT_EQ(folder.read("road.DAT"), "old") << row.place;
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST(LayeredDeck, SpoiledDecksNeverBreakTheReader) {
    constexpr unsigned seed = 4711;
    RandomStores random(seed);
    std::set<Outcome> outcomes;
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", deck " + std::to_string(round));
        const auto store = random.next();
        ListReader in = ListReader::fromText(mutated(deckOf(*store), random));
        DeckReadResult result;
        ASSERT_NO_THROW(result = readLayeredDeck(in, *store));
        ASSERT_EQ(result.sentence().empty(), result.outcome == Outcome::Complete);
        outcomes.insert(result.outcome);
    }
    EXPECT_EQ(outcomes.size(), 3U);
}

TEST(DeckKind, IsToldByTheThirdCard) {
    const std::string slab = example("PAN1.DAT"), beginning = slab.substr(0, 200);
    const struct {
        std::string text;
        DeckKind kind;
    } rows[] = {{threeLayerDeck, DeckKind::Layered},
                {beginning, DeckKind::Slab},
                {replaced(threeLayerDeck, " (3) MATL NDAMA NPY NLG", " (3)"), DeckKind::Layered},
                {replaced(slab, " (3) NFOUND NDAMA NPY NLG", " (3)"), DeckKind::Slab},
                {replaced(beginning, " (3) NFOUND NDAMA NPY NLG", " (3)"), DeckKind::Unknown}};
    TemporaryDirectory folder;
    for (const auto& row : rows) {
        folder.write("deck.DAT", row.text);
        EXPECT_EQ(deckKind(folder.path() + "deck.DAT"), row.kind) << row.text;
    }
    EXPECT_THROW(deckKind(folder.path() + "none.DAT"), RunTimeError);
}

}  // namespace
