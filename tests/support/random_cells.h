// Random values for data sets, such that a deck keeps them.
#pragma once

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "store/cards.h"

class RandomCells {
  public:
    explicit RandomCells(unsigned seed) : random_(seed) {}

    int from(int least, int most) { return std::uniform_int_distribution<int>(least, most)(random_); }

  protected:
    /// At most six digits: such a number keeps its value through the seven digits of a Single.
    Double someNumber() {
        return ToDouble(std::to_string(from(-999999, 999999)) + "E" + std::to_string(from(-12, 6)));
    }

    Variant someCell() {
        const Double value = someNumber();
        const Variant cells[] = {from(-20000, 20000), static_cast<Single>(value), numberText(value),
                                 " " + std::to_string(from(0, 99)) + ". ", value};
        return cells[from(0, 4)];
    }
    /// Mostly small, so that decks stay short.
    Variant someCount(int most) {
        const int count = from(0, 3) == 0 ? from(0, most) : from(0, std::min(3, most));
        return from(0, 1) ? Variant(static_cast<Double>(count)) : Variant(std::to_string(count));
    }

    /// Every field of every card beyond the ones that steer, which must be set by then.
    template <class Set>
    void randomizeOthers(Set& set, const CardTable<Set>& cards, const std::vector<std::string>& steering) {
        DeckPlace where;
        Filler<Set>(*this, set, where, steering).walk(cards);
    }

  private:
    template <class Set>
    class Filler : public CardWalker<Set> {
      public:
        Filler(RandomCells& random, Set& set, DeckPlace& where, const std::vector<std::string>& steering)
            : CardWalker<Set>(set, where), random_(random), steering_(steering) {}

      private:
        void value(const Card<Set>&, const Run<Set>&, Cell cell) override {
            if (std::find(steering_.begin(), steering_.end(), this->where_.field) == steering_.end())
                random_.randomize(cell);
        }
        RandomCells& random_;
        const std::vector<std::string>& steering_;
    };

    void randomize(Cell cell) {
        if (auto* whole = std::get_if<Integer*>(&cell)) **whole = static_cast<Integer>(from(-32768, 32767));
        if (auto* single = std::get_if<Single*>(&cell)) **single = static_cast<Single>(someNumber());
        if (auto* number = std::get_if<Double*>(&cell)) **number = someNumber();
        if (auto* variant = std::get_if<Variant*>(&cell)) **variant = someCell();
    }

    std::mt19937 random_;
};
