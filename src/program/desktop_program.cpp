#include "program/desktop_program.h"

#include <QApplication>
#include <QCursor>
#include <QToolTip>
#include <clocale>
#include <cstdlib>
#include <iostream>

#include "platform/qt/dispatcher.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_printer.h"
#include "program/screens.h"
#include "store/frm_tolmark.h"
#include "store/store.h"

namespace {

constexpr int noteStaysMs = 8000;

/// Where Qt finds no display it ends the process with advice for developers; here the user gets a sentence.
void sayThatThereIsNoDisplay(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type != QtFatalMsg) return;
    std::cerr << "tolmark: there is no display to open the main screen on; \"tolmark solve DECK...\" and "
                 "\"tolmark plot DECK --pdf FILE\" work without one."
              << std::endl;
    std::_Exit(1);
}

/// A note stands on the main screen, and for a while where the user looks: at the button just pressed.
void showNote(Screens& screens, const std::string& text) {
    if (Form* main = screens.loaded("frmTOLMARK")) static_cast<frmTOLMARK*>(main)->showStatus(text);
    QToolTip::showText(QCursor::pos(), QString::fromStdString(text), QApplication::activeWindow(), {},
                       noteStaysMs);
}

}  // namespace

int runDesktop(int argc, char** argv) {
    const QtMessageHandler usual = qInstallMessageHandler(sayThatThereIsNoDisplay);
    const QApplication application(argc, argv);
    qInstallMessageHandler(usual);
    QApplication::setApplicationName("tolmark");
    QApplication::setApplicationVersion(TOLMARK_VERSION);
    QGuiApplication::setDesktopFileName("tolmark");
    std::setlocale(LC_NUMERIC, "C");  // Qt took the user's, whose decimal sign may be a comma

    QtDialogs dialogs;
    setDispatchDialogs(&dialogs);
    Store store;
    Screens screens(dialogs);
    QtPrinter printer([&] { return store.cmbDirectory; }, [&](const auto& text) { showNote(screens, text); });
    QtDesktop desktop(dialogs, QApplication::applicationDirPath().toStdString());
    Program program{store, screens, dialogs, printer, desktop};
    addScreens(screens, program);
    dispatch([&] { screens.load("frmTOLMARK"); });
    if (!screens.loaded("frmTOLMARK")) return 1;
    return QApplication::exec();
}
