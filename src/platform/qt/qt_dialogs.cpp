#include "platform/qt/qt_dialogs.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QInputDialog>
#include <QMessageBox>
#include <QRegularExpression>

#include "platform/files.h"

namespace {

const char* const programName = "TOLMARK";

/// A box belongs to no window: desktops nail a window's own box to it, and the user must be able to move a
/// question off the plot that it asks about.
constexpr Qt::WindowFlags freeBox = Qt::Dialog | Qt::WindowStaysOnTopHint;

QString titleOr(const std::string& title) {
    return QString::fromStdString(title.empty() ? programName : title);
}

/// The dialog's own list of files, which follows the filter again as soon as the user chooses another entry.
void listOnly(QFileDialog& box, const std::string& pattern) {
    if (auto* files = box.findChild<QFileSystemModel*>())
        files->setNameFilters({QString::fromStdString(pattern)});
}

}  // namespace

Answer QtDialogs::MsgBox(const std::string& text, Buttons buttons, const std::string& title) {
    QMessageBox box;
    box.setWindowFlags(freeBox);
    box.setObjectName("MsgBox");
    box.setWindowTitle(titleOr(title));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(text));
    box.setIcon(buttons == Buttons::Ok ? QMessageBox::Information : QMessageBox::Question);

    Answer whenClosed = Answer::Ok;
    switch (buttons) {
        case Buttons::Ok:
            box.setStandardButtons(QMessageBox::Ok);
            box.setEscapeButton(QMessageBox::Ok);
            break;
        case Buttons::YesNo:
            box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
            box.setEscapeButton(QMessageBox::No);
            whenClosed = Answer::No;
            break;
        case Buttons::YesNoCancel:
            box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
            box.setEscapeButton(QMessageBox::Cancel);
            whenClosed = Answer::Cancel;
            break;
    }
    switch (box.exec()) {
        case QMessageBox::Ok:
            return Answer::Ok;
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            return whenClosed;
    }
}

std::optional<std::string> QtDialogs::InputBox(const std::string& prompt, const std::string& title,
                                               const std::string& proposal) {
    QInputDialog box(nullptr, freeBox);
    box.setObjectName("InputBox");
    box.setWindowTitle(titleOr(title));
    box.setLabelText(QString::fromStdString(prompt));
    box.setTextValue(QString::fromStdString(proposal));
    if (box.exec() != QDialog::Accepted) return std::nullopt;
    return box.textValue().toStdString();
}

std::optional<FileAnswer> QtDialogs::fileDialog(const FileQuestion& question) {
    const QStringList filters = qtNameFilters(question.filter);
    const QFileInfo proposed(QString::fromStdString(resolveIn(question.directory, question.name)));
    const bool saving = question.action == FileQuestion::Action::Save;

    QFileDialog box;
    box.setObjectName("FileDialog");
    // Qt's own dialog: those of some desktops tell *.DAT from *.dat.
    box.setOption(QFileDialog::DontUseNativeDialog);
    box.setWindowTitle(saving ? "Save As" : "Open");
    box.setAcceptMode(saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    box.setFileMode(QFileDialog::AnyFile);  // a typed name may differ from the file in letter case
    if (!filters.isEmpty()) {
        box.setNameFilters(filters);
        box.selectNameFilter(filters.value(question.filterNumber - 1, filters.last()));
    }
    if (!question.pattern.empty()) listOnly(box, question.pattern);
    box.setDefaultSuffix(QString::fromStdString(question.defaultExtension));
    box.setDirectory(proposed.absoluteDir().exists() ? proposed.absolutePath() : QDir::homePath());
    if (!question.name.empty()) box.selectFile(proposed.fileName());

    while (box.exec() == QDialog::Accepted) {
        const std::string name = box.selectedFiles().value(0).toStdString();
        const std::string existing = resolveName(name);
        if (saving && existing != name && !mayReplace(existing)) continue;
        const auto number = static_cast<int>(filters.indexOf(box.selectedNameFilter())) + 1;
        return FileAnswer{name, number > 0 ? number : question.filterNumber};
    }
    return std::nullopt;
}

QStringList qtNameFilters(const std::string& filter) {
    static const QRegularExpression patternsInName("\\s*\\([^()]*\\)\\s*$");
    const QStringList parts = QString::fromStdString(filter).split('|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString patterns = parts[i + 1];
        patterns.replace(';', ' ').replace("*.*", "*");  // every file has a name, not every one an extension
        filters << QString(parts[i]).remove(patternsInName) + " (" + patterns + ")";
    }
    return filters;
}
