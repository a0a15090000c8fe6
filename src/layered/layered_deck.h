// The layered deck: the whole input of the layered solver in one text file, which
// the input menu writes and reads back and the solver reads with the same code.
#pragma once

#include <functional>
#include <string>

#include "platform/list_file.h"
#include "store/cards.h"

struct Store;

/// Writes data sets 1 to `NPROB` of the store. A number field that holds another text is a TypeMismatch, a
/// count beyond the store SubscriptOutOfRange; the error's text names field, card and data set. `out` is not
/// closed.
void saveLayeredDeck(const Store& store, ListWriter& out);

/// Writes the deck to `path`, with ".DAT" behind it unless it ends so. A file that is there is replaced only
/// by a whole deck: after any RunTimeError (those above, PathNotFound, PermissionDenied, DiskFull) it is as
/// it was.
void saveLayeredDeck(const Store& store, const std::string& path);

/// What happens while a deck is read. Both may be empty.
struct LayeredReadHooks {
    std::function<void(Integer)> nprobRead;  ///< the number of data sets, before the first of them
    /// A data set in the old format has granular layers, whose EMIN is now read as PHI; told when the format
    /// has been seen, in front of the rest of the data set.
    std::function<void(int set)> oldFormatPHI;
};

/// Reads a deck into the store, value by value: what was read before a failure stays. Checks no count and no
/// limit.
DeckReadResult readLayeredDeck(ListReader& in, Store& store, const LayeredReadHooks& hooks = {});
/// The same from a file, resolved ignoring letter case. One that cannot be opened is a failure on line 0.
DeckReadResult readLayeredDeck(const std::string& path, Store& store, const LayeredReadHooks& hooks = {});
