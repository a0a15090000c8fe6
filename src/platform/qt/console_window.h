// A small window that follows the console text of a process which was started
// detached. Closing it leaves the process running.
#pragma once

#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QStringDecoder>
#include <QTimer>
#include <QWidget>

class ConsoleWindow : public QWidget {
    Q_OBJECT
  public:
    /// `output` is the file that takes the process's console text; the window deletes it when it goes.
    /// `pid` is the process.
    ConsoleWindow(const QString& program, const QString& argument, const QString& output, qint64 pid);
    ~ConsoleWindow() override;

  private:
    void follow();
    void showNewText();

    QString program_;
    QFile output_;
    qint64 pid_;
    QStringDecoder decoder_{QStringDecoder::Utf8};
    QLabel state_;
    QPlainTextEdit text_;
    QTimer timer_;
};
