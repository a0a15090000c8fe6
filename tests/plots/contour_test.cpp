#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>

#include "plots/contour_plot.h"
#include "plots/contour_tracer.h"
#include "plots/pan_samples.h"
#include "support/page_reading.h"
#include "support/text_change.h"

namespace {

constexpr Colour blue = 0x0000FF, red = 0xFF0000;
constexpr float margin = Kernel::QMargin;

using Field = std::function<float(float x, float y)>;

using Levels = std::vector<Contours::Level>;
using Points = std::vector<std::pair<float, float>>;

/// A slab with these grid lines and its field, traced over the whole page: x runs to the right from 0 to the
/// last grid line, y up.
struct Traced {
    Kernel q;
    std::vector<PageLine> segments;  ///< in the slab's units
    std::string labels;

    Traced(const std::vector<float>& xs, const std::vector<float>& ys, const Field& field,
           const Levels& levels, const Variant& forceAtNode1 = 0, Single CBOT = -1000) {
        PanProblem pan;
        Contours contours;
        pan.LN = 1;
        pan.NX[1] = static_cast<Integer>(xs.size());
        pan.NY[1] = static_cast<Integer>(ys.size());
        for (int i = 1; i <= pan.NX[1]; ++i) pan.X[1][i] = xs[static_cast<std::size_t>(i - 1)];
        for (int j = 1; j <= pan.NY[1]; ++j) pan.Y[1][j] = ys[static_cast<std::size_t>(j - 1)];
        for (int i = 1; i <= pan.NX[1]; ++i)
            for (int j = 1; j <= pan.NY[1]; ++j) contours.SGRID[i][j] = field(pan.X[1][i], pan.Y[1][j]);
        pan.NCNF = 1, pan.NN[1] = 1, pan.FF[1] = forceAtNode1;
        contours.CBOT = CBOT, contours.levels = levels;
        q.QScreen();
        q.QPlotSetup(0, 100, 0, 100, 0, xs.back(), 0, ys.back());
        QCntou(q, pan, contours);
        for (PageLine line : opsOf<PageLine>(q.page())) {
            for (float* x : {&line.x1, &line.x2}) *x = (*x - margin) / Kernel::pageWidth * xs.back();
            for (float* y : {&line.y1, &line.y2}) *y = (1 - (*y - margin) / Kernel::pageHeight) * ys.back();
            segments.push_back(line);
        }
        for (const Written& label : textsOf(q.page())) labels += label.text + " ";
    }
};

TEST(ContourTracer, APlaneHasItsStraightLines) {
    // s = x + 2y on a grid of unequal steps; no level meets a grid point.
    const Field plane = [](float x, float y) { return x + 2 * y - 7; };
    const Levels levels = {{10.3F, false}, {3.3F, true}, {0.1F, false}, {-3.7F, false}};
    const Traced t({0, 1, 3, 4.5F, 8}, {0, 2, 2.5F, 6}, plane, levels);
    std::map<float, double> drawn;
    for (const PageLine& line : t.segments) {
        const auto level = std::find_if(levels.begin(), levels.end(), [&](const auto& l) {
            return std::abs(l.c - plane(line.x1, line.y1)) < 1e-4F;
        });
        ASSERT_NE(level, levels.end()) << line.x1 << " " << line.y1;
        EXPECT_NEAR(plane(line.x2, line.y2), level->c, 1e-4);
        EXPECT_EQ(line.colour, level->c >= 0 ? red : blue);
        EXPECT_EQ(line.dashed, !level->solid);
        drawn[level->c] += std::hypot(line.x2 - line.x1, line.y2 - line.y1);
    }
    // Each line is whole: its length between the edges of the slab.
    for (const auto& level : levels) {
        const double right = std::min(8.0, level.c + 7.0), top = std::min(6.0, (level.c + 7.0) / 2);
        const double x0 = level.c + 7 - 2 * top;
        EXPECT_NEAR(drawn[level.c], (right - x0) * std::sqrt(1.25), 1e-3) << level.c;
    }
    EXPECT_TRUE(t.labels.starts_with("3.3 3.3 ")) << t.labels;
    EXPECT_EQ(textStarting(t.q.page(), "3.3").size, 7);
    EXPECT_EQ(t.q.Font, (PageFont{"Courier New", 10}));
}

TEST(ContourTracer, FourCrossingsFanOutOfTheFirst) {
    const Traced t({0, 1}, {0, 1}, [](float x, float y) { return x == y ? 1.0F : -1.0F; }, {{0, true}});
    const Points ends = {{1, 0.5F}, {0.5F, 1}, {0, 0.5F}};
    ASSERT_EQ(t.segments.size(), ends.size());
    for (std::size_t i = 0; i < ends.size(); ++i) {
        const PageLine& line = t.segments[i];
        EXPECT_LT(std::hypot(line.x1 - 0.5F, line.y1), 1e-4) << i;
        EXPECT_LT(std::hypot(line.x2 - ends[i].first, line.y2 - ends[i].second), 1e-4) << i;
    }
    EXPECT_EQ(t.labels, "0. ") << "the first segment's";
}

TEST(ContourTracer, ACornerOnTheLevelCountsForTheLabel) {
    // Level 1 runs from corner to corner, level 0 touches one corner only.
    const Levels levels = {{1, true}, {0.5F, true}, {0, true}};
    const Traced t(
        {0, 1}, {0, 1}, [](float x, float y) { return x + y; }, levels);
    std::string kinds;
    for (const PageLine& line : t.segments)
        kinds += line.x1 == line.x2 && line.y1 == line.y2 ? "point " : "line ";
    EXPECT_EQ(kinds, "point line line line point ");
    EXPECT_EQ(t.labels, "0.5 ") << "the fourth segment's: the first one has no length";
}

TEST(ContourTracer, AForceAtTheCellMovesItsLabel) {
    const Field slope = [](float x, float) { return 5 * x; };
    const Levels levels = {{4.5F, true}, {3.5F, true}, {2.5F, true}, {1.5F, true}};
    EXPECT_EQ(Traced({0, 1}, {0, 1}, slope, levels).labels, "4.5 1.5 ");
    EXPECT_EQ(Traced({0, 1}, {0, 1}, slope, levels, 500).labels, "1.5 ");
    EXPECT_EQ(Traced({0, 1}, {0, 1}, slope, levels, 0, 3).segments.size(), 2U) << "below the bound";
    EXPECT_EQ(Traced({0, 1}, {0, 1}, slope, {{2, false}, {-1, false}}).segments.size(), 1U);
}

struct Asked {
    std::vector<std::string> prompts;
    std::vector<ContourPage> pages;
};

Asked plotted(const std::string& text) {
    int DIRN = 0;
    ContourPlot plot(ListReader::fromText(text), DIRN);
    Asked asked;
    const auto ask = [&](const ContourPage&, const std::string& prompt, const std::string& proposal) {
        asked.prompts.push_back(prompt + "|" + proposal);
        return "anything";
    };
    while (auto page = plot.next(ask)) asked.pages.push_back(*page);
    EXPECT_FALSE(plot.ended());
    return asked;
}

TEST(ContourPlot, FourPagesForTwoLayers) {
    const Asked asked = plotted(oneSlab);
    std::vector<std::string> captions;
    for (const ContourPage& page : asked.pages) captions.push_back(page.caption);
    ASSERT_THAT(captions, testing::ElementsAre("PROBLEM  1, SLAB LAYER  1, STRESSES IN X DIRECTION",
                                               "PROBLEM  1, SLAB LAYER  2, STRESSES IN X DIRECTION",
                                               "PROBLEM  1, SLAB LAYER  1, STRESSES IN Y DIRECTION",
                                               "PROBLEM  1, SLAB LAYER  2, STRESSES IN Y DIRECTION"));
    // -300 and 250.5 are within -4 and 3 hundreds: a range of 7.
    EXPECT_EQ(asked.prompts[0], "Contour Interval in  100 psi| .2");
    EXPECT_EQ(asked.prompts[2], "Contour Interval in  10 psi| .2");
    const Page& page = asked.pages[0].page;
    EXPECT_EQ(textAt(page, 1550, 1500), "Max. '-' Stress in X Dir.=-300 ");
    EXPECT_EQ(textAt(page, 6100, 1500), "Max. '+' Stress in X Dir.= 250.5 psi");
    EXPECT_EQ(textAt(page, 7100, 6800), "Contours in  100 psi");
    EXPECT_EQ(textAt(asked.pages[1].page, 1300, 6800), "Slab Layer  2 ");
    // Coordinates are whole on the first page's labels, and on the next page's grid.
    const float left = margin + 0.09F * 10815, wide = 0.76F * 10815;
    EXPECT_EQ(textAt(page, left + 12.25F / 40 * wide - 300, margin + 0.68F * 7650 + 200), " 12 ");
    EXPECT_NEAR(opsOf<PageLine>(asked.pages[1].page).at(4).x1, left + 0.3F * wide, 0.1);
    // The force is at node 2, where the table has 5 psi: the first hundred.
    const auto circles = opsOf<PageCircle>(page);
    ASSERT_EQ(circles.size(), 3U);
    EXPECT_EQ(circles[1].radius, 40);
    EXPECT_EQ(textAt(page, circles[1].x - 180, circles[1].y), " 1");
    EXPECT_EQ(circles[2].fill, blue);
}

TEST(ContourPlot, TheProposalDependsOnTheRange) {
    const struct {
        const char *low, *high, *prompt;
    } cases[] = {{"0", "0", " 1 psi| .1"},       // a range of 2
                 {"-1.5", "1.2", " 1 psi| .2"},  // 2 + 3
                 {"-6.5", "0.4", " 1 psi| .2"},  // 1 + 8
                 {"-6.5", "1.4", " 1 psi| .5"},  // 10
                 {"-8", "8", " 1 psi| .5"},      // 18
                 {"-9", "8", " 1 psi| 1"},       // 19
                 {"-10.04", "0", " 1 psi| .5"},  // rounded by the legend before it is scaled
                 {"-10.06", "0", " 10 psi| .1"},  {"-1000", "0", " 100 psi| .5"},
                 {"-100000", "0", " 1000 psi| 5"}};
    for (const auto& c : cases) {
        const std::string line = std::string("1 ") + c.low + " 2 " + c.high + " 3 -10 4 20";
        const Asked asked = plotted(replaced(oneSlab, "1 -300 2 250.5 3 -10 4 20", line));
        EXPECT_EQ(asked.prompts.at(0), std::string("Contour Interval in ") + c.prompt) << c.low;
    }
    const std::string moments = replaced(oneSlab, "1 0 0 0\n1 0 10", "1 1 1 1\n1 0 10");
    const Asked raft = plotted(replaced(moments, "\n2 500\n", "\n2 500\n4 -20\n5 1E+3\n"));
    EXPECT_EQ(raft.prompts.at(0), "Contour Interval in  100 in.-lb/in.| .2");
    EXPECT_EQ(textStarting(raft.pages[0].page, "Max. '+' M.").text,
              "Max. '+' M. in X Dir.= 250.5 in.-lb/in.");
    textStarting(raft.pages[0].page, "-X");
    textStarting(raft.pages[0].page, "+Y");
}

/// One cell with stresses from -.95 to 1.05 but extremes of 0.
const char* const oneCell = R"(1
"T"
0 0 1 1
1 0
2 2 0 0 0 0
1 0 0 0
0 40 0 30
8 .15 4000000
0
0 0 0 0
1
100
4 1
-.95 0 -.95 0 1.05 0 1.05 0
1 0 0
1 0 1 0 1 0 1 0
)";

TEST(ContourPlot, LevelsAreCountedInSingles) {
    // 2 / .1 is 20 in Singles, and 19 where .1 is first made a Double.
    const Asked asked = plotted(oneCell);
    ASSERT_EQ(asked.pages.size(), 2U);
    EXPECT_EQ(asked.pages[0].caption, "PROBLEM  1, STRESSES IN X DIRECTION");
    const auto levelsOf = [&](std::size_t page) {
        std::string levels;
        for (const PageLine& line : opsOf<PageLine>(asked.pages[page].page))
            if (line.colour == red || line.colour == blue) levels += line.dashed ? "." : "-";
        return levels;
    };
    EXPECT_EQ(levelsOf(0), ".-.-.-.-.-.-.-.-.-.-");
    EXPECT_NE(levelsOf(1), levelsOf(0)) << "the other direction's stresses";
    EXPECT_EQ(opsOf<PageCircle>(asked.pages[0].page).size(), 1U) << "extremes of 0 are not marked";
}

TEST(ContourPlot, RunsThatDoNotQualifyAreRejectedBeforeTheirLoads) {
    const std::pair<const char*, const char*> changes[] = {{"0 0 1 1\n", "0 0 2 1\n"},
                                                           {"0 0 1 1\n", "0 0 1 13\n"},
                                                           {"0 0 1 1\n", "0 1 1 1\n"},
                                                           {"\n0 0 0 0\n", "\n0 0 0 2\n"}};
    for (const auto& [what, by] : changes) {
        std::string text = replaced(oneCell, what, by);
        text.resize(text.find("\n1\n100\n"));
        EXPECT_THROW(plotted(text), NoContours) << by;
    }
}

TEST(ContourPlot, NodesThatTheTableLacksAreFaults) {
    EXPECT_THROW(plotted(replaced(oneCell, "4 1\n-.95 0", "3 1\n")), RunTimeError);
    // A force on another slab takes the table's number there, or a 0 behind it; the grid has a column for it.
    std::string forced = replaced(oneCell, "\n0 0 0 0\n1\n", "\n1 0 0 0\n8 500\n1\n");
    EXPECT_EQ(plotted(forced).pages.size(), 2U);
    std::string rows, zeros;
    for (int row = 0; row < 25; ++row) rows += " " + std::to_string(row), zeros += " 0 0 0 0";
    forced = replaced(replaced(forced, "2 2 0 0 0 0", "2 25 0 0 0 0"), " 0 30", rows);
    forced = replaced(forced, "4 1\n-.95 0 -.95 0 1.05 0 1.05 0", "50 1\n" + zeros);
    EXPECT_EQ(plotted(replaced(forced, "8 500", "420 500")).pages.size(), 2U);
    EXPECT_THROW(plotted(replaced(forced, "8 500", "421 500")), RunTimeError);
}

}  // namespace
