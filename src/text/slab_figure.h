// The figures of the slab examples, drawn from their decks: a section of slab and
// foundation, and the plan of the slabs with their grids, joints, loads and dimensions.
#pragma once

#include <string>

#include "platform/page.h"

struct SlabFigure {
    std::string deck;  ///< name of the example's deck, in English units
    float height;      ///< twips
};

/// The deck must be one that can be solved; a broken one is a RunTimeError.
Page slabFigure(const SlabFigure& figure);
