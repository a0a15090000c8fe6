// Units of a slab deck: their texts, and the factors to the one force and one
// length, lb and in. or kN and cm, that the plate is solved in.
#pragma once

struct SlabUnits {
    const char *length, *stress, *subgrade, *weight, *force, *moment, *lineMoment, *temperature;
    const char *shearSpring, *momentSpring;
    double perStress;     ///< force/length^2 in one unit of stress, pressure or modulus
    double perSubgrade;   ///< force/length^3 in one unit of subgrade modulus or dowel support
    double perWeight;     ///< force/length^3 in one unit of unit weight
    double plotSubgrade;  ///< units of subgrade modulus that the plot shows in one of the deck
};

inline constexpr SlabUnits SLAB_ENGLISH{"in.", "psi", "pci",        "pcf", "lb", "in.-lb",  "in.-lb/in.",
                                        "F",   "psi", "in.-lb/in.", 1,     1,    1 / 1728., 1};
inline constexpr SlabUnits SLAB_SI{"cm", "kPa",     "MN/m^3",   "kN/m^3", "kN", "cm-kN", "cm-kN/cm",
                                   "C",  "kN/cm^2", "cm-kN/cm", 1e-4,     1e-3, 1e-6,    1000};

/// NUNIT 0 is English, anything else SI.
constexpr const SlabUnits& slabUnits(int NUNIT) { return NUNIT == 0 ? SLAB_ENGLISH : SLAB_SI; }
