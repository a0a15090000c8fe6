#include "grid/table_kinds.h"

#include <sstream>

#include "store/store.h"

namespace {

/// Kinds from 200 on belong to the slab side.
bool isSlabKind(int kind) { return kind >= 200; }

int Store::*currentSet(int kind) { return isSlabKind(kind) ? &Store::CurSlabDS : &Store::CurLayDS; }

}  // namespace

TablePlace currentPlace(const Store& store) {
    return {.kind = store.TableKind,
            .dataSet = store.*currentSet(store.TableKind),
            .period = store.CurPeriod,
            .layer = store.CurLayer,
            .slab = store.CurSlab,
            .group = store.CurGroup,
            .topRow = store.CurTopRow};
}

void restorePlace(Store& store, const TablePlace& place) {
    store.TableKind = place.kind;
    store.*currentSet(place.kind) = place.dataSet;
    store.CurPeriod = place.period;
    store.CurLayer = place.layer;
    store.CurSlab = place.slab;
    store.CurGroup = place.group;
    store.CurTopRow = place.topRow;
}

const TableEntry& tableEntry(Store& store, const std::string& form, const TablePlace& place, int cols) {
    for (const TableEntry& entry : isSlabKind(place.kind) ? slabTables() : layeredTables()) {
        if (entry.kind == place.kind && entry.form == form && (!entry.when || entry.when(store, place, cols)))
            return entry;
    }
    throw RunTimeError(Fault::InvalidCall, "no table " + std::to_string(place.kind) + " on " + form);
}

bool isSI(const Store& store, const TablePlace& place) {
    return isSlabKind(place.kind) ? store.slab[place.dataSet].NUNIT != 0
                                  : store.layered[place.dataSet].NUNIT != 0;
}

std::string fillIn(const std::string& text, Store& store, const TablePlace& place, const TableEntry& entry,
                   bool signBlank) {
    const auto number = [&](int n) { return signBlank ? Str(Long{n}) : numberText(Long{n}); };
    std::string filled;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '{') {
            filled += text[at];
            continue;
        }
        const std::size_t end = text.find('}', at);
        const std::string name = text.substr(at + 1, end - at - 1);
        if (name == "set") filled += number(place.dataSet);
        if (name == "period") filled += number(place.period);
        if (name == "layer") filled += number(place.layer);
        if (name == "slab") filled += number(place.slab);
        if (name == "group") filled += number(place.group);
        if (name == "number") filled += cellText(entry.number(store, place, place.layer));
        at = end;
    }
    return filled;
}

namespace {

/// A text that is a number whole, as that number; "1.234E5" shows as 123400.
std::string shown(const Variant& value) {
    if (!value.isText()) return Str(value);
    return value.isNumeric() ? Str(value.number()) : value.text();
}

struct Shown {
    std::string operator()(const Variant* field) const { return shown(*field); }
    template <class Number>
    std::string operator()(const Number* field) const {
        return Str(*field);
    }
};

struct PutText {
    const std::string& text;
    void operator()(Variant* field) const { *field = Variant(text); }
    void operator()(Single* field) const { *field = ToSingle(text); }
    void operator()(Integer* field) const { *field = ToInteger(text); }
    void operator()(Double* field) const { *field = ToDouble(text); }
};

struct PutNumber {
    Single value;
    void operator()(Variant* field) const { *field = Variant(value); }
    void operator()(Single* field) const { *field = value; }
    void operator()(Integer* field) const { *field = ToInteger(Double{value}); }
    void operator()(Double* field) const { *field = value; }
};

struct PutCount {
    int count;
    void operator()(Variant* field) const { *field = Variant(count); }
    void operator()(Single* field) const { *field = static_cast<Single>(count); }
    void operator()(Integer* field) const { *field = ToInteger(Double(count)); }
    void operator()(Double* field) const { *field = count; }
};

struct NumberOf {
    std::optional<Double> operator()(const Variant* field) const {
        if (field->isEmptyText()) return 0;
        if (!field->isNumeric()) return std::nullopt;
        return field->number();
    }
    template <class Number>
    std::optional<Double> operator()(const Number* field) const {
        return *field;
    }
};

}  // namespace

std::string cellText(const TableField& field) { return std::visit(Shown{}, field); }
void putText(const TableField& field, const std::string& text) { std::visit(PutText{text}, field); }
void putNumber(const TableField& field, Single value) { std::visit(PutNumber{value}, field); }
void putCount(const TableField& field, int count) { std::visit(PutCount{count}, field); }
std::optional<Double> numberOf(const TableField& field) { return std::visit(NumberOf{}, field); }
int countOf(const TableField& field) { return ToLong(numberOf(field).value_or(0)); }

std::string unitText(const TableEntry& entry, int cols, bool si) {
    const std::string text = si ? entry.unitsSI : entry.units;
    const std::vector<UnitWord> words = unitWords(entry, cols, si);
    if (words.empty()) return text;
    std::size_t end = 0;
    for (const UnitWord& word : words) end = text.find(word.text, end) + word.text.size();
    return text.substr(0, end);
}

std::vector<UnitWord> unitWords(const TableEntry& entry, int cols, bool si) {
    std::vector<UnitWord> words;
    std::istringstream text(si ? entry.unitsSI : entry.units);
    int column = 0;
    for (std::string word; column < cols && text >> word; ++column) {
        if (word == "per") {  // "per psi" is one unit
            std::string what;
            text >> what;
            word += " " + what;
        }
        const auto hasUnit = [&](int c) { return entry.columns[static_cast<std::size_t>(c - 1)].hasUnit; };
        while (column > 0 && column < cols && !hasUnit(column)) ++column;
        if (column < cols) words.push_back({word, column});
    }
    return words;
}
