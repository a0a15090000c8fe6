// The figures of the layered examples, drawn from their decks: the section of the
// pavement with its layers, and the plan of the wheels and the response points.
#pragma once

#include <string>
#include <vector>

#include "platform/page.h"

struct LayeredFigure {
    struct Layer {
        std::string name;
        Colour fill;
    };
    std::string deck;           ///< name of the example's deck, in English units
    std::vector<Layer> layers;  ///< what the layers are, from the surface
    float height;               ///< twips
};

/// The deck must be one that can be solved; a broken one is a RunTimeError.
Page layeredFigure(const LayeredFigure& figure);
