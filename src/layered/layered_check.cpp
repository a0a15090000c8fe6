#include "layered/layered_check.h"

#include <cmath>

#include "layered/layered_cards.h"
#include "platform/run_time_error.h"
#include "store/store.h"

namespace {

/// What a value of a field must be, and the words for it.
struct Rule {
    int card;
    const char* field;
    bool (*holds)(Double x, const LayeredSet& s, const Place& at);
    const char* demand;
};

bool isWhole(Double x, Double least, Double most) { return x >= least && x <= most && x == std::floor(x); }

#define HOLDS(condition)                                                \
    []([[maybe_unused]] Double x, [[maybe_unused]] const LayeredSet& s, \
       [[maybe_unused]] const Place& at) -> bool { return condition; }

// Comparisons are written so that what is no number does not hold.
const Rule rules[] = {
    {3, "MATL", HOLDS(isWhole(x, 1, 4)), "MATL must be 1, 2, 3 or 4"},
    {3, "NDAMA", HOLDS(isWhole(x, 0, 2)), "NDAMA must be 0, 1 or 2"},
    {3, "NPY", HOLDS(isWhole(x, 1, 12)), "there must be 1 to 12 periods"},
    {3, "NLG", HOLDS(isWhole(x, 1, 12)), "there must be 1 to 12 load groups"},
    {4, "DEL", HOLDS(x > 0), "the tolerance must be greater than 0"},
    {5, "NL", HOLDS(isWhole(x, 1, 19)), "there must be 1 to 19 layers"},
    {5, "NZ", HOLDS(isWhole(x, s.NDAMA == 0 ? 1 : 0, 19)),
     "there must be 1 to 19 depths, or with a damage analysis 0 to 19"},
    {5, "ICL", HOLDS(x >= 1), "there must be 1 cycle of integration or more"},
    {5, "NSTD", HOLDS(x == 1 || x == 5 || x == 9), "NSTD must be 1, 5 or 9"},
    {6, "TH", HOLDS(x > 0), "the thickness must be greater than 0"},
    {7, "PR", HOLDS(x > -1 && x <= .5), "Poisson's ratio must be above -1 and at most .5"},
    {8, "ZC", HOLDS(x >= 0), "the depth must not be negative"},
    {10, "INT", HOLDS(x == 0 || x == 1), "INT must be 0 or 1"},
    {11, "E", HOLDS(x > 0 || isViscoelastic(s, at.k)), "the modulus must be greater than 0"},
    {13, "LOAD", HOLDS(isWhole(x, 0, 3)), "LOAD must be 0, 1, 2 or 3"},
    {14, "CR", HOLDS(x > 0), "the contact radius must be greater than 0"},
    {14, "CP", HOLDS(x > 0), "the contact pressure must be greater than 0"},
    {16, "NR", HOLDS(isWhole(x, 0, 25)), "there must be 0 to 25 points"},
    {17, "RC", HOLDS(x >= 0), "the radial coordinate must not be negative"},
    {19, "NPT", HOLDS(isWhole(x, 0, 25)), "there must be 0 to 25 points"},
    {20, "XW", HOLDS(s.LOADL[at.i].LOAD.number() > 1 ? x > 0 : x >= 0),
     "the spacing of several axles must be greater than 0"},
    {20, "YW", HOLDS(x >= 0), "the spacing must not be negative"},
};

class Checker : public CardWalker<LayeredSet> {
  public:
    /// The cells are only read.
    Checker(const LayeredSet& set, DeckPlace& where) : CardWalker(const_cast<LayeredSet&>(set), where) {}

  private:
    void value(const Card<LayeredSet>& card, const Run<LayeredSet>&, Cell cell) override {
        if (std::holds_alternative<std::string*>(cell)) return;
        const Variant value = std::visit([](const auto* held) { return Variant(*held); }, cell);
        if (!value.isNumeric()) fail(value.isEmptyText() ? "empty" : value.text(), "a number is needed");
        const Double x = value.number();
        if (!std::isfinite(x)) fail("not finite", "a number is needed");
        for (const Rule& rule : rules)
            if (rule.card == card.number && where_.field == rule.field && !rule.holds(x, set(), where_.at))
                fail(value.text(), rule.demand);
    }

    [[noreturn]] void fail(const std::string& said, const std::string& demand) const {
        throw DeckFault{where_, where_.text(said) + ": " + demand};
    }
};

}  // namespace

std::optional<DeckFault> checkLayeredSet(const LayeredSet& set, int number) {
    DeckPlace where{number, 0, "", {}};
    try {
        Checker(set, where).walk(layeredCards());
    } catch (const DeckFault& fault) {
        return fault;
    } catch (const RunTimeError& error) {
        return DeckFault{where, where.text() + ": " + error.what()};
    }
    return std::nullopt;
}

std::optional<DeckFault> checkLayeredDeck(const Store& store) {
    if (!isWhole(store.NPROB, 1, 5)) {
        const DeckPlace where{0, 1, "NPROB", {}};
        return DeckFault{where, where.text(numberText(store.NPROB)) + ": there must be 1 to 5 data sets"};
    }
    for (int number = 1; number <= store.NPROB; ++number)
        if (auto fault = checkLayeredSet(store.layered[number], number)) return fault;
    return std::nullopt;
}
