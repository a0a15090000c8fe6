// What a slab solver asks of a deck before it computes. The input menu lets
// nearly everything pass; here each value must make sense.
#pragma once

#include <optional>
#include <string>

#include "store/cards.h"

struct SlabSet;
struct Store;

/// The first fault of a data set in the order of the cards, or nothing: every value is a finite number,
/// counts are whole and within the deck's limits, nodes and slabs exist, grids grow, thicknesses, moduli and
/// the foundation are positive where they must be. How slabs, joints and loads fit together is not looked at.
std::optional<DeckFault> checkSlabSet(const SlabSet& set, int number, const DeckPlace& end = {});

/// The first fault of the number of data sets, of data sets 1 to `NPROB`, or of a second one that continues
/// the first with other slabs. `end` is where the reading of the deck failed, if it did: values from there on
/// are not looked at.
std::optional<DeckFault> checkSlabDeck(const Store& store, const DeckPlace& end = {});

/// Place of the first card that has a field of this name, or of one that begins so ("JONO"), for messages of
/// others. The card is 0 where there is none.
DeckPlace placeOfSlabField(const std::string& field, int number);
