// What the decks of both sides share: the card with the number of data sets, the
// cards of each data set behind it, and the same two ways in which it can fail.
#pragma once

#include <functional>
#include <string>

#include "platform/list_file.h"
#include "platform/run_time_error.h"
#include "store/cards.h"
#include "store/store.h"

/// A side's deck. The store is given out for reading and for writing alike.
template <class Set>
struct Deck {
    const CardTable<Store>& fileCards;
    const CardTable<Set>& setCards;
    Double (*count)(const Store& store);  ///< data sets, as card (1) has it
    Set& (*set)(Store& store, int n);     ///< SubscriptOutOfRange beyond the store
    TypedText typedText;                  ///< of tables, whose cells are kept as they were typed
};

/// Thrown where the one label that is tested is not there.
struct NotADeck {
    int line;
    const char* reason;
};

/// Writes data sets 1 to `NPROB` of the store. A number field that holds another text is a TypeMismatch, a
/// count beyond the store SubscriptOutOfRange; the error's text names field, card and data set. `out` is not
/// closed.
template <class Set>
void saveDeck(const Deck<Set>& deck, const Store& store, ListWriter& out) {
    DeckPlace where;
    try {
        CardWriter<Store>(out, store, where).walk(deck.fileCards);
        for (int n = 1; n <= deck.count(store); ++n) {
            where = {n, 0, "", {}};
            CardWriter<Set>(out, deck.set(const_cast<Store&>(store), n), where, deck.typedText)
                .walk(deck.setCards);
        }
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.fault(), where.text());
    }
}

/// Writes the deck to `path`, with ".DAT" behind it unless it ends so. A file that is there is replaced only
/// by a whole deck: after any RunTimeError (those above, PathNotFound, PermissionDenied, DiskFull) it is as
/// it was.
template <class Set>
void saveDeck(const Deck<Set>& deck, const Store& store, const std::string& path) {
    ListWriter out(withDatExtension(path));
    saveDeck(deck, store, out);
    out.close();
}

/// Reads a deck into the store, value by value: what was read before a failure stays. Checks no count and no
/// limit. `countRead` is called when the number of data sets is known; `readSet(in, set, reading)` reads one.
template <class Set, class ReadSet>
DeckReadResult readDeck(const Deck<Set>& deck, ListReader& in, Store& store,
                        const std::function<void()>& countRead, ReadSet readSet) {
    DeckReading reading;
    try {
        CardReader<Store>(in, store, reading).walk(deck.fileCards);
        if (countRead) countRead();
        for (int n = 1; n <= deck.count(store); ++n) {
            reading.where = {n, 0, "", {}};
            readSet(in, deck.set(store, n), reading);
        }
    } catch (const NotADeck& found) {
        return {DeckReadResult::Outcome::NotADeck, reading.where, found.line, found.reason, reading.remarks};
    } catch (const RunTimeError& error) {
        return failedRead(error, in, reading);
    }
    if (const std::string left = in.nextItem(); !left.empty())
        reading.remarks.push_back(
            "line " + std::to_string(in.lineNumber()) + ": what stands from \"" + left +
            "\" on was not read; it is behind the last data set; is NPROB or a type wrong?");
    DeckReadResult whole;
    whole.remarks = std::move(reading.remarks);
    return whole;
}

/// Opens `path`, resolved ignoring letter case, and reads it. One that cannot be opened is a failure on
/// line 0.
template <class Read>
DeckReadResult readDeckFile(const std::string& path, Read read) {
    try {
        ListReader in(path);
        return read(in);
    } catch (const RunTimeError& error) {
        return {DeckReadResult::Outcome::Failed, {}, 0, error.what()};
    }
}
