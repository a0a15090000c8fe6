#include "platform/qt/page_renderer.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QImage>
#include <QPageSize>
#include <QPaintEngine>
#include <QPainter>
#include <QPdfWriter>
#include <QStringDecoder>
#include <QSvgGenerator>
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "platform/list_file.h"
#include "platform/run_time_error.h"

namespace {

constexpr int twipsPerInch = 1440;
constexpr int twipsPerPoint = 20;
constexpr double penUnit = 10;

QColor toQt(Colour colour) { return QColor::fromRgb(colour); }

/// The part of the line a to b within `area`, nothing where it passes by. A plot may map to coordinates far
/// beyond what paint engines can count.
std::optional<QLineF> clipped(QPointF a, QPointF b, const QRectF& area) {
    const auto passesBy = [&] {
        return std::max(a.x(), b.x()) < area.left() || std::min(a.x(), b.x()) > area.right() ||
               std::max(a.y(), b.y()) < area.top() || std::min(a.y(), b.y()) > area.bottom();
    };
    const auto intoColumn = [&](QPointF& end, const QPointF& other) {
        const double x = std::clamp(end.x(), area.left(), area.right());
        if (x == end.x()) return;
        const double share = (x - end.x()) / (other.x() - end.x());
        end = {x, end.y() + share * (other.y() - end.y())};
    };
    const auto intoRow = [&](QPointF& end, const QPointF& other) {
        const double y = std::clamp(end.y(), area.top(), area.bottom());
        if (y == end.y()) return;
        const double share = (y - end.y()) / (other.y() - end.y());
        end = {end.x() + share * (other.x() - end.x()), y};
    };
    if (passesBy()) return std::nullopt;
    intoColumn(a, b);
    intoColumn(b, a);
    if (passesBy()) return std::nullopt;
    intoRow(a, b);
    intoRow(b, a);
    return QLineF(a, b);
}

class PagePainter {
  public:
    PagePainter(QPainter& painter, const Page& page)
        : painter_(painter),
          raster_(painter.paintEngine() && painter.paintEngine()->type() == QPaintEngine::Raster),
          // Beyond this nothing of a line, nor of its ends, touches the page.
          reach_(QRectF(0, 0, page.width, page.height).adjusted(-1000, -1000, 1000, 1000)) {}

    void operator()(const PageText& text) {
        const QFont font = twipFont(text.font);
        const QFontMetricsF measures(font);
        const QString characters = pageText(text.text);
        x_ = text.x.value_or(static_cast<float>(x_));
        y_ = text.y.value_or(static_cast<float>(y_));
        if (!characters.trimmed().isEmpty()) {
            painter_.setFont(font);
            painter_.setPen(toQt(text.colour));
            painter_.drawText(QPointF(x_, y_ + measures.ascent()), characters);
        }
        if (text.endsLine) {
            x_ = 0;
            y_ += measures.lineSpacing();
        } else {
            x_ += measures.horizontalAdvance(characters);
        }
    }

    void operator()(const PageLine& line) {
        const auto visible = clipped({line.x1, line.y1}, {line.x2, line.y2}, reach_);
        if (!visible) return;
        const bool straight = line.x1 == line.x2 || line.y1 == line.y2;
        setPen(line.colour, line.width, line.dashed ? Qt::DotLine : Qt::SolidLine);
        painter_.setRenderHint(QPainter::Antialiasing, !(straight && line.width == 1));
        if (visible->p1() == visible->p2())
            painter_.drawPoint(visible->p1());
        else
            painter_.drawLine(*visible);
    }

    void operator()(const PageBox& box) {
        const QRectF area = QRectF(QPointF(box.x1, box.y1), QPointF(box.x2, box.y2)).normalized() & reach_;
        setPen(box.colour, box.width, Qt::SolidLine);
        setBrush(box.fill);
        painter_.setRenderHint(QPainter::Antialiasing, false);
        painter_.drawRect(area);
    }

    void operator()(const PageCircle& circle) {
        // A circle that reaches far beyond the page on all sides shows nothing of its line.
        const QPointF centre(circle.x, circle.y);
        constexpr double hopeless = 1e6;
        if (circle.radius > hopeless || !reach_.intersects(around(centre, circle.radius))) return;
        setPen(circle.colour, circle.width, Qt::SolidLine);
        setBrush(circle.fill);
        painter_.setRenderHint(QPainter::Antialiasing, true);
        painter_.drawEllipse(centre, double(circle.radius), double(circle.radius));
    }

  private:
    static QRectF around(const QPointF& centre, double radius) {
        const QPointF half(radius + 1, radius + 1);
        return {centre - half, centre + half};
    }

    void setPen(Colour colour, int width, Qt::PenStyle style) {
        double twips = width * penUnit;
        if (raster_) {
            const double pixelsPerTwip = painter_.deviceTransform().m11();
            twips = std::max(1.0, std::round(twips * pixelsPerTwip)) / pixelsPerTwip;
        }
        painter_.setPen(QPen(toQt(colour), twips, style, Qt::RoundCap, Qt::RoundJoin));
    }

    void setBrush(const std::optional<Colour>& fill) {
        painter_.setBrush(fill ? QBrush(toQt(*fill)) : QBrush(Qt::NoBrush));
    }

    QPainter& painter_;
    const bool raster_;
    const QRectF reach_;
    double x_ = 0, y_ = 0;  ///< the current position
};

/// Paints into memory and puts the whole file in its place at the end.
template <class Paint>
void writeFile(const std::string& path, Paint paint) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    paint(buffer);
    buffer.close();
    if (bytes.isEmpty()) throw RunTimeError(Fault::InvalidCall, "nothing could be painted for " + path);
    writeFileAtomically(path, bytes.toStdString());
}

void begin(QPainter& painter, QPaintDevice& device, const std::string& path) {
    if (!painter.begin(&device)) throw RunTimeError(Fault::InvalidCall, "cannot paint " + path);
}

QPageSize sizeOf(const Page& page) {
    const QSizeF points(page.width / twipsPerPoint, page.height / twipsPerPoint);
    return QPageSize(points, QPageSize::Point, "", QPageSize::ExactMatch);
}

}  // namespace

QFont twipFont(const PageFont& font) {
    static const std::pair<const char*, const char*> twins[] = {{"Courier New", "Liberation Mono"},
                                                                {"MS Serif", "Liberation Serif"}};
    std::string face = font.face;
    for (const auto& [name, twin] : twins)
        if (face == name) face = twin;
    QFont result(QString::fromStdString(face));
    result.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size * twipsPerPoint))));
    result.setBold(font.bold);
    result.setKerning(false);
    result.setHintingPreference(QFont::PreferNoHinting);
    return result;
}

QString pageText(const std::string& text) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString decoded = utf8.decode(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    return utf8.hasError() ? QString::fromLatin1(text) : decoded;
}

void paintPage(QPainter& painter, const Page& page, double unitsPerTwip) {
    painter.save();
    painter.scale(unitsPerTwip, unitsPerTwip);
    painter.setClipRect(QRectF(0, 0, page.width, page.height), Qt::IntersectClip);
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    PagePainter paint(painter, page);
    for (const PageOp& op : page.ops) std::visit(paint, op);
    painter.restore();
}

void renderPdf(const std::vector<Page>& pages, const std::string& path) {
    if (pages.empty()) throw RunTimeError(Fault::InvalidCall, "no pages for " + path);
    writeFile(path, [&](QIODevice& file) {
        QPdfWriter pdf(&file);
        pdf.setCreator("TOLMARK");
        pdf.setResolution(twipsPerInch);
        pdf.setPageMargins(QMarginsF(0, 0, 0, 0));
        pdf.setPageSize(sizeOf(pages.front()));
        QPainter painter;
        begin(painter, pdf, path);
        for (std::size_t i = 0; i < pages.size(); ++i) {
            if (i > 0) {
                pdf.setPageSize(sizeOf(pages[i]));
                pdf.newPage();
            }
            paintPage(painter, pages[i], 1);
        }
    });
}

void renderSvg(const Page& page, const std::string& path) {
    writeFile(path, [&](QIODevice& file) {
        constexpr double pixelsPerInch = 96;
        QSvgGenerator svg;
        svg.setOutputDevice(&file);
        svg.setTitle("TOLMARK");
        svg.setResolution(static_cast<int>(pixelsPerInch));
        svg.setSize((QSizeF(page.width, page.height) * pixelsPerInch / twipsPerInch).toSize());
        svg.setViewBox(QRectF(0, 0, page.width, page.height));
        QPainter painter;
        begin(painter, svg, path);
        painter.fillRect(QRectF(0, 0, page.width, page.height), Qt::white);
        paintPage(painter, page, 1);
    });
}

void renderPng(const Page& page, const std::string& path, int dpi) {
    constexpr int finest = 2400;
    if (dpi < 1 || dpi > finest)
        throw RunTimeError(Fault::InvalidCall, "the resolution is 1 to " + std::to_string(finest) + " dpi");
    const double pixelsPerTwip = double(dpi) / twipsPerInch;
    QImage image((QSizeF(page.width, page.height) * pixelsPerTwip).toSize().expandedTo({1, 1}),
                 QImage::Format_RGB32);
    if (image.isNull()) throw RunTimeError(Fault::InvalidCall, "no memory for a picture of that size");
    constexpr double metresPerInch = 0.0254;
    const int dotsPerMetre = static_cast<int>(std::lround(dpi / metresPerInch));
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    image.fill(Qt::white);
    {
        QPainter painter;
        begin(painter, image, path);
        paintPage(painter, page, pixelsPerTwip);
    }
    writeFile(path, [&](QIODevice& file) { image.save(&file, "PNG"); });
}
