// What a layered solver asks of a deck before it computes. The input menu lets
// nearly everything pass; here each value must make sense.
#pragma once

#include <optional>

#include "store/cards.h"

struct LayeredSet;
struct Store;

/// The first fault of a data set in the order of the cards, or nothing. Looks at what the cards of its `MATL`
/// and `NDAMA` hold: every value is a finite number, counts are whole and within the deck's limits, and
/// geometry, materials, interfaces, loads, damage and the integration's settings are what a layered system
/// can have.
std::optional<DeckFault> checkLayeredSet(const LayeredSet& set, int number, const DeckPlace& end = {});

/// The first fault of the number of data sets, or of data sets 1 to `NPROB`. `end` is where the reading of
/// the deck failed, if it did: values from there on are not looked at.
std::optional<DeckFault> checkLayeredDeck(const Store& store, const DeckPlace& end = {});
