// The contour plot: stresses, or the moments of a raft, on the grid of the loaded
// slab, from a .PAN file; a page for each direction and slab layer of each problem.
#pragma once

#include <functional>
#include <optional>
#include <stdexcept>
#include <string>

#include "plots/kernel.h"
#include "plots/pan_file.h"

/// The run cannot be contoured; what() is the message for the user.
struct NoContours : std::runtime_error {
    NoContours();
};

struct ContourPage {
    std::string caption;
    Page page;
};

class ContourPlot {
  public:
    /// Asks for the contour interval, with a proposal; `begun` is the page without its contours. An empty
    /// answer ends the plot, any other goes on with the proposal: kept, the answer is not read.
    using Ask = std::function<std::string(const ContourPage& begun, const std::string& prompt,
                                          const std::string& proposal)>;

    /// Opens the plot file at `path`; `DIRN` follows the direction of the page, 1 x, 2 y, and is 3 at the
    /// end. FileNotFound, PermissionDenied.
    ContourPlot(const std::string& path, int& DIRN) : file_(path), DIRN_(DIRN) {}
    ContourPlot(ListReader source, int& DIRN) : file_(std::move(source)), DIRN_(DIRN) {}

    /// The next page, nothing behind the last one or after an empty answer. NoContours for a run with more
    /// than one period or load group, with damage, or without a table; a RunTimeError of any kind means that
    /// the file's data cannot be drawn. Pages build on each other: a number that one page shows is
    /// rounded for the next.
    std::optional<ContourPage> next(const Ask& ask);

    bool ended() const { return ended_; }  ///< by an empty answer

  private:
    bool advance();
    bool nextProblem();

    PanReader file_;
    int& DIRN_;
    std::optional<PanProblem> pan_;  ///< the problem being shown, with the roundings of its pages
    PanResults results_;
    Integer problem_ = 0;
    Integer k_ = 0;
    bool ended_ = false;
};
