#include "store/cards.h"

#include <sstream>

std::string DeckPlace::fieldText() const {
    std::string indexes;
    for (const int index : {at.i, at.j, at.k})
        if (index != 0) indexes += (indexes.empty() ? "" : ", ") + std::to_string(index);
    return indexes.empty() || field.empty() ? field : field + "(" + indexes + ")";
}

std::string DeckPlace::text(const std::string& value) const {
    std::string text = fieldText() + (value.empty() ? "" : " is " + value);
    const auto add = [&](const std::string& part) { text += (text.empty() ? "" : ", ") + part; };
    if (card != 0) add("card (" + std::to_string(card) + ")");
    if (set != 0) add("data set " + std::to_string(set));
    return text;
}

std::string DeckReadResult::sentence() const {
    if (outcome == Outcome::Complete) return "";
    return line == 0 ? reason : "line " + std::to_string(line) + ": " + where.text() + ": " + reason;
}

namespace {

/// The digits of the first word of the form "(12)", empty where there is none; a card has two at most.
std::string cardNumberIn(const std::string& label) {
    std::istringstream words(label);
    for (std::string word; words >> word;) {
        const bool bracketed = word.size() >= 3 && word.front() == '(' && word.back() == ')';
        if (!bracketed || word.size() > 4) continue;
        const std::string inside = word.substr(1, word.size() - 2);
        if (inside.find_first_not_of("0123456789") == std::string::npos) return inside;
    }
    return "";
}

}  // namespace

std::string remarkOnLabel(const std::string& label, int card) {
    std::string remark;
    const std::string first = label.substr(0, label.find(' '));
    if (IsNumeric(first)) remark = "the values from " + first + " on were not read";
    const std::string number = cardNumberIn(label);
    if (!number.empty() && number != std::to_string(card))
        remark += (remark.empty() ? "" : ", and ") + ("the label is that of card (" + number + ")");
    return remark.empty() ? "" : remark + "; is a line missing, or a count or a type wrong?";
}

void writeCell(ListWriter& out, const Cell& cell, Layout layout, TypedText typedText) {
    if (const auto* text = std::get_if<std::string*>(&cell)) {
        out.text(**text);
        return;
    }
    if (const auto* variant = std::get_if<Variant*>(&cell)) {
        if (!(*variant)->isNumeric()) throw RunTimeError(Fault::TypeMismatch, (*variant)->text());
        // A text brings no blanks along and would run into its close neighbour: there it goes as its number.
        if (layout == Layout::Close || typedText == TypedText::AsNumber)
            out.number((*variant)->isText() ? Variant((*variant)->number()) : **variant);
        else
            out.number(**variant);
    } else {
        std::visit(
            [&](auto* number) {
                if constexpr (std::is_arithmetic_v<std::decay_t<decltype(*number)>>) out.number(*number);
            },
            cell);
    }
    if (layout == Layout::Spaced) out.text(" ");
}

namespace {

void readValue(ListReader& in, Integer& value) { value = in.readInteger(); }
void readValue(ListReader& in, Single& value) { value = in.readSingle(); }
void readValue(ListReader& in, Double& value) { value = in.readDouble(); }
void readValue(ListReader& in, Variant& value) { value = in.readDouble(); }
void readValue(ListReader& in, std::string& value) { value = in.readText(); }

}  // namespace

void readCell(ListReader& in, const Cell& cell) {
    std::visit([&](auto* value) { readValue(in, *value); }, cell);
}

Integer perCubicFoot(Double perCubicInch) {
    try {
        return ToInteger(perCubicInch * 1728);
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.fault(), numberText(static_cast<Single>(perCubicInch)) + " per cubic inch");
    }
}

DeckReadResult failedRead(const RunTimeError& error, const ListReader& in, const DeckReading& reading) {
    constexpr int cardBehindTitle = 3;
    const auto reason = [&]() -> std::string {
        const std::string item = in.nextItem();
        switch (error.fault()) {
            case Fault::TypeMismatch:
                if (item.starts_with('(')) return "the label " + item + " stands where a number should";
                return '"' + item + "\" is no number" +
                       (reading.where.card == cardBehindTitle ? "; has the title a comma, which ends it?"
                                                              : "");
            case Fault::Overflow:
                return (error.detail().empty() ? item : error.detail()) + " is out of range here";
            case Fault::EndOfFile:
                return "the file ends here";
            case Fault::SubscriptOutOfRange:
                return "more than a data file can hold";
            default:
                return error.what();
        }
    };
    const int line = reading.line != 0 ? reading.line : in.lineNumber();
    return {DeckReadResult::Outcome::Failed, reading.where, line, reason(), reading.remarks};
}
