// What the screens for input have in common: a body on top, a help box beneath it
// and a row of buttons at the bottom, of which cmdPrint prints the help box.
#pragma once

#include <string>
#include <vector>

#include "platform/qt/form.h"

class QLayout;
class Printer;

struct ButtonRow {
    std::string name, caption;
    Handler action;
};

class InputForm : public Form {
    Q_OBJECT
  public:
    InputForm(const std::string& name, Dialogs& dialogs, Printer& printer);

  protected:
    /// Lays the window out around `body`, with the help box under its name; `buttons` stand on the right, in
    /// their order. Tab follows the page.
    void layOut(QLayout* body, const std::string& helpBox, const std::vector<ButtonRow>& buttons);
    /// Places and shows the form. Print takes an access key that no caption has by now.
    void present();
    void setHelp(const std::string& text);
    void showMessage(const std::string& text);
    void cmdPrint_Click();

    float printedSize = 10;  ///< points of the printed help box

  private:
    Dialogs& dialogs_;
    Printer& printer_;
    HelpBox* help_ = nullptr;
    Button* print_ = nullptr;
};
