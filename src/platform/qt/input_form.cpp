#include "platform/qt/input_form.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "platform/dialogs.h"
#include "platform/print_text_box.h"
#include "platform/printer.h"

namespace {

/// "Print" with the first access key that no button of the form has.
std::string printCaption(const Form& form) {
    QString taken;
    for (const auto* button : form.findChildren<QAbstractButton*>()) taken += button->shortcut().toString();
    const QString caption = "Print";
    for (qsizetype i = 0; i < caption.size(); ++i) {
        const QString shortcut = QKeySequence::mnemonic("&" + caption.mid(i)).toString();
        if (!taken.contains(shortcut)) return QString(caption).insert(i, '&').toStdString();
    }
    return caption.toStdString();
}

}  // namespace

InputForm::InputForm(const std::string& name, Dialogs& dialogs, Printer& printer)
    : Form(name), dialogs_(dialogs), printer_(printer) {}

void InputForm::layOut(QLayout* body, const std::string& helpBox, const std::vector<ButtonRow>& buttons) {
    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(16, 12, 16, 12);
    page->setSpacing(12);
    page->addLayout(body);

    help_ = new HelpBox(helpBox, this);
    help_->setAccessibleName("Help");
    page->addWidget(help_, 1);

    auto* bottom = new QHBoxLayout;
    page->addLayout(bottom);
    print_ = new Button("cmdPrint", "Print", this);
    print_->onClick = [this] { cmdPrint_Click(); };
    bottom->addWidget(print_);
    bottom->addStretch();
    for (const ButtonRow& row : buttons) {
        auto* button = new Button(row.name, row.caption, this);
        button->onClick = row.action;
        bottom->addWidget(button);
    }
    for (int i = 0; i < bottom->count(); ++i) {
        if (QWidget* button = bottom->itemAt(i)->widget())
            button->setMinimumSize(button->sizeHint().expandedTo({100, 30}));
    }
}

void InputForm::present() {
    print_->setCaption(printCaption(*this));
    place();
    Show();
}

void InputForm::setHelp(const std::string& text) { help_->setTextValue(text); }

void InputForm::showMessage(const std::string& text) { dialogs_.MsgBox(text); }

void InputForm::cmdPrint_Click() {
    printer_.FontSize = printedSize;
    PrintTextBox(printer_, help_->textValue());
}
