// Decks of the examples as the figures read them.
#pragma once

#include <memory>
#include <string>

#include "platform/run_time_error.h"
#include "store/cards.h"
#include "store/store.h"
#include "text/pages.h"

/// The deck of that name, read by `read`. One that cannot be read is a RunTimeError: it is part of the
/// program.
template <class Read>
std::unique_ptr<Store> readExample(const std::string& deck, Read read) {
    auto store = std::make_unique<Store>();
    ListReader in = ListReader::fromText(textPage(deck, "\r\n"));
    const DeckReadResult result = read(in, *store);
    if (result.outcome != DeckReadResult::Outcome::Complete)
        throw RunTimeError(Fault::InvalidCall, deck + ", " + result.sentence());
    return store;
}
