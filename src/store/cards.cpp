#include "store/cards.h"

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

DeckReadResult failedRead(const RunTimeError& error, const ListReader& in, const DeckPlace& where) {
    const auto reason = [&]() -> std::string {
        switch (error.fault()) {
            case Fault::TypeMismatch:
                return '"' + in.nextItem() + "\" is no number";
            case Fault::Overflow:
                return "the value is out of range";
            case Fault::EndOfFile:
                return "the file ends here";
            case Fault::SubscriptOutOfRange:
                return "more than a data file can hold";
            default:
                return error.what();
        }
    };
    return {DeckReadResult::Outcome::Failed, where, in.lineNumber(), reason()};
}
