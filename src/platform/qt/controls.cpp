#include "platform/qt/controls.h"

#include <QMouseEvent>
#include <QSignalBlocker>

#include "platform/qt/page_renderer.h"
#include "platform/run_time_error.h"

namespace {

/// Colour values of forms count blue, green, red from the high byte down.
QColor fromBgr(int value) { return QColor(value & 0xFF, (value >> 8) & 0xFF, (value >> 16) & 0xFF); }

}  // namespace

Label::Label(const std::string& name, const std::string& caption, QWidget* parent) : QLabel(parent) {
    setObjectName(pageText(name));
    setTextFormat(Qt::PlainText);
    setCaption(caption);
}

std::string Label::caption() const { return text().toStdString(); }
void Label::setCaption(const std::string& caption) { setText(pageText(caption)); }

void Label::mousePressEvent(QMouseEvent* event) {
    QLabel::mousePressEvent(event);
    if (event->button() == Qt::LeftButton) dispatch(onClick);
}

StatusLabel::StatusLabel(const std::string& name, const std::string& caption, QWidget* parent)
    : Label(name, caption, parent) {}

void StatusLabel::setForeColor(int bgr) {
    colour_ = bgr;
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, fromBgr(bgr));
    setPalette(colours);
}

void StatusLabel::input() {
    setCaption("input");
    setForeColor(red);
}

void StatusLabel::blueDefault() {
    setCaption("default");
    setForeColor(blue);
}

void StatusLabel::done() { setCaption("done"); }

Button::Button(const std::string& name, const std::string& caption, QWidget* parent) : QPushButton(parent) {
    setObjectName(pageText(name));
    setCaption(caption);
    setAutoDefault(true);  // Enter presses the button that has the focus, and no other
    connect(this, &QPushButton::clicked, this, [this] { dispatch(onClick); });
}

std::string Button::caption() const { return text().toStdString(); }
void Button::setCaption(const std::string& caption) { setText(pageText(caption)); }

OptionButton::OptionButton(const std::string& name, const std::string& caption, QWidget* parent)
    : QRadioButton(pageText(caption), parent) {
    setObjectName(pageText(name));
    connect(this, &QRadioButton::clicked, this, [this] { dispatch(onClick); });
}

void OptionButton::setValue(bool value) {
    if (value == isChecked()) return;
    // Qt keeps the checked button of a group checked while the group is exclusive.
    if (!value) setAutoExclusive(false);
    setChecked(value);
    setAutoExclusive(true);
    if (value) dispatch(onClick);
}

TextBox::TextBox(const std::string& name, const std::string& text, QWidget* parent) : QLineEdit(parent) {
    setObjectName(pageText(name));
    setTextValue(text);
}

std::string TextBox::textValue() const { return text().toStdString(); }
void TextBox::setTextValue(const std::string& text) { setText(pageText(text)); }

void TextBox::mousePressEvent(QMouseEvent* event) {
    QLineEdit::mousePressEvent(event);
    if (event->button() == Qt::LeftButton) dispatch(onClick);
}

HelpBox::HelpBox(const std::string& name, QWidget* parent) : QPlainTextEdit(parent) {
    setObjectName(pageText(name));
    QFont face("Liberation Mono", 9);
    face.setStyleHint(QFont::TypeWriter);
    face.setFixedPitch(true);
    setFont(face);
    setReadOnly(true);
    setTabChangesFocus(true);
    document()->setDocumentMargin(8);
}

void HelpBox::setTextValue(const std::string& text) {
    text_ = text;
    setPlainText(pageText(text));
}

ComboBox::ComboBox(const std::string& name, QWidget* parent) : QComboBox(parent) {
    setObjectName(pageText(name));
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);
    // Qt takes a typed text that equals an entry for a choice as soon as the focus leaves the box.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { dispatch(onChange); });
    connect(this, &QComboBox::activated, this, [this] { dispatch(onClick); });
}

std::string ComboBox::textValue() const { return currentText().toStdString(); }

void ComboBox::setTextValue(const std::string& text) {
    if (text == textValue()) return;
    setEditText(pageText(text));
    dispatch(onChange);
}

void ComboBox::setListIndex(int index) {
    const std::string text = listText(index);
    keepingText([&] { setCurrentIndex(index); });
    setTextValue(text);
}

std::string ComboBox::listText(int index) const {
    if (index < 0 || index >= count()) throw RunTimeError(Fault::InvalidCall, "list index");
    return itemText(index).toStdString();
}

void ComboBox::addListItem(const std::string& text) { insertListItem(text, count()); }

void ComboBox::insertListItem(const std::string& text, int position) {
    changeList([&] { insertItem(position, pageText(text)); });
}

void ComboBox::removeListItem(int position) {
    changeList([&] { removeItem(position); });
}

void ComboBox::clearList() {
    changeList([&] { clear(); });
}

/// No entry is the selected one afterwards: Qt would take the text of the one it moves to.
void ComboBox::changeList(const std::function<void()>& change) {
    keepingText([&] {
        change();
        setCurrentIndex(-1);
    });
}

void ComboBox::keepingText(const std::function<void()>& change) {
    const QString typed = currentText();
    const int cursor = lineEdit()->cursorPosition();
    const QSignalBlocker quiet(this);
    change();
    if (currentText() == typed) return;
    setEditText(typed);
    lineEdit()->setCursorPosition(cursor);
}
