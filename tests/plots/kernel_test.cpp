#include "plots/kernel.h"

#include <gmock/gmock.h>

#include <cfloat>

#include "platform/run_time_error.h"
#include "support/page_reading.h"

namespace {

using testing::ElementsAre;

Kernel sectionWindow() {
    Kernel q;
    q.QScreen();
    q.QPlotSetup(13, 53, 34, 63, 0, 100, 18.75F, 0);
    return q;
}

TEST(Kernel, MapsTheWindowsEdgesToPercentOfTheWholePage) {
    const Kernel q = sectionWindow();
    const auto [left, bottom] = q.QRtoI(0, 18.75F);
    const auto [right, top] = q.QRtoI(100, 0);
    EXPECT_NEAR(left, 0.13 * 10815, 1e-3);
    EXPECT_NEAR(right, 0.53 * 10815, 1e-3);
    EXPECT_NEAR(bottom, 0.66 * 7650, 1e-3);
    EXPECT_NEAR(top, 0.37 * 7650, 1e-3);
    EXPECT_NEAR(q.QRtoIX(150), 0.73 * 10815, 1e-3) << "nothing is cut off at the window";
}

TEST(Kernel, FaultsOfTheMappingAreRunTimeErrors) {
    struct Case {
        Single RX2, RY1, x;
        Fault fault;
    };
    const Case cases[] = {{0, 10, 5, Fault::DivisionByZero},
                          {100, 0, 5, Fault::DivisionByZero},
                          {100, 10, FLT_MAX, Fault::Overflow},
                          {FLT_MIN, 10, 1e30F, Fault::Overflow}};
    for (const Case& c : cases) {
        Kernel q;
        q.QScreen();
        q.QPlotSetup(13, 53, 34, 63, 0, c.RX2, c.RY1, 0);
        try {
            q.QRtoI(c.x, 5);
            ADD_FAILURE() << c.RX2 << " " << c.RY1 << " " << c.x;
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.fault(), c.fault);
        }
    }
}

TEST(Kernel, NumbersAreRoundedInTheirVariable) {
    struct Case {
        Single value;
        const char* format;
        Single kept;
        const char* shown;
    };
    const Case singles[] = {{5, "##0.0", 5, " 5 "},
                            {12.34F, "##0.0", 12.3F, " 12.3 "},
                            {-0.25F, "##0.0", -0.3F, "-.3 "},
                            {0.35F, "0.###", 0.35F, " .35 "},
                            {1234567, "0.000E+00", 1235000, " 1235000 "}};
    for (const Case& c : singles) {
        Single value = c.value;
        EXPECT_EQ(formatInPlace(value, c.format), c.shown);
        EXPECT_EQ(value, c.kept);
    }
    Long modulus = 1234567;
    EXPECT_EQ(formatInPlace(modulus, "#.###E+##"), " 1235000 ");
    EXPECT_EQ(modulus, 1235000);
    Integer count = 7;
    EXPECT_EQ(formatInPlace(count, "##"), " 7 ");
}

TEST(Kernel, AnUntypedNumberBecomesItsFormattedText) {
    Variant creep(1.23456E-6);
    EXPECT_EQ(formatInPlace(creep, "0.000E+00"), "1.235E-06");
    EXPECT_TRUE(creep.isText());
    EXPECT_EQ(formatInPlace(creep, "0.000E+00"), "1.235E-06") << "formatted again on the next page";
}

TEST(Kernel, AFormatThatLeavesNoNumberIsAFault) {
    Integer zero = 0;
    EXPECT_THROW(formatInPlace(zero, "##"), RunTimeError);
    Single none = 0;
    EXPECT_THROW(formatInPlace(none, "###.##"), RunTimeError);
    Integer big = 32767;
    EXPECT_THROW(formatInPlace(big, "0.0E+0"), RunTimeError) << "3.3E+4 is no Integer";
}

TEST(Kernel, ALineOfNumbersGoesOnWhereItEnded) {
    Kernel q;
    Single radius = 4.5237F, pressure = 100;
    q.ForeColor = QBColor(12);
    q.SHOWnum(5800, 600, "Contact Radius =", "##0.###", radius);
    q.PRN(" at", "###0.###", pressure);
    q.QGTxt("end", 9, 10, 20);
    const auto texts = textsOf(q.page());
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[0].text, "Contact Radius = 4.524  at 100 ");
    EXPECT_EQ(texts[0].x, 7000);
    EXPECT_EQ(texts[0].y, 1800);
    EXPECT_EQ(texts[0].colour, 0xFF0000U);
    EXPECT_EQ(texts[1].colour, 0x0000FFU);
    EXPECT_EQ(q.ForeColor, 0U);
}

TEST(Kernel, VerticalTextStandsOneCharacterALine) {
    Kernel q;
    q.QGtxtY("", 12, 1, 2);
    EXPECT_TRUE(q.page().ops.empty());
    EXPECT_EQ(q.ForeColor, 0U);
    q.QGtxtY("in", 0, 550, 2800);
    const auto texts = opsOf<PageText>(q.page());
    ASSERT_EQ(texts.size(), 2U);
    EXPECT_EQ(texts[0].y, 4000);
    EXPECT_FALSE(texts[1].y) << "below the first, at the font's line height";
    for (const PageText& text : texts) {
        EXPECT_EQ(text.x, 1750);
        EXPECT_TRUE(text.endsLine);
    }
}

TEST(Kernel, AxesHaveTicksAndLabelsAtTheirPlaces) {
    Kernel q = sectionWindow();
    q.QStep = {20, 865.2F, 10, 535.5F};
    q.QXaxis(1405.95F, 5049);
    q.QYaxis(1405.95F, 2295);
    const auto ticks = opsOf<PageLine>(q.page());
    ASSERT_EQ(ticks.size(), 10U);
    EXPECT_FLOAT_EQ(ticks[1].x1, 1200 + 1405.95F + 865) << "ticks stand on whole steps";
    EXPECT_FLOAT_EQ(ticks[1].y1, 6349);
    EXPECT_FLOAT_EQ(ticks[1].y2, 6249);
    EXPECT_FLOAT_EQ(ticks[7].x1, 1200 + 1405.95F - 550);
    EXPECT_FLOAT_EQ(ticks[7].x2, 1200 + 1405.95F - 450);
    EXPECT_FLOAT_EQ(ticks[7].y1, 1200 + 2295 - 535.5F);
    EXPECT_EQ(textAt(q.page(), 1200 + 1405.95F + 865.2F - 200, 6450), " 20 ");
    EXPECT_EQ(textAt(q.page(), 1650, 1200 + 2295 - 100), " 18.75 ") << "from the window's lower value";
}

TEST(Kernel, ARectangleIsFourLinesInOrder) {
    Kernel q = sectionWindow();
    q.PaintRCT(0, 100, 0, 18.75F, 13);
    const auto lines = opsOf<PageLine>(q.page());
    ASSERT_EQ(lines.size(), 4U);
    std::vector<float> startX, startY;
    for (const PageLine& line : lines) {
        startX.push_back(std::round(line.x1));
        startY.push_back(std::round(line.y1));
    }
    EXPECT_THAT(startX, ElementsAre(2606, 6932, 6932, 2606));
    EXPECT_THAT(startY, ElementsAre(4031, 4031, 6249, 6249));
}

TEST(Kernel, OnlyASolidCircleIsFilled) {
    Kernel q;
    q.FillColor = QBColor(10);
    q.Circle(0, 0, 20, QBColor(10));
    q.FillStyle = Kernel::Fill::Solid;
    q.Circle(0, 0, 20, QBColor(10));
    const auto circles = opsOf<PageCircle>(q.page());
    EXPECT_FALSE(circles[0].fill);
    EXPECT_EQ(circles[1].fill, 0x00FF00U);
    EXPECT_THROW(q.Circle(0, 0, -1, 0), RunTimeError);
}

}  // namespace
