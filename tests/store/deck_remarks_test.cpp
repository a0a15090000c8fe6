// What a deck says otherwise than its writer may think is remarked. A remark in
// front of a failure is often its cause.
#include <gmock/gmock.h>

#include <memory>

#include "layered/layered_deck.h"
#include "slab/slab_deck.h"
#include "store/store.h"
#include "support/text_change.h"
#include "text/pages.h"

namespace {

using testing::ElementsAre;

std::vector<std::string> layeredRemarks(const std::string& text) {
    const auto store = std::make_unique<Store>();
    ListReader in = ListReader::fromText(text);
    const DeckReadResult read = readLayeredDeck(in, *store);
    EXPECT_EQ(read.sentence(), "");
    return read.remarks;
}

TEST(DeckRemarks, TellWhatWasPassedOver) {
    const std::string deck = textPage("BED2", "\r\n");
    const std::string missing = "; is a line missing, or a count or a type wrong?";
    EXPECT_TRUE(layeredRemarks(deck).empty());
    EXPECT_THAT(layeredRemarks(replaced(deck, "(6) TH", "9 (6) TH")),
                ElementsAre("line 6: card (6), data set 1: the values from 9 on were not read" + missing));
    EXPECT_THAT(layeredRemarks(replaced(deck, "(6) TH", "(7) TH")),
                ElementsAre("line 6: card (6), data set 1: the label is that of card (7)" + missing));
    EXPECT_THAT(layeredRemarks(deck + "\r\n over\r\n"),
                ElementsAre("line 26: what stands from \"over\" on was not read; it is behind the last data "
                            "set; is NPROB or a type wrong?"));
    EXPECT_THAT(layeredRemarks(replaced(deck, "(6) TH", "thickness in.")).size(), 0U) << "any words will do";
}

TEST(DeckRemarks, TellAnOldFormat) {
    const std::string deck = textPage("BED2", "\r\n");
    EXPECT_THAT(
        layeredRemarks(replaced(replaced(deck, " (4) DEL", " (4)"), "  0  (5)", "  (5)")),
        ElementsAre(
            "line 4: card (4), data set 1: the label is short, which marks the old format: card (5) has no "
            "NUNIT"));
    EXPECT_THAT(layeredRemarks(replaced(replaced(deck, "(29) RELAX", "(29)"), " 135   120 ", " .084   .07 ")),
                ElementsAre("line 19: card (29), data set 1: the label is short, so that GAM is taken per "
                            "cubic inch and multiplied "
                            "by 1728"));
}

TEST(DeckRemarks, StandBesideAFailure) {
    const auto store = std::make_unique<Store>();
    std::string deck = textPage("PAN3", "\r\n");
    const std::size_t line8 = deck.find(" 0   0   0   0   (8)");
    ListReader in = ListReader::fromText(deck.erase(line8, deck.find('\n', line8) + 1 - line8));
    const DeckReadResult read = readSlabDeck(in, *store);
    EXPECT_EQ(read.sentence(),
              "line 12: X(1, 4), card (9), data set 1: the label (9) stands where a number should");
    ASSERT_FALSE(read.remarks.empty());
    EXPECT_TRUE(read.remarks[0].starts_with("line 11: card (8), data set 1: the values from 126 on"))
        << read.remarks[0];
}

}  // namespace
