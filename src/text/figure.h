// A pen for the figures of the sheets: lines, arrows, dimensions and labels on a
// page, in twips from its upper left corner.
#pragma once

#include <string>

#include "platform/page.h"

namespace ink {
constexpr Colour black = 0x202020, grey = 0x808080, blue = 0x1F4E9E, red = 0xB02020;
}

class Figure {
  public:
    explicit Figure(float width, float height) : page_{width, height, {}} {}
    const Page& page() const { return page_; }

    void line(float x1, float y1, float x2, float y2, Colour colour = ink::black, int width = 1);
    void dashed(float x1, float y1, float x2, float y2, Colour colour = ink::grey);
    /// A line with a head at its end.
    void arrow(float x1, float y1, float x2, float y2, Colour colour = ink::black, int width = 1);
    void box(float x1, float y1, float x2, float y2, std::optional<Colour> fill, Colour colour = ink::black);
    void circle(float x, float y, float radius, std::optional<Colour> fill = {}, Colour colour = ink::black,
                int width = 1);
    /// Part of a circle, angles in degrees, counted from the right against the clock.
    void arc(float x, float y, float radius, float from, float to, Colour colour = ink::black, int width = 1);
    /// A response point.
    void cross(float x, float y, Colour colour = ink::red);

    void text(float x, float y, const std::string& text, float size = 9, Colour colour = ink::black,
              bool bold = false);
    /// Centred about x. Only the renderer knows a text's true width; this one is within a few per cent.
    void centred(float x, float y, const std::string& text, float size = 9, Colour colour = ink::black,
                 bool bold = false);

    /// A bold name and, behind it, what is said of it, if anything.
    void named(float x, float y, const std::string& name, const std::string& detail);

    /// A dimension between two points on a level, its text above the middle, or above its begin where it is
    /// longer.
    void dimensionAcross(float x1, float x2, float y, const std::string& text);
    /// A dimension between two points above each other, its text to the right of the middle; `stacked` puts
    /// the second unit below the first.
    void dimensionDown(float x, float y1, float y2, const std::string& text, bool stacked = false);

  private:
    Page page_;
};

/// Width in twips of a text in Liberation Sans, within a few per cent.
float widthOf(const std::string& text, float size);

enum class Quantity { Length, Pressure, Modulus, SubgradeModulus, UnitWeight, TemperatureDifference, Force };

/// A value of a deck in English units in both systems: "6 in. (15.24 cm)".
std::string inBothUnits(Quantity quantity, double english);
