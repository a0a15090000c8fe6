// Where the slabs of a deck lie, and the plan of them in a figure.
#pragma once

#include <vector>

#include "slab/slab_set.h"
#include "text/figure.h"

/// The slabs put together at their joints: the lower left corner of each in the plan, in the deck's unit.
class Arrangement {
  public:
    explicit Arrangement(const SlabSet& set);
    double left(int slab) const { return corners_.at(static_cast<std::size_t>(slab - 1)).x; }
    double base(int slab) const { return corners_.at(static_cast<std::size_t>(slab - 1)).y; }
    double width() const { return width_; }
    double depth() const { return depth_; }

  private:
    struct Corner {
        double x = 0, y = 0;
        bool known = false;
    };
    void hang(const SlabSet& set, int from);

    std::vector<Corner> corners_;
    double width_ = 0, depth_ = 0;
};

/// A node's slab and its place in the plan.
struct NodePlace {
    int slab;
    double x, y;
};
NodePlace placeOf(const SlabSet& set, const Arrangement& where, int node);

double lengthOf(const SlabSet::Slab& slab);   ///< in x
double breadthOf(const SlabSet::Slab& slab);  ///< in y

/// The part of the page that a plan may take, and the load group that is on it.
struct PlanFrame {
    float left, top, right, bottom;
    int group;
    bool sized;  ///< with the dimensions of the slabs
};

/// Draws the largest plan that fits the frame.
void drawSlabPlan(Figure& figure, const SlabSet& set, const Arrangement& where, const PlanFrame& frame);

constexpr Colour concrete = 0xE4E6EA, loaded = 0xE9A9A0;
