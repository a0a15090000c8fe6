#include "slab/slab_deck.h"

#include "slab/slab_cards.h"
#include "store/deck.h"

namespace {

const Deck<SlabSet>& slabDeck() {
    using Set = Store;
    static const CardTable<Store> fileCards = {
        {nullptr, {}, {{1, " (1) NPROB", {{Layout::Close, {CARD_FIELD("NPROB", s.SlabNPROB)}}}}}}};
    static const Deck<SlabSet> deck = {
        fileCards, slabCards(), [](const Store& store) { return store.SlabNPROB.number(); },
        [](Store& store, int n) -> SlabSet& { return store.slab[n]; }, TypedText::AsNumber};
    return deck;
}

std::string withoutTrailingBlanks(const std::string& text) {
    return text.substr(0, text.find_last_not_of(" \t") + 1);
}

/// Reads a data set of any generation.
class SlabReader : public CardReader<SlabSet> {
  public:
    using CardReader::CardReader;

  private:
    /// The oldest decks have bare numbers as labels, "(4)"; card (6) of the next generation ends in a unit
    /// and a label where the present one goes on with numbers.
    static constexpr std::size_t longestOldLabel = 6, shortestLabel6 = 4;

    void card(const Card<SlabSet>& card, const Place& at) override {
        if (card.number == 10) testLabel9();
        if (!old_) {
            CardReader::card(card, at);
            return;
        }
        switch (card.number) {
            case 6:
                CardReader::card(oldSlabCard6(), at);
                set().NUNIT = 0;
                assumeStatus();
                break;
            case 13:
                CardReader::card(oldSlabCard13(), at);
                convertUnitWeights();
                break;
            case 14:
                break;
            case 16:
                if (isForces(card)) CardReader::card(card, at);
                break;
            default:
                CardReader::card(card, at);
        }
    }

    void value(const Card<SlabSet>& card, const Run<SlabSet>& run, Cell cell) override {
        if (label6Passed_) return;
        if (card.number == 6 && where_.field == "UL") {
            const Variant UL = in_.readVariant();
            label6Passed_ = UL.text().size() >= shortestLabel6;
            if (label6Passed_)
                assumeStatus();
            else
                set().UL = UL;
            return;
        }
        CardReader::value(card, run, cell);
    }

    void cardEnd(const Card<SlabSet>& card) override {
        if (label6Passed_) {
            label6Passed_ = false;
            return;
        }
        CardReader::cardEnd(card);
        if (card.number == 4) {
            old_ = withoutTrailingBlanks(label()).size() <= longestOldLabel;
            if (old_)
                remark(
                    "the label is short, which marks the old format: card (6) has no NUNIT, and unit weights "
                    "are per cubic inch");
        }
        if (card.number == 7) line7_ = labelLine();
        if (card.number == 9) label9_ = label();
    }

    /// The first of cards (16), the only one that the oldest decks have.
    static bool isForces(const Card<SlabSet>& card) {
        return std::string_view(card.runs.front().fields.front().name) == "NN";
    }

    void assumeStatus() {
        set().UL = 1;
        set().TC = 2;
        set().CL = 2;
    }

    void testLabel9() {
        where_ = {where_.set, 9, "", {}};
        if (!label9_.starts_with("(9)")) throw NotADeck{labelLine(), "the label \"(9)\" is not there"};
    }

    void convertUnitWeights() {
        for (int layer = 1; layer <= 2; ++layer) {
            Single& GAMA = set().LAYER[layer].GAMA;
            where_ = {where_.set, 7, "GAMA", {layer, 0, 0}};
            reading_.line = line7_;
            GAMA = perCubicFoot(GAMA);
        }
        reading_.line = 0;
    }

    bool old_ = false;
    bool label6Passed_ = false;  ///< the label of card (6) stood where `UL` is now
    std::string label9_;
    int line7_ = 0;
};

}  // namespace

void saveSlabDeck(const Store& store, ListWriter& out) { saveDeck(slabDeck(), store, out); }
void saveSlabDeck(const Store& store, const std::string& path) { saveDeck(slabDeck(), store, path); }

DeckReadResult readSlabDeck(ListReader& in, Store& store, const std::function<void()>& countRead) {
    return readDeck(slabDeck(), in, store, countRead,
                    [](ListReader& from, SlabSet& set, DeckReading& reading) {
                        SlabReader(from, set, reading).walk(slabCards());
                        computeStatus(set);
                    });
}

DeckReadResult readSlabDeck(const std::string& path, Store& store, const std::function<void()>& countRead) {
    return readDeckFile(path, [&](ListReader& in) { return readSlabDeck(in, store, countRead); });
}

void computeStatus(SlabSet& set) {
    set.UL = set.NUDL[1] != 0 ? 1 : 2;
    set.TC = set.NTEMP.number() == 0 && set.NCYCLE.number() == 1 ? 2 : 1;
    set.CL = set.NCNF != 0 || set.NNMX != 0 || set.NNMY != 0 ? 1 : 2;
}
