// Decks are text files of cards: lines of free-format values that end in a label.
// A deck's cards are stated once, as rows of data; the writer, the reader and the
// checks walk the same rows.
#pragma once

#include <algorithm>
#include <cmath>
#include <string>
#include <variant>
#include <vector>

#include "platform/list_file.h"
#include "platform/numbers.h"
#include "platform/run_time_error.h"

/// Position of a value: outer and inner repetition of its card, place in its list. 0 where there is none.
struct Place {
    int i = 0, j = 0, k = 0;
    bool operator==(const Place&) const = default;
};

/// A value of a data set, by the type that it is stored in. A text takes the whole line.
using Cell = std::variant<Integer*, Single*, Double*, Variant*, std::string*>;

template <class Set>
struct Field {
    const char* name;
    Cell (*cell)(Set&, const Place&);
};

/// How often a list or a card is repeated, from the data set as it is at that moment. May be below 0.
template <class Set>
using Count = Double (*)(const Set&, const Place&);

template <class Set>
using Condition = bool (*)(const Set&, const Place&);

/// Numbers bring a blank behind them; spaced values have one more.
enum class Layout { Close, Spaced };

/// Fields that follow each other on a card, once or as a list of `count` times all of them.
template <class Set>
struct Run {
    Layout layout;
    std::vector<Field<Set>> fields;
    Count<Set> count = nullptr;
    bool startsLineWhenMany = false;  ///< a list of more than one begins on a line of its own
};

/// What becomes of the label of a card whose last list is empty. Without it the line stays open.
enum class EmptyList { DropsLabel, KeepsLabel };

template <class Set>
struct Card {
    int number;         ///< as the label has it; also of a card without a label
    const char* label;  ///< nullptr: the line has none
    std::vector<Run<Set>> runs;
    Condition<Set> when = nullptr;
    EmptyList emptyList = EmptyList::DropsLabel;
};

/// Cards that repeat together, in at most two loops.
template <class Set>
struct Block {
    Condition<Set> when;  ///< nullptr: always
    std::vector<Count<Set>> loops;
    std::vector<Card<Set>> cards;
};

template <class Set>
using CardTable = std::vector<Block<Set>>;

// The cells and conditions of the rows: `s` is the data set, `at` the place. A file that uses them says what
// `Set` is.
#define CARD_FIELD(name, value)                                                                          \
    Field<Set> {                                                                                         \
        name, []([[maybe_unused]] Set& s, [[maybe_unused]] const Place& at) -> Cell { return &(value); } \
    }
#define CARD_COUNT(value) \
    [](const Set& s, [[maybe_unused]] const Place& at) -> Double { return static_cast<Double>(value); }
#define CARD_WHEN(condition) [](const Set& s, [[maybe_unused]] const Place& at) -> bool { return condition; }

/// Where in a deck a value stands, for messages.
struct DeckPlace {
    int set = 0;   ///< data set, 0 in front of the first
    int card = 0;  ///< number of the card, 0 when no card is meant
    std::string field;
    Place at;
    bool operator==(const DeckPlace&) const = default;

    /// "EMIN(2, 1)"
    std::string fieldText() const;
    /// "TH(2), card (6), data set 1", or with what the value is, "TH(2) is -3, card (6), data set 1"
    std::string text(const std::string& value = "") const;
};

/// What is wrong with a deck, in one sentence that names card and field.
struct DeckFault {
    DeckPlace where;
    std::string sentence;
};

struct DeckReadResult {
    enum class Outcome {
        Complete,
        NotADeck,  ///< the one label that is tested is not there
        Failed,    ///< no number, out of range, beyond a bound, end of file, no such file
    };
    Outcome outcome = Outcome::Complete;
    DeckPlace where;
    int line = 0;        ///< of the file, from 1; 0 when the file could not be opened
    std::string reason;  ///< "\"abc\" is no number"
    /// What was read otherwise than the user may think, a sentence each: values that were passed over, signs
    /// of an old format.
    std::vector<std::string> remarks = {};

    /// "line 7: TH(2), card (6), data set 1: \"abc\" is no number"
    std::string sentence() const;
};

/// Goes through the cards of one data set in the order of the file. What a card, a value and the end of a
/// card mean is told by the writer, the reader and the checks.
template <class Set>
class CardWalker {
  public:
    /// `where` follows the walk and stays at the value that failed.
    CardWalker(Set& set, DeckPlace& where) : where_(where), set_(set) {}
    virtual ~CardWalker() = default;

    /// A repetition beyond the store, or a count that is no number, is a RunTimeError.
    void walk(const CardTable<Set>& table) {
        for (const Block<Set>& block : table)
            if (!block.when || block.when(set_, {})) walkLoops(block, 0, {});
    }

  protected:
    virtual void card(const Card<Set>& card, const Place& at) {
        where_.card = card.number;
        int times = 1;
        for (const Run<Set>& run : card.runs) {
            times = repetitions(run.count, at);
            if (run.startsLineWhenMany && times > 1) lineEnd();
            for (int n = 1; n <= times; ++n)
                for (const Field<Set>& field : run.fields)
                    walkValue(card, run, field, {at.i, at.j, run.count ? n : 0});
        }
        if (times > 0 || card.emptyList == EmptyList::KeepsLabel) cardEnd(card);
    }
    virtual void value(const Card<Set>& card, const Run<Set>& run, Cell cell) = 0;
    virtual void cardEnd(const Card<Set>&) {}
    virtual void lineEnd() {}

    Set& set() const { return set_; }
    DeckPlace& where_;

  private:
    int repetitions(Count<Set> count, const Place& at) const {
        // More than any array holds: every loop that reaches a value ends at that array's bound.
        constexpr Double beyondAllArrays = 1000;
        if (!count) return 1;
        const Double times = std::floor(count(set_, at));
        return times > 0 ? static_cast<int>(std::min(times, beyondAllArrays)) : 0;
    }

    void walkLoops(const Block<Set>& block, std::size_t depth, Place at) {
        if (depth == block.loops.size()) {
            for (const Card<Set>& each : block.cards)
                if (!each.when || each.when(set_, at)) card(each, at);
            return;
        }
        const int times = repetitions(block.loops[depth], at);
        int& index = depth == 0 ? at.i : at.j;
        for (index = 1; index <= times; ++index) walkLoops(block, depth + 1, at);
    }
    void walkValue(const Card<Set>& card, const Run<Set>& run, const Field<Set>& field, const Place& at) {
        where_.field = field.name;
        where_.at = at;
        value(card, run, field.cell(set_, at));
    }

    Set& set_;
};

/// What a Variant that holds a text writes where the text is a number: the text as it was typed, or the
/// number like any other.
enum class TypedText { AsTyped, AsNumber };

/// Writes one value. A Variant whose text is no number is a TypeMismatch.
void writeCell(ListWriter& out, const Cell& cell, Layout layout, TypedText typedText);
/// Reads one value. A number that goes into a Variant is a Double there.
void readCell(ListReader& in, const Cell& cell);

template <class Set>
class CardWriter : public CardWalker<Set> {
  public:
    /// The cells are given out for reading and for writing alike; nothing is written into `set` here.
    CardWriter(ListWriter& out, const Set& set, DeckPlace& where, TypedText typedText = TypedText::AsNumber)
        : CardWalker<Set>(const_cast<Set&>(set), where), out_(out), typedText_(typedText) {}

  private:
    void value(const Card<Set>&, const Run<Set>& run, Cell cell) override {
        writeCell(out_, cell, run.layout, typedText_);
    }
    void cardEnd(const Card<Set>& card) override { out_.line(card.label ? card.label : ""); }
    void lineEnd() override { out_.endLine(); }

    ListWriter& out_;
    TypedText typedText_;
};

/// How far the reading of a deck has come, and what there is to say of it.
struct DeckReading {
    DeckPlace where;
    int line = 0;  ///< of `where`; 0: where the reader stands
    std::vector<std::string> remarks;
};

/// What there is to say of the label of card `card` when it is that of another card, or has values in front;
/// empty for any other.
std::string remarkOnLabel(const std::string& label, int card);

template <class Set>
class CardReader : public CardWalker<Set> {
  public:
    CardReader(ListReader& in, Set& set, DeckReading& reading)
        : CardWalker<Set>(set, reading.where), in_(in), reading_(reading) {}

  protected:
    void value(const Card<Set>&, const Run<Set>&, Cell cell) override { readCell(in_, cell); }
    void cardEnd(const Card<Set>& card) override {
        if (!card.label) return;
        this->where_.field = "";
        labelLine_ = in_.lineNumber();
        label_ = in_.readText();
        if (const std::string sentence = remarkOnLabel(label_, this->where_.card); !sentence.empty())
            remark(sentence);
    }
    /// "line 4: card (4), data set 1: ..." about the card whose label was read last.
    void remark(const std::string& sentence) {
        reading_.remarks.push_back("line " + std::to_string(labelLine_) + ": " + this->where_.text() + ": " +
                                   sentence);
    }
    /// The label last read, without its leading blank.
    const std::string& label() const { return label_; }
    int labelLine() const { return labelLine_; }

    ListReader& in_;
    DeckReading& reading_;

  private:
    std::string label_;
    int labelLine_ = 0;
};

/// A unit weight of the old formats in the present unit, which is whole there. Overflow beyond an Integer.
Integer perCubicFoot(Double perCubicInch);

/// The result for a reading that failed.
DeckReadResult failedRead(const RunTimeError& error, const ListReader& in, const DeckReading& reading);
