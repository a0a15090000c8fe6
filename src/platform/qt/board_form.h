// A board of numbered buttons, each with a status word under it, for tables that
// are there once per something.
#pragma once

#include <string>

#include "platform/qt/input_form.h"

class BoardForm : public InputForm {
    Q_OBJECT
  public:
    /// `count` buttons and labels named by `thing` and number ("Period" gives cmdPeriod1 and lblPeriod1), all
    /// blank, in rows of six; help box Text1, cmdOk and cmdPrint.
    BoardForm(const std::string& name, const std::string& thing, int count, Dialogs& dialogs,
              Printer& printer);

  protected:
    int buttonCount() const { return count_; }
    Button& button(int n) { return control<Button>("cmd" + thing_ + std::to_string(n)); }
    StatusLabel& label(int n) { return control<StatusLabel>("lbl" + thing_ + std::to_string(n)); }
    /// Comes from a blank button too.
    virtual void button_Click(int n) = 0;
    virtual void cmdOk_Click() = 0;

  private:
    std::string thing_;
    int count_;
};
