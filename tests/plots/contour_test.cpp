#include <gtest/gtest.h>

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

/// A slab with these grid lines and its field, traced over the whole page: x runs to the right from 0 to the
/// last grid line, y up.
struct Traced {
    PanProblem pan;
    Kernel q;
    Contours contours;

    Traced(const std::vector<float>& xs, const std::vector<float>& ys, const Field& field) {
        pan.LN = 1;
        pan.NX[1] = static_cast<Integer>(xs.size());
        pan.NY[1] = static_cast<Integer>(ys.size());
        for (int i = 1; i <= pan.NX[1]; ++i) pan.X[1][i] = xs[static_cast<std::size_t>(i - 1)];
        for (int j = 1; j <= pan.NY[1]; ++j) pan.Y[1][j] = ys[static_cast<std::size_t>(j - 1)];
        for (int i = 1; i <= pan.NX[1]; ++i)
            for (int j = 1; j <= pan.NY[1]; ++j) contours.SGRID[i][j] = field(pan.X[1][i], pan.Y[1][j]);
        contours.CBOT = -1000;
        q.QScreen();
        q.QPlotSetup(0, 100, 0, 100, 0, xs.back(), 0, ys.back());
    }
    void trace() { QCntou(q, pan, contours); }

    float realX(float device) const { return (device - margin) / Kernel::pageWidth * q.QWin.RX2; }
    float realY(float device) const { return (1 - (device - margin) / Kernel::pageHeight) * q.QWin.RY2; }
    std::vector<PageLine> segments() const { return opsOf<PageLine>(q.page()); }
    std::vector<Written> labels() const { return textsOf(q.page()); }
};

TEST(ContourTracer, APlaneHasItsStraightLines) {
    // s = x + 2y on a grid of unequal steps; no level meets a grid point.
    const Field plane = [](float x, float y) { return x + 2 * y - 7; };
    Traced t({0, 1, 3, 4.5F, 8}, {0, 2, 2.5F, 6}, plane);
    for (const float c : {10.3F, 3.3F, 0.0F + 0.1F, -3.7F}) t.contours.levels.push_back({c, c == 3.3F});
    t.trace();
    std::map<float, double> drawn;
    for (const PageLine& line : t.segments()) {
        const float x1 = t.realX(line.x1), y1 = t.realY(line.y1), x2 = t.realX(line.x2),
                    y2 = t.realY(line.y2);
        const float value = plane(x1, y1);
        const auto level = std::find_if(t.contours.levels.begin(), t.contours.levels.end(),
                                        [&](const auto& l) { return std::abs(l.c - value) < 1e-4F; });
        ASSERT_NE(level, t.contours.levels.end()) << x1 << " " << y1;
        EXPECT_NEAR(plane(x2, y2), level->c, 1e-4);
        EXPECT_EQ(line.colour, level->c >= 0 ? red : blue);
        EXPECT_EQ(line.dashed, !level->solid);
        drawn[level->c] += std::hypot(x2 - x1, y2 - y1);
    }
    // Each line is whole: its length between the edges of the slab.
    for (const auto& level : t.contours.levels) {
        const double right = std::min(8.0, level.c + 7.0), top = std::min(6.0, (level.c + 7.0) / 2);
        const double x0 = level.c + 7 - 2 * top;
        EXPECT_NEAR(drawn[level.c], (right - x0) * std::sqrt(1.25), 1e-3) << level.c;
    }
    EXPECT_FALSE(t.labels().empty());
    for (const Written& label : t.labels()) {
        EXPECT_EQ(label.text, "3.3");
        EXPECT_EQ(label.size, 7);
    }
    EXPECT_EQ(t.q.Font, (PageFont{"Courier New", 10}));
}

TEST(ContourTracer, ASaddleHasItsHyperbola) {
    Traced t({0, 1, 2, 3, 4}, {0, 1, 2, 3, 4}, [](float x, float y) { return (x - 2) * (y - 2); });
    t.contours.levels = {{0.5F, true}, {-0.5F, false}};
    t.trace();
    const auto segments = t.segments();
    EXPECT_EQ(segments.size(), 2 * 2 * 3U) << "two branches a level, each through three cells";
    for (const PageLine& line : segments)
        for (const auto& [x, y] : {std::pair(line.x1, line.y1), {line.x2, line.y2}})
            EXPECT_NEAR((t.realX(x) - 2) * (t.realY(y) - 2), line.colour == red ? 0.5 : -0.5, 1e-4);
}

TEST(ContourTracer, FourCrossingsFanOutOfTheFirst) {
    Traced t({0, 1}, {0, 1}, [](float x, float y) { return x == y ? 1.0F : -1.0F; });
    t.contours.levels = {{0, true}};
    t.trace();
    const auto segments = t.segments();
    ASSERT_EQ(segments.size(), 3U);
    const float ends[][2] = {{1, 0.5F}, {0.5F, 1}, {0, 0.5F}};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_NEAR(t.realX(segments[i].x1), 0.5, 1e-4);
        EXPECT_NEAR(t.realY(segments[i].y1), 0, 1e-4);
        EXPECT_NEAR(t.realX(segments[i].x2), ends[i][0], 1e-4);
        EXPECT_NEAR(t.realY(segments[i].y2), ends[i][1], 1e-4);
    }
    EXPECT_EQ(t.labels().size(), 1U) << "the first segment's";
}

TEST(ContourTracer, ACornerOnTheLevelCountsForTheLabel) {
    // Level 1 runs from corner to corner, level 0 touches one corner only.
    Traced t({0, 1}, {0, 1}, [](float x, float y) { return x + y; });
    t.contours.levels = {{1, true}, {0.5F, true}, {0, true}};
    t.trace();
    const auto segments = t.segments();
    ASSERT_EQ(segments.size(), 5U);
    const auto isPoint = [](const PageLine& line) { return line.x1 == line.x2 && line.y1 == line.y2; };
    EXPECT_TRUE(isPoint(segments[0]) && !isPoint(segments[1]) && !isPoint(segments[2]));
    EXPECT_TRUE(!isPoint(segments[3]) && isPoint(segments[4]));
    // The first segment of the cell has no length, so only the fourth, of level 0.5, is labelled.
    ASSERT_EQ(t.labels().size(), 1U);
    EXPECT_EQ(t.labels()[0].text, "0.5");
}

TEST(ContourTracer, AForceAtTheCellMovesItsLabel) {
    const std::vector<Contours::Level> levels = {{4.5F, true}, {3.5F, true}, {2.5F, true}, {1.5F, true}};
    const auto labels = [&](const Variant& force) {
        Traced t({0, 1}, {0, 1}, [](float x, float) { return 5 * x; });
        t.contours.levels = levels;
        t.pan.NCNF = 1;
        t.pan.NN[1] = 1;
        t.pan.FF[1] = force;
        t.trace();
        std::string all;
        for (const Written& label : t.labels()) all += label.text + " ";
        return all;
    };
    EXPECT_EQ(labels(0), "4.5 1.5 ");
    EXPECT_EQ(labels(500), "1.5 ");
}

TEST(ContourTracer, LevelsBelowTheBoundOrTheCellAreNotDrawn) {
    Traced t({0, 1}, {0, 1}, [](float x, float) { return 5 * x; });
    t.contours.levels = {{4, false}, {3, false}, {2, false}, {-1, false}};
    t.contours.CBOT = 3;
    t.trace();
    EXPECT_EQ(t.segments().size(), 2U);
}

struct Asked {
    std::vector<std::string> prompts;
    std::vector<ContourPage> pages;
};

Asked plotted(const std::string& text, int& DIRN, const std::string& answer = "anything") {
    ContourPlot plot(ListReader::fromText(text), DIRN);
    Asked asked;
    const auto ask = [&](const ContourPage&, const std::string& prompt, const std::string& proposal) {
        asked.prompts.push_back(prompt + "|" + proposal);
        return answer;
    };
    while (auto page = plot.next(ask)) asked.pages.push_back(*page);
    EXPECT_EQ(plot.ended(), answer.empty());
    return asked;
}

Asked plotted(const std::string& text) {
    int DIRN = 0;
    return plotted(text, DIRN);
}

TEST(ContourPlot, FourPagesForTwoLayers) {
    int DIRN = 0;
    const Asked asked = plotted(oneSlab, DIRN);
    EXPECT_EQ(DIRN, 3);
    const char* captions[] = {"PROBLEM  1, SLAB LAYER  1, STRESSES IN X DIRECTION",
                              "PROBLEM  1, SLAB LAYER  2, STRESSES IN X DIRECTION",
                              "PROBLEM  1, SLAB LAYER  1, STRESSES IN Y DIRECTION",
                              "PROBLEM  1, SLAB LAYER  2, STRESSES IN Y DIRECTION"};
    ASSERT_EQ(asked.pages.size(), 4U);
    for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(asked.pages[i].caption, captions[i]);
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
    const Page& page = asked.pages[0].page;
    int red20 = 0, dotted = 0;
    for (const PageLine& line : opsOf<PageLine>(page)) {
        red20 += line.colour == red || line.colour == blue;
        dotted += line.dashed;
    }
    EXPECT_EQ(red20, 20);
    EXPECT_EQ(dotted, 10);
    EXPECT_EQ(opsOf<PageCircle>(page).size(), 1U) << "extremes of 0 are not marked";
}

TEST(ContourPlot, AnEmptyAnswerEndsIt) {
    int DIRN = 0;
    const Asked asked = plotted(oneSlab, DIRN, "");
    EXPECT_EQ(asked.prompts.size(), 1U);
    EXPECT_TRUE(asked.pages.empty());
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
    // A force on another slab takes the table's number there, or a 0 behind it.
    const std::string forced = replaced(oneCell, "\n0 0 0 0\n1\n", "\n1 0 0 0\n8 500\n1\n");
    EXPECT_EQ(plotted(forced).pages.size(), 2U);
    std::string wide = replaced(forced, "2 2 0 0 0 0", "2 25 0 0 0 0");
    wide =
        replaced(wide, "0 40 0 30", "0 40 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24");
    wide = replaced(
        wide, "4 1\n-.95 0 -.95 0 1.05 0 1.05 0", "50 1\n" + [] {
            std::string zeros;
            for (int i = 0; i < 100; ++i) zeros += "0 ";
            return zeros;
        }());
    EXPECT_EQ(plotted(replaced(wide, "8 500", "420 500")).pages.size(), 2U);
    EXPECT_THROW(plotted(replaced(wide, "8 500", "421 500")), RunTimeError);
}

}  // namespace
