#include "store/deck_kind.h"

#include <memory>

#include "layered/layered_deck.h"
#include "platform/run_time_error.h"
#include "slab/slab_deck.h"
#include "store/store.h"

namespace {

/// The label of card (3), which begins alike in both decks: four numbers on the third line.
std::string thirdLabel(ListReader& in) {
    try {
        in.readDouble();
        in.readText();
        in.readText();  // the title
        for (int n = 0; n < 4; ++n) in.readDouble();
        return in.readText();
    } catch (const RunTimeError&) {
        return "";
    }
}

}  // namespace

DeckKind deckKind(const std::string& path) {
    ListReader in(path);
    const std::string label = thirdLabel(in);
    if (label.starts_with("(3) MATL")) return DeckKind::Layered;
    if (label.starts_with("(3) NFOUND")) return DeckKind::Slab;
    const auto scratch = std::make_unique<Store>();
    const auto complete = DeckReadResult::Outcome::Complete;
    if (readLayeredDeck(path, *scratch).outcome == complete) return DeckKind::Layered;
    return readSlabDeck(path, *scratch).outcome == complete ? DeckKind::Slab : DeckKind::Unknown;
}
