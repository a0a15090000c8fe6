#include "layered/layered_deck.h"

#include "layered/layered_cards.h"
#include "platform/run_time_error.h"
#include "store/store.h"

namespace {

const CardTable<Store>& fileCards() {
    using Set = Store;
    static const CardTable<Store> table = {
        {nullptr, {}, {{1, " (1) NPROB", {{Layout::Close, {CARD_FIELD("NPROB", s.NPROB)}}}}}}};
    return table;
}

struct NotADeck {
    int line;
};

/// Reads a data set of either format.
class LayeredReader : public CardReader<LayeredSet> {
  public:
    LayeredReader(ListReader& in, LayeredSet& set, DeckPlace& where, const LayeredReadHooks& hooks)
        : CardReader(in, set, where), hooks_(hooks) {}

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
            GAM = ToInteger(GAM.number() * 1728);
        }
    }

    void cardEnd(const Card<LayeredSet>& card) override {
        CardReader::cardEnd(card);
        if (card.number == 4) {
            oldFormat_ = label().size() < shortestNewLabel;
            const bool granular = set().MATL == 2 || set().MATL == 4;
            if (oldFormat_ && granular && hooks_.oldFormatPHI) hooks_.oldFormatPHI(where_.set);
        }
        if (card.number == 9 && !label().starts_with("(9)")) throw NotADeck{labelLine()};
    }

    const LayeredReadHooks& hooks_;
    bool oldFormat_ = false;
};

}  // namespace

void saveLayeredDeck(const Store& store, ListWriter& out) {
    DeckPlace where;
    try {
        CardWriter<Store>(out, store, where).walk(fileCards());
        for (int set = 1; set <= store.NPROB; ++set) {
            where = {set, 0, "", {}};
            CardWriter<LayeredSet>(out, store.layered[set], where).walk(layeredCards());
        }
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.fault(), where.text());
    }
}

void saveLayeredDeck(const Store& store, const std::string& path) {
    ListWriter out(withDatExtension(path));
    saveLayeredDeck(store, out);
    out.close();
}

DeckReadResult readLayeredDeck(ListReader& in, Store& store, const LayeredReadHooks& hooks) {
    DeckPlace where;
    try {
        CardReader<Store>(in, store, where).walk(fileCards());
        if (hooks.nprobRead) hooks.nprobRead(store.NPROB);
        for (int set = 1; set <= store.NPROB; ++set) {
            where = {set, 0, "", {}};
            LayeredReader(in, store.layered[set], where, hooks).walk(layeredCards());
        }
    } catch (const NotADeck& found) {
        return {DeckReadResult::Outcome::NotADeck, where, found.line,
                "the label \"(9)\" is not there: this is no layered deck"};
    } catch (const RunTimeError& error) {
        return failedRead(error, in, where);
    }
    return {};
}

DeckReadResult readLayeredDeck(const std::string& path, Store& store, const LayeredReadHooks& hooks) {
    try {
        ListReader in(path);
        return readLayeredDeck(in, store, hooks);
    } catch (const RunTimeError& error) {
        return {DeckReadResult::Outcome::Failed, {}, 0, error.what()};
    }
}
