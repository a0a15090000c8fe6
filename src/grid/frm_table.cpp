#include "grid/frm_table.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QVBoxLayout>

#include "platform/dialogs.h"
#include "platform/print_text_box.h"
#include "platform/printer.h"
#include "store/store.h"
#include "text/pages.h"

namespace {

constexpr int unitDistance = 2;  ///< pixels between the unit row and the grid

}  // namespace

FrmTable::FrmTable(Program& program, const TableForm& form)
    : Form(form.name),
      program_(program),
      form_(form),
      parts_(form.helpBeside ? Qt::Horizontal : Qt::Vertical, this),
      GridSpreadsheet("GridSpreadsheet", form.cellBox, this),
      lblUnit("lblUnit", GridSpreadsheet, this),
      lblDelIns("lblDelIns", "", this),
      lblDouble("lblDouble", "", this),
      Text1("Text1", this),
      BtnRun(form.okButton, "&OK", this),
      cmdPrint("cmdPrint", "&Print", this) {
    layOut();
    connectEvents();
}

/// The grid under its unit row, and the help text beside it or under it; the user can shift the border.
void FrmTable::layOut() {
    auto* table = new QWidget(&parts_);
    auto* tableColumn = new QVBoxLayout(table);
    tableColumn->setContentsMargins(0, 0, 0, 0);
    tableColumn->setSpacing(unitDistance);
    tableColumn->addWidget(&lblUnit);
    tableColumn->addWidget(&GridSpreadsheet, 1);

    auto* help = new QWidget(&parts_);
    auto* helpColumn = new QVBoxLayout(help);
    const int besideGrid = form_.helpBeside ? lblUnit.sizeHint().height() + unitDistance : 0;
    helpColumn->setContentsMargins(0, besideGrid, 0, 0);
    helpColumn->addWidget(&Text1);
    Text1.setAccessibleName("Help");

    parts_.setChildrenCollapsible(false);
    parts_.setStretchFactor(form_.helpBeside ? 1 : 0, 1);

    auto* hints = new QVBoxLayout;
    hints->addWidget(&lblDouble);
    hints->addWidget(&lblDelIns);
    auto* bottom = new QHBoxLayout;
    bottom->setSpacing(12);
    bottom->addWidget(&cmdPrint);
    bottom->addLayout(hints, 1);
    bottom->addWidget(&BtnRun);
    for (Button* button : {&cmdPrint, &BtnRun})
        button->setMinimumSize(button->sizeHint().expandedTo({100, 30}));

    auto* page = new QVBoxLayout(this);
    page->setContentsMargins(16, 12, 16, 12);
    page->setSpacing(12);
    page->addWidget(&parts_, 1);
    page->addLayout(bottom);

    QWidget* const order[] = {&GridSpreadsheet, &GridSpreadsheet.cellBox(), &Text1, &cmdPrint, &BtnRun};
    for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
}

void FrmTable::connectEvents() {
    GridSpreadsheet.onKeyPress = [this](int keyAscii) { GridSpreadsheet_KeyPress(keyAscii); };
    GridSpreadsheet.onKeyDown = [this](int keyCode, int shift) { GridSpreadsheet_KeyDown(keyCode, shift); };
    GridSpreadsheet.onDblClick = [this] { GridSpreadsheet_DblClick(); };
    GridSpreadsheet.onGotFocus = [this] { CommitCell(); };
    GridSpreadsheet.onLeaveCell = [this] { CommitCell(); };
    GridSpreadsheet.cellBox().onKeyDown = [this](int keyCode) { TxtCell_KeyDown(keyCode); };
    BtnRun.onClick = [this] { BtnRun_Click(); };
    cmdPrint.onClick = [this] { cmdPrint_Click(); };
}

void FrmTable::Form_Load() {
    engine_.emplace(program_.store, form_);
    setCaption(engine_->caption());
    place();
    Show();
    program_.store.HelpText = textPage(engine_->entry().help, "\r\n");
    Text1.setTextValue(program_.store.HelpText);

    std::vector<UnitRow::Word> words;
    for (const UnitWord& word : engine_->unitWords()) words.push_back({word.text, word.column});
    lblUnit.setWords(engine_->unit(), std::move(words));
    lblDelIns.setCaption(engine_->delInsHint());
    if (form_.mainTable) lblDouble.setCaption(engine_->entry().doubleHint);
    lblDouble.setVisible(form_.mainTable);
    GridSpreadsheet.setAccessibleName(windowTitle());

    showState();
    for (int col = 0; col < GridSpreadsheet.Cols(); ++col)
        GridSpreadsheet.setColWidth(col, col == 0 ? form_.firstWidth : form_.otherWidth);
    shareOut();
    GridSpreadsheet.setTopRow(engine_->position().TopRow);
    GridSpreadsheet.setCell(engine_->position().Row, engine_->position().Col);
    GridSpreadsheet.setFocus();
}

/// The grid gets what its columns, or the lines of a page, need; the help text the rest.
void FrmTable::shareOut() {
    FlexGrid& grid = GridSpreadsheet;
    layout()->activate();
    int size = 2 * grid.frameWidth();
    int all = 0;
    if (form_.helpBeside) {
        size += grid.verticalHeader()->width() + grid.verticalScrollBar()->sizeHint().width();
        for (int col = 1; col < grid.Cols(); ++col) size += grid.columnWidth(col - 1);
        all = parts_.width();
    } else {
        size += lblUnit.sizeHint().height() + unitDistance + grid.horizontalHeader()->sizeHint().height() +
                form_.linesInSight * grid.verticalHeader()->defaultSectionSize();
        all = parts_.height();
    }
    parts_.setSizes({size, all - size - parts_.handleWidth()});
}

/// The engine learns where the user went and what stands in the text box.
void FrmTable::takeOver() {
    const FlexGrid& grid = GridSpreadsheet;
    engine_->setPosition({grid.Row(), grid.Col(), grid.RowSel(), grid.ColSel(), grid.TopRow()});
    if (engine_->overlay().open) engine_->setOverlayText(GridSpreadsheet.cellBox().textValue());
}

void FrmTable::showState() {
    FlexGrid& grid = GridSpreadsheet;
    const TablePosition& at = engine_->position();
    const int top = grid.TopRow();
    grid.setSize(engine_->Rows(), engine_->Cols());
    for (int row = 0; row < engine_->Rows(); ++row) {
        for (int col = 0; col < engine_->Cols(); ++col) {
            const std::string& text = engine_->Text(row, col);
            if (grid.Text(row, col) != text) grid.setText(row, col, text);
        }
    }
    const bool moved = grid.Row() != at.Row || grid.Col() != at.Col || grid.RowSel() != at.RowSel ||
                       grid.ColSel() != at.ColSel;
    if (moved) grid.setCell(at.Row, at.Col);
    if (at.TopRow != top) grid.setTopRow(at.TopRow);

    const CellOverlay& overlay = engine_->overlay();
    if (overlay.open) {
        grid.openCellBox(overlay.row, overlay.col, overlay.text, overlay.selStart);
    } else {
        grid.closeCellBox();
    }
}

/// Unloading comes last: the next form takes this one's place.
void FrmTable::carryOut(const TableOutcome& outcome) {
    showState();
    if (!outcome.message.empty()) program_.dialogs.MsgBox(outcome.message);
    for (const StatusWord& status : outcome.words) {
        switch (status.word) {
            case StatusWord::Word::Done:
                program_.screens.done(status.form, status.label);
                break;
            case StatusWord::Word::Input:
                program_.screens.input(status.form, status.label);
                break;
            case StatusWord::Word::BlueDefault:
                program_.screens.blueDefault(status.form, status.label);
                break;
        }
    }
    if (!outcome.unload) return;
    program_.screens.unload(form_.name);
    if (!outcome.load.empty()) program_.screens.load(outcome.load);
}

void FrmTable::GridSpreadsheet_KeyPress(int keyAscii) {
    takeOver();
    engine_->GridEdit(keyAscii);
    showState();
}

void FrmTable::GridSpreadsheet_KeyDown(int keyCode, int shift) {
    takeOver();
    carryOut(engine_->GridKeyDown(keyCode * 10 + shift));
}

void FrmTable::GridSpreadsheet_DblClick() {
    takeOver();
    carryOut(engine_->DblClick());
}

void FrmTable::CommitCell() {
    if (!engine_ || !engine_->overlay().open) return;
    takeOver();
    engine_->CommitCell();
    showState();
}

void FrmTable::TxtCell_KeyDown(int keyCode) {
    takeOver();
    carryOut(engine_->CellKeyDown(keyCode));
}

void FrmTable::BtnRun_Click() {
    takeOver();
    carryOut(engine_->OK());
    if (engine_->overlay().open) return;
    GridSpreadsheet.setFocus();
}

void FrmTable::cmdPrint_Click() {
    program_.printer.FontSize = 9;
    PrintTextBox(program_.printer, Text1.textValue());
}

void addTableForms(Program& program) {
    for (const TableForm& form : tableForms) {
        program.screens.add(
            form.name, [&program, &form] { return std::make_unique<FrmTable>(program, form); }, "table");
    }
}
