// Which solver a deck is for, told from its content.
#pragma once

#include <string>

enum class DeckKind { Layered, Slab, Unknown };

/// Goes by the label of card (3); a deck whose labels are short is of the side that can read it.
/// FileNotFound, PermissionDenied.
DeckKind deckKind(const std::string& path);
