// The layered deck: the whole input of the layered solver in one text file, which
// the input menu writes and reads back and the solver reads with the same code.
#pragma once

#include <functional>
#include <string>

#include "platform/list_file.h"
#include "store/cards.h"

struct Store;

/// As saveDeck() has it.
void saveLayeredDeck(const Store& store, ListWriter& out);
void saveLayeredDeck(const Store& store, const std::string& path);

/// What happens while a deck is read. Both may be empty.
struct LayeredReadHooks {
    std::function<void(Integer)> nprobRead;  ///< the number of data sets, before the first of them
    /// A data set in the old format has granular layers, whose EMIN is now read as PHI; told when the format
    /// has been seen, in front of the rest of the data set.
    std::function<void(int set)> oldFormatPHI;
};

/// As readDeck() has it.
DeckReadResult readLayeredDeck(ListReader& in, Store& store, const LayeredReadHooks& hooks = {});
DeckReadResult readLayeredDeck(const std::string& path, Store& store, const LayeredReadHooks& hooks = {});
