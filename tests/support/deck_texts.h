// Decks as texts: parts of them, changed ones and spoiled ones, and the values that
// their cards hold.
#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "store/cards.h"
#include "support/random_cells.h"
#include "support/text_change.h"

/// The deck from the line behind the label of card `from` to the end, with line ends as "|".
inline std::string linesAfter(const std::string& deck, const std::string& label) {
    std::string lines;
    for (const char c : deck.substr(deck.find(label) + label.size() + 2))
        if (c != '\r') lines += c == '\n' ? '|' : c;
    return lines;
}

/// Every value that a data set's cards hold, with its place.
template <class Set>
class Values : public CardWalker<Set> {
  public:
    Values(Set& set, DeckPlace& where) : CardWalker<Set>(set, where) {}
    std::vector<std::pair<std::string, Variant>> found;

  private:
    void value(const Card<Set>&, const Run<Set>&, Cell cell) override {
        found.emplace_back(this->where_.text(),
                           std::visit([](const auto* held) { return Variant(*held); }, cell));
    }
};

template <class Set>
std::vector<std::pair<std::string, Variant>> valuesOf(Set& set, const CardTable<Set>& cards) {
    DeckPlace where;
    Values<Set> values(set, where);
    values.walk(cards);
    return values.found;
}

/// Cuts the text, or doubles, drops, swaps or spoils some of its tokens.
inline std::string mutated(const std::string& deck, RandomCells& random) {
    std::vector<std::string> tokens;
    std::istringstream stream(deck);
    for (std::string token; stream >> token;)
        tokens.push_back(token + (stream.peek() == '\r' ? "\r\n" : " "));
    const auto any = [&] {
        return static_cast<std::ptrdiff_t>(random.from(0, static_cast<int>(tokens.size()) - 1));
    };
    static const char* spoils[] = {"-1 ",  "0 ", "1E9 ", "1E39 ", "32768 ", "2.5 ",
                                   "abc ", "\"", ",",    "\n",    "(9) ",   ""};
    for (int times = random.from(1, 4); times > 0 && tokens.size() > 1; --times) {
        const auto at = any();
        const auto token = tokens.begin() + at;
        switch (random.from(0, 4)) {
            case 0:
                tokens.erase(token + 1, tokens.end());
                tokens.back().resize(
                    static_cast<std::size_t>(random.from(0, static_cast<int>(token->size()))));
                break;
            case 1:
                tokens.insert(token, std::string(*token));
                break;
            case 2:
                tokens.erase(token);
                break;
            case 3:
                std::swap(*token, tokens[static_cast<std::size_t>(any())]);
                break;
            default:
                *token = spoils[random.from(0, 11)];
        }
    }
    std::string text;
    for (const auto& token : tokens) text += token;
    return text;
}
