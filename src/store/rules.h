// Rules of a data set that both input menus follow, as rows of data: which words
// stand under the menus, and what may not be missing in a deck.
#pragma once

#include <string>

#include "platform/numbers.h"

/// A menu's status label and when it asks for input; otherwise its defaults stand.
template <class Set>
struct StatusRule {
    const char* label;
    bool (*needsInput)(const Set& set);
    bool keepsDone = false;             ///< a "done" keeps its word and turns red
    const char* otherwise = "default";  ///< the word in blue
};

/// Data without which a deck is not saved, and the message that says which menu was forgotten.
template <class Set>
struct Missing {
    bool (*holds)(const Set& set);
    const char* message;
};

/// An emptied cell is as missing as a zero.
inline bool isZero(const Variant& value) { return value.isEmptyText() || value == Variant(0); }

/// The counts that end a copy: a text that is no number, the empty one included, is a TypeMismatch.
inline Double lastIndex(Double count) { return count; }
inline Double lastIndex(const Variant& count) { return count.number(); }

/// Elements 1 to `count`; an index beyond the store is SubscriptOutOfRange, with all before it copied.
template <class Array, class Count>
void copyTo(const Array& from, Array& to, const Count& count) {
    for (int i = 1; i <= lastIndex(count); ++i) to[i] = from[i];
}

template <class Table, class Rows, class Columns>
void copyTo(const Table& from, Table& to, const Rows& rows, const Columns& columns) {
    for (int i = 1; i <= lastIndex(rows); ++i) copyTo(from[i], to[i], columns);
}
