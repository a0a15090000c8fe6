#include "solvers/tolstrat/analysis.h"

#include <algorithm>

#include "solvers/tolstrat/damage.h"
#include "solvers/tolstrat/loads.h"

namespace {

using layered_theory::Structure;

bool samePosition(const layered_theory::Position& a, const layered_theory::Position& b) {
    return a.x == b.x && a.y == b.y;
}

class GroupSolver {
  public:
    GroupSolver(const LayeredSet& set, const Viscoelasticity& creep, int group)
        : set_(set),
          creep_(creep),
          group_(group),
          wheels_(wheelsOf(set, group)),
          control_{set.DEL, static_cast<int>(set.ICL)} {}

    /// One period at one time, `time` being looked at for stationary loads only: everything but responses.
    GroupResult begin(int period, std::size_t time) const;
    /// Responses of all, in one calculation.
    void respond(std::vector<GroupResult>& results) const;

  private:
    /// The elastic structures whose responses are superposed to those of `result`: as many as times for a
    /// moving load, else one.
    void appendStructures(const GroupResult& result, std::vector<Structure>& structures) const;
    std::size_t structuresEach() const { return creep_.moving() ? creep_.times.size() : 1; }
    std::vector<layered_theory::Tensor> stressesAtStressPoints(const GroupResult& result) const;

    const LayeredSet& set_;
    const Viscoelasticity& creep_;
    int group_;
    layered_theory::Load wheels_;
    layered_theory::Control control_;
};

void GroupSolver::appendStructures(const GroupResult& result, std::vector<Structure>& structures) const {
    Structure structure = structureOf(set_, result.period);
    for (std::size_t i = 0; i < structure.layers.size(); ++i) structure.layers[i].modulus = result.moduli[i];
    if (!creep_.moving()) {
        structures.push_back(std::move(structure));
        return;
    }
    for (std::size_t time = 0; time < creep_.times.size(); ++time) {
        for (const ViscousLayer& l : creep_.layers)
            structure.layers[static_cast<std::size_t>(l.layer - 1)].modulus =
                1 / l.compliances[static_cast<std::size_t>(result.period - 1)][time];
        structures.push_back(structure);
    }
}

std::vector<layered_theory::Tensor> GroupSolver::stressesAtStressPoints(const GroupResult& result) const {
    std::vector<layered_theory::Position> points;
    std::vector<layered_theory::Depth> depths;
    std::vector<std::size_t> pointOf;
    for (const NonlinearLayer& l : result.nonlinear) {
        const auto known = std::ranges::find_if(points, [&](const auto& p) { return samePosition(p, l.at); });
        pointOf.push_back(static_cast<std::size_t>(known - points.begin()));
        if (known == points.end()) points.push_back(l.at);
        depths.push_back(l.depth);
    }
    std::vector<Structure> structures;
    appendStructures(result, structures);
    const auto results = layered_theory::solve(structures, wheels_, points, depths, control_);
    const auto peak = superpose(results, creep_.weights);
    std::vector<layered_theory::Tensor> stresses;
    for (std::size_t n = 0; n < depths.size(); ++n)
        stresses.push_back(peak.responses[pointOf[n] * depths.size() + n].stress);
    return stresses;
}

GroupResult GroupSolver::begin(int period, std::size_t time) const {
    GroupResult result;
    result.period = period;
    result.group = group_;
    if (creep_.stationary()) result.time = creep_.times[time];
    for (const auto& layer : structureOf(set_, period).layers) result.moduli.push_back(layer.modulus);
    const auto modulusOf = [&](int layer) -> double& {
        return result.moduli[static_cast<std::size_t>(layer - 1)];
    };
    for (const ViscousLayer& l : creep_.layers) modulusOf(l.layer) = creep_.modulus(l, period, time);

    result.nonlinear = nonlinearLayers(set_, period, group_);
    if (result.nonlinear.empty()) return result;
    const IterationControl control{set_.RELAX[period], set_.DELNOL.number(), set_.ITENOL.integer()};
    const auto take = [&](const std::vector<double>& moduli) {
        for (std::size_t n = 0; n < moduli.size(); ++n) modulusOf(result.nonlinear[n].layer) = moduli[n];
    };
    result.iterations = iterateModuli(result.nonlinear, startModuli(set_, period, result.nonlinear), control,
                                      [&](const std::vector<double>& moduli) {
                                          take(moduli);
                                          return stressesAtStressPoints(result);
                                      });
    take(result.iterations.moduli.back());
    return result;
}

void GroupSolver::respond(std::vector<GroupResult>& results) const {
    const auto points = pointsOf(set_, group_);
    const auto depths = depthsOf(set_);
    auto all = points;
    if (damagesByAxles(set_, group_))
        for (const auto& p : points) all.push_back({set_.LOADL[group_].XW.number() / 2, p.y});

    std::vector<Structure> structures;
    for (const GroupResult& result : results) appendStructures(result, structures);
    const auto elastic = layered_theory::solve(structures, wheels_, all, depths, control_);
    for (std::size_t i = 0; i < results.size(); ++i) {
        GroupResult& result = results[i];
        result.points = points;
        result.depths = depths;
        result.result =
            superpose(std::span(elastic).subspan(i * structuresEach(), structuresEach()), creep_.weights);
        auto& responses = result.result.responses;
        const auto listed = responses.begin() + static_cast<std::ptrdiff_t>(points.size() * depths.size());
        result.midway.assign(listed, responses.end());
        responses.erase(listed, responses.end());
    }
}

}  // namespace

std::vector<GroupResult> solveGroup(const LayeredSet& set, const Viscoelasticity& creep, int group, int first,
                                    int last) {
    const GroupSolver solver(set, creep, group);
    std::vector<GroupResult> results;
    for (int period = first; period <= last; ++period)
        for (std::size_t time = 0; time < (creep.stationary() ? creep.times.size() : 1); ++time)
            results.push_back(solver.begin(period, time));
    solver.respond(results);
    return results;
}
