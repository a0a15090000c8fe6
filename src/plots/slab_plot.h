// The slab plot: the pages of a .PAN file, one for each load group of each period
// of each problem.
#pragma once

#include <optional>
#include <string>

#include "plots/kernel.h"
#include "plots/pan_file.h"

class SlabPlot {
  public:
    /// Opens the plot file at `path`. FileNotFound, PermissionDenied.
    explicit SlabPlot(const std::string& path) : file_(path) {}
    explicit SlabPlot(ListReader source) : file_(std::move(source)) {}

    /// The next page, nothing behind the last one. A RunTimeError of any kind means that the file's data
    /// cannot be drawn. Pages build on each other: a number that one page shows is rounded for the next, so
    /// no page can be had without those before it.
    std::optional<Page> next();

  private:
    bool advance();

    PanReader file_;
    std::optional<PanProblem> pan_;  ///< the problem being shown, with the roundings of its pages
    Integer problem_ = 0, p_ = 0, g_ = 0;
};
