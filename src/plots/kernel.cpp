#include "plots/kernel.h"

#include <cmath>

#include "platform/run_time_error.h"

Single finite(Single value) {
    if (!std::isfinite(value)) throw RunTimeError(Fault::Overflow);
    return value;
}

namespace {

/// One half of the mapping: the share of the real range, as a percentage of the page, in device units.
Single mapped(Single value, Single real1, Single real2, Single percent1, Single percent2, Long device1,
              Long device2) {
    const Single range = finite(real2 - real1);
    if (range == 0) throw RunTimeError(Fault::DivisionByZero);
    const Single share = finite(finite(value - real1) / range);
    const Single percent = finite(finite(share * finite(percent2 - percent1)) + percent1);
    const Single part = finite(percent / 100 * static_cast<Single>(device2 - device1));
    return finite(part + static_cast<Single>(device1));
}

/// Printed numbers carry their sign blank and one blank behind.
template <class Number>
std::string printed(Number value) {
    return Str(value) + " ";
}

}  // namespace

std::string formatInPlace(Integer& value, std::string_view format) {
    value = ToInteger(Format(static_cast<Double>(value), format));
    return printed(value);
}

std::string formatInPlace(Long& value, std::string_view format) {
    value = ToLong(Format(static_cast<Double>(value), format));
    return printed(value);
}

std::string formatInPlace(Single& value, std::string_view format) {
    value = ToSingle(Format(value, format));
    return printed(value);
}

std::string formatInPlace(Variant& value, std::string_view format) {
    value = Variant(Format(value, format));
    return value.text();
}

Kernel::Kernel() {
    page_.width = pageWidth;
    page_.height = pageHeight;
}

void Kernel::QScreen() {
    QDev = {0, ToLong(static_cast<Double>(page_.width)), ToLong(static_cast<Double>(page_.height)), 0};
}

void Kernel::QPlotSetup(Single PX1, Single PX2, Single PY1, Single PY2, Single RX1, Single RX2, Single RY1,
                        Single RY2) {
    QWin = {PX1, PX2, PY1, PY2, RX1, RX2, RY1, RY2};
}

Kernel::Point Kernel::QRtoI(Single x, Single y) const { return {QRtoIX(x), QRtoIY(y)}; }

Single Kernel::QRtoIX(Single x) const {
    return mapped(x, QWin.RX1, QWin.RX2, QWin.PX1, QWin.PX2, QDev.IXL, QDev.IXR);
}

Single Kernel::QRtoIY(Single y) const {
    return mapped(y, QWin.RY1, QWin.RY2, QWin.PY1, QWin.PY2, QDev.IYB, QDev.IYT);
}

void Kernel::QLine(Single x1, Single y1, Single x2, Single y2, int colour) {
    const Point from = QRtoI(x1, y1);
    const Point to = QRtoI(x2, y2);
    Line(from.ix, from.iy, to.ix, to.iy, QBColor(colour));
}

void Kernel::PaintRCT(Single x1, Single x2, Single y1, Single y2, int colour) {
    QLine(x1, y1, x2, y1, colour);
    QLine(x2, y1, x2, y2, colour);
    QLine(x2, y2, x1, y2, colour);
    QLine(x1, y2, x1, y1, colour);
}

void Kernel::QGTxt(const std::string& text, int colour, Single x, Single y) {
    ForeColor = QBColor(colour);
    moveTo(x, y);
    PrintLine(text);
    ForeColor = QBColor(0);
}

void Kernel::QGtxtY(const std::string& text, int colour, Single x, Single y) {
    ForeColor = QBColor(colour);
    nextY_ = QMargin + y;
    for (const char character : text) {
        nextX_ = QMargin + x;
        PrintLine(std::string(1, character));
    }
    ForeColor = QBColor(0);
}

void Kernel::QXaxis(Single x0, Single y0) {
    constexpr Single tick = 100, labelY = 5250;
    for (int i = 0; i <= 5; ++i) {
        const auto n = static_cast<Single>(i);
        const Single pos = x0 + std::nearbyint(n * QStep.deviceX);
        Line(pos, y0 + tick, pos, y0, ForeColor);
        moveTo(n * QStep.deviceX + x0 - 200, labelY);
        PrintLine(printed(n * QStep.realX + QWin.RX1));
    }
}

void Kernel::QYaxis(Single x0, Single y0) {
    constexpr Single tick = 100, labelX = 450;
    const Single scale = x0 - 550;
    for (int i = 0; i <= 3; ++i) {
        const auto n = static_cast<Single>(i);
        const Single pos = y0 - n * QStep.deviceY;
        Line(scale, pos, scale + tick, pos, ForeColor);
        moveTo(labelX, pos - 100);
        PrintLine(printed(n * QStep.realY + QWin.RY1));
    }
}

void Kernel::Line(Single x1, Single y1, Single x2, Single y2, Colour colour) {
    page_.ops.push_back(PageLine{QMargin + x1, QMargin + y1, QMargin + x2, QMargin + y2, colour, DrawWidth,
                                 DrawStyle == Pen::Dotted});
}

void Kernel::Box(Single x1, Single y1, Single x2, Single y2, Colour colour) {
    page_.ops.push_back(
        PageBox{QMargin + x1, QMargin + y1, QMargin + x2, QMargin + y2, colour, DrawWidth, std::nullopt});
}

void Kernel::Circle(Single x, Single y, Single radius, Colour colour) {
    if (radius < 0) throw RunTimeError(Fault::InvalidCall, "radius of a circle");
    PageCircle circle{QMargin + x, QMargin + y, radius, colour, DrawWidth, std::nullopt};
    if (FillStyle == Fill::Solid) circle.fill = FillColor;
    page_.ops.push_back(circle);
}

void Kernel::Print(const std::string& text) {
    if (!text.empty()) put(text, false);
}

void Kernel::PrintLine(const std::string& text) { put(text, true); }

void Kernel::moveTo(Single x, Single y) {
    nextX_ = QMargin + x;
    nextY_ = QMargin + y;
}

void Kernel::put(const std::string& text, bool endsLine) {
    page_.ops.push_back(PageText{nextX_, nextY_, text, endsLine, ForeColor, Font});
    nextX_.reset();
    nextY_.reset();
}
