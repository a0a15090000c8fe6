#include "platform/numbers.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <random>

#include "support/faults.h"

namespace {

TEST(Numbers, ValTakesWhatBelongsToANumber) {
    const struct {
        const char* text;
        double value;
    } rows[] = {{"12abc", 12},    {"5.", 5},          {".5", .5},
                {"-.5", -.5},     {"+7", 7},          {"5-", 5},
                {"1.5.3", 1.5},   {"1,5", 1},         {" 1 2\t3\r\n4", 1234},
                {"1E3", 1000},    {"1d3", 1000},      {"1.5E-2x", .015},
                {"1 e + 2", 100}, {"1E", 1},          {"1E+", 1},
                {"1E-x", 1},      {"4.3E5E2", 4.3e5}, {"00123.4500", 123.45}};
    for (const auto& row : rows) EXPECT_EQ(Val(row.text), row.value) << row.text;
    for (const char* text :
         {"", "abc", "-", ".", "+.", "--5", "E5", "0x10", "inf", "nan", "-0", "1e-400", "0e999999999999"}) {
        EXPECT_EQ(Val(text), 0) << text;
        EXPECT_FALSE(std::signbit(Val(text))) << text;
    }
    // A number beyond the type stays one that decks can hold.
    EXPECT_EQ(ToDouble(Str(Val("1e999"))), Val("1e999"));
    EXPECT_EQ(ToDouble(Str(Val("-1e99999999999999"))), Val("-1e400"));
}

TEST(Numbers, PrintInSevenDigitsOrFifteen) {
    for (const char* text :
         {" 0", " 4.3", "-.5", " .001", " .000123", " .0001234", " 1.2345E-04", " .0000001", " 1E-08",
          " 1.365E-09", " 1234567", " 9999999", " 1E+07", "-2.76E+07", " 3.402823E+38", " 1.401298E-45"})
        EXPECT_EQ(Str(ToSingle(text)), text);
    for (const char* text : {" 4.3", " 123456789012345", " 1.23456789012346E+15", " 1E+15",
                             " .000000000000001", " 1.5E-15", "-1E+100", " 2.5E-308"})
        EXPECT_EQ(Str(ToDouble(text)), text);
    const std::pair<Variant, const char*> rounded[] = {{-0.0f, " 0"},
                                                       {12345678.0f, " 1.234568E+07"},
                                                       {123456.78f, " 123456.8"},
                                                       {0.1f + 0.2f, " .3"},
                                                       {1.0f / 3, " .3333333"},
                                                       {Double{4.3f}, " 4.30000019073486"},
                                                       {0.1 + 0.2, " .3"},
                                                       {1 - 1e-16, " 1"},
                                                       {200.0 / 3, " 66.6666666666667"}};
    for (const auto& [value, text] : rounded) EXPECT_EQ(Str(value), text);
    EXPECT_EQ(Str(Integer{-32768}) + Str(Long{40000}), "-32768 40000");
    EXPECT_EQ(numberText(.5) + numberText(-.5), ".5-.5");
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
        double wide = std::bit_cast<double>(bits);
        if (n % 2)
            wide = std::ldexp(static_cast<double>(static_cast<std::int64_t>(bits)),
                              -static_cast<int>(random() % 90));
        if (std::isfinite(wide) && std::fabs(wide) < 1e308) {
            const double read = ToDouble(Str(wide));
            ASSERT_EQ(read, atDigits(wide, 15)) << Str(wide);
            ASSERT_EQ(Str(read), Str(wide));
            ASSERT_EQ(Val(Str(wide)), read);
        }
        const auto narrow = std::bit_cast<float>(static_cast<std::uint32_t>(bits));
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
        const char* pattern;
        std::vector<std::pair<Double, const char*>> texts;
    } rows[] = {{"##", {{0, ""}, {12.5, "13"}, {-12.5, "-13"}, {12345, "12345"}}},
                {"###.##", {{0, "."}, {-.0126, "-.01"}}},
                {"##0.0", {{0, "0.0"}, {5, "5.0"}, {12.34, "12.3"}, {12.35, "12.4"}, {99.96, "100.0"}}},
                {"0.###", {{0, "0."}, {.35, "0.35"}, {5, "5."}, {.0004, "0."}, {.0005, "0.001"}}},
                {"0.000E+00",
                 {{0, "0.000E+00"},
                  {4000000, "4.000E+06"},
                  {.00012345, "1.235E-04"},
                  {9.9996, "1.000E+01"},
                  {-9.9996e-100, "-1.000E-99"}}},
                {"#.###E+##", {{0, ".E+0"}, {500000, "5.E+5"}, {4321.9, "4.322E+3"}}},
                {"0", {{2.5, "3"}, {-.4, "0"}}},
                {"0.00", {{1.005, "1.01"}}},
                {"#.###", {{.35, ".35"}}},
                {"#####0.###", {{150, "150."}, {1234567.8, "1234567.8"}}},
                {"000", {{7, "007"}}},
                {"0#", {{7, "07"}}},
                {"#0.##", {{.5, "0.5"}}},
                {"0.0E+00", {{1e120, "1.0E+120"}}},
                {"##0.0E+00", {{12345, "123.5E+02"}}},
                {"##0.0E+0", {{99960, "999.6E+2"}, {99996, "100.0E+3"}}},
                {"00.0E+00", {{2e-5, "20.0E-06"}}}};
    for (const auto& [pattern, texts] : rows)
        for (const auto& [value, text] : texts)
            EXPECT_EQ(Format(value, pattern), text) << value << ' ' << pattern;
    EXPECT_EQ(Format(4.35f, "0.0"), "4.4");  // 7 digits: not 4.34999990
    EXPECT_EQ(Format(Variant(4.35f), "0.0"), "4.4");
    EXPECT_EQ(Format(Variant(Integer{7}), "##0.0"), "7.0");
    EXPECT_EQ(Format(Variant("1.23456E-05"), "0.000E+00"), "1.235E-05");
    EXPECT_EQ(Format(Variant("abc"), "0.0"), "abc");
    for (const char* broken : {"0.0.0", "x", "0.0E-00", "0E+x"})
        EXPECT_EQ(faultOf([&] { Format(1.0, broken); }), Fault::InvalidCall) << broken;
}

TEST(Numbers, VariantPrintsAndComparesByItsOwnType) {
    const std::pair<Variant, const char*> texts[] = {
        {4.3f, "4.3"}, {.1f, ".1"}, {-.5, "-.5"}, {70000, "70000"}, {" 5 ", " 5 "}};
    for (const auto& [value, text] : texts) EXPECT_EQ(value.text(), text);
    EXPECT_EQ(Str(Variant("abc")) + Str(Variant(3)), "abc 3");

    const std::pair<Variant, Variant> equal[] = {{4.3f, 4.3}, {4.3f, "4.30"}, {" 5. ", 5}, {"abc", "abc"}};
    for (const auto& [a, b] : equal) EXPECT_EQ(a, b) << a.text();
    const std::pair<Variant, Variant> different[] = {{4.3, 4.3000001}, {"", 0}, {"abc", "ABC"}};
    for (const auto& [a, b] : different) EXPECT_NE(a, b) << a.text();

    EXPECT_TRUE(Variant().isNumeric());
    EXPECT_TRUE(Variant("").isEmptyText());
    for (const char* text : {"", "abc", "1,5"}) {
        EXPECT_FALSE(Variant(text).isNumeric());
        EXPECT_EQ(faultOf([&] { Variant(text).integer(); }), Fault::TypeMismatch);
    }
    EXPECT_EQ(faultOf([] { Variant(40000.0).integer(); }), Fault::Overflow);
}

}  // namespace
