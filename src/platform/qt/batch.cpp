#include "platform/qt/batch.h"

#include <QGuiApplication>
#include <QProcess>
#include <filesystem>
#include <iostream>

#include "platform/run_time_error.h"

BatchApplication::BatchApplication() {
    static int argc = 1;
    static char name[] = "tolmark";
    static char* argv[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Qt's remarks about the machine are not for the reader of a script's output.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtFatalMsg || type == QtCriticalMsg) std::cerr << text.toStdString() << std::endl;
    });
    application_ = std::make_unique<QGuiApplication>(argc, argv);
}

BatchApplication::~BatchApplication() = default;

int runAndWait(const std::string& program, const std::vector<std::string>& arguments) {
    QStringList list;
    for (const std::string& argument : arguments) list << QString::fromStdString(argument);
    const int status = QProcess::execute(QString::fromStdString(program), list);
    if (status == -2) throw RunTimeError(Fault::FileNotFound, program);
    if (status == -1) throw RunTimeError(Fault::InvalidCall, program + " crashed");
    return status;
}

std::string executableDirectory() {
    return std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
}
