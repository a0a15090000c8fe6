#include "plots/slab_plot.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <sstream>

#include "plots/pan_samples.h"
#include "support/page_reading.h"
#include "support/text_change.h"

namespace {

using testing::_, testing::ElementsAre;

std::vector<Page> pagesOf(const std::string& text) {
    SlabPlot plot(ListReader::fromText(text));
    std::vector<Page> pages;
    while (auto page = plot.next()) pages.push_back(*page);
    return pages;
}

constexpr Colour black = 0, green = 0x008000, blue = 0x0000FF, red = 0xFF0000, magenta = 0xFF00FF;

// The view of a slab that is alone, with the page's margin.
constexpr float margin = 1200;
constexpr float left = margin + 0.09F * 10815, width = 0.76F * 10815;
constexpr float bottom = margin + 0.68F * 7650, height = 0.42F * 7650;

/// The letters that stand under the one at (x, y), that one included, without the margin.
std::string verticalAt(const Page& page, float x, float y) {
    std::string letters;
    for (const PageText& text : opsOf<PageText>(page)) {
        const bool inColumn = text.x && std::abs(*text.x - margin - x) < 0.5F;
        if (letters.empty() ? inColumn && text.y && std::abs(*text.y - margin - y) < 0.5F
                            : inColumn && !text.y)
            letters += text.text;
        else if (!letters.empty())
            break;
    }
    return letters;
}

/// Of loaded areas.
long outlinesOf(const Page& page) {
    const auto lines = opsOf<PageLine>(page);
    return std::ranges::count(lines, magenta, &PageLine::colour) / 4;
}

std::string mark(const std::string& kind, float x, float y) {
    return kind + " " + std::to_string(std::lround(x)) + " " + std::to_string(std::lround(y));
}

/// The marks of forces, which are red, and of the largest stress, which are blue; in place, on whole twips.
std::vector<std::string> marksOf(const Page& page) {
    std::vector<std::string> marks;
    for (const PageCircle& c : opsOf<PageCircle>(page)) {
        const bool force = c.radius == 60 && c.colour == red && !c.fill;
        const bool stress = c.radius == 40 && c.colour == blue && c.fill == blue;
        marks.push_back(mark(force ? "force" : stress ? "stress" : "neither", c.x, c.y));
    }
    return marks;
}

TEST(SlabPlot, HeadingAndLoadsOfOneSlab) {
    const Page page = pagesOf(oneSlab).at(0);
    EXPECT_EQ(textAt(page, 1700, 1250), "One slab, two layers");
    EXPECT_EQ(textAt(page, 1700, 1500), "Problem No. 1  Period No. 1  Load Group No. 1  FSAF = 1 ");
    EXPECT_EQ(textAt(page, 1700, 1800), "NSX = 4  NSY = 3 ");
    const Written stress = textStarting(page, "Max. Stress =");
    EXPECT_EQ(stress.text, "Max. Stress =-210.123  &  130.75 psi");
    EXPECT_EQ(stress.colour, blue);
    EXPECT_EQ(textAt(page, 1700, 2300), "Uniform L.:Max. 10000  Min. 2000 lb");
    EXPECT_EQ(textAt(page, 1700, 2550), "Concen. L.:Max. 500  Min. 500 lb");
    EXPECT_EQ(textAt(page, 4700, 6800), "X COORDINATES IN in.");
    EXPECT_EQ(verticalAt(page, -50, 2000), "Y COORDINATES");
    const auto boxes = opsOf<PageBox>(page);
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].colour, magenta);

    EXPECT_THAT(marksOf(page), ElementsAre(mark("stress", 1470, 2145), mark("force", 1480, 2650),
                                           mark("force", left, bottom - height / 3),
                                           mark("stress", left + 12.25F / 40 * width, bottom - height / 3)));

    EXPECT_EQ(outlinesOf(page), 2);
    EXPECT_EQ(outlinesOf(pagesOf(twoSlabsDamage).at(0)), 1) << "only on its own slab";
}

TEST(SlabPlot, NodesOfTheLastRow) {
    // In slab 1 a force stands at its row, the largest stress at y = 0.
    std::string text = replaced(oneSlab, "\n2 500\n", "\n3 500\n");
    text = replaced(text, "\n5 -210", "\n6 -210");
    EXPECT_THAT(marksOf(pagesOf(text).at(0)),
                ElementsAre(_, _, mark("force", left, bottom - height),
                            mark("stress", left + 12.25F / 40 * width, bottom)));

    // In other slabs both stand at y = 0: node 8 is the second of the first column of slab 2.
    const float second = margin + 0.49F * 10815, wide = 0.36F * 10815;
    const auto pages = pagesOf(twoSlabsDamage);
    EXPECT_THAT(marksOf(pages.at(1)),
                ElementsAre(_, _, mark("force", left, bottom - height), mark("force", second, bottom),
                            mark("force", second, bottom), mark("stress", second, bottom)));
    EXPECT_EQ(marksOf(pages.at(3)).at(5), mark("stress", second + wide, bottom));
}

TEST(SlabPlot, DamagePagesInSiUnits) {
    const auto pages = pagesOf(twoSlabsDamage);
    ASSERT_EQ(pages.size(), 4U);
    EXPECT_EQ(textAt(pages[2], 1700, 1500), "Problem No. 1  Period No. 2  Load Group No. 1  FSAF = .8 ");
    EXPECT_EQ(textAt(pages[2], 1700, 1800), "NSX = 1  NSY = 0  TNLR = 3000 ");
    EXPECT_EQ(textAt(pages[0], 1700, 2300), "Uniform L.:Max. 20  Min. 20 kN");
    EXPECT_EQ(textAt(pages[1], 1700, 2300), "Concen. L.:Max. 40  Min-16 kN");
    EXPECT_EQ(textAt(pages[0], 7500, 6800), "CI = .01 ");
    EXPECT_EQ(textAt(pages[0], 5700, 6400), "symmetry");
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(textAt(pages[i], 1700, 2550), i == 3 ? "Design Life =  20.5  yrs" : "") << i;
    EXPECT_EQ(textStarting(pages[3], "Design Life").colour, green);
    EXPECT_EQ(verticalAt(pages[0], 4900, 2600), "JOINT 1");
    EXPECT_EQ(textAt(pagesOf(replaced(twoSlabsDamage, "3 2 0 1 0 0", "3 2 0 0 0 1")).at(0), 3700, 2800),
              "JOINT 1");
    EXPECT_THROW(pagesOf(replaced(twoSlabsDamage, "20.5\n", "")), RunTimeError) << "no design life";
}

TEST(SlabPlot, ACrowdedPairLosesItsSecondLabel) {
    const auto labels = [](const std::string& grid) {
        std::string all;
        for (const Written& text : textsOf(pagesOf(replaced(oneSlab, "0 12.25 16 40", grid)).at(0)))
            if (text.y > 6595 && text.y < 6605) all += text.text;
        return all;
    };
    EXPECT_EQ(labels("0 12.25 16 40"), " 0  12.3  16  40 ");
    EXPECT_EQ(labels("0 1 2 40"), " 0  2  40 ");
    EXPECT_EQ(labels("0 20 39 40"), " 0  20  39  40 ") << "the last one stands always";
    const Page page = pagesOf(oneSlab).at(0);
    EXPECT_EQ(textAt(page, left - 100, bottom + 200), " 0 ");
    EXPECT_EQ(textAt(page, left + 12.25F / 40 * width - 260, bottom + 200), " 12.3 ");
    EXPECT_EQ(textAt(page, left - 640, bottom - height / 3 - 120), " 10 ");
}

TEST(SlabPlot, LabelsRoundWhatLaterPagesDraw) {
    std::string text = replaced(oneSlab, "0 0 1 1", "0 0 2 1");
    text = replaced(text, "\n1\n100\n", "\n1 .75\n100\n");
    text += text.substr(text.find("5 -210"));
    const auto pages = pagesOf(text);
    ASSERT_EQ(pages.size(), 2U);
    const auto grid = [&](std::size_t page) { return opsOf<PageLine>(pages[page]).at(4).x1; };
    EXPECT_NEAR(grid(0), left + 12.25F / 40 * width, 0.1);
    EXPECT_NEAR(grid(1), left + 12.3F / 40 * width, 0.1);
    EXPECT_EQ(textAt(pages[1], 1700, 1250), textAt(pages[0], 1700, 1250));
}

TEST(SlabPlot, ProfileNamesEachFoundation) {
    const float edge = margin + 0.56F * 10815, top = margin + 0.09F * 7650, deep = 0.16F * 7650;
    const Page liquid = pagesOf(oneSlab).at(0);
    EXPECT_EQ(textAt(liquid, edge, top), "YM = 4000000 psi PR = .15 ");
    EXPECT_EQ(textAt(liquid, edge, top + 8 / 21.0F * deep), "YM = 1500000 psi PR = .2 ");
    EXPECT_EQ(textAt(liquid, edge, top + 14 / 21.0F * deep), "SUBMOD = 100 pci");
    EXPECT_EQ(textAt(liquid, edge - 550 + 180, top + 14 / 21.0F * deep - 100), " 14 ");
    EXPECT_EQ(textAt(liquid, edge - 440 + 180, top - 100), " 0 ");

    std::string text = replaced(oneSlab, "0 0 1 1", "1 0 1 1");
    EXPECT_EQ(textStarting(pagesOf(replaced(text, "\n1\n100\n", "\n1\n5000 .45\n")).at(0), "YMS").text,
              "YMS = 5000 psi PRS = .45 ");
    const Page layers = pagesOf(twoSlabsDamage).at(0);
    EXPECT_EQ(textStarting(layers, "E = 1").text, "E = 100000 kPa PRBF = .35 ");
    EXPECT_EQ(textStarting(layers, "E = 5").text, "E = 50000 kPa PRBF = .45 ");
    // A layer too thin for its text has a line and no text.
    for (const Written& text : textsOf(pagesOf(replaced(twoSlabsDamage, "\n15 30\n", "\n1 30\n")).at(0)))
        EXPECT_FALSE(text.text.starts_with("E = 1"));
}

/// Slabs of 2 by 2 nodes with the joints of a row of two columns' layout; joints[s][side - 1].
Page slabs(const std::vector<std::array<Single, 4>>& joints) {
    PanRun run;
    PanProblem& pan = run.problem;
    pan.NPY = pan.NLG = pan.NLAYER = 1;
    pan.NSLAB = static_cast<Integer>(joints.size());
    pan.T[1] = 8;
    for (int s = 1; s <= pan.NSLAB; ++s) {
        pan.NX[s] = pan.NY[s] = 2;
        pan.X[s][2] = pan.Y[s][2] = 100;
        for (int side = 1; side <= 4; ++side)
            pan.JONO[s][side] = joints[static_cast<std::size_t>(s - 1)][static_cast<std::size_t>(side - 1)];
    }
    std::ostringstream text;
    ListWriter out(text);
    writePan(out, {run});
    out.close();
    return pagesOf(text.str()).at(0);
}

TEST(SlabPlot, JointsAreNamedWhereTheSlabsMeet) {
    struct Caption {
        int joint;
        float x, y;
        bool vertical;
    };
    using Joints = std::vector<std::array<Single, 4>>;
    const std::pair<Joints, std::vector<Caption>> layouts[] = {
        {{{0, 1, 0, 0}, {1, 2, 0, 0}, {2, 0, 0, 0}}, {{1, 3570, 2600, true}, {2, 6400, 2600, true}}},
        {{{0, 0, 0, 2}, {0, 0, 2, 3}, {0, 0, 3, 0}}, {{2, 1800, 1600, false}, {3, 4630, 1600, false}}},
        {{{0, 1, 0, 2}, {0, 3, 2, 0}, {1, 0, 0, 4}, {3, 0, 4, 0}},
         {{1, 5000, 3600, true}, {2, 2600, 3500, false}, {3, 5000, 2000, true}, {4, 6900, 3500, false}}},
        {{{0, 1, 0, 2}, {0, 3, 2, 0}, {1, 4, 0, 5}, {3, 6, 5, 0}, {4, 0, 0, 7}, {6, 0, 7, 0}},
         {{1, 3600, 3600, true},
          {2, 1800, 3500, false},
          {3, 3600, 2000, true},
          {4, 6400, 3600, true},
          {5, 4630, 3500, false},
          {6, 6400, 2000, true},
          {7, 7460, 3500, false}}}};
    for (const auto& [joints, captions] : layouts) {
        const Page page = slabs(joints);
        for (const auto& [joint, x, y, vertical] : captions)
            EXPECT_EQ(vertical ? verticalAt(page, x, y) : textAt(page, margin + x, margin + y),
                      "JOINT " + std::to_string(joint));
    }
    EXPECT_THROW(slabs({}), RunTimeError) << "no slab has no profile";
}

TEST(SlabPlot, FontsOfLabelsStayForWhatFollows) {
    std::map<std::string, std::string> faces;
    for (const PageText& text : opsOf<PageText>(pagesOf(twoSlabsDamage).at(0)))
        faces[text.text] = text.font.face;
    EXPECT_EQ(faces["Two slabs, damage"], PageFont().face);
    EXPECT_EQ(faces[" 50.5 "], "MS Serif");
    EXPECT_EQ(faces["YM ="], "Courier New");
}

}  // namespace
