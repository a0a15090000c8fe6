// The layered deck as a text: what the journeys, which type the examples, do not write, and what a reader
// meets.
#include "layered/layered_deck.h"

#include <gmock/gmock.h>

#include <regex>
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
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

DeckReadResult readText(const std::string& deck, Store& store, const LayeredReadHooks& hooks = {}) {
    ListReader in = ListReader::fromText(deck);
    return readLayeredDeck(in, store, hooks);
}

TEST(LayeredDeck, ATypedTextIsWrittenAsItStands) {
    const auto store = threeLayerStore();
    LayeredSet& s = store->layered[1];
    s.LAYER[1].TH = "4.50";  // a text brings no blanks of its own
    s.LAYER[2].TH = 1.365e-9f;
    s.LAYER[1].PR = "-.5";
    EXPECT_THAT(linesAfter(layeredDeckOf(*store), "NUNIT"),
                StartsWith("4.50  1.365E-09   (6) TH|-.5  .3   .45   (7) PR|"));
}

TEST(LayeredDeck, CardsComeByTheirConditions) {
    const auto store = threeLayerStore();
    LayeredSet& s = store->layered[1];
    const auto after = [&](const char* label) { return linesAfter(layeredDeckOf(*store), label); };
    s.INTF[2] = 1;
    for (const Single NBOND : {0.f, 2.f}) {
        s.NBOND = NBOND;
        EXPECT_THAT(after("(9) NBOND"), StartsWith(" 0   1   (10) INT| 400000")) << NBOND;
    }
    s.NL = 1;
    EXPECT_THAT(after("NSTD NUNIT"), StartsWith(" .35   (7) PR| 0   4.0001   (8) ZC| 2  (9) NBOND| 400"));
    s.NDAMA = 1;
    EXPECT_THAT(after("(7) PR"), StartsWith(" 2  (9) NBOND"));
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
    const std::string deck = layeredDeckOf(*store);
    const std::string loads = linesAfter(deck, "(11) E");
    EXPECT_THAT(loads, HasSubstr(" 0   (19) NPT| 48   13.5   1   (13) LOAD|"));
    EXPECT_THAT(loads, HasSubstr("0  (19) NPT| 0   13.5  Three layers| 1  0  1"));
    Store read;
    EXPECT_EQ(readText(deck, read).sentence(), "");
    EXPECT_EQ(read.layered[1].LOADL[2].YW, Variant(13.5));
    EXPECT_EQ(read.layered[2].TITLE, "Three layers");
}

/// BED6 is nonlinear and viscoelastic with damage.
TEST(LayeredDeck, NonlinearViscoelasticAndDamageCards) {
    Store store;
    EXPECT_EQ(readText(example("BED6.DAT"), store).sentence(), "");
    LayeredSet& s = store.layered[1];
    s.NVL = 2;  // from two layers on the count has a line of its own
    s.VISLAY[2] = {2, .113, 70};
    EXPECT_THAT(linesAfter(layeredDeckOf(store), "(36) DUR"),
                StartsWith(" 2 | 1   2   (37) NVL LNV| 11  (38)"));
    s.NVL = 0;
    EXPECT_THAT(linesAfter(layeredDeckOf(store), "(36) DUR"), StartsWith(" 0  11  (38) NTYME|"));
    EXPECT_THAT(linesAfter(layeredDeckOf(store), "(39) TYME"), StartsWith(" 1  1  (46)"));
    s.NLBT = 0;
    EXPECT_EQ(linesAfter(layeredDeckOf(store), "(49) TNLR\r\n 52000   13000   (49) TNLR"),
              " 1.365E-09   4.477   (51) FT4 FT5|");
    s.KGRAN[1] = {".5", ".6"};  // close texts keep apart
    EXPECT_THAT(layeredDeckOf(store), HasSubstr(" .5  .6  (31) K2 K0\r\n"));
}

TEST(LayeredDeck, RandomStoresKeepTheirValues) {
    constexpr unsigned seed = 20240;
    RandomStores stores(seed);
    for (int round = 0; round < rounds(150); ++round) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", store " + std::to_string(round));
        const auto store = stores.next();
        Store read;
        const DeckReadResult result = readText(layeredDeckOf(*store), read);
        ASSERT_EQ(result.sentence(), "");
        ASSERT_THAT(result.remarks, ElementsAre());
        ASSERT_EQ(read.NPROB, store->NPROB);
        for (int n = 1; n <= store->NPROB; ++n)
            ASSERT_EQ(valuesOf(read.layered[n], layeredCards()), valuesOf(store->layered[n], layeredCards()));
        const std::string again = layeredDeckOf(read);  // texts have become numbers: from here on it stays
        ASSERT_EQ(readText(again, *store).outcome, Outcome::Complete);
        ASSERT_EQ(layeredDeckOf(*store), again);
    }
}

/// Short labels, no NUNIT on card (5), and unit weights per cubic inch.
TEST(LayeredDeck, OldFormatDiffersInThreePlaces) {
    std::string old = std::regex_replace(example("BED6.DAT"), std::regex("(\\(\\d+\\))[^\r]*"), "$1");
    old = replaced(replaced(old, " 80  9  0  (5)", " 80  9  (5)"), " 146   136   122 ",
                   " .0845   .0787  .0706 ");
    Store read;
    read.layered[1].NUNIT = 1;
    std::string told;
    const LayeredReadHooks hooks = {
        .nprobRead = [&](Integer NPROB) { told += "sets " + std::to_string(NPROB); },
        .oldFormatPHI =
            [&](int set) {
                told += ", PHI " + std::to_string(set);
                EXPECT_EQ(read.layered[set].DEL, .001f) << "told when card (4) has been read";
                EXPECT_EQ(read.layered[set].NL, 0) << "and before the rest";
            }};
    const DeckReadResult result = readText(old, read, hooks);
    EXPECT_EQ(result.sentence(), "");
    EXPECT_EQ(told, "sets 1, PHI 1");
    EXPECT_THAT(
        result.remarks,
        ElementsAre(
            "line 4: card (4), data set 1: the label is short, which marks the old format: card (5) has no "
            "NUNIT",
            "line 23: card (29), data set 1: the label is short, so that GAM is taken per cubic inch and "
            "multiplied by 1728"));
    EXPECT_EQ(read.layered[1].KPER[1][2][1], Variant(45));
    EXPECT_THAT(layeredDeckOf(read), HasSubstr(" 80  9  0  (5) NL NZ ICL NSTD NUNIT\r\n"));
    EXPECT_THAT(layeredDeckOf(read), HasSubstr(" 146   136   122   (30) GAM\r\n"));
    EXPECT_THAT(readText(replaced(old, ".0845 ", "146 "), read).sentence(),
                HasSubstr("GAM(1), card (30), data set 1: 146 per cubic inch is out of range"));
    EXPECT_EQ(readText(replaced(example("BED2.DAT"), ") DEL", ")"), read).sentence(), "")
        << "unit weights go by the label of card (29)";
}

TEST(LayeredDeck, RemarksTellWhatWasPassedOver) {
    const std::string deck = example("BED1.DAT"),
                      missing = "; is a line missing, or a count or a type wrong?";
    const auto remarks = [](const std::string& text) {
        Store read;
        return readText(text, read).remarks;
    };
    EXPECT_THAT(remarks(replaced(deck, "(6) TH", "9 (6) TH")),
                ElementsAre("line 6: card (6), data set 1: the values from 9 on were not read" + missing));
    EXPECT_THAT(remarks(replaced(deck, "(6) TH", "(7) TH")),
                ElementsAre("line 6: card (6), data set 1: the label is that of card (7)" + missing));
    EXPECT_THAT(
        remarks(deck + "\r\n over\r\n"),
        ElementsAre(
            "line 16: what stands from \"over\" on was not read; it is behind the last data set; is NPROB or "
            "a type wrong?"));
    EXPECT_THAT(
        remarks(replaced(deck, "(7) PR", "9 (8) PR")),
        ElementsAre("line 7: card (7), data set 1: the values from 9 on were not read, and the label is that "
                    "of card (8)" +
                    missing));
    EXPECT_THAT(remarks(replaced(deck, "(6) TH", "thickness in.")), ElementsAre()) << "any words will do";
    const std::string endless = "(" + std::string(400000, '7') + ")";
    EXPECT_THAT(remarks(replaced(deck, "(6) TH", endless)), ElementsAre());
    EXPECT_THAT(remarks(replaced(deck, " .35   .3   .45   (7) PR\r\n", "")),
                ElementsAre(StartsWith("line 7: card (7), data set 1: the values from 14.001 on")))
        << "beside a failure";
}

TEST(LayeredDeck, BadDecksAreToldByLineFieldAndCard) {
    const std::string deck = example("BED1.DAT");
    const struct {
        std::string text;
        Outcome outcome;
        const char* sentence;
    } rows[] = {
        {replaced(deck, " 6   8 ", " 6   abc "), Outcome::Failed,
         "line 6: TH(2), card (6), data set 1: \"abc\" is no number"},
        {replaced(deck, " .35   .3   .45   (7) PR\r\n", ""), Outcome::Failed,
         "line 8: ZC(2), card (8), data set 1: the label (9) stands where a number should"},
        {deck.substr(0, deck.find("8000")), Outcome::Failed,
         "line 10: E(1, 3), card (11), data set 1: the file ends here"},
        {replaced(deck, " 1  (1)", " 2  (1)"), Outcome::Failed,
         "line 15: TITLE, card (2), data set 2: the file ends here"},
        {replaced(deck, "Linear ", "Linear, "), Outcome::Failed,
         "line 2: MATL, card (3), data set 1: \"elastic\" is no number; has the title a comma, which ends "
         "it?"},
        {replaced(deck, "(9) NBOND", "(9 NBOND"), Outcome::NotADeck,
         "line 9: card (9), data set 1: the label \"(9)\" is not there"},
    };
    for (const auto& row : rows) {
        Store read;
        const DeckReadResult result = readText(row.text, read);
        EXPECT_EQ(result.outcome, row.outcome) << row.sentence;
        EXPECT_EQ(result.sentence(), row.sentence);
    }

    std::string many = replaced(deck, " 1  0  1  1  (3)", " 3  0  1  13  (3)");
    const std::string group = deck.substr(deck.find(" 2   (13)"));
    for (int n = 2; n <= 13; ++n) many += group;
    Store read;
    EXPECT_EQ(readText(many, read).sentence(),
              "line 59: LOAD(13), card (13), data set 1: more than a data file can hold");
    EXPECT_EQ(read.layered[1].LOADL[12].CR, Variant(4.5)) << "what was read stays";
}

TEST(LayeredDeck, FilesAreFoundIgnoringCase) {
    TemporaryDirectory folder;
    folder.write("road.dat", "old");
    Store read;
    readText(example("BED1.DAT"), read);
    saveLayeredDeck(read, folder.path() + "road");
    EXPECT_EQ(folder.read("road.dat"), example("BED1.DAT"));
    EXPECT_FALSE(std::filesystem::exists(folder.path() + "road.DAT"));
    EXPECT_EQ(readLayeredDeck(folder.path() + "ROAD.DAT", read).outcome, Outcome::Complete);
    EXPECT_EQ(readLayeredDeck(folder.path() + "none.DAT", read).sentence(),
              "File not found: " + folder.path() + "none.DAT");
}

TEST(LayeredDeck, WhatCannotBeWrittenLeavesTheOldDeckWhole) {
    const struct {
        void (*spoil)(Store& store);
        const char* error;
    } rows[] = {
        {[](Store& s) { s.layered[1].LAYER[2].TH = "1,5"; }, "Type mismatch: TH(2), card (6), data set 1"},
        {[](Store& s) { s.layered[1].NL = 20; }, "Subscript out of range: PR(20), card (7), data set 1"},
        {[](Store& s) { s.NPROB = 2, s.layered[2].NLG = 1, s.layered[2].LOADL[1].NR = ""; },
         "Type mismatch: NR(1), card (16), data set 2"},
        {[](Store& s) { s.NPROB = 6; }, "Subscript out of range: data set 6"},
        {[](Store& s) { s.layered[1].DEL = std::numeric_limits<Single>::infinity(); },
         "Overflow: DEL, card (4), data set 1"},
    };
    TemporaryDirectory folder;
    folder.write("road.DAT", "old");
    for (const auto& row : rows) {
        const auto store = threeLayerStore();
        row.spoil(*store);
        try {
            saveLayeredDeck(*store, folder.path() + "road.DAT");
            ADD_FAILURE() << row.error;
        } catch (const RunTimeError& error) {
            EXPECT_STREQ(error.what(), row.error);
        }
        EXPECT_EQ(folder.read("road.DAT"), "old") << row.error;
    }
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

TEST(LayeredDeck, SpoiledDecksNeverBreakTheReader) {
    constexpr unsigned seed = 4711;
    RandomStores random(seed);
    std::set<Outcome> outcomes;
    for (int round = 0; round < rounds(300); ++round) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", deck " + std::to_string(round));
        const auto store = random.next();
        DeckReadResult result;
        ASSERT_NO_THROW(result = readText(mutated(layeredDeckOf(*store), random), *store));
        ASSERT_EQ(result.sentence().empty(), result.outcome == Outcome::Complete);
        outcomes.insert(result.outcome);
    }
    EXPECT_EQ(outcomes.size(), 3U);
}

TEST(DeckKind, IsToldByTheThirdCard) {
    const std::string layered = example("BED1.DAT"), slab = example("PAN1.DAT");
    const std::string beginning = slab.substr(0, 200);
    const struct {
        std::string text;
        DeckKind kind;
    } rows[] = {{layered, DeckKind::Layered},
                {beginning, DeckKind::Slab},
                {replaced(layered, " (3) MATL NDAMA NPY NLG", " (3)"), DeckKind::Layered},
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
