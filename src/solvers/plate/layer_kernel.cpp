// The surface deflection of a layered foundation under a unit force, less that of a
// half-space of its first layer.
#include <algorithm>
#include <cmath>
#include <memory>
#include <numbers>

#include "solvers/layered_theory/bessel.h"
#include "solvers/layered_theory/kernel.h"
#include "solvers/plate/plate.h"

namespace plate {
namespace {

/// The transform of the deflection's smooth part at Gauss points of m: it decays like
/// exp(-2 m h), h being the first thickness, and changes at m near 1/h and near the inverse
/// of the largest length over which the layers act.
struct Spectrum {
    std::vector<double> m, weighted;
};

constexpr double decayed = 20;  // exp(-2 * 20) is nothing

/// Panels grow by half of themselves from near 0, and are narrow enough for J0(m r).
Spectrum spectrum(const layered_theory::Structure& layers, double shear, double farthest) {
    layered_theory::Kernel kernel(layers);
    const double h = layers.layers[0].thickness, end = decayed / h;
    const double widest = std::min(0.5 / h, 2 * std::numbers::pi / farthest);
    Spectrum s;
    double from = 0, to = std::min(1e-6 / h, widest);
    while (from < end) {
        for (double at : {-0.93246951420315203, -0.66120938646626451, -0.23861918608319691,
                          0.23861918608319691, 0.66120938646626451, 0.93246951420315203}) {
            const double weight = std::abs(at) > 0.9   ? 0.17132449237917035
                                  : std::abs(at) > 0.6 ? 0.36076157304813861
                                                       : 0.46791393457269105;
            const double m = (from + to) / 2 + at * (to - from) / 2;
            kernel.solve(m);
            s.m.push_back(m);
            s.weighted.push_back(kernel.at({0, 0})(0) * weight * (to - from) / 2 /
                                 (4 * std::numbers::pi * shear));
        }
        from = to;
        to = from + std::min(from / 2 + 1e-6 / h, widest);
    }
    return s;
}

}  // namespace

SurfaceKernel surfaceKernel(const Foundation& foundation) {
    if (foundation.kind == FoundationKind::Solid) return {foundation.YMS, foundation.PRS, {}, 0};
    SurfaceKernel kernel{foundation.E[0], foundation.PRBF[0], {}, 0};
    if (foundation.E.size() == 1) return kernel;
    layered_theory::Structure layers;
    for (std::size_t k = 0; k < foundation.E.size(); ++k)
        layers.layers.push_back(
            {k < foundation.TH.size() ? foundation.TH[k] : 0, foundation.E[k], foundation.PRBF[k]});
    const double shear = kernel.YM / (2 * (1 + kernel.PR));
    kernel.scale = foundation.TH[0];
    // Spectra serve distances up to a power of 4 of the scale; a longer distance needs finer panels.
    auto spectra = std::make_shared<std::vector<Spectrum>>();
    kernel.smooth = [=](double r) {
        std::size_t size = 0;
        double reach = kernel.scale;
        for (; reach < r; reach *= 4) ++size;
        for (double far = kernel.scale * std::pow(4., static_cast<double>(spectra->size()));
             spectra->size() <= size; far *= 4)
            spectra->push_back(spectrum(layers, shear, far));
        const Spectrum& s = (*spectra)[size];
        double sum = 0;
        for (std::size_t i = 0; i < s.m.size(); ++i)
            sum += s.weighted[i] * layered_theory::bessel(s.m[i] * r).j0;
        return sum;
    };
    return kernel;
}

}  // namespace plate
