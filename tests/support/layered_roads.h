// Decks of nonlinear, viscoelastic and damaged roads for tests; tests change what they are about.
#pragma once

#include <cmath>
#include <functional>
#include <memory>
#include <numbers>
#include <vector>

#include "support/layered_stores.h"

/// Granular base on a clay subgrade under one wheel, one point on its axis at both stress points.
inline std::unique_ptr<Store> nonlinearStore() {
    auto store = std::make_unique<Store>();
    store->NPROB = 1;
    LayeredSet& s = store->layered[1];
    s.TITLE = "Nonlinear";
    s.MATL = 2, s.NPY = s.NLG = s.NBOND = 1;
    s.DEL = .001F, s.NL = 2, s.NZ = 2, s.ICL = 80, s.NSTD = 9;
    s.LAYER[1] = {12.0, .35, 135.0};
    s.LAYER[2] = {0, .45, 120.0};
    s.ZC[1] = 6.0, s.ZC[2] = 20.0;
    s.EMOD[1][1] = 20000.0, s.EMOD[1][2] = 7000.0;
    s.LOADL[1] = {0, 6.0, 60.0, 0.0, 0.0, 1};
    s.RC[1][1] = 0;
    s.NOLAY = 2, s.ITENOL = 50, s.DELNOL = .001;
    s.RCNOL = 0, s.XCNOL = 0, s.YCNOL = 0, s.SLD = 0;
    s.RELAX[1] = .5F;
    s.NOLLAY[1] = {1, 6.0, 0}, s.NOLLAY[2] = {2, 20.0, 1};
    s.KGRAN[1] = {.5, .6};
    s.KCLAY[2] = {6.2, 1110.0, 178.0, .8};
    s.KPER[1][1][1] = 0, s.KPER[1][1][2] = 6000.0;
    s.KPER[2][1][1] = 1000.0, s.KPER[2][1][2] = 15000.0, s.KPER[2][1][3] = 7680.0;
    return store;
}

/// Times of creep tests, sec.
inline const std::vector<double> HALF_DECADES = {.001, .003, .01, .03, .1, .3, 1, 3, 10, 30, 100};

/// The step response f superposed with the load sin^2(pi t / duration) at its peak, by summation.
inline double atPeak(double duration, const std::function<double(double)>& f) {
    constexpr int STEPS = 20000;
    const double step = duration / 2 / STEPS, rate = std::numbers::pi / duration;
    const auto load = [&](double t) { return std::pow(std::sin(rate * t), 2); };
    double sum = 0;
    for (int i = 0; i < STEPS; ++i)
        sum += f(duration / 2 - (i + .5) * step) * (load((i + 1) * step) - load(i * step));
    return sum;
}

/// D(t) = D0 + D1 (1 - exp(-t/tau)).
struct ExponentialCreep {
    double D0 = 1e-6, D1 = 9e-6, tau = 1;
    double at(double t) const { return D0 + D1 * (1 - std::exp(-t / tau)); }
};

/// A half-space of two equal viscoelastic layers, PR = .3, radius 6, pressure 50; the point is the centre of
/// the surface.
inline std::unique_ptr<Store> viscousHalfSpace(double duration, const std::vector<double>& times,
                                               const ExponentialCreep& creep) {
    auto store = std::make_unique<Store>();
    store->NPROB = 1;
    LayeredSet& s = store->layered[1];
    s.TITLE = "Viscoelastic half-space";
    s.MATL = 3, s.NPY = s.NLG = s.NBOND = 1;
    s.DEL = .001F, s.NL = 2, s.NZ = 1, s.ICL = 80, s.NSTD = 9;
    s.LAYER[1] = {5.0, .3, 0}, s.LAYER[2] = {0, .3, 0};
    s.LOADL[1] = {0, 6.0, 50.0, 0.0, 0.0, 1};
    s.DUR = duration, s.NVL = 2, s.NTYME = static_cast<int>(times.size());
    for (int n = 1; n <= 2; ++n) {
        s.VISLAY[n] = {n, .1, 70.0};
        s.TEMP[1][n] = 70.0;
        for (std::size_t t = 0; t < times.size(); ++t) {
            s.TYME[static_cast<int>(t) + 1] = times[t];
            s.CREEP[n][static_cast<int>(t) + 1] = static_cast<Single>(creep.at(times[t]));
        }
    }
    return store;
}

/// Surface deflection at the centre of the load of viscousHalfSpace() for a compliance (Boussinesq 1885).
inline double centreDeflection(double compliance) { return 2 * (1 - .3 * .3) * 50 * 6 * compliance; }

/// Three linear layers with damage at the bottom of the first and at the top of the third, one single wheel.
inline std::unique_ptr<Store> damageStore() {
    auto store = threeLayerStore();
    LayeredSet& s = store->layered[1];
    s.NDAMA = 1, s.NZ = 0, s.NSTD = 1;
    s.NLBT = s.NLTC = 1;
    s.DAMBT[1] = {1, .0796, 3.291, .854};
    s.DAMTC[1] = {3, 1.365e-9F, 4.477F};
    s.TNLR[1][1] = 10000;
    s.LOADL[1].NR = 2;
    s.RC[1][2] = 6;
    return store;
}
