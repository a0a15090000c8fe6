#include "text/figure.h"

#include <array>
#include <cmath>
#include <numbers>

#include "platform/numbers.h"

namespace {

constexpr float twipsPerPoint = 20;
constexpr float arrowHead = 90;
constexpr float tick = 60;

bool oneOf(char c, const char* characters) { return std::string(characters).find(c) != std::string::npos; }

/// Of a letter, as part of the font size; Latin capitals are wide, strokes are narrow.
float widthOf(char c) {
    if (oneOf(c, "iljtfrI.,:;'|!()[] /")) return 0.29F;
    if (oneOf(c, "mwMW")) return 0.83F;
    if (c >= 'A' && c <= 'Z') return 0.68F;
    return 0.555F;
}

}  // namespace

float widthOf(const std::string& text, float size) {
    float ems = 0;
    for (const char c : text) {
        const bool continuesLetter = (static_cast<unsigned char>(c) & 0xC0) == 0x80;
        if (!continuesLetter) ems += widthOf(c);
    }
    return ems * size * twipsPerPoint;
}

std::string inBothUnits(Quantity quantity, double english) {
    struct Units {
        const char *english, *SI;
        double factor;
        const char* pattern;
    };
    static constexpr std::array<Units, 7> units = {{{"in.", "cm", 2.54, "0.##"},
                                                    {"psi", "kPa", 6.894757, "0"},
                                                    {"psi", "MPa", 6.894757e-3, "0"},
                                                    {"pci", "MN/m^3", 0.2714471, "0.#"},
                                                    {"pcf", "kN/m^3", 0.1570875, "0.#"},
                                                    {"F", "C", 5.0 / 9, "0.#"},
                                                    {"lb", "kN", 4.448222e-3, "0.#"}}};
    const Units& unit = units.at(static_cast<std::size_t>(quantity));
    return numberText(english) + " " + unit.english + " (" +
           numberText(ToDouble(Format(english * unit.factor, unit.pattern))) + " " + unit.SI + ")";
}

void Figure::line(float x1, float y1, float x2, float y2, Colour colour, int width) {
    page_.ops.push_back(PageLine{x1, y1, x2, y2, colour, width, false});
}

void Figure::dashed(float x1, float y1, float x2, float y2, Colour colour) {
    page_.ops.push_back(PageLine{x1, y1, x2, y2, colour, 1, true});
}

void Figure::arrow(float x1, float y1, float x2, float y2, Colour colour, int width) {
    line(x1, y1, x2, y2, colour, width);
    const float direction = std::atan2(y2 - y1, x2 - x1);
    for (const float side : {-0.4F, 0.4F}) {
        const float back = direction + std::numbers::pi_v<float> + side;
        line(x2, y2, x2 + arrowHead * std::cos(back), y2 + arrowHead * std::sin(back), colour, width);
    }
}

void Figure::box(float x1, float y1, float x2, float y2, std::optional<Colour> fill, Colour colour) {
    page_.ops.push_back(PageBox{x1, y1, x2, y2, colour, 1, fill});
}

void Figure::circle(float x, float y, float radius, std::optional<Colour> fill, Colour colour, int width) {
    page_.ops.push_back(PageCircle{x, y, radius, colour, width, fill});
}

void Figure::arc(float x, float y, float radius, float from, float to, Colour colour, int width) {
    constexpr int pieces = 48;
    const auto at = [&](int piece) {
        const float degrees = from + (to - from) * static_cast<float>(piece) / pieces;
        const float angle = degrees * std::numbers::pi_v<float> / 180;
        return std::pair(x + radius * std::cos(angle), y - radius * std::sin(angle));
    };
    for (int piece = 0; piece < pieces; ++piece) {
        const auto [x1, y1] = at(piece);
        const auto [x2, y2] = at(piece + 1);
        line(x1, y1, x2, y2, colour, width);
    }
}

void Figure::cross(float x, float y, Colour colour) {
    constexpr float arm = 45;
    line(x - arm, y - arm, x + arm, y + arm, colour, 2);
    line(x - arm, y + arm, x + arm, y - arm, colour, 2);
}

void Figure::text(float x, float y, const std::string& text, float size, Colour colour, bool bold) {
    page_.ops.push_back(PageText{x, y, text, true, colour, {"Liberation Sans", size, bold}});
}

void Figure::centred(float x, float y, const std::string& text, float size, Colour colour, bool bold) {
    this->text(x - widthOf(text, size) / 2, y, text, size, colour, bold);
}

void Figure::named(float x, float y, const std::string& name, const std::string& detail) {
    constexpr float boldWiderBy = 1.1F;
    text(x, y, name, 9, ink::black, true);
    if (!detail.empty()) text(x + boldWiderBy * widthOf(name, 9) + 100, y, detail);
}

void Figure::dimensionAcross(float x1, float x2, float y, const std::string& text) {
    line(x1, y - tick, x1, y + tick, ink::blue);
    line(x2, y - tick, x2, y + tick, ink::blue);
    arrow((x1 + x2) / 2, y, x1, y, ink::blue);
    arrow((x1 + x2) / 2, y, x2, y, ink::blue);
    const float width = widthOf(text, 9);
    this->text(width < x2 - x1 ? (x1 + x2 - width) / 2 : x1, y - 270, text, 9, ink::blue);
}

void Figure::dimensionDown(float x, float y1, float y2, const std::string& text, bool stacked) {
    line(x - tick, y1, x + tick, y1, ink::blue);
    line(x - tick, y2, x + tick, y2, ink::blue);
    arrow(x, (y1 + y2) / 2, x, y1, ink::blue);
    arrow(x, (y1 + y2) / 2, x, y2, ink::blue);
    const std::size_t second = stacked ? text.find(" (") : std::string::npos;
    float row = (y1 + y2) / 2 - (second == std::string::npos ? 110 : 220);
    this->text(x + 80, row, text.substr(0, second), 9, ink::blue);
    if (second != std::string::npos) this->text(x + 80, row + 220, text.substr(second + 1), 9, ink::blue);
}
