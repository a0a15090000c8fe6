// What a solver asks of the values of a deck before it computes, as rows of data
// that are walked along with the cards.
#pragma once

#include <cmath>
#include <limits>
#include <optional>
#include <span>
#include <string>

#include "store/cards.h"

/// What a value of a field must be, and the words for it. Several rows may hold for one field.
template <class Set>
struct ValueRule {
    int card;
    const char* field;
    bool (*holds)(Double x, const Set& s, const Place& at);
    const char* demand;
};

/// The condition of a row: `x` is the value, `s` the data set, `at` the place. Conditions are written so that
/// what is no number does not hold. A file that uses it says what `Set` is.
#define VALUE_HOLDS(condition)                                                                               \
    []([[maybe_unused]] Double x, [[maybe_unused]] const Set& s, [[maybe_unused]] const Place& at) -> bool { \
        return condition;                                                                                    \
    }

inline bool isWhole(Double x, Double least, Double most) {
    return x >= least && x <= most && x == std::floor(x);
}

template <class Set>
class CardChecker : public CardWalker<Set> {
  public:
    /// Thrown where the values end that were read.
    struct End {};

    /// The cells are only read. `end` is where the reading of the deck failed.
    CardChecker(const Set& set, std::span<const ValueRule<Set>> rules, DeckPlace& where, const DeckPlace& end)
        : CardWalker<Set>(const_cast<Set&>(set), where), rules_(rules), end_(end) {}

  private:
    void value(const Card<Set>& card, const Run<Set>&, Cell cell) override {
        stopAtEnd();
        if (std::holds_alternative<std::string*>(cell)) return;
        const Variant value = std::visit([](const auto* held) { return Variant(*held); }, cell);
        if (!value.isNumeric()) fail(value.isEmptyText() ? "empty" : value.text(), "a number is needed");
        const Double x = value.number();
        if (!std::isfinite(x)) fail("not finite", "a number is needed");
        if (std::abs(x) > std::numeric_limits<Single>::max())
            fail(value.text(), "the number must be below 3.4E+38");
        for (const ValueRule<Set>& rule : rules_)
            if (rule.card == card.number && this->where_.field == rule.field &&
                !rule.holds(x, this->set(), this->where_.at))
                fail(value.text(), rule.demand);
    }

    /// A label that failed has no field: all values of its card were read.
    void stopAtEnd() {
        DeckPlace here = this->where_;
        const bool label = end_.field.empty();
        if (label) here.field.clear();
        const bool atEnd = here == end_;
        if (label ? wasAtEnd_ && !atEnd : atEnd) throw End{};
        wasAtEnd_ = atEnd;
    }

    [[noreturn]] void fail(const std::string& said, const std::string& demand) const {
        throw DeckFault{this->where_, this->where_.text(said) + ": " + demand};
    }

    std::span<const ValueRule<Set>> rules_;
    const DeckPlace end_;
    bool wasAtEnd_ = false;
};

/// The first fault of data set `number` in the order of the cards, or nothing. `end`: values from there on
/// were not read and are not looked at.
template <class Set>
std::optional<DeckFault> checkCards(const CardTable<Set>& table, std::span<const ValueRule<Set>> rules,
                                    const Set& set, int number, const DeckPlace& end) {
    if (end.set != 0 && number > end.set) return std::nullopt;
    DeckPlace where{number, 0, "", {}};
    try {
        CardChecker<Set>(set, rules, where, end).walk(table);
    } catch (const typename CardChecker<Set>::End&) {
        return std::nullopt;
    } catch (const DeckFault& fault) {
        return fault;
    } catch (const RunTimeError& error) {
        return DeckFault{where, where.text() + ": " + error.what()};
    }
    return std::nullopt;
}
