#include "slab/slab_deck.h"

#include <gmock/gmock.h>

#include "platform/run_time_error.h"
#include "support/deck_texts.h"
#include "support/slab_stores.h"
#include "support/temporary_directory.h"

namespace {

using Outcome = DeckReadResult::Outcome;

DeckReadResult read(const std::string& deck, Store& store) {
    ListReader in = ListReader::fromText(deck);
    return readSlabDeck(in, store);
}

constexpr const char* label6 =
    "(6) NLAYER NNCK NOTCON NGAP NPRINT INPUT NBOND NTEMP NWT NCYCLE NAT1 NAT2 NSX NSY MDPO NUNIT UL TC CL";

TEST(SlabDeck, EmptyListsKeepTheLabelsOfCardsThatAreAlwaysThere) {
    const auto store = singleSlabStore();
    SlabSet& s = store->slab[1];
    s.NSLAB = 2;
    s.SLAB[1].NX = s.SLAB[1].NY = 0;
    s.NLAYER = s.NLG = s.NPY = 0;
    s.NDAMA = 1;
    EXPECT_EQ(linesAfter(slabDeckOf(*store), "(8) F1(1) F1(2) F2(1) F2(2)"),
              " (9) X's and then Y's| (9) X's and then Y's| (10) T PR YM| (12) NUDL| 0   (13) NCNF|"
              " 0   0   (14) NNMX NNMY| 0   100   (24) NAS SUBMOD| 29000000  .3  (34) YMSB PRSB|");
    s.NPY = 2;
    EXPECT_TRUE(slabDeckOf(*store).ends_with(" (37) TNLR\r\n (37) TNLR\r\n"));
    const auto again = std::make_unique<Store>();
    EXPECT_EQ(read(slabDeckOf(*store), *again).sentence(), "");
    EXPECT_EQ(again->slab[1].YMSB, Variant(2.9e7));
}

/// Two slabs with a joint, every list, two layers, damage.
std::unique_ptr<Store> fullStore() {
    auto store = singleSlabStore();
    SlabSet& s = store->slab[1];
    s.NSLAB = 2;
    s.NJOINT = s.NDAMA = s.TC = 1;
    s.NTEMP = s.CL = 1;
    s.SLAB[2] = s.SLAB[1];
    s.SLAB[1].JONO2 = s.SLAB[2].JONO1 = 1;
    s.NLAYER = 2;
    s.LAYER[2] = {4, .2F, 3.5E6F, 0, 0, 0, 0};
    s.NLG = 2;
    s.NUDL[2] = 0;
    s.NAT1 = s.NAT2 = s.NPRINT = s.NSX = s.NSY = s.NNMX = s.NNMY = 1;
    s.NCNF = 2;
    s.NOTCON = s.NGAP = s.NAS = "1";
    s.THICK1[1] = {1, 2.5};
    s.THICK2[1] = {2.0, 3};
    s.FORCE[1] = {1, 123456.789};
    s.FORCE[2] = {2, -1e20};
    s.MOMENTX[1] = {3, .5};
    s.MOMENTY[1] = {4, -.25};
    s.NODNC[1] = 5;
    s.NP[1] = 6;
    s.NODSX[1] = 1;
    s.NODSY[1] = 2;
    s.GAP[1] = {4, .125};
    s.SUBGRADE[1] = {3, 50};
    s.FOUNDATION[1] = {6, 20000, .4};
    s.YMS = 7500;
    s.PRS = .45;
    s.JOINT[1] = {0, 0, 1500000, 1, 12, .2, 0, 2, {}};
    s.JOINT[1].BARNO[1] = .5;
    s.TNLR[1][1] = 1000;
    s.TNLR[1][2] = 2.76e17;
    return store;
}

const std::string lists =
    " 1   2.5   (11) NT T| 2   3   (11) NT T| 1   0   (12) NUDL| 2   (13) NCNF| 1   1   (14) NNMX NNMY|"
    " 1   0   10   0   12.5   80   (15) LS XL1 XL2 YL1 YL2 QQ|"
    " 1   123456.789   2  -1E+20   (16) NN FF| 3   .5   (16) NNX FMX| 4  -.25   (16) NNY FMY|"
    " 5   (17) NODNC| 6   (18) NP| 1   (19) NODSX| 2   (20) NODSY| 4   .125   (21) NG CURL| 1   (22) FSAF|";
constexpr const char* dowels =
    " 29000000  .3  (34) YMSB PRSB|"
    " 0   0   1500000   1   12   .2   0   2   (35) SPCON1 SPCON2 SCKV BD BS WJ GDC NNAJ| .5   0   (36) BARNO|"
    " 1000   2.76E+17   (37) TNLR|";

TEST(SlabDeck, ListsFoundationsJointsAndDamage) {
    const auto store = fullStore();
    SlabSet& s = store->slab[1];
    const std::string liquid = " 1   100   (24) NAS SUBMOD| 3   50   (25) NS SUBMOD|";
    const struct {
        Integer NFOUND;
        int NL;
        std::string cards;
    } rows[] = {{0, 0, liquid},
                {3, 0, liquid},  // only 1 and 2 are told apart
                {1, 0, " 7500   .45   (28) YMS PRS|"},
                {2, 0, " 0   30   (30) NL MAXIC|"},
                {2, 1, " 1   30   (30) NL MAXIC| 20000   (32) E| .4   (33) PRBF|"},
                {2, 2, " 2   30   (30) NL MAXIC| 6   (31) TH| 20000   0   (32) E| .4   0   (33) PRBF|"}};
    for (const char* line :
         {"\n 3   2   0   1   0   0   (5) NX", "\n 8   .15   4000000   4   .2   3500000   (10)"})
        EXPECT_NE(slabDeckOf(*store).find(line), std::string::npos) << line;
    for (const auto& row : rows) {
        s.NFOUND = row.NFOUND;
        s.NL = row.NL;
        EXPECT_EQ(linesAfter(slabDeckOf(*store), "(10) T PR YM"), lists + row.cards + dowels);
    }
}

TEST(SlabDeck, StatusFollowsFromTheRestOfTheDeck) {
    const auto store = singleSlabStore();
    SlabSet& s = store->slab[1];
    const struct {
        Integer NUDL, NNMY;
        int NTEMP, NCYCLE;
        const char* status;
    } rows[] = {{1, 0, 0, 1, "122"}, {0, 1, 0, 1, "221"}, {0, 0, 1, 1, "212"}, {1, 0, 0, 10, "112"}};
    for (const auto& row : rows) {
        s.NUDL[1] = row.NUDL;
        s.NNMY = row.NNMY;
        s.NTEMP = row.NTEMP;
        s.NCYCLE = row.NCYCLE;
        s.UL = "9";
        ASSERT_EQ(read(slabDeckOf(*store), *store).sentence(), "");
        EXPECT_EQ(s.UL.text() + numberText(s.TC) + s.CL.text(), row.status);
    }
}

TEST(SlabDeck, RandomStoresKeepTheirValues) {
    constexpr unsigned seed = 30531;
    RandomSlabStores stores(seed);
    for (int round = 0; round < rounds(300); ++round) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", store " + std::to_string(round));
        const auto store = stores.next();
        const auto again = std::make_unique<Store>();
        const DeckReadResult result = read(slabDeckOf(*store), *again);
        ASSERT_EQ(result.sentence(), "");
        EXPECT_EQ(result.remarks, std::vector<std::string>{}) << "to its end";
        ASSERT_EQ(again->SlabNPROB, store->SlabNPROB);
        for (int n = 1; n <= store->SlabNPROB.number(); ++n)
            ASSERT_EQ(valuesOf(again->slab[n], slabCards()), valuesOf(store->slab[n], slabCards()));
    }
}

TEST(SlabDeck, SpoiledDecksNeverBreakTheReader) {
    constexpr unsigned seed = 815;
    RandomSlabStores random(seed);
    int outcomes[3] = {};
    for (int round = 0; round < rounds(300); ++round) {
        SCOPED_TRACE("seed " + std::to_string(seed) + ", deck " + std::to_string(round));
        const auto store = random.next();
        const std::string deck = mutated(slabDeckOf(*store), random);
        DeckReadResult result;
        ASSERT_NO_THROW(result = read(deck, *store));
        ASSERT_EQ(result.sentence().empty(), result.outcome == Outcome::Complete);
        ++outcomes[static_cast<int>(result.outcome)];
    }
    for (const int times : outcomes) EXPECT_GT(times, 0);
}

/// The full deck as the middle generation wrote it: a system of units, no status fields.
std::string middleDeck(const std::string& deck) {
    return replaced(deck, "  1  1  1 " + std::string(label6),
                    "  (6) NLAYER NNCK NOTCON NGAP NPRINT INPUT NBOND NTEMP NWT NCYCLE NAT1 NAT2 NSX NSY "
                    "MDPO NUNIT");
}

TEST(SlabDeck, MiddleGenerationHasUnitsButNoStatus) {
    const auto store = fullStore();
    SlabSet& s = store->slab[1];
    s.NUNIT = 1;
    s.NOTCON = s.NGAP = s.NAS = 1;
    s.AREA[1][1].XL2 = 10;
    const std::string deck = slabDeckOf(*store);
    const auto again = std::make_unique<Store>();
    ASSERT_EQ(read(middleDeck(deck), *again).sentence(), "");
    EXPECT_EQ(slabDeckOf(*again), deck);
}

/// One slab and two load groups, as the oldest decks have them.
const std::string oldDeck =
    " 1  (1)\r\n"
    "Old slab\r\n"
    " 0  0  1  2  (3)\r\n"
    " 1  0  (4)  \r\n"
    " 2  2  0  0  0  0  (5)\r\n"
    " 1  1  0  0  0  0  0  0  0  1  0  0  0  0  0  (6)\r\n"
    " 0  .0078125  .0234375  0  0  .000005  .001  1  (7)\r\n"
    " 0  0  0  0  (8)\r\n"
    " 0  60  0  72  (9)\r\n"
    " 8  .15  4000000  (10)\r\n"
    " 1  0  (12)\r\n"
    " 2  7  (13)\r\n"
    " 1  0  10  0  12  80  (15)\r\n"
    " 1  1000  2  2000  (16)\r\n"
    " 1  (22)\r\n"
    " 0  100  (24)\r\n";

TEST(SlabDeck, OldestGenerationDiffersInThreePlaces) {
    const auto store = std::make_unique<Store>();
    SlabSet& s = store->slab[1];
    s.NUNIT = 1;
    s.NNMY = 0;
    ASSERT_EQ(read(oldDeck, *store).sentence(), "");
    EXPECT_EQ(s.NUNIT, 0);
    EXPECT_EQ(s.NCNF, 2);
    EXPECT_EQ(s.NNMX, 7) << "card (13) has one number per load group";
    EXPECT_EQ(s.FORCE[2].FF, 2000);
    EXPECT_EQ(s.LAYER[1].GAMA, 14) << "13.5 pcf to the even neighbour";
    EXPECT_EQ(s.LAYER[2].GAMA, 40) << "40.5 likewise";
    EXPECT_EQ(s.CL, Variant(1));

    std::string many = replaced(oldDeck, " 0  0  1  2  (3)", " 0  0  1  4  (3)");
    many = replaced(replaced(many, " 1  0  (12)", " 1  0  0  0  (12)"), " 2  7  (13)", " 2  7  8  9  (13)");
    EXPECT_EQ(read(many, *store).sentence(),
              "line 12: NCNF(4), card (13), data set 1: more than a data file can hold");
    EXPECT_EQ(read(replaced(oldDeck, ".0234375", "150"), *store).sentence(),
              "line 7: GAMA(2), card (7), data set 1: 150 per cubic inch is out of range here");
    EXPECT_EQ(s.LAYER[1].GAMA, 14) << "converted in front of the one that failed";

    // Without forces the moments' counts bring no card either.
    const std::string none =
        replaced(replaced(oldDeck, " 2  7  (13)", " 0  7  (13)"), " 1  1000  2  2000  (16)\r\n", "");
    EXPECT_EQ(read(none, *store).sentence(), "");
}

TEST(SlabDeck, BadDecksAreToldByLineFieldAndCard) {
    const std::string deck = slabDeckOf(*singleSlabStore());
    const struct {
        std::string text;
        Outcome outcome;
        const char* sentence;
    } rows[] = {
        {replaced(deck, "(9) X's", "9 X's"), Outcome::NotADeck,
         "line 9: card (9), data set 1: the label \"(9)\" is not there"},
        {replaced(deck, " 8   .15", " 8   x"), Outcome::Failed,
         "line 10: PR(1), card (10), data set 1: \"x\" is no number"},
        {replaced(deck, " 3   2   0", " 3   40000   0"), Outcome::Failed,
         "line 5: NY(1), card (5), data set 1: 40000 is out of range here"},
        {replaced(deck, " 3   2   0", " 26   2   0"), Outcome::Failed,
         "line 9: X(1, 6), card (9), data set 1: the label (9) stands where a number should"},
        {deck.substr(0, deck.find("   (22)")), Outcome::Failed,
         "line 15: card (22), data set 1: the file ends here"},
        {replaced(deck, " 1  (1)", " 3  (1)") + deck.substr(deck.find("Single")) + "T\r\n", Outcome::Failed,
         "line 32: data set 3: more than a data file can hold"},
        {replaced(deck, "Single slab", "Single, slab"), Outcome::Failed,
         "line 2: NFOUND, card (3), data set 1: \"slab\" is no number; has the title a comma, which ends "
         "it?"},
        {"", Outcome::Failed, "line 1: NPROB, card (1): the file ends here"},
    };
    for (const auto& row : rows) {
        const auto store = std::make_unique<Store>();
        const DeckReadResult result = read(row.text, *store);
        EXPECT_EQ(result.outcome, row.outcome) << row.sentence;
        EXPECT_EQ(result.sentence(), row.sentence);
    }
}

TEST(SlabDeck, AFileThatCannotBeWrittenWholeStays) {
    TemporaryDirectory folder;
    folder.write("slab.dat", "old");
    const auto store = singleSlabStore();
    store->slab[1].NPRINT = 200;
    EXPECT_THAT([&] { saveSlabDeck(*store, folder.path() + "slab"); },
                testing::ThrowsMessage<RunTimeError>(testing::EndsWith("NP(121), card (18), data set 1")));
    EXPECT_EQ(folder.read("slab.dat"), "old");
    store->slab[1].NPRINT = 0;
    saveSlabDeck(*store, folder.path() + "slab");
    EXPECT_EQ(folder.read("slab.dat"), slabDeckOf(*store));
    EXPECT_EQ(readSlabDeck(folder.path() + "SLAB.DAT", *store).sentence(), "");
}

}  // namespace
