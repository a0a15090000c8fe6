// Unit texts of a data set, as the echo and the tables of results print them.
#pragma once

struct Units {
    const char *length, *stress, *density, *temperature;
};

inline constexpr Units ENGLISH{"in.", "psi", "pcf", "F"};
inline constexpr Units SI{"cm", "kPa", "kN/m^3", "C"};

/// NUNIT 0 is English, anything else SI.
constexpr const Units& unitsOf(double nunit) { return nunit == 0 ? ENGLISH : SI; }
