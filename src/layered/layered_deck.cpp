#include "layered/layered_deck.h"

#include "layered/layered_cards.h"
#include "store/deck.h"

namespace {

const Deck<LayeredSet>& layeredDeck() {
    using Set = Store;
    static const CardTable<Store> fileCards = {
        {nullptr, {}, {{1, " (1) NPROB", {{Layout::Close, {CARD_FIELD("NPROB", s.NPROB)}}}}}}};
    static const Deck<LayeredSet> deck = {
        fileCards, layeredCards(), [](const Store& store) -> Double { return store.NPROB; },
        [](Store& store, int n) -> LayeredSet& { return store.layered[n]; }, TypedText::AsTyped};
    return deck;
}

/// Reads a data set of either format.
class LayeredReader : public CardReader<LayeredSet> {
  public:
    LayeredReader(ListReader& in, LayeredSet& set, DeckReading& reading, const LayeredReadHooks& hooks)
        : CardReader(in, set, reading), hooks_(hooks) {}

  private:
    static constexpr std::size_t shortestNewLabel = 7;  // "(4) DEL"

    void card(const Card<LayeredSet>& card, const Place& at) override {
        const bool without = card.number == 5 && oldFormat_;
        if (without) set().NUNIT = 0;
        CardReader::card(without ? oldCard5() : card, at);
    }

    void value(const Card<LayeredSet>& card, const Run<LayeredSet>& run, Cell cell) override {
        CardReader::value(card, run, cell);
        // Old unit weights are per cubic inch. The last label, that of card (29), tells, not that of card
        // (4).
        if (card.number == 30 && label().size() < shortestNewLabel) {
            Variant& GAM = *std::get<Variant*>(cell);
            GAM = perCubicFoot(GAM.number());
        }
    }

    void cardEnd(const Card<LayeredSet>& card) override {
        CardReader::cardEnd(card);
        if (card.number == 4) {
            oldFormat_ = label().size() < shortestNewLabel;
            if (oldFormat_) remark("the label is short, which marks the old format: card (5) has no NUNIT");
            const bool granular = set().MATL == 2 || set().MATL == 4;
            if (oldFormat_ && granular && hooks_.oldFormatPHI) hooks_.oldFormatPHI(where_.set);
        }
        if (card.number == 29 && label().size() < shortestNewLabel)
            remark("the label is short, so that GAM is taken per cubic inch and multiplied by 1728");
        if (card.number == 9 && !label().starts_with("(9)"))
            throw NotADeck{labelLine(), "the label \"(9)\" is not there"};
    }

    const LayeredReadHooks& hooks_;
    bool oldFormat_ = false;
};

}  // namespace

void saveLayeredDeck(const Store& store, ListWriter& out) { saveDeck(layeredDeck(), store, out); }
void saveLayeredDeck(const Store& store, const std::string& path) { saveDeck(layeredDeck(), store, path); }

DeckReadResult readLayeredDeck(ListReader& in, Store& store, const LayeredReadHooks& hooks) {
    const auto countRead = [&] {
        if (hooks.nprobRead) hooks.nprobRead(store.NPROB);
    };
    return readDeck(layeredDeck(), in, store, countRead,
                    [&](ListReader& from, LayeredSet& set, DeckReading& reading) {
                        LayeredReader(from, set, reading, hooks).walk(layeredCards());
                    });
}

DeckReadResult readLayeredDeck(const std::string& path, Store& store, const LayeredReadHooks& hooks) {
    return readDeckFile(path, [&](ListReader& in) { return readLayeredDeck(in, store, hooks); });
}
