#include "plots/layered_plot.h"

#include <gmock/gmock.h>

#include <cmath>
#include <random>

#include "plots/bed_samples.h"
#include "support/faults.h"
#include "support/page_reading.h"
#include "support/temporary_directory.h"
#include "support/text_change.h"

namespace {

using testing::ElementsAre;

std::vector<Page> pagesOf(const std::string& text) {
    LayeredPlot plot(ListReader::fromText(text));
    std::vector<Page> pages;
    while (auto page = plot.next()) pages.push_back(*page);
    return pages;
}

// The views on the page, with its margin.
constexpr float margin = 1200;
constexpr float left = margin + 0.13F * 10815, width = 0.4F * 10815;
constexpr float sectionTop = margin + 0.37F * 7650, sectionHeight = 0.29F * 7650;
constexpr float planBottom = margin + 0.3F * 7650, planHeight = 0.21F * 7650;

constexpr Colour black = 0, green = 0x008000, blue = 0x0000FF, lightGreen = 0x00FF00, red = 0xFF0000,
                 magenta = 0xFF00FF;

struct Expected {
    float x, y;
    const char* text;
    Colour colour;
    float size;
};

void expectTexts(const Page& page, const std::vector<Expected>& expected) {
    for (const Expected& e : expected) {
        const Written found = textStarting(page, e.text);
        EXPECT_EQ(found.text, e.text);
        EXPECT_NEAR(found.x, e.x, 0.1) << e.text;
        EXPECT_NEAR(found.y, e.y, 0.1) << e.text;
        EXPECT_EQ(found.colour, e.colour) << e.text;
        EXPECT_EQ(found.size, e.size) << e.text;
    }
}

TEST(LayeredPlot, LinearTandemPageInEnglishUnits) {
    const Page page = pagesOf(linearTandem).at(0);
    const float second = sectionTop + 4 / 18.75F * sectionHeight;
    const float third = sectionTop + 12.5F / 18.75F * sectionHeight;
    expectTexts(page, {{1700, 1250, "Three layers, dual tandem", black, 10},
                       {1700, 1500, "Problem No. 1  Period No. 1  Load Group No. 1 ", black, 10},
                       {left, sectionTop, "E = 500000 psi  PR = .35 ", black, 8},
                       {left, second, "E = 30000 psi  PR = .3 ", black, 8},
                       {left, third, "E = 7500 psi  PR = .45 ", black, 8},
                       {3500, margin + 5049 - 200, "SUBGRADE", blue, 10},
                       {3400, 6800, "DISTANCE IN INCHES", black, 10},
                       {7000, 1800, "Contact Radius = 4.524 in.", red, 10},
                       {7000, 2100, "Contact Pressure = 100 psi", red, 10},
                       {7000, 2400, "Dual Spacing = 13.5 in.", red, 10},
                       {7000, 2700, "Tandem Spacing = 48 in.", red, 10},
                       {7100, 3000, "Response points", black, 10}});
    // A depth without a fraction stands nearer to the edge.
    EXPECT_EQ(textAt(page, left - 420, sectionTop - 100), " 0 ");
    EXPECT_EQ(textAt(page, left - 420, second - 100), " 4 ");
    EXPECT_EQ(textAt(page, left - 630, third - 100), " 12.5 ");
    EXPECT_EQ(textAt(page, left + width - 200, 6450), " 100 ");
    EXPECT_EQ(textAt(page, 1650, planBottom - planHeight - 100), " 30 ");
    EXPECT_EQ(textAt(page, 1750, 4000), "D");
}

TEST(LayeredPlot, SiUnitsHaveTheirOwnTextsAndReach) {
    const Page page = pagesOf(replaced(linearTandem, "3 4 0", "3 4 1")).at(0);
    expectTexts(page, {{left, sectionTop, "E = 500000 kPa  PR = .35 ", black, 8},
                       {3400, 6800, "DISTANCE IN CENTIMETERS", black, 10},
                       {7000, 1800, "Contact Radius = 4.524 cm ", red, 10}});
    EXPECT_EQ(textAt(page, left + width - 200, 6450), " 250 ");
    EXPECT_EQ(textAt(page, 1650, planBottom - planHeight - 100), " 75 ");
    std::string vertical;
    for (const PageText& text : opsOf<PageText>(page))
        if (text.x == 1750 || text.x == 1500) vertical += text.text;
    EXPECT_EQ(vertical, "DEPTH cmPLAN cm");
}

TEST(LayeredPlot, ResponsePointsAreMarkedBesideTheirInterface) {
    std::vector<PageLine> marks;
    for (const PageLine& line : opsOf<PageLine>(pagesOf(linearTandem).at(0)))
        if (line.width == 3) marks.push_back(line);
    ASSERT_EQ(marks.size(), 4 * 3 + 3 + 1U) << "depths by points, plan, legend";
    const std::pair<float, float> strokes[] = {
        {-0.075F, 0.075F}, {2.15F, 2.3F}, {3.85F, 3.7F}, {19.925F, 20.075F}};
    for (std::size_t depth = 0; depth < 4; ++depth) {
        const PageLine& mark = marks[3 * depth + 2];
        const auto [from, to] = strokes[depth];
        EXPECT_EQ(mark.colour, magenta);
        EXPECT_NEAR(mark.x1, left + 0.24F * width, 0.1);
        EXPECT_NEAR(mark.y1, sectionTop + from / 18.75F * sectionHeight, 0.1);
        EXPECT_NEAR(mark.y2, sectionTop + to / 18.75F * sectionHeight, 0.1);
    }
    EXPECT_NEAR(marks[14].y1, planBottom - 6.75F / 30 * planHeight, 0.1);
    EXPECT_NEAR(marks[14].x2 - marks[14].x1, 0.15F / 100 * width, 0.1);
    EXPECT_EQ(marks[15].x2, 7010);

    const auto lines = opsOf<PageLine>(pagesOf(damage).at(0));
    EXPECT_NEAR(lines[3].y2, sectionTop + (8 - 0.3F) / 12 * sectionHeight, 0.1) << "on the interface";
    EXPECT_NEAR(lines[4].y1, sectionTop + (8.0001F + 0.15F) / 12 * sectionHeight, 0.1);
}

TEST(LayeredPlot, WheelsStandFromTheOrigin) {
    const float radius = 4.5237F / 100 * width;
    const float axle = left + 0.48F * width, dual = planBottom - 13.5F / 30 * planHeight;
    const std::vector<std::pair<float, float>> tandem = {
        {left, planBottom}, {left, dual}, {axle, planBottom}, {axle, dual}};
    const auto wheels = opsOf<PageCircle>(pagesOf(linearTandem).at(0));
    ASSERT_EQ(wheels.size(), tandem.size());
    for (std::size_t i = 0; i < wheels.size(); ++i) {
        EXPECT_NEAR(wheels[i].x, tandem[i].first, 0.1);
        EXPECT_NEAR(wheels[i].y, tandem[i].second, 0.1);
        EXPECT_NEAR(wheels[i].radius, radius, 0.01);
        EXPECT_FALSE(wheels[i].fill);
    }
    // A single wheel without points, duals and a tridem.
    const std::string file = "1\nT\n1 0 1 1\n2 0 0\n8\n.4 .4\n50000 5000\n";
    const std::pair<const char*, std::size_t> kinds[] = {
        {"0\n5 80\n0\n", 1}, {"1\n5 80\n0 48 13.5\n", 2}, {"3\n5 80\n0 48 13.5\n", 6}};
    for (const auto& [load, count] : kinds) {
        const Page page = pagesOf(file + load).at(0);
        EXPECT_EQ(opsOf<PageCircle>(page).size(), count) << load;
        EXPECT_EQ(textAt(page, 7000, 2700).empty(), count < 4) << "the tandem spacing";
        EXPECT_EQ(opsOf<PageLine>(page).back().colour, magenta) << "the legend is there without points";
    }
}

TEST(LayeredPlot, EveryKindOfMaterialHasItsText) {
    const std::pair<const char*, std::vector<const char*>> cases[] = {
        {nonlinear,
         {"E = 400000 psi  PR = .4  GAM = 145 pcf",
          "K1 = 8000 psi  K2 = .5  PR = .35   PHI = 40  K0 = .6  GAM = 135 pcf",
          "K1 = 5600 psi  PR = .45   K0 = .8   GAM = 115 pcf",
          "EMIN = 3000 psi  EMAX = 15000 psi  K2 = 6.2 psi  K3 = 1110  K4 = 178 "}},
        {viscoelastic,
         {"PR = .4  BETA = .113 per F  TEMPREF = 70 F  TEMP = 85.5 F   CREEP are:",
          "1.200E-06 2.300E-06 4.500E-06 9.100E-06 1.800E-05 3.300E-05", "5.000E-05 per psi",
          "E = 10000 psi  PR = .45 "}},
        {combined,
         {"PR = .4  BETA = .203 per C  TEMPREF = 21 C  TEMP = 25 C  CREEP are:",
          "1.200E-06 2.300E-06 4.500E-06 9.100E-06 1.800E-05 3.300E-05 5.000E-05 ",
          "7.000E-05 9.000E-05 per kPa  GAM = 22  kN/m^3",
          "K1 = 30000 kPa  K2 = .5  PR = .35   PHI = 0  K0 = .6  GAM = 21 kN/m^3",
          "E = 50000 kPa  PR = .45  GAM = 18 kN/m^3"}},
    };
    for (const auto& [file, texts] : cases)
        for (const char* text : texts) EXPECT_EQ(textStarting(pagesOf(file).at(0), text).text, text);
    // The rows inside a layer: text, creep rows, the subgrade's second line.
    const Page creep = pagesOf(combined).at(0);
    EXPECT_NEAR(textStarting(creep, "1.200E-06").y, sectionTop + 150, 0.1);
    EXPECT_NEAR(textStarting(creep, "7.000E-05").y, sectionTop + 300, 0.1);
    const Page subgrade = pagesOf(nonlinear).at(0);
    EXPECT_NEAR(textStarting(subgrade, "EMIN").y, textStarting(subgrade, "K1 = 5600").y + 200, 0.1);
}

TEST(LayeredPlot, StressPointsLieOnTheLoadDistributionLine) {
    const Page page = pagesOf(replaced(nonlinear, "0 0 0 .5", "2 7 0 .5")).at(0);
    std::vector<PageCircle> points;
    for (const PageCircle& circle : opsOf<PageCircle>(page))
        if (circle.fill) points.push_back(circle);
    ASSERT_EQ(points.size(), 3U) << "two layers and the legend";
    EXPECT_NEAR(points[0].x, left + (7.5F * 0.5F + 2) / 100 * width, 0.1) << "RCNOL under one wheel";
    EXPECT_NEAR(points[0].y, sectionTop + 7.5F / 22.5F * sectionHeight, 0.1);
    EXPECT_NEAR(points[1].y, sectionTop + 16 / 22.5F * sectionHeight, 0.1);
    EXPECT_NEAR(opsOf<PageLine>(page)[4].x1, left + 8 / 100.0F * width, 0.1) << "the second response point";
    EXPECT_EQ(points[2].x, 7000);
    EXPECT_EQ(points[2].fill, lightGreen);
    EXPECT_EQ(textAt(page, 7100, 3550), "nonlinear layers");

    const Page dual = pagesOf(replaced(combined, "0 0 15 .3", "2 7 15 .3")).at(0);
    EXPECT_NEAR(opsOf<PageCircle>(dual)[0].x, left + (35 * 0.3F + 7) / 250 * width, 0.1) << "else XCNOL";
    EXPECT_EQ(textAt(dual, 7100, 3550), "nonlinear layers");
}

TEST(LayeredPlot, DamageTextsStandAboveThePlanAndAtTheEnd) {
    const auto pages = pagesOf(damage);
    ASSERT_EQ(pages.size(), 4U);
    expectTexts(pages[1],
                {{1700, 1500, "Problem No. 1  Period No. 1  Load Group No. 2   TNLR = 1000.5 ", black, 10},
                 {2400, 1750, "Damage Ratio: Fatigue C. = .031 ", black, 10},
                 {4080, 1950, "P. Deform. = .042 ", black, 10}});
    expectTexts(pages[3], {{7300, 6400, "D.R.(Fatigue C.) =  .441001 ", green, 10},
                           {7300, 6600, "D.R.(P. Deform.) =  .6825 ", green, 10},
                           {7300, 6800, "Design Life =  1.47 yrs", green, 10}});
    EXPECT_EQ(textAt(pages[2], 7300, 6800), "");
    const std::string head = "1\nT\n1 1 1 1\n2 1 0\n8\n.4 .45\n500000 8000\n0\n5 80\n0\n";
    const Page topsOnly = pagesOf(head + "0 1\n73000\n1\n8.1\n.125\n0 1\n.5\n2").at(0);
    EXPECT_EQ(textAt(topsOnly, 2400, 1750), "Damage Ratio: P. Deform. = .125 ");
    EXPECT_EQ(textAt(topsOnly, 7300, 6400), "");
    EXPECT_EQ(textAt(topsOnly, 7300, 6600), "D.R.(P. Deform.) =  .5 ");
}

TEST(LayeredPlot, NumbersShownAreRoundedForThePagesThatFollow) {
    std::string twoPeriods = replaced(linearTandem, "1 0 1 1", "1 0 2 1");
    twoPeriods = replaced(twoPeriods, "500000 30000 7500", "500000 30000 7500\n1234567 30000 7500");
    twoPeriods = replaced(twoPeriods, "4 8.5", "4.04 8.5");
    const auto pages = pagesOf(twoPeriods);
    const auto radius = [&](int page) { return opsOf<PageCircle>(pages[page]).front().radius; };
    EXPECT_NEAR(radius(0), 4.5237 / 100 * width, 1e-3);
    EXPECT_NEAR(radius(1), 4.524 / 100 * width, 1e-3);
    EXPECT_EQ(textStarting(pages[1], "E = 123").text, "E = 1235000 psi  PR = .35 ");

    // Depths are taken anew for each page: the interface does not move to the rounded 4.0. The fraction that
    // the label rounds away still keeps it away from the edge.
    const float second = sectionTop + 4.04F / 1.5F / 12.54F * sectionHeight;
    for (const Page& page : pages) EXPECT_EQ(textAt(page, left - 520, second - 100), " 4 ");

    const auto creep = pagesOf(combined);
    EXPECT_EQ(textStarting(creep[1], "7.0").text, textStarting(creep[0], "7.0").text);
    EXPECT_TRUE(textStarting(creep[1], "K1 =").text.starts_with("K1 = 28000 ")) << "the period's own";
}

TEST(LayeredPlot, PagesRunThroughGroupsPeriodsAndProblems) {
    std::string two = damage;
    two = replaced(two, "1\n", "3\n") + std::string("Without pages\n1 0 0 1\n2 0 0\n8\n.4 .4\n0\n5 80\n0\n") +
          std::string(linearTandem).substr(2);
    std::vector<std::string> headings;
    for (const Page& page : pagesOf(two)) headings.push_back(textAt(page, 1700, 1500).substr(0, 46));
    EXPECT_THAT(headings, ElementsAre("Problem No. 1  Period No. 1  Load Group No. 1 ",
                                      "Problem No. 1  Period No. 1  Load Group No. 2 ",
                                      "Problem No. 1  Period No. 2  Load Group No. 1 ",
                                      "Problem No. 1  Period No. 2  Load Group No. 2 ",
                                      "Problem No. 3  Period No. 1  Load Group No. 1 "));
}

TEST(LayeredPlot, WhatCannotBeDrawnIsAFault) {
    const std::string halfSpace = "1\nT\n1 0 1 1\n1 1 0\n.4\n0\n10000\n0\n6 80\n0\n";
    EXPECT_EQ(faultOf([&] { pagesOf(halfSpace); }), Fault::DivisionByZero);
    EXPECT_EQ(faultOf([] { pagesOf(replaced(linearTandem, "7500", "7E9")); }), Fault::Overflow);
    EXPECT_EQ(faultOf([] { pagesOf(replaced(linearTandem, "4.5237", "-4.5237")); }), Fault::InvalidCall);
    EXPECT_EQ(faultOf([] { pagesOf(replaced(damage, "1 1\n.44", "20 1\n.44")); }),
              Fault::SubscriptOutOfRange);
    EXPECT_EQ(faultOf([] { pagesOf(replaced(damage, "1.465201", "0")); }), Fault::TypeMismatch);
}

/// Pieces cut out and put elsewhere: pages or a RunTimeError, nothing else.
TEST(LayeredPlot, SurvivesDamagedFiles) {
    std::mt19937 random(20240607);
    for (const char* sample : {linearTandem, nonlinear, viscoelastic, combined, damage})
        for (int run = 0; run < 200; ++run) {
            std::string text = sample;
            const auto any = [&](std::size_t most) { return random() % (most + 1); };
            const std::string piece = text.substr(any(text.size()), any(20));
            text.erase(any(text.size()), run % 4 == 0 ? std::string::npos : any(20));
            text.insert(any(text.size()), piece);
            faultOf([&] {
                for (const Page& page : pagesOf(text)) EXPECT_FALSE(page.ops.empty());
            });
        }
}

}  // namespace
