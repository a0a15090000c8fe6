// Guards are written !(x > 0), so that NaN is refused.
#include "solvers/layered_theory/checks.h"

#include <cmath>
#include <sstream>
#include <stdexcept>

namespace layered_theory {

namespace {

template <class... Parts>
void require(bool condition, const Parts&... parts) {
    if (condition) return;
    std::ostringstream text;
    (text << ... << parts);
    throw std::invalid_argument(text.str());
}

bool positive(double x) { return x > 0 && std::isfinite(x); }

void checkStructure(const Structure& structure) {
    const std::size_t n = structure.layers.size();
    require(n > 0, "A structure needs at least one layer.");
    require(structure.bonded.empty() || structure.bonded.size() == n - 1, "A structure of ", n,
            " layers has ", n - 1, " interfaces, but ", structure.bonded.size(), " are given.");
    for (std::size_t i = 0; i < n; ++i) {
        const Layer& layer = structure.layers[i];
        require(i + 1 == n || positive(layer.thickness), "Layer ", i + 1,
                ": the thickness must be greater than 0, but is ", layer.thickness, ".");
        require(positive(layer.modulus), "Layer ", i + 1, ": the modulus must be greater than 0, but is ",
                layer.modulus, ".");
        require(layer.poisson > -1 && layer.poisson <= 0.5, "Layer ", i + 1,
                ": Poisson's ratio must be above -1 and at most 0.5, but is ", layer.poisson, ".");
    }
}

void checkDepth(const Structure& structure, const Depth& depth, std::size_t number) {
    require(depth.z >= 0 && std::isfinite(depth.z), "Depth ", number, " must not be negative, but is ",
            depth.z, ".");
    if (depth.layer == Depth::FIND_LAYER) return;
    const int n = static_cast<int>(structure.layers.size());
    require(depth.layer >= 0 && depth.layer < n, "Depth ", number, ": there is no layer ", depth.layer + 1,
            ".");
    double top = 0;
    for (int i = 0; i < depth.layer; ++i) top += structure.layers[static_cast<std::size_t>(i)].thickness;
    const double bottom = top + structure.layers[static_cast<std::size_t>(depth.layer)].thickness;
    require(depth.z >= top * (1 - INTERFACE_TOLERANCE) &&
                (depth.layer + 1 == n || depth.z <= bottom * (1 + INTERFACE_TOLERANCE)),
            "Depth ", number, ": z = ", depth.z, " is not in layer ", depth.layer + 1, ".");
}

}  // namespace

void checkArguments(std::span<const Structure> structures, double radius, double pressure,
                    std::span<const Depth> depths, const Control& control) {
    require(positive(radius), "The contact radius must be greater than 0, but is ", radius, ".");
    require(std::isfinite(pressure), "The contact pressure must be a number, but is ", pressure, ".");
    require(control.tolerance > 0, "The tolerance must be greater than 0, but is ", control.tolerance, ".");
    require(control.maxCycles > 0, "The number of cycles must be at least 1, but is ", control.maxCycles,
            ".");
    for (const Structure& structure : structures) {
        checkStructure(structure);
        for (std::size_t i = 0; i < depths.size(); ++i) checkDepth(structure, depths[i], i + 1);
    }
}

void checkRadii(std::span<const double> radii) {
    for (std::size_t i = 0; i < radii.size(); ++i)
        require(radii[i] >= 0 && std::isfinite(radii[i]), "Radius ", i + 1, " must not be negative, but is ",
                radii[i], ".");
}

void checkPositions(std::span<const Position> positions, const char* what) {
    for (std::size_t i = 0; i < positions.size(); ++i)
        require(std::isfinite(positions[i].x) && std::isfinite(positions[i].y), what, " ", i + 1,
                ": the coordinates must be numbers, but are ", positions[i].x, ", ", positions[i].y, ".");
}

}  // namespace layered_theory
