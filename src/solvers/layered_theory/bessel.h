// Bessel functions J0 and J1 of one argument together.
#pragma once

#include <math.h>  // ::j0 and ::j1 stand in no C++ header; std::cyl_bessel_j is some twenty times slower

namespace layered_theory {

struct Bessel {
    double j0, j1;
};

inline Bessel bessel(double x) { return {::j0(x), ::j1(x)}; }

}  // namespace layered_theory
