// Where the transform parameter m is sampled: cycles between zeros of J1(m a), panels with Gauss rules.
#pragma once

#include <vector>

namespace layered_theory {

/// Gauss points of a cycle, for the integral over m.
struct Nodes {
    std::vector<double> m, weight;
};

class Cycles {
  public:
    /// @param radius contact radius a > 0
    /// @param farthest largest distance r >= 0; Bessel functions of m r are resolved up to it
    /// @param longest longest length over which the structure acts as one (stiff plates reach far), > 0; the
    ///        first cycle is graded down to its inverse
    Cycles(double radius, double farthest, double longest)
        : radius_(radius), frequency_(radius + farthest), longest_(longest) {}

    /// Calls use(nodes) for the next cycle, in portions of bounded size.
    template <class Use>
    void next(Use use) {
        const std::vector<double> ends = panelEnds();
        Nodes nodes;
        for (std::size_t i = 1; i < ends.size(); ++i) {
            appendPanel(ends[i - 1], ends[i], nodes);
            if (nodes.m.size() >= PORTION || i + 1 == ends.size()) {
                use(nodes);
                nodes = {};
            }
        }
        ++cycle_;
        from_ = to_;
    }

  private:
    static constexpr std::size_t PORTION = 256;

    std::vector<double> panelEnds();
    void appendPanel(double from, double to, Nodes& nodes) const;

    double radius_, frequency_, longest_;
    int cycle_ = 0;
    long zero_ = 0;  // number of the zero at from_
    double from_ = 0, to_ = 0;
};

}  // namespace layered_theory
