// The cards of the slab deck, as data.
#pragma once

#include "slab/slab_set.h"
#include "store/cards.h"

/// The cards of one data set, in the order of the file.
const CardTable<SlabSet>& slabCards();

/// Card (6) of the oldest decks, which have neither a system of units nor status fields.
const Card<SlabSet>& oldSlabCard6();

/// Card (13) of the oldest decks: the three counts of cards (13) and (14), as many of them as there are load
/// groups. More than three is SubscriptOutOfRange.
const Card<SlabSet>& oldSlabCard13();
