// The manual on the screen, one section at a time.
#pragma once

#include "platform/qt/form.h"
#include "store/program.h"

class frmHelp1 : public Form {
    Q_OBJECT
  public:
    explicit frmHelp1(Program& program);

    /// Shows the section that the shared TableKind names. SubscriptOutOfRange where there is none.
    void Form_Load() override;

  private:
    void mnuPrint_Click();

    Program& program_;
    Label* Label1;
    HelpBox* txtHelp1;
};

/// Opens the manual at a section, 1 to 10, in place of the one that is open.
void showManual(Program& program, int section);
