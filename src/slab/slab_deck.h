// The slab deck: the whole input of the slab solvers in one text file, which the
// input menu writes and reads back and the solvers read with the same code. Decks
// of two older generations are read, too; all are written in the present form.
#pragma once

#include <functional>
#include <string>

#include "platform/list_file.h"
#include "store/cards.h"

struct SlabSet;
struct Store;

/// As saveDeck() has it; the number of data sets is `SlabNPROB`.
void saveSlabDeck(const Store& store, ListWriter& out);
void saveSlabDeck(const Store& store, const std::string& path);

/// As readDeck() has it. `countRead` is called before the first data set is read. `UL`, `TC` and `CL` are not
/// taken from the deck: they follow from the rest of it.
DeckReadResult readSlabDeck(ListReader& in, Store& store, const std::function<void()>& countRead = {});
DeckReadResult readSlabDeck(const std::string& path, Store& store,
                            const std::function<void()>& countRead = {});

/// `UL`, `TC` and `CL` by the loads and the contact conditions of the data set.
void computeStatus(SlabSet& set);
