// A text box for the text of a file: what is opened and not changed is written
// back byte for byte, whatever the bytes are.
//
// A large file is shown at once, as far as its first piece goes; the rest is filled
// in while the program waits for the user, and at the latest when a key is pressed
// that changes the text.
#pragma once

#include <QPlainTextEdit>
#include <QTimer>
#include <optional>
#include <string>

/// How a file's bytes stand for a text.
struct TextEncoding {
    bool utf8 = true;              ///< else one character a byte
    std::string lineEnd = "\r\n";  ///< of every line
};

class ByteTextBox : public QPlainTextEdit {
    Q_OBJECT
  public:
    ByteTextBox(const std::string& name, QWidget* parent);

    /// Shows the bytes as UTF-8, or as Latin-1 where they are none, with the line end that comes first. Where
    /// writing would not give the same bytes again, as with mixed line ends, the text is fixed: it cannot be
    /// changed.
    void setBytes(std::string bytes);
    bool isFixed() const { return fixed_.has_value(); }
    /// The file's bytes for the text as it stands. Nothing where a character that was typed has no place in
    /// the file's encoding.
    std::optional<std::string> bytes() const;

    /// The text as it stands; line breaks are one character of its own, so that two texts can be compared.
    QString rawText() const;
    /// The text with CR LF behind each line but the last, in UTF-8.
    std::string printableText() const;

    QString SelText() const;
    /// Puts `text` in the place of the selection; nothing happens to a fixed text.
    void setSelText(const QString& text);

  protected:
    /// The clipboard gets what is selected: no-break blanks stay such.
    QMimeData* createMimeDataFromSelection() const override;
    /// Every way to break a line breaks it in the file too.
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void fillNext(qsizetype characters);
    void fillAll();

    TextEncoding encoding_;
    std::optional<std::string> fixed_;  ///< the bytes of a text that cannot be changed
    QTimer filling_;                    ///< runs while a part of the text is not in the box
    QString text_;                      ///< the whole text, while that is so
    qsizetype filled_ = 0;
};
