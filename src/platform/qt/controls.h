// The controls that forms are made of: thin wrappers over Qt widgets, with the
// property names that the forms use. `&` in a caption marks the access key. Each
// control's object name is its name on the form. Handlers run through dispatch().
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <string>
#include <vector>

#include "platform/qt/dispatcher.h"

class Label : public QLabel {
    Q_OBJECT
  public:
    Label(const std::string& name, const std::string& caption, QWidget* parent);
    std::string caption() const;
    void setCaption(const std::string& caption);
    Handler onClick;

  protected:
    void mousePressEvent(QMouseEvent* event) override;
};

/// A status word under a menu or a button. Word and colour are apart: a red "done" exists.
class StatusLabel : public Label {
    Q_OBJECT
  public:
    static constexpr int red = 255;  ///< blue-green-red order, as all colour values of forms
    static constexpr int blue = 16711680;

    StatusLabel(const std::string& name, const std::string& caption, QWidget* parent);
    int foreColor() const { return colour_; }
    void setForeColor(int bgr);

    void input();        ///< "input" in red
    void blueDefault();  ///< "default" in blue
    void done();         ///< "done"; the colour stays

  private:
    int colour_ = 0;
};

class Button : public QPushButton {
    Q_OBJECT
  public:
    Button(const std::string& name, const std::string& caption, QWidget* parent);
    std::string caption() const;
    void setCaption(const std::string& caption);
    Handler onClick;
};

class OptionButton : public QRadioButton {
    Q_OBJECT
  public:
    OptionButton(const std::string& name, const std::string& caption, QWidget* parent);
    bool value() const { return isChecked(); }
    /// Runs onClick when the value becomes true and was not. A user's click always runs it.
    void setValue(bool value);
    Handler onClick;
};

class TextBox : public QLineEdit {
    Q_OBJECT
  public:
    TextBox(const std::string& name, const std::string& text, QWidget* parent);
    std::string textValue() const;
    void setTextValue(const std::string& text);
    Handler onClick;  ///< a mouse click, never Tab

  protected:
    void mousePressEvent(QMouseEvent* event) override;
};

/// A read-only text of many lines, in a fixed-pitch face.
class HelpBox : public QPlainTextEdit {
    Q_OBJECT
  public:
    HelpBox(const std::string& name, QWidget* parent);
    /// The text as it was set, with its own line ends: what Print prints.
    const std::string& textValue() const { return text_; }
    void setTextValue(const std::string& text);

  private:
    std::string text_;
};

/// A box with free typing and a list. List operations never touch the typed text.
class ComboBox : public QComboBox {
    Q_OBJECT
  public:
    ComboBox(const std::string& name, QWidget* parent);
    std::string textValue() const;
    /// Runs onChange only when the text really differs.
    void setTextValue(const std::string& text);
    /// Selects an entry and takes its text, as setTextValue does.
    void setListIndex(int index);
    int listCount() const { return count(); }
    std::string listText(int index) const;
    void addListItem(const std::string& text);  ///< at the end
    void insertListItem(const std::string& text, int position);
    void removeListItem(int position);
    void clearList();
    Handler onChange;  ///< typing, or setTextValue with another text
    Handler onClick;   ///< a choice from the list, after the text is taken

  private:
    void changeList(const std::function<void()>& change);
    void keepingText(const std::function<void()>& change);
};
