// Decks as texts: parts of them, changed ones and spoiled ones, and the values that
// their cards hold.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "layered/layered_deck.h"
#include "slab/slab_deck.h"
#include "store/cards.h"
#include "store/store.h"
#include "support/random_cells.h"
#include "support/text_change.h"

/// The deck from the line behind the label of card `from` to the end, with line ends as "|".
inline std::string linesAfter(const std::string& deck, const std::string& label) {
    std::string lines;
    for (const char c : deck.substr(deck.find(label) + label.size() + 2))
        if (c != '\r') lines += c == '\n' ? '|' : c;
    return lines;
}

/// How many random decks a test makes: a few, or as many as TOLMARK_LONG_RUN says.
inline int rounds(int usual) {
    const char* wanted = std::getenv("TOLMARK_LONG_RUN");
    return wanted ? std::stoi(wanted) : usual;
}

/// The deck that a store is written as.
template <class Save>
std::string deckText(Save save) {
    std::ostringstream text;
    ListWriter out(text);
    save(out);
    out.close();
    return text.str();
}
inline std::string layeredDeckOf(const Store& store) {
    return deckText([&](ListWriter& out) { saveLayeredDeck(store, out); });
}
inline std::string slabDeckOf(const Store& store) {
    return deckText([&](ListWriter& out) { saveSlabDeck(store, out); });
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
    const auto upTo = [&](std::size_t most) {
        return static_cast<std::size_t>(random.from(0, static_cast<int>(most)));
    };
    static const char* spoils[] = {"-1 ",  "0 ", "1E9 ", "1E39 ", "32768 ", "2.5 ",
                                   "abc ", "\"", ",",    "\n",    "(9) ",   ""};
    for (std::size_t times = 1 + upTo(3); times > 0; --times) {
        const std::size_t at = upTo(tokens.size() - 1);
        switch (random.from(0, 3)) {
            case 0:
                tokens.resize(at + 1);
                tokens[at].resize(upTo(tokens[at].size()));
                break;
            case 1:
                tokens[at] += tokens[at];
                break;
            case 2:
                std::swap(tokens[at], tokens[upTo(tokens.size() - 1)]);
                break;
            default:
                tokens[at] = spoils[upTo(std::size(spoils) - 1)];
        }
    }
    std::string text;
    for (const auto& token : tokens) text += token;
    return text;
}
