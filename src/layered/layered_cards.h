// The cards of the layered deck, as data.
#pragma once

#include "layered/layered_set.h"
#include "store/cards.h"

/// The cards of one data set, in the order of the file.
const CardTable<LayeredSet>& layeredCards();

/// Card (5) of the old format, which has no system of units.
const Card<LayeredSet>& oldCard5();

/// True when `layer` is one of the viscoelastic layers of the data set.
bool isViscoelastic(const LayeredSet& set, int layer);
