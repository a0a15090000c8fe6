// A form of single values, stated as rows: each has a box, its caption, the field
// behind it, and the checks that follow when it has been stored.
#pragma once

#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "platform/numbers.h"
#include "platform/qt/input_form.h"

/// A field as its row shows and stores it: a text as it stands, a number by Val() in the field's own type
/// (overflow where it does not fit).
using ValueField = std::variant<std::string*, Integer*, Single*, Double*, Variant*>;

struct Check {
    std::function<bool()> fails;
    std::string message;
};

struct ValueRow {
    std::string
        box;  ///< the control's name; its caption's is the same with "lbl" for the first three letters
    std::string caption;  ///< ends in the field's name in brackets, which is set to the right
    ValueField field;
    std::vector<Check> checks = {};  ///< in order, right after this field is stored
    bool red = false;                ///< the caption, to draw attention
    bool emptiedByClick = true;      ///< a number's box
};

class ValueForm : public InputForm {
    Q_OBJECT
  public:
    ValueForm(const std::string& name, Dialogs& dialogs, Printer& printer);

  protected:
    /// Makes the rows from top to bottom, what makeUnder() gives, the help box `Text1`, the OK button and
    /// cmdPrint. The fields must outlive the form. A mouse click empties a number's box, so that it need not
    /// be deleted first.
    void build(std::vector<ValueRow> rows, const std::string& okButton = "cmdOk");
    /// What stands between the rows and the help box; nullptr: nothing.
    virtual QLayout* makeUnder() { return nullptr; }
    /// The fields' values into the boxes: texts as they stand, numbers in their shortest form.
    void showFields();
    /// Stores field by field. The first check that fails shows its message and ends it with false: what is
    /// stored by then stays stored, later fields keep their values.
    bool storeFields();
    /// The first check that fails shows its message and gives false.
    bool passes(const std::vector<Check>& checks);
    virtual void cmdOk_Click() = 0;

  private:
    std::vector<ValueRow> rows_;
};
