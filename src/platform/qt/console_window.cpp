#include "platform/qt/console_window.h"

#include <signal.h>

#include <QScrollBar>
#include <QVBoxLayout>
#include <cerrno>

namespace {

constexpr int followEveryMs = 150;
constexpr int linesKept = 20000;

bool isRunning(qint64 pid) {
    if (::kill(static_cast<pid_t>(pid), 0) != 0 && errno == ESRCH) return false;
    // A process that ended is listed until its parent has asked for its result: its state is Z. The state
    // stands behind the name, which is in parentheses and may hold anything.
    QFile status(QString("/proc/%1/stat").arg(pid));
    if (!status.open(QIODevice::ReadOnly)) return true;
    const QByteArray line = status.readAll();
    return line.mid(line.lastIndexOf(')') + 2, 1) != "Z";
}

}  // namespace

ConsoleWindow::ConsoleWindow(const QString& program, const QString& argument, const QString& output,
                             qint64 pid)
    : program_(program), output_(output), pid_(pid) {
    setObjectName("ConsoleWindow");
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(program + " " + argument);
    resize(640, 400);

    state_.setObjectName("lblState");
    state_.setTextFormat(Qt::PlainText);
    state_.setText(program + " is running. You can close this window; it will go on.");
    text_.setObjectName("txtConsole");
    text_.setAccessibleName("Console text of " + program);
    text_.setReadOnly(true);
    text_.setTabChangesFocus(true);
    text_.setMaximumBlockCount(linesKept);
    text_.setFont(QFont("Liberation Mono", 9));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(&state_);
    layout->addWidget(&text_);

    output_.open(QIODevice::ReadOnly);
    connect(&timer_, &QTimer::timeout, this, &ConsoleWindow::follow);
    timer_.start(followEveryMs);
}

ConsoleWindow::~ConsoleWindow() { output_.remove(); }

void ConsoleWindow::follow() {
    const bool running = isRunning(pid_);  // asked first: what it wrote at its very end is read below
    showNewText();
    if (running) return;
    timer_.stop();
    state_.setText(program_ + " has ended.");
}

void ConsoleWindow::showNewText() {
    const QByteArray bytes = output_.readAll();
    if (bytes.isEmpty()) return;
    const bool atEnd = text_.verticalScrollBar()->value() == text_.verticalScrollBar()->maximum();
    QTextCursor end(text_.document());
    end.movePosition(QTextCursor::End);
    end.insertText(QString(decoder_(bytes)).remove('\r'));
    if (atEnd) text_.verticalScrollBar()->setValue(text_.verticalScrollBar()->maximum());
}
