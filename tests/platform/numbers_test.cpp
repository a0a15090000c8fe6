#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include "support/faults.h"

namespace {

TEST(Numbers, ValTakesWhatBelongsToANumber) {
    const struct {
        const char* text;
        double value;
    } rows[] = {
        {"", 0},
        {"12abc", 12},
        {"abc", 0},
        {"-", 0},
        {".", 0},
        {"+.", 0},
        {"5.", 5},
        {".5", .5},
        {"-.5", -.5},
        {"+7", 7},
        {"--5", 0},
        {"5-", 5},
        {"1.5.3", 1.5},
        {"1,5", 1},
        {" 1 2\t3\r\n4", 1234},
        {"1E3", 1000},
        {"1d3", 1000},
        {"1.5E-2x", .015},
        {"1 e + 2", 100},
        {"1E", 1},
        {"1E+", 1},
        {"1E-x", 1},
        {"E5", 0},
        {"4.3E5E2", 4.3e5},
        {"0x10", 0},
        {"inf", 0},
        {"nan", 0},
        {"-0", 0},
        {"000123.4500", 123.45},
        {"1e-400", 0},
        {"0e999999999999", 0},
        {"123456789012345678901234567890", 123456789012345678901234567890.0},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(Val(row.text), row.value) << '"' << row.text << '"';
        EXPECT_FALSE(std::signbit(Val(row.text)) && row.value == 0) << '"' << row.text << '"';
    }
    // A number beyond the type stays one that decks can hold.
    EXPECT_EQ(ToDouble(Str(Val("1e999"))), Val("1e999"));
    EXPECT_EQ(ToDouble(Str(Val("-1e99999999999999"))), Val("-1e400"));
}

TEST(Numbers, SinglePrintsSevenDigits) {
    const struct {
        Single value;
        const char* text;
    } rows[] = {
        {0.0f, " 0"},
        {-0.0f, " 0"},
        {4.3f, " 4.3"},
        {-.5f, "-.5"},
        {.001f, " .001"},
        {.000123f, " .000123"},
        {.0001234f, " .0001234"},
        {.00012345f, " 1.2345E-04"},
        {.0000001f, " .0000001"},
        {.00000001f, " 1E-08"},
        {1.365e-9f, " 1.365E-09"},
        {1234567.0f, " 1234567"},
        {12345678.0f, " 1.234568E+07"},
        {9999999.0f, " 9999999"},
        {10000000.0f, " 1E+07"},
        {-27600000.0f, "-2.76E+07"},
        {123456.78f, " 123456.8"},
        {0.1f + 0.2f, " .3"},
        {1.0f / 3, " .3333333"},
        {16777215.0f, " 1.677722E+07"},
        {std::numeric_limits<float>::max(), " 3.402823E+38"},
        {std::numeric_limits<float>::denorm_min(), " 1.401298E-45"},
    };
    for (const auto& row : rows) EXPECT_EQ(Str(row.value), row.text);
}

TEST(Numbers, DoublePrintsFifteenDigits) {
    const struct {
        Double value;
        const char* text;
    } rows[] = {
        {4.3, " 4.3"},
        {Double{4.3f}, " 4.30000019073486"},
        {0.1 + 0.2, " .3"},
        {1 - 1e-16, " 1"},
        {2.0 / 3, " .666666666666667"},
        {200.0 / 3, " 66.6666666666667"},
        {123456789012345.0, " 123456789012345"},
        {1234567890123456.0, " 1.23456789012346E+15"},
        {1e15, " 1E+15"},
        {1e-15, " .000000000000001"},
        {1.5e-15, " 1.5E-15"},
        {-1e100, "-1E+100"},
        {2.5e-308, " 2.5E-308"},
    };
    for (const auto& row : rows) EXPECT_EQ(Str(row.value), row.text);
    EXPECT_EQ(Str(Integer{-32768}), "-32768");
    EXPECT_EQ(Str(Long{40000}), " 40000");
    EXPECT_EQ(numberText(.5), ".5");
    EXPECT_EQ(numberText(-.5), "-.5");
    EXPECT_EQ(faultOf([] { Str(std::nan("")); }), Fault::Overflow);
    EXPECT_EQ(faultOf([] { Str(std::numeric_limits<float>::infinity()); }), Fault::Overflow);
}

/// The value as the text of so many digits says it, by the C library.
double atDigits(double value, int digits) {
    char text[64];
    std::snprintf(text, sizeof text, "%.*e", digits - 1, value);
    return std::strtod(text, nullptr);
}

TEST(Numbers, EveryWrittenNumberReadsBack) {
    std::mt19937_64 random(7);
    for (int n = 0; n < 20000; ++n) {
        const std::uint64_t bits = random();
        double wide;
        std::memcpy(&wide, &bits, sizeof wide);
        if (n % 2)
            wide = std::ldexp(static_cast<double>(static_cast<std::int64_t>(bits)),
                              -static_cast<int>(random() % 90));
        if (std::isfinite(wide) && std::fabs(wide) < 1e308) {
            const double read = ToDouble(Str(wide));
            ASSERT_EQ(read, atDigits(wide, 15)) << Str(wide);
            ASSERT_EQ(Str(read), Str(wide));
            ASSERT_EQ(Val(Str(wide)), read);
        }
        float narrow;
        const auto half = static_cast<std::uint32_t>(bits);
        std::memcpy(&narrow, &half, sizeof narrow);
        if (std::isfinite(narrow)) {
            const float read = ToSingle(Str(narrow));
            ASSERT_EQ(read, static_cast<float>(atDigits(narrow, 7))) << Str(narrow);
            if (std::fabs(narrow) >= std::numeric_limits<float>::min()) {
                ASSERT_EQ(Str(read), Str(narrow));
            }
        }
        const auto whole = static_cast<Integer>(bits);
        ASSERT_EQ(ToInteger(Str(whole)), whole);
    }
}

TEST(Numbers, StrictConversionTakesOnlyWholeNumbers) {
    for (const char* text : {"5", " 5 ", "\t5\r\n", "5.", "+5.0", "5.E+0", ".5E1", "500d-2", "0005"})
        EXPECT_EQ(ToDouble(text), 5) << text;
    for (const char* text : {"", " ", ".", "-", "E5", "5x", "1 2", "1,5", "5E", "5E+", "1.2.3", "- 5", "inf",
                             "nan", "0x5", "\"5\"", "."}) {
        EXPECT_EQ(faultOf([&] { ToDouble(text); }), Fault::TypeMismatch) << text;
        EXPECT_EQ(faultOf([&] { ToSingle(text); }), Fault::TypeMismatch) << text;
        EXPECT_EQ(faultOf([&] { ToInteger(text); }), Fault::TypeMismatch) << text;
        EXPECT_FALSE(IsNumeric(text)) << text;
    }
    EXPECT_EQ(faultOf([] { ToDouble("1E309"); }), Fault::Overflow);
    EXPECT_EQ(faultOf([] { ToSingle("1E39"); }), Fault::Overflow);
    EXPECT_EQ(faultOf([] { ToSingle(3.402824e38); }), Fault::Overflow);
    EXPECT_EQ(faultOf([] { ToSingle(std::nan("")); }), Fault::Overflow);
    EXPECT_EQ(ToSingle(3.402823e38), 3.402823e38f);
    EXPECT_EQ(ToSingle("1E-60"), 0);
    EXPECT_FALSE(IsNumeric("1E309"));
}

TEST(Numbers, WholeNumbersRoundHalfToEven) {
    const struct {
        double value;
        Integer whole;
    } rows[] = {{.5, 0},    {1.5, 2},  {2.5, 2},         {-.5, 0},          {-1.5, -2},
                {-2.5, -2}, {2.51, 3}, {32767.4, 32767}, {-32768.5, -32768}};
    for (const auto& row : rows) {
        EXPECT_EQ(ToInteger(row.value), row.whole) << row.value;
        EXPECT_EQ(ToInteger(Str(row.value)), row.whole) << row.value;
        EXPECT_EQ(Variant(row.value).integer(), row.whole) << row.value;
    }
    for (const double value : {32767.5, -32768.6, 1e300, std::nan("")})
        EXPECT_EQ(faultOf([&] { ToInteger(value); }), Fault::Overflow) << value;
    EXPECT_EQ(ToLong(2147483647.4), 2147483647);
    EXPECT_EQ(faultOf([] { ToLong("2147483647.5"); }), Fault::Overflow);
    EXPECT_EQ(Int(-1.5), -2);
    EXPECT_EQ(Int(1.9), 1);
}

TEST(Numbers, FormatFollowsItsPattern) {
    const struct {
        Double value;
        const char *pattern, *text;
    } rows[] = {
        {0, "##", ""},
        {0, "###.##", "."},
        {0, "##0.0", "0.0"},
        {0, "0.###", "0."},
        {0, "0.000E+00", "0.000E+00"},
        {0, "#.###E+##", ".E+0"},
        {12.5, "##", "13"},
        {-12.5, "##", "-13"},
        {2.5, "0", "3"},
        {-.4, "0", "0"},
        {12345, "##", "12345"},
        {5, "##0.0", "5.0"},
        {12.34, "##0.0", "12.3"},
        {12.35, "##0.0", "12.4"},
        {1.005, "0.00", "1.01"},  // on the decimal digits, not on the binary value below them
        {.35, "0.###", "0.35"},
        {.35, "#.###", ".35"},
        {5, "0.###", "5."},
        {99.96, "##0.0", "100.0"},
        {.0004, "0.###", "0."},
        {.0005, "0.###", "0.001"},
        {-.0126, "###.##", "-.01"},
        {150, "#####0.###", "150."},
        {1234567.8, "#####0.###", "1234567.8"},
        {7, "000", "007"},
        {7, "0#", "07"},
        {.5, "#0.##", "0.5"},
        {500000, "#.###E+##", "5.E+5"},
        {4321.9, "#.###E+##", "4.322E+3"},
        {4000000, "0.000E+00", "4.000E+06"},
        {.00012345, "0.000E+00", "1.235E-04"},
        {9.9996, "0.000E+00", "1.000E+01"},
        {-9.9996e-100, "0.000E+00", "-1.000E-99"},
        {1e120, "0.0E+00", "1.0E+120"},
        {12345, "##0.0E+00", "123.5E+02"},
        {99960, "##0.0E+0", "999.6E+2"},
        {99996, "##0.0E+0", "100.0E+3"},
        {2e-5, "00.0E+00", "20.0E-06"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(Format(row.value, row.pattern), row.text) << row.value << ' ' << row.pattern;
    EXPECT_EQ(Format(4.35f, "0.0"), "4.4");  // 7 digits: not 4.34999990
    EXPECT_EQ(Format(Variant(4.35f), "0.0"), "4.4");
    EXPECT_EQ(Format(Variant(Integer{7}), "##0.0"), "7.0");
    EXPECT_EQ(Format(Variant("1.23456E-05"), "0.000E+00"), "1.235E-05");
    EXPECT_EQ(Format(Variant("abc"), "0.0"), "abc");
    for (const char* broken : {"0.0.0", "x", "0.0E-00", "0E+x"})
        EXPECT_EQ(faultOf([&] { Format(1.0, broken); }), Fault::InvalidCall) << broken;
}

TEST(Numbers, VariantPrintsAndComparesByItsOwnType) {
    EXPECT_EQ(Variant(4.3f).text(), "4.3");
    EXPECT_EQ(Variant(.1f).text(), ".1");
    EXPECT_EQ(Variant(-.5).text(), "-.5");
    EXPECT_EQ(Variant(70000).text(), "70000");
    EXPECT_EQ(Variant(" 5 ").text(), " 5 ");
    EXPECT_EQ(Str(Variant("abc")), "abc");
    EXPECT_EQ(Str(Variant(3)), " 3");

    EXPECT_EQ(Variant(4.3f), Variant(4.3));
    EXPECT_EQ(Variant(4.3f), Variant("4.30"));
    EXPECT_EQ(Variant(" 5. "), Variant(5));
    EXPECT_NE(Variant(4.3), Variant(4.3000001));
    EXPECT_EQ(Variant("abc"), Variant("abc"));
    EXPECT_NE(Variant(""), Variant(0));
    EXPECT_NE(Variant("abc"), Variant("ABC"));

    EXPECT_TRUE(Variant().isNumeric());
    EXPECT_TRUE(Variant("").isEmptyText());
    for (const char* text : {"", "abc", "1,5", "XXXXXXXXX"}) {
        EXPECT_FALSE(Variant(text).isNumeric());
        EXPECT_EQ(faultOf([&] { Variant(text).number(); }), Fault::TypeMismatch);
        EXPECT_EQ(faultOf([&] { Variant(text).integer(); }), Fault::TypeMismatch);
    }
    EXPECT_EQ(Variant("2.5").integer(), 2);
    EXPECT_EQ(faultOf([] { Variant(40000.0).integer(); }), Fault::Overflow);
}

}  // namespace
