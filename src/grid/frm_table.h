// The screen of the five table forms: a grid with its text box, the unit row,
// the help text and the hints. What keys and clicks do is the engine's.
#pragma once

#include <QSplitter>
#include <optional>

#include "grid/table_engine.h"
#include "platform/qt/flex_grid.h"
#include "platform/qt/form.h"
#include "store/program.h"

class FrmTable : public Form {
    Q_OBJECT
  public:
    FrmTable(Program& program, const TableForm& form);
    void Form_Load() override;

  private:
    void layOut();
    void connectEvents();
    void shareOut();

    void takeOver();
    void showState();
    void carryOut(const TableOutcome& outcome);

    void GridSpreadsheet_KeyPress(int keyAscii);
    void GridSpreadsheet_KeyDown(int keyCode, int shift);
    void GridSpreadsheet_DblClick();
    void CommitCell();
    void TxtCell_KeyDown(int keyCode);
    void BtnRun_Click();
    void cmdPrint_Click();

    Program& program_;
    const TableForm& form_;
    std::optional<TableEngine> engine_;

    QSplitter parts_;
    FlexGrid GridSpreadsheet;
    UnitRow lblUnit;
    Label lblDelIns, lblDouble;
    HelpBox Text1;
    Button BtnRun, cmdPrint;
};

/// Adds frmspreadb, frmSpread1, frmSpread2, frmSpread3 and frmSpreada, of which one at a time is open.
void addTableForms(Program& program);
