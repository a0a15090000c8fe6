#include "plots/frm_plot_screen.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <algorithm>

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/printer.h"
#include "platform/qt/page_renderer.h"
#include "plots/kernel.h"
#include "plots/plot_name.h"
#include "store/store.h"

namespace {

constexpr int twipsPerPixel = 10;
constexpr int pageWidth = static_cast<int>(Kernel::pageWidth);
constexpr int pageHeight = static_cast<int>(Kernel::pageHeight);

/// Whole pixels that hold so many twips.
int pixels(int twips) { return (twips + twipsPerPixel - 1) / twipsPerPixel; }

}  // namespace

PlotScreen::PlotScreen(Program& program, const std::string& name, const std::string& caption)
    : Form(name), program_(program) {
    setCaption(caption);
    setAccessibleName(windowTitle());
    setAttribute(Qt::WA_OpaquePaintEvent);
}

PlotScreen::Corner PlotScreen::cornerOn(int screenWidth, int screenHeight) {
    const int margin = static_cast<int>(Kernel::QMargin);
    Corner corner{screenWidth / 2 - pageWidth / 2, screenHeight / 2 - pageHeight / 2 - 200};
    if (corner.left < 0) corner.left = -margin;
    if (corner.top < 0) corner.top = -margin;
    return corner;
}

void PlotScreen::setUpPage() {
    program_.store.NL = "\r\n";
    resize(pixels(pageWidth), pixels(pageHeight));
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
        const QRect all = screen->geometry();
        const auto [left, top] = cornerOn(all.width() * twipsPerPixel, all.height() * twipsPerPixel);
        move(all.left() + left / twipsPerPixel, all.top() + top / twipsPerPixel);
    }
}

std::string PlotScreen::plotFile(const std::string& extension) const {
    const Store& store = program_.store;
    return resolveIn(store.cmbDirectory, plotFileName(store.FileName, extension));
}

void PlotScreen::runPlot(const std::function<void()>& open, const std::function<void()>& showPages) {
    setUpPage();
    try {
        open();
    } catch (const RunTimeError&) {
        fail("File not found");
        return;
    }
    try {
        showPages();
    } catch (const RunTimeError&) {
        fail("Data error");
    }
}

void PlotScreen::display(const Page& page) {
    setPage(page);
    Show();
}

void PlotScreen::present(const Page& page) {
    display(page);
    if (program_.dialogs.MsgBox("Want to print on the printer?", Buttons::YesNo) == Answer::Yes) print(page);
    setPage({});
}

/// A printer that fails says so and takes no later page with it.
void PlotScreen::print(const Page& page) {
    try {
        program_.printer.PrintForm(page);
    } catch (const RunTimeError& failure) {
        program_.dialogs.MsgBox(failure.what());
    }
}

void PlotScreen::fail(const std::string& message) {
    display({});
    program_.dialogs.MsgBox(message);
}

void PlotScreen::setPage(const Page& page) {
    page_ = page;
    update();
}

void PlotScreen::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    // The page fills the window, whatever size the user gives it.
    paintPage(painter, page_, std::min(double(width()) / pageWidth, double(height()) / pageHeight));
}
