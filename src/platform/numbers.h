// Numbers and number text, exactly as decks, tables and plots need them: what a
// typed text is worth, how a number is written, and the cell that holds either.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

using Integer = std::int16_t;
using Long = std::int32_t;
using Single = float;
using Double = double;

/// A cell that holds a number, with its type, or a text. It prints and compares
/// by its own type: a Single 4.3 prints 4.3, not 4.30000019073486.
class Variant {
  public:
    Variant() : value_(Integer{0}) {}
    Variant(Integer v) : value_(v) {}
    Variant(int v);  ///< an Integer where it fits, else a Double
    Variant(Single v) : value_(v) {}
    Variant(Double v) : value_(v) {}
    Variant(std::string text) : value_(std::move(text)) {}
    Variant(const char* text) : value_(std::string(text)) {}

    bool isText() const { return std::holds_alternative<std::string>(value_); }
    /// True for a number and for a text that is a number whole.
    bool isNumeric() const;
    bool isEmptyText() const { return isText() && std::get<std::string>(value_).empty(); }
    /// The number, or the number that a numeric text says. Type mismatch for any other text, "" included.
    Double number() const;
    /// The number rounded half to even into an Integer. Type mismatch, overflow.
    Integer integer() const;
    /// A text bare; a number by its own type, without a sign blank: "4.3", "-.5".
    std::string text() const;

    const std::variant<Integer, Single, Double, std::string>& value() const { return value_; }
    /// Same number, or same text; a numeric text counts as its number.
    friend bool operator==(const Variant& a, const Variant& b);

  private:
    std::variant<Integer, Single, Double, std::string> value_;
};

/// What a typed text is worth. Blanks, tabs and line ends are skipped anywhere; reads sign, digits, one
/// point, exponent (E or D); stops at the first character that cannot belong; nothing read gives 0.
Double Val(std::string_view text);

/// Number text: a blank for zero and positive or "-", then the digits, no zero before the point; at most 7
/// significant digits for a Single, 15 for a Double; "d.dddE+dd" where the plain form would need more.
std::string Str(Integer value);
std::string Str(Long value);
std::string Str(Single value);
std::string Str(Double value);
/// A number as above by its own type; a text as it stands.
std::string Str(const Variant& value);

/// The number text without the sign blank: the shortest form, as boxes show it.
template <class Number>
std::string numberText(Number value) {
    std::string text = Str(value);
    return text.starts_with(' ') ? text.substr(1) : text;
}

/// A number by a pattern of `#`, `0`, `.` and `E+`; rounds half away from zero on the decimal digits (15 of
/// a Double, 7 of a Single). A point of the pattern stays even with no digit behind it: "##" of 0 is "",
/// "###.##" of 0 is ".".
std::string Format(Double value, std::string_view pattern);
std::string Format(Single value, std::string_view pattern);
std::string Format(const Variant& value, std::string_view pattern);

/// The largest whole number not above `value`.
Double Int(Double value);

/// Strict conversion: the trimmed text must be a number whole ("5.", ".5" and "5.E+5" are), else type
/// mismatch. Integer and Long round half to even. Out of range is overflow.
Integer ToInteger(std::string_view text);
Long ToLong(std::string_view text);
Single ToSingle(std::string_view text);
Double ToDouble(std::string_view text);

/// Numeric conversion with the same rounding and the same overflow.
Integer ToInteger(Double value);
Long ToLong(Double value);
Single ToSingle(Double value);

/// True where ToDouble(text) would not fail.
bool IsNumeric(std::string_view text);
