// Number text goes through one decimal form: texts are scanned into it and
// printed from it, so that rounding happens on decimal digits, in one place,
// and does not depend on the system's locale.
#include "platform/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

#include "platform/run_time_error.h"

namespace {

constexpr int singleDigits = 7;
constexpr int doubleDigits = 15;

/// The largest Double whose text of 15 digits can be read again.
constexpr Double largestDouble = 1.79769313486231E+308;

/// 0.d1d2d3... x 10^point, without zeros at either end; zero has no digits.
struct Decimal {
    bool negative = false;
    std::string digits;
    int point = 0;

    int size() const { return static_cast<int>(digits.size()); }
};

std::string zeros(int count) { return std::string(static_cast<std::size_t>(std::max(count, 0)), '0'); }

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isSpace(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

Decimal withoutOuterZeros(Decimal number) {
    const std::size_t first = number.digits.find_first_not_of('0');
    if (first == std::string::npos) return {};
    number.digits.erase(0, first);
    number.point -= static_cast<int>(first);
    number.digits.erase(number.digits.find_last_not_of('0') + 1);
    return number;
}

/// The nearest decimal of `significant` digits. Overflow for what is no finite number.
Decimal decimalOf(Double value, int significant) {
    if (!std::isfinite(value)) throw RunTimeError(Fault::Overflow);
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, std::fabs(value), std::chars_format::scientific,
                                   significant - 1);
    const std::string_view all(text, static_cast<std::size_t>(end.ptr - text));
    const std::size_t mark = all.find('e');

    Decimal number{value < 0, "", 1};
    for (const char c : all.substr(0, mark))
        if (isDigit(c)) number.digits += c;
    const std::size_t exponent = mark + (all[mark + 1] == '+' ? 2 : 1);
    int power = 0;
    std::from_chars(all.data() + exponent, all.data() + all.size(), power);
    number.point += power;
    return withoutOuterZeros(number);
}

struct Scan {
    Decimal number;
    std::size_t used = 0;  ///< characters that belong to the number; 0 where there is no digit
};

/// E or D, a sign, digits. Returns where it ends, `at` itself when the digits are missing.
std::size_t scanExponent(std::string_view text, std::size_t at, int& power) {
    constexpr int hopeless = 100000;  // far beyond every type; keeps the sum from overflowing
    if (at >= text.size() || std::string_view("EeDd").find(text[at]) == std::string_view::npos) return at;
    std::size_t i = at + 1;
    const bool negative = i < text.size() && text[i] == '-';
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) ++i;
    const std::size_t firstDigit = i;
    for (; i < text.size() && isDigit(text[i]); ++i) power = std::min(power * 10 + (text[i] - '0'), hopeless);
    if (negative) power = -power;
    return i == firstDigit ? at : i;
}

Scan scan(std::string_view text) {
    Scan result;
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '-' || text[i] == '+')) result.number.negative = text[i++] == '-';
    bool pointSeen = false;
    for (; i < text.size() && (isDigit(text[i]) || (text[i] == '.' && !pointSeen)); ++i) {
        if (text[i] == '.') {
            pointSeen = true;
            continue;
        }
        result.number.digits += text[i];
        if (!pointSeen) ++result.number.point;
    }
    if (result.number.digits.empty()) return {};
    int power = 0;
    result.used = scanExponent(text, i, power);
    result.number.point += power;
    result.number = withoutOuterZeros(result.number);
    return result;
}

/// The nearest number of the type; infinite where it is out of range, 0 where it is too small.
template <class Number>
Number valueOf(const Decimal& number) {
    if (number.digits.empty()) return 0;
    const std::string text = number.digits + "e" + std::to_string(number.point - number.size());
    Number value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
    if (read.ec == std::errc::result_out_of_range)
        value = number.point > 0 ? std::numeric_limits<Number>::infinity() : Number{0};
    return number.negative ? -value : value;
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isSpace(text.front())) text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back())) text.remove_suffix(1);
    return text;
}

/// The number that the whole text says, or type mismatch.
Decimal wholeDecimal(std::string_view text) {
    const std::string_view core = trimmed(text);
    const Scan found = scan(core);
    if (found.used == 0 || found.used != core.size())
        throw RunTimeError(Fault::TypeMismatch, std::string(text));
    return found.number;
}

template <class Number>
Number wholeNumber(std::string_view text) {
    const auto value = valueOf<Number>(wholeDecimal(text));
    if (!std::isfinite(value)) throw RunTimeError(Fault::Overflow, std::string(text));
    return value;
}

template <class Whole>
Whole rounded(Double value) {
    const Double nearest = std::nearbyint(value);  // half to even in the default rounding mode
    if (!(nearest >= std::numeric_limits<Whole>::min() && nearest <= std::numeric_limits<Whole>::max()))
        throw RunTimeError(Fault::Overflow);
    return static_cast<Whole>(nearest);
}

std::string plainForm(const Decimal& number) {
    if (number.point <= 0) return "." + zeros(-number.point) + number.digits;
    std::string text = number.digits + zeros(number.point - number.size());
    if (number.point < number.size()) text.insert(static_cast<std::size_t>(number.point), ".");
    return text;
}

std::string exponentForm(const Decimal& number) {
    std::string text = number.digits;
    if (text.size() > 1) text.insert(1, ".");
    const int exponent = number.point - 1;
    const std::string power = std::to_string(std::abs(exponent));
    return text + (exponent < 0 ? "E-" : "E+") + zeros(2 - static_cast<int>(power.size())) + power;
}

std::string textOf(Double value, int significant) {
    const Decimal number = decimalOf(value, significant);
    if (number.digits.empty()) return " 0";
    const int plainDigits =
        number.point <= 0 ? number.size() - number.point : std::max(number.point, number.size());
    return (number.negative ? "-" : " ") +
           (plainDigits <= significant ? plainForm(number) : exponentForm(number));
}

/// Keeps the first `keep` digits; half goes away from zero.
Decimal roundedTo(Decimal number, int keep) {
    if (keep >= number.size()) return number;
    if (keep < 0) return {};
    const auto cut = static_cast<std::size_t>(keep);
    const bool up = number.digits[cut] >= '5';
    number.digits.resize(cut);
    if (up) {
        number.digits.insert(0, "0");  // room for the carry
        ++number.point;
        std::size_t i = cut;
        for (; number.digits[i] == '9'; --i) number.digits[i] = '0';
        ++number.digits[i];
    }
    return withoutOuterZeros(number);
}

/// The digit places of a pattern: how many there may be, and how many there must be.
struct Places {
    int integerMost = 0, integerLeast = 0;
    int fractionMost = 0, fractionLeast = 0;
    bool point = false;
    bool exponent = false;
    int exponentLeast = 1;
};

Places placesOf(std::string_view pattern) {
    const auto broken = [&] { return RunTimeError(Fault::InvalidCall, "pattern " + std::string(pattern)); };
    Places places;
    std::size_t i = 0;
    for (; i < pattern.size() && pattern[i] != 'E'; ++i) {
        const char c = pattern[i];
        if (c == '.' && !places.point) {
            places.point = true;
        } else if (c != '#' && c != '0') {
            throw broken();
        } else if (places.point) {
            ++places.fractionMost;
            if (c == '0') places.fractionLeast = places.fractionMost;
        } else {
            ++places.integerMost;
            if (c == '0' || places.integerLeast > 0) ++places.integerLeast;
        }
    }
    if (i == pattern.size()) return places;
    const std::string_view power = pattern.substr(i);
    if (!power.starts_with("E+") || power.find_first_not_of("#0", 2) != std::string_view::npos)
        throw broken();
    places.exponent = true;
    places.exponentLeast = std::max(1, static_cast<int>(std::count(power.begin(), power.end(), '0')));
    return places;
}

std::string inPlaces(const Decimal& number, const Places& places) {
    const int integerDigits = std::clamp(number.point, 0, number.size());
    std::string integer = number.digits.substr(0, static_cast<std::size_t>(integerDigits));
    integer += zeros(number.point - integerDigits);
    integer.insert(0, zeros(places.integerLeast - static_cast<int>(integer.size())));
    std::string fraction = number.digits.substr(static_cast<std::size_t>(integerDigits));
    if (!fraction.empty()) fraction.insert(0, zeros(-number.point));
    fraction += zeros(places.fractionLeast - static_cast<int>(fraction.size()));
    return (number.negative ? "-" : "") + integer + (places.point ? "." : "") + fraction;
}

std::string formatted(const Decimal& number, std::string_view pattern) {
    const Places places = placesOf(pattern);
    if (!places.exponent) return inPlaces(roundedTo(number, number.point + places.fractionMost), places);
    Decimal mantissa = roundedTo(number, places.integerMost + places.fractionMost);
    const int exponent = mantissa.digits.empty() ? 0 : mantissa.point - places.integerMost;
    mantissa.point -= exponent;
    const std::string power = std::to_string(std::abs(exponent));
    return inPlaces(mantissa, places) + (exponent < 0 ? "E-" : "E+") +
           zeros(places.exponentLeast - static_cast<int>(power.size())) + power;
}

}  // namespace

Variant::Variant(int v) {
    if (v >= std::numeric_limits<Integer>::min() && v <= std::numeric_limits<Integer>::max())
        value_ = static_cast<Integer>(v);
    else
        value_ = static_cast<Double>(v);
}

bool Variant::isNumeric() const { return !isText() || IsNumeric(std::get<std::string>(value_)); }

Double Variant::number() const {
    if (const auto* text = std::get_if<std::string>(&value_)) return ToDouble(*text);
    if (const auto* whole = std::get_if<Integer>(&value_)) return *whole;
    if (const auto* single = std::get_if<Single>(&value_)) return *single;
    return std::get<Double>(value_);
}

Integer Variant::integer() const { return ToInteger(number()); }

std::string Variant::text() const {
    return std::visit(
        [](const auto& held) -> std::string {
            if constexpr (std::is_same_v<std::decay_t<decltype(held)>, std::string>)
                return held;
            else
                return numberText(held);
        },
        value_);
}

bool operator==(const Variant& a, const Variant& b) {
    if (!a.isNumeric() || !b.isNumeric()) return a.isText() && b.isText() && a.text() == b.text();
    const bool single = std::holds_alternative<Single>(a.value_) || std::holds_alternative<Single>(b.value_);
    // Beside a Single the other number counts with a Single's precision: 4.3 equals 4.3.
    if (single) return static_cast<Single>(a.number()) == static_cast<Single>(b.number());
    return a.number() == b.number();
}

Double Val(std::string_view text) {
    std::string dense;
    std::copy_if(text.begin(), text.end(), std::back_inserter(dense), [](char c) { return !isSpace(c); });
    return std::clamp(valueOf<Double>(scan(dense).number), -largestDouble, largestDouble);
}

std::string Str(Integer value) { return Str(Long{value}); }
std::string Str(Long value) { return (value < 0 ? "" : " ") + std::to_string(value); }
std::string Str(Single value) { return textOf(value, singleDigits); }
std::string Str(Double value) { return textOf(value, doubleDigits); }
std::string Str(const Variant& value) {
    return std::visit(
        [](const auto& held) -> std::string {
            if constexpr (std::is_same_v<std::decay_t<decltype(held)>, std::string>)
                return held;
            else
                return Str(held);
        },
        value.value());
}

std::string Format(Double value, std::string_view pattern) {
    return formatted(decimalOf(value, doubleDigits), pattern);
}
std::string Format(Single value, std::string_view pattern) {
    return formatted(decimalOf(value, singleDigits), pattern);
}
std::string Format(const Variant& value, std::string_view pattern) {
    if (const auto* single = std::get_if<Single>(&value.value())) return Format(*single, pattern);
    return value.isNumeric() ? Format(value.number(), pattern) : value.text();
}

Double Int(Double value) { return std::floor(value); }

Integer ToInteger(std::string_view text) { return ToInteger(ToDouble(text)); }
Long ToLong(std::string_view text) { return ToLong(ToDouble(text)); }
Single ToSingle(std::string_view text) { return wholeNumber<Single>(text); }
Double ToDouble(std::string_view text) { return wholeNumber<Double>(text); }

Integer ToInteger(Double value) { return rounded<Integer>(value); }
Long ToLong(Double value) { return rounded<Long>(value); }
Single ToSingle(Double value) {
    // The smallest Double that rounds up past the largest Single.
    constexpr Double beyond = 0x1.ffffffp127;
    if (!(std::fabs(value) < beyond)) throw RunTimeError(Fault::Overflow);
    return static_cast<Single>(value);
}

bool IsNumeric(std::string_view text) {
    const std::string_view core = trimmed(text);
    const Scan found = scan(core);
    return found.used > 0 && found.used == core.size() && std::isfinite(valueOf<Double>(found.number));
}
