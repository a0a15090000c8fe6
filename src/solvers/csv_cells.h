// Numbers in the tables for other programs: 10 significant digits, a comma in front.
#pragma once

#include <cstdio>
#include <initializer_list>
#include <ostream>
#include <string>

inline std::string csvNumber(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.10g", value);
    return text;
}

/// Cells that are not `wanted` stay empty.
inline void csvCells(std::ostream& out, std::initializer_list<double> values, bool wanted = true) {
    for (double value : values) out << ',' << (wanted ? csvNumber(value) : "");
}
