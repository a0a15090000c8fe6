#include "solvers/tolstrat/viscoelastic.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <stdexcept>

#include "platform/numbers.h"
#include "store/cards.h"

namespace {

double weightedSum(const std::vector<double>& values, const std::vector<double>& weights) {
    return std::inner_product(values.begin(), values.end(), weights.begin(), 0.0);
}

/// A series may leave what was given on its way beyond the times, and between them when the compliances are
/// not those of a material.
void requireCompliance(double D, const LayeredSet& set, int number, int n, int period,
                       const std::string& when) {
    if (D > 0 && std::isfinite(D)) return;
    throw std::runtime_error(
        DeckPlace{number, 42, "CREEP", {n}}.text() + ": for " +
        DeckPlace{0, 0, "TEMP", {period, 0, n}}.fieldText() + " = " + numberText(set.TEMP[period][n]) +
        " the series through the compliances gives " + numberText(static_cast<Single>(D)) + " " + when +
        ", but a compliance must be greater than 0; are the times a factor of 2 or more apart and the "
        "compliances growing?");
}

/// Compliances of layer n in one period.
std::vector<double> shifted(const LayeredSet& set, int number, const Viscoelasticity& creep,
                            const ViscousLayer& layer, int n, int period) {
    const double a = layer.shift[static_cast<std::size_t>(period - 1)];
    if (a == 1) return layer.given;
    std::vector<double> compliances;
    for (const double t : creep.times) {
        compliances.push_back(layer.series.at(a * t));
        requireCompliance(compliances.back(), set, number, n, period,
                          "at " + numberText(static_cast<Single>(t)) + " sec");
    }
    return compliances;
}

void addWeighted(layered_theory::Tensor& sum, double weight, const layered_theory::Tensor& t) {
    sum.xx += weight * t.xx;
    sum.yy += weight * t.yy;
    sum.zz += weight * t.zz;
    sum.xy += weight * t.xy;
    sum.xz += weight * t.xz;
    sum.yz += weight * t.yz;
}

}  // namespace

bool Viscoelasticity::needsSeries() const {
    const auto isShifted = [](const ViscousLayer& l) {
        return std::ranges::any_of(l.shift, [](double a) { return a != 1; });
    };
    return moving() || std::ranges::any_of(layers, isShifted);
}

double Viscoelasticity::modulus(const ViscousLayer& layer, int period, std::size_t time) const {
    const auto& D = layer.compliances[static_cast<std::size_t>(period - 1)];
    return 1 / (moving() ? weightedSum(D, weights) : D[time]);
}

Viscoelasticity viscoelasticity(const LayeredSet& set, int number) {
    Viscoelasticity creep;
    if (set.MATL != 3 && set.MATL != 4) return creep;
    const int times = set.NTYME.integer();
    for (int t = 1; t <= times; ++t) creep.times.push_back(set.TYME[t].number());
    const Collocation collocation(creep.times);
    creep.determined = collocation.determined();
    if (set.DUR.number() > 0) creep.weights = collocation.peakWeights(set.DUR.number());

    for (int n = 1; n <= set.NVL.integer(); ++n) {
        ViscousLayer layer;
        layer.layer = set.VISLAY[n].LNV.integer();
        for (int t = 1; t <= times; ++t) layer.given.push_back(set.CREEP[n][t]);
        layer.series = collocation.fit(layer.given);
        layer.largestError = collocation.largestError(layer.given);
        for (int period = 1; period <= static_cast<int>(set.NPY); ++period) {
            const double warmer = set.TEMP[period][n].number() - set.VISLAY[n].TEMPREF.number();
            layer.shift.push_back(std::pow(10, set.VISLAY[n].BETA.number() * warmer));
            layer.compliances.push_back(shifted(set, number, creep, layer, n, period));
            if (creep.moving())
                requireCompliance(weightedSum(layer.compliances.back(), creep.weights), set, number, n,
                                  period, "at the peak of the load");
        }
        creep.layers.push_back(std::move(layer));
    }
    return creep;
}

layered_theory::Result superpose(std::span<const layered_theory::Result> results,
                                 std::span<const double> weights) {
    layered_theory::Result sum = results.front();
    if (results.size() == 1) return sum;
    for (std::size_t i = 0; i < sum.responses.size(); ++i) {
        layered_theory::Response& total = sum.responses[i];
        total = {};
        total.converged = true;
        for (std::size_t k = 0; k < results.size(); ++k) {
            const layered_theory::Response& part = results[k].responses[i];
            total.w += weights[k] * part.w;
            addWeighted(total.stress, weights[k], part.stress);
            addWeighted(total.strain, weights[k], part.strain);
            total.converged = total.converged && part.converged;
        }
        total.principalStress = layered_theory::principalValues(total.stress);
        total.principalStrain = layered_theory::principalValues(total.strain);
    }
    for (const auto& part : results) {
        sum.cycles = std::max(sum.cycles, part.cycles);
        sum.converged = sum.converged && part.converged;
    }
    return sum;
}
