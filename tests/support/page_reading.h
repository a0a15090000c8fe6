// Reads a page as a user would: what stands where, in which colour and size.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/page.h"

/// A text from its position to the next one, with all that goes on where it ended.
struct Written {
    float x = 0, y = 0;
    std::string text;
    Colour colour = 0;
    float size = 0;
};

inline std::vector<Written> textsOf(const Page& page) {
    std::vector<Written> all;
    for (const PageOp& op : page.ops) {
        const auto* text = std::get_if<PageText>(&op);
        if (!text) continue;
        if (text->x || text->y || all.empty())
            all.push_back({text->x.value_or(0), text->y.value_or(0), "", text->colour, text->font.size});
        all.back().text += text->text;
    }
    return all;
}

template <class Op>
std::vector<Op> opsOf(const Page& page) {
    std::vector<Op> all;
    for (const PageOp& op : page.ops)
        if (const Op* found = std::get_if<Op>(&op)) all.push_back(*found);
    return all;
}

/// The text that begins at (x, y), within half a twip; empty where none does.
inline std::string textAt(const Page& page, float x, float y) {
    for (const Written& text : textsOf(page))
        if (std::abs(text.x - x) < 0.5F && std::abs(text.y - y) < 0.5F) return text.text;
    return "";
}

/// The text that begins with `start`; a failure and an empty one where there is none.
inline Written textStarting(const Page& page, const std::string& start) {
    for (const Written& text : textsOf(page))
        if (text.text.starts_with(start)) return text;
    ADD_FAILURE() << "no text starts with " << start;
    return {};
}
