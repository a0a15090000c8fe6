// The five table forms, as rows of what differs between them. All else is one
// engine (table_engine.h) and one screen (frm_table.h).
#pragma once

struct TableForm {
    const char* name;
    bool mainTable = false;   ///< sizes in MainLines, MainCols; leads to auxiliary tables; a blank stops OK
    int firstWidth = 1000;    ///< column 0, twips
    int otherWidth = 1000;    ///< the other columns, twips
    bool lineEditing = true;  ///< Ctrl-Del and Ctrl-Ins, where the table allows them
    bool enterBySelection = false;    ///< Enter goes on from RowSel, ColSel instead of Row, Col
    int page = 0;                     ///< rows after which the table is turned by a page; 0: never
    int pageStepDown = 0;             ///< rows that Down turns further than Enter
    bool topRowFollowsGroup = false;  ///< the line left, not the first visible row, is kept in CurTopRow
    bool helpBeside = false;          ///< the help box stands beside the grid, not under it
    int linesInSight = 0;             ///< with the help box under the grid: lines shown at first
    const char* cellBox = "TxtCell";
    const char* okButton = "BtnRun";
};

inline constexpr TableForm tableForms[] = {
    {.name = "frmspreadb", .enterBySelection = true, .helpBeside = true},
    {.name = "frmSpread1",
     .mainTable = true,
     .firstWidth = 1200,
     .otherWidth = 980,
     .page = 20,
     .linesInSight = 12},
    {.name = "frmSpread2", .firstWidth = 1200, .page = 5, .pageStepDown = 1, .linesInSight = 6},
    {.name = "frmSpread3",
     .firstWidth = 1200,
     .lineEditing = false,
     .enterBySelection = true,
     .linesInSight = 3,
     .cellBox = "txtCell",
     .okButton = "cmdOK"},
    {.name = "frmSpreada", .mainTable = true, .page = 20, .topRowFollowsGroup = true, .helpBeside = true},
};
