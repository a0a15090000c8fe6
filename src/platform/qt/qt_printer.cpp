#include "platform/qt/qt_printer.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QLocale>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QPrinterInfo>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <utility>

#include "platform/list_file.h"
#include "platform/qt/page_renderer.h"
#include "platform/run_time_error.h"

namespace {

namespace fs = std::filesystem;

constexpr float twipsPerInch = 1440;
constexpr float twipsPerPoint = 20;
constexpr float textMargin = twipsPerInch / 4;  // what printers leave unprinted

QPageSize paperSize() {
    const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
    if (!printer.isNull() && printer.defaultPageSize().isValid()) return printer.defaultPageSize();
    const bool letter = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return QPageSize(letter ? QPageSize::Letter : QPageSize::A4);
}

/// The whole paper, without margins.
QPageLayout paperOf(QPageLayout::Orientation orientation) {
    QPageLayout paper(paperSize(), orientation, QMarginsF(0, 0, 0, 0));
    paper.setMode(QPageLayout::FullPageMode);
    return paper;
}

QSizeF twips(const QPageLayout& paper) {
    return paper.fullRect(QPageLayout::Point).size() * double(twipsPerPoint);
}

Page blankSheet() {
    const QSizeF size = twips(paperOf(QPageLayout::Portrait));
    return {static_cast<float>(size.width()), static_cast<float>(size.height()), {}};
}

/// Each sheet from the corner of its paper, at its own size or what of it the paper has room for. The paper
/// is turned only for a sheet that is too wide for it.
void paintSheets(QPagedPaintDevice& device, const std::vector<Page>& sheets) {
    const QPageLayout upright = paperOf(QPageLayout::Portrait);
    const bool wide = sheets.front().width > twips(upright).width() + 1;
    const QPageLayout paper = wide ? paperOf(QPageLayout::Landscape) : upright;
    device.setPageLayout(paper);
    QPainter painter;
    if (!painter.begin(&device)) throw RunTimeError(Fault::InvalidCall, "the printer takes no job");
    const double unitsPerTwip = device.logicalDpiX() / double(twipsPerInch);
    const QSizeF room = twips(paper);
    for (const Page& sheet : sheets) {
        if (&sheet != &sheets.front()) device.newPage();
        const double scale = std::min({1.0, room.width() / sheet.width, room.height() / sheet.height});
        paintPage(painter, sheet, unitsPerTwip * scale);
    }
    if (!painter.end()) throw RunTimeError(Fault::InvalidCall, "the printer did not take the job");
}

void printOnPaper(const QPrinterInfo& info, const std::vector<Page>& sheets) {
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setDocName("TOLMARK");
    printer.setFullPage(true);
    paintSheets(printer, sheets);
    if (printer.printerState() == QPrinter::Error)
        throw RunTimeError(Fault::InvalidCall, "the printer did not take the job");
}

void printToFile(const std::string& path, const std::vector<Page>& sheets) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter pdf(&buffer);
    pdf.setCreator("TOLMARK");
    paintSheets(pdf, sheets);
    writeFileAtomically(path, bytes.toStdString());
}

/// The first free name in `folder`, which is made where it is missing.
std::string nextName(const std::string& folder) {
    std::error_code failed;
    fs::create_directories(folder, failed);
    if (!fs::is_directory(folder, failed)) throw RunTimeError(Fault::PathNotFound, folder);
    for (int number = 1;; ++number) {
        char name[32];
        std::snprintf(name, sizeof name, "print-%03d.pdf", number);
        const fs::path path = fs::path(folder) / name;
        if (!fs::exists(path)) return path.string();
    }
}

}  // namespace

QtPrinter::QtPrinter(std::function<std::string()> dataDirectory,
                     std::function<void(const std::string&)> status)
    : dataDirectory_(std::move(dataDirectory)), status_(std::move(status)) {}

void QtPrinter::Print(const std::string& line) { Print(1, line); }

void QtPrinter::Print(int tabColumn, const std::string& line) {
    const PageFont face{FontName, FontSize, FontBold};
    const QFontMetricsF measures(twipFont(face));
    const auto height = static_cast<float>(measures.lineSpacing());
    const auto left = textMargin + static_cast<float>((tabColumn - 1) * measures.averageCharWidth());
    QString rest = pageText(line);
    do {
        if (sheets_.empty() || lineTop_ + height > sheets_.back().height - textMargin) NewPage();
        const double room = sheets_.back().width - textMargin - left;
        qsizetype fits = rest.size();
        while (fits > 1 && measures.horizontalAdvance(rest, static_cast<int>(fits)) > room) --fits;
        sheets_.back().ops.push_back(PageText{left, lineTop_, rest.left(fits).toStdString(), true, 0, face});
        rest.remove(0, fits);
        lineTop_ += height;
    } while (!rest.isEmpty());
}

void QtPrinter::NewPage() {
    sheets_.push_back(blankSheet());
    lineTop_ = textMargin;
}

void QtPrinter::EndDoc() {
    if (sheets_.empty()) return;
    const std::vector<Page> sheets = std::exchange(sheets_, {});
    send(sheets);
}

void QtPrinter::KillDoc() { sheets_.clear(); }

void QtPrinter::PrintForm(const Page& page) { send({page}); }

void QtPrinter::send(const std::vector<Page>& sheets) {
    try {
        const QPrinterInfo printer = QPrinterInfo::defaultPrinter();
        if (!printer.isNull()) {
            printOnPaper(printer, sheets);
            status_("Sent to printer " + printer.printerName().toStdString());
            return;
        }
        const std::string directory = dataDirectory_();
        if (directory.empty()) throw RunTimeError(Fault::PathNotFound, "no data directory");
        const std::string path = nextName((fs::path(directory) / "print").string());
        printToFile(path, sheets);
        status_("No printer: printed to " + path);
    } catch (const RunTimeError& failure) {
        status_(std::string("Not printed. ") + failure.what());
        throw;
    }
}
