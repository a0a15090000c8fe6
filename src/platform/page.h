// A page is a display list in twips (1/1440 inch). Plots and sheets write it;
// one renderer paints it on the screen, on paper, to PDF, SVG and PNG.
//
// Each entry carries its own pen, font and colour, so that a page can be read by
// tests and painted from any point. A text without a position goes on where the
// last one ended: only the renderer knows how wide a text is.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

using Colour = std::uint32_t;  ///< 0xRRGGBB

/// The 16 palette colours by index. SubscriptOutOfRange outside 0 to 15.
Colour QBColor(int index);

struct PageFont {
    std::string face = "Liberation Sans";
    float size = 10;  ///< points; one point is 20 twips
    bool bold = false;
    bool operator==(const PageFont&) const = default;
};

/// Text, left aligned, its top at y. A missing x or y keeps the current one. After the text the current
/// position is its right end, or, when it ends the line, x = 0 and y one font line lower.
struct PageText {
    std::optional<float> x, y;
    std::string text;
    bool endsLine = false;
    Colour colour = 0;
    PageFont font;
};

struct PageLine {
    float x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    Colour colour = 0;
    int width = 1;  ///< pen width; one unit is 10 twips
    bool dashed = false;
};

struct PageBox {
    float x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    Colour colour = 0;
    int width = 1;
    std::optional<Colour> fill;
};

struct PageCircle {
    float x = 0, y = 0, radius = 0;
    Colour colour = 0;
    int width = 1;
    std::optional<Colour> fill;
};

using PageOp = std::variant<PageText, PageLine, PageBox, PageCircle>;

struct Page {
    float width = 0, height = 0;
    std::vector<PageOp> ops;
};
