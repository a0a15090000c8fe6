// A form that leads to others: a bar of menus from left to right with a status
// word under each, stated as rows. A click on the word does what its menu does.
#pragma once

#include <QToolButton>
#include <string>
#include <vector>

#include "platform/qt/input_form.h"
#include "platform/qt/menu_bar.h"

/// An entry of the bar.
class MenuButton : public QToolButton {
    Q_OBJECT
  public:
    MenuButton(const std::string& name, const std::string& caption, QWidget* parent);
    Handler onClick;
};

struct MenuRow {
    std::string menu, caption;
    std::string label = {}, word = {}, hint = {};  ///< the status word under it; none where `label` is empty
    Handler action = {};                           ///< of the menu and of its label
    std::vector<MenuEntry> entries = {};           ///< that drop down from the menu, in place of an action
};

class MenuForm : public InputForm {
    Q_OBJECT
  public:
    using InputForm::InputForm;

  protected:
    /// The bar and, centred under its entries, the labels: "default" in blue, any other word in red.
    QLayout* menuBar(const std::vector<MenuRow>& rows);
};

/// The status word of a menu whose data decide whether it asks for input: "input" in red, else "default" in
/// blue. With `keepDone` a label that says "done" keeps its word and turns red.
void showStatus(StatusLabel& label, bool needsInput, bool keepDone);
