#include "platform/qt/qt_desktop.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <array>
#include <filesystem>

#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/qt/console_window.h"
#include "platform/run_time_error.h"

namespace {

/// The system's own choice first, then what desktops bring along.
constexpr std::array terminals = {"x-terminal-emulator", "gnome-terminal", "konsole", "xfce4-terminal",
                                  "mate-terminal",       "lxterminal",     "xterm"};

/// An empty file that a process can write to; empty name where none can be made.
QString newOutputFile() {
    QTemporaryFile file(QDir::tempPath() + "/tolmark-console-XXXXXX.txt");
    file.setAutoRemove(false);
    return file.open() ? file.fileName() : QString();
}

}  // namespace

QtDesktop::QtDesktop(Dialogs& dialogs, std::string programDirectory)
    : dialogs_(dialogs), programDirectory_(std::move(programDirectory)) {}

QtDesktop::~QtDesktop() {
    for (const auto& console : consoles_) delete console.data();
}

std::string QtDesktop::settingsDirectory() const {
    if (QFileInfo(QString::fromStdString(programDirectory_)).isWritable()) return programDirectory_;
    const QString own = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/tolmark";
    QDir().mkpath(own);
    return own.toStdString();
}

void QtDesktop::Shell(const std::string& program, const std::string& argument) {
    const QFileInfo executable(QString::fromStdString(program));
    if (!executable.isFile()) {
        dialogs_.MsgBox(program + " cannot be started: there is no such program.");
        return;
    }
    if (!executable.isExecutable()) {
        dialogs_.MsgBox(program + " cannot be started: it is not a program that may be run.");
        return;
    }
    const QString output = newOutputFile();
    // QProcess gives a detached process a session of its own, so that it outlives this program; its text goes
    // to a file, since nobody would read a pipe then.
    QProcess process;
    process.setProgram(executable.absoluteFilePath());
    process.setArguments({QString::fromStdString(argument)});
    process.setWorkingDirectory(executable.absolutePath());
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(output, QIODevice::Append);
    process.setStandardErrorFile(output, QIODevice::Append);
    qint64 pid = 0;
    if (!process.startDetached(&pid)) {
        QFile::remove(output);
        dialogs_.MsgBox(program + " cannot be started: " + process.errorString().toStdString());
        return;
    }
    auto* console = new ConsoleWindow(executable.fileName(), QString::fromStdString(argument), output, pid);
    std::erase_if(consoles_, [](const auto& closed) { return closed.isNull(); });
    consoles_.emplace_back(console);
    console->show();
    console->activateWindow();
}

void QtDesktop::openTerminal(const std::string& directory) {
    for (const char* terminal : terminals) {
        const QString program = QStandardPaths::findExecutable(terminal);
        if (!program.isEmpty() && QProcess::startDetached(program, {}, QString::fromStdString(directory)))
            return;
    }
    dialogs_.MsgBox("No terminal program was found on this machine.");
}

void QtDesktop::ChDir(const std::string& directory) {
    const QFileInfo there(QString::fromStdString(directory));
    if (directory.empty() || !there.isDir()) throw RunTimeError(Fault::PathNotFound, directory);
    if (!there.isExecutable()) throw RunTimeError(Fault::PermissionDenied, directory);
}

void QtDesktop::MkDir(const std::string& directory, const std::string& base) {
    if (directory.empty()) return;
    const std::filesystem::path full =
        isFullName(directory) ? std::filesystem::path(directory) : std::filesystem::path(base) / directory;
    std::error_code silent;
    std::filesystem::create_directory(full, silent);
}
