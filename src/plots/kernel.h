// The drawing layer of the plot screens: a window from real (engineering)
// coordinates to a page in twips, lines, number texts, two axes, a rectangle.
// It writes a Page; each plot screen has a kernel of its own.
//
// Device y grows downwards, viewport percentages are of the whole page from its
// left and bottom edges, and every member that draws or places text adds QMargin
// to device coordinates at that moment.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/numbers.h"
#include "platform/page.h"

/// Assigns Format(value, format) back to `value`, which keeps its type, and gives the default text of the
/// value that is now there: a number between its blanks, a Variant's text bare. A format result that is no
/// number is a type mismatch for a numeric variable.
std::string formatInPlace(Integer& value, std::string_view format);
std::string formatInPlace(Long& value, std::string_view format);
std::string formatInPlace(Single& value, std::string_view format);
std::string formatInPlace(Variant& value, std::string_view format);

/// The value, or Overflow where arithmetic has left the Singles.
Single finite(Single value);

class Kernel {
  public:
    static constexpr Single QMargin = 1200;
    static constexpr Single pageWidth = QMargin + 9615;
    static constexpr Single pageHeight = QMargin + 6450;

    struct Window {
        Single PX1 = 0, PX2 = 0, PY1 = 0, PY2 = 0;  ///< viewport, percent of the page
        Single RX1 = 0, RX2 = 0, RY1 = 0, RY2 = 0;  ///< real coordinates at its edges
    };
    struct Device {
        Long IXL = 0, IXR = 0, IYB = 0, IYT = 0;
    };
    struct Steps {
        Single realX = 0, deviceX = 0, realY = 0, deviceY = 0;
    };
    struct Point {
        Single ix = 0, iy = 0;
    };
    enum class Fill { Solid, Transparent };
    enum class Pen { Solid, Dotted };

    Window QWin;
    Device QDev;
    Steps QStep;  ///< of the two axes; set by the caller before it draws them

    // The state of the drawing surface: what is drawn next takes it.
    Colour ForeColor = 0;
    Colour FillColor = 0;
    Fill FillStyle = Fill::Transparent;
    int DrawWidth = 1;
    Pen DrawStyle = Pen::Solid;  ///< of lines
    PageFont Font;

    /// A blank page; its device rectangle is set by QScreen.
    Kernel();
    const Page& page() const { return page_; }

    void QScreen();
    void QPlotSetup(Single PX1, Single PX2, Single PY1, Single PY2, Single RX1, Single RX2, Single RY1,
                    Single RY2);

    /// A real point on the page, without QMargin. Single arithmetic, each intermediate rounded.
    /// DivisionByZero for a window without extent, Overflow for a result out of range.
    Point QRtoI(Single x, Single y) const;
    Single QRtoIX(Single x) const;
    Single QRtoIY(Single y) const;

    /// Real coordinates; palette colours here and below are QBColor indexes.
    void QLine(Single x1, Single y1, Single x2, Single y2, int colour);
    /// The outline of a rectangle in real coordinates; not filled.
    void PaintRCT(Single x1, Single x2, Single y1, Single y2, int colour);

    /// A text at a device position, its line ended; the colour is black afterwards.
    void QGTxt(const std::string& text, int colour, Single x, Single y);
    /// The same, one character a line.
    void QGtxtY(const std::string& text, int colour, Single x, Single y);

    /// A label and a number at a device position. The number is formatted in place.
    template <class Number>
    void SHOWnum(Single x, Single y, const std::string& label, std::string_view format, Number& value) {
        moveTo(x, y);
        PRN(label, format, value);
    }
    template <class Number>
    void SHOWn(Single x, Single y, std::string_view format, Number& value) {
        SHOWnum(x, y, "", format, value);
    }
    /// A label and a number where the last text ended.
    template <class Number>
    void PRN(const std::string& label, std::string_view format, Number& value) {
        Print(label);
        Print(formatInPlace(value, format));
    }

    /// The scale under the section view: six ticks from (x0, y0); its labels have a fixed height on the page.
    void QXaxis(Single x0, Single y0);
    /// The scale left of the plan view: four ticks upwards from y0.
    void QYaxis(Single x0, Single y0);

    // The surface itself, in device units without QMargin.
    void Line(Single x1, Single y1, Single x2, Single y2, Colour colour);
    /// The outline of a rectangle.
    void Box(Single x1, Single y1, Single x2, Single y2, Colour colour);
    /// Filled with FillColor when FillStyle is solid. A negative radius is InvalidCall.
    void Circle(Single x, Single y, Single radius, Colour colour);
    /// Where the last text ended, the line not ended. An empty text leaves no trace.
    void Print(const std::string& text);
    /// The same, and ends the line.
    void PrintLine(const std::string& text);

  private:
    void moveTo(Single x, Single y);
    void put(const std::string& text, bool endsLine);

    Page page_;
    std::optional<Single> nextX_, nextY_;  ///< position set for the next text
};
