#include "platform/qt/byte_text_box.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QStringDecoder>
#include <QStringTokenizer>
#include <algorithm>

namespace {

/// The box's own mark between lines.
constexpr QChar lineMark = QChar::ParagraphSeparator;

constexpr qsizetype firstPiece = 2'000'000,
                    nextPiece = 300'000;  // characters: shown at once, filled in a step

std::string firstLineEnd(const std::string& bytes) {
    const std::size_t at = bytes.find_first_of("\r\n");
    if (at == std::string::npos) return "\r\n";  // as in decks
    if (bytes[at] == '\n') return "\n";
    return bytes.compare(at, 2, "\r\n") == 0 ? "\r\n" : "\r";
}

/// What breaks a line in the box, beside the two of CR LF.
bool breaksLine(QChar c) {
    return c == '\r' || c == '\n' || c == lineMark || c == QChar(0xFDD0) || c == QChar(0xFDD1);
}

/// The text as the box holds it.
QString decoded(const std::string& bytes, TextEncoding& encoding) {
    const QByteArrayView view(bytes.data(), static_cast<qsizetype>(bytes.size()));
    // A mark of byte order is kept like any character.
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    QString text = utf8.decode(view);
    encoding.utf8 = !utf8.hasError();
    if (!encoding.utf8) text = QString::fromLatin1(view);

    QChar* end = text.data();
    const QChar* const last = text.constData() + text.size();
    for (const QChar* c = text.constData(); c != last; ++c) {
        if (*c == '\r' && c + 1 != last && c[1] == '\n') ++c;
        *end++ = breaksLine(*c) ? lineMark : *c;
    }
    text.truncate(end - text.constData());
    return text;
}

/// Line by line: replacing the marks within a text of 50 MB would take seconds.
std::optional<std::string> encoded(const QString& text, const TextEncoding& encoding) {
    const auto isByte = [](QChar c) { return c.unicode() <= 0xFF || c == lineMark; };
    if (!encoding.utf8 && !std::all_of(text.begin(), text.end(), isByte)) return std::nullopt;
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(text.size() + text.size() / 16));
    const char* lineEnd = "";
    for (const QStringView line : QStringView(text).tokenize(lineMark)) {
        const QByteArray piece = encoding.utf8 ? line.toUtf8() : line.toLatin1();
        bytes.append(lineEnd).append(piece.data(), static_cast<std::size_t>(piece.size()));
        lineEnd = encoding.lineEnd.c_str();
    }
    return bytes;
}

}  // namespace

ByteTextBox::ByteTextBox(const std::string& name, QWidget* parent) : QPlainTextEdit(parent) {
    setObjectName(QString::fromStdString(name));
    QFont face("Liberation Mono", 10);
    face.setStyleHint(QFont::TypeWriter);
    face.setFixedPitch(true);
    setFont(face);
    setLineWrapMode(NoWrap);
    connect(&filling_, &QTimer::timeout, this, [this] { fillNext(nextPiece); });
}

void ByteTextBox::setBytes(std::string bytes) {
    filling_.stop();
    encoding_.lineEnd = firstLineEnd(bytes);
    text_ = decoded(bytes, encoding_);
    fixed_.reset();
    if (encoded(text_, encoding_) != bytes) fixed_ = std::move(bytes);
    setReadOnly(true);
    setPlainText(text_.left(firstPiece));
    filled_ = std::min(firstPiece, text_.size());
    document()->setUndoRedoEnabled(false);
    filling_.start(0);
    if (filled_ == text_.size()) fillNext(0);
}

/// After the last piece the text is the box's own and can be changed.
void ByteTextBox::fillNext(qsizetype characters) {
    QTextCursor end(document());
    end.movePosition(QTextCursor::End);
    end.insertText(text_.mid(filled_, characters));
    filled_ += std::min(characters, text_.size() - filled_);
    if (filled_ < text_.size()) return;
    filling_.stop();
    text_.clear();
    document()->setUndoRedoEnabled(true);
    setReadOnly(isFixed());
}

void ByteTextBox::fillAll() {
    if (filling_.isActive()) fillNext(text_.size());
}

std::optional<std::string> ByteTextBox::bytes() const {
    return isFixed() ? fixed_ : encoded(rawText(), encoding_);
}

QString ByteTextBox::rawText() const { return filling_.isActive() ? text_ : document()->toRawText(); }

std::string ByteTextBox::printableText() const { return *encoded(rawText(), {}); }

QString ByteTextBox::SelText() const { return textCursor().selectedText().replace(lineMark, '\n'); }

void ByteTextBox::setSelText(const QString& text) {
    fillAll();
    if (!isReadOnly()) insertPlainText(text);
}

QMimeData* ByteTextBox::createMimeDataFromSelection() const {
    auto* data = new QMimeData;
    data->setText(SelText());
    return data;
}

void ByteTextBox::keyPressEvent(QKeyEvent* event) {
    if (!event->text().isEmpty() || event->matches(QKeySequence::MoveToEndOfDocument)) fillAll();
    if (event->matches(QKeySequence::InsertLineSeparator)) {
        setSelText("\n");
    } else {
        QPlainTextEdit::keyPressEvent(event);
    }
}
