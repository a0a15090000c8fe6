#include "plots/kernel.h"

#include <gmock/gmock.h>

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

TEST(Kernel, NumbersAreRoundedInTheirVariable) {
    const std::tuple<Single, const char*, Single, const char*> singles[] = {
        {5, "##0.0", 5, " 5 "},
        {12.34F, "##0.0", 12.3F, " 12.3 "},
        {-0.25F, "##0.0", -0.3F, "-.3 "},
        {0.35F, "0.###", 0.35F, " .35 "},
        {1234567, "0.000E+00", 1235000, " 1235000 "}};
    for (auto [value, format, kept, shown] : singles) {
        EXPECT_EQ(formatInPlace(value, format), shown);
        EXPECT_EQ(value, kept);
    }
    Long modulus = 1234567;
    EXPECT_EQ(formatInPlace(modulus, "#.###E+##"), " 1235000 ");
    EXPECT_EQ(modulus, 1235000);
    Variant creep(1.23456E-6);  // becomes its text, which the next page formats again
    for (int page = 1; page <= 2; ++page) EXPECT_EQ(formatInPlace(creep, "0.000E+00"), "1.235E-06");
    EXPECT_TRUE(creep.isText());

    Integer zero = 0, big = 32767;
    Single none = 0;
    EXPECT_THROW(formatInPlace(zero, "##"), RunTimeError);
    EXPECT_THROW(formatInPlace(none, "###.##"), RunTimeError);
    EXPECT_THROW(formatInPlace(big, "0.0E+0"), RunTimeError) << "3.3E+4 is no Integer";
}

TEST(Kernel, ARectangleIsItsOutlineInOrder) {
    Kernel q = sectionWindow();
    q.PaintRCT(0, 100, 0, 18.75F, 13);
    std::vector<float> corners;
    for (const PageLine& line : opsOf<PageLine>(q.page()))
        corners.insert(corners.end(), {std::round(line.x1), std::round(line.y1)});
    EXPECT_THAT(corners, ElementsAre(2606, 4031, 6932, 4031, 6932, 6249, 2606, 6249));
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

}  // namespace
