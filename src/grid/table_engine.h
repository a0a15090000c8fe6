// The engine of the table forms, on a plain matrix of texts.
//
// A table is a data-entry editor, not a view of the store: cells hold any text,
// and the store is written only at OK or, from a main table, when a line is left
// for its auxiliary table. A text box floats over the cell that is being edited
// (the overlay); its text goes into the cell when the edit is committed.
//
// The engine keeps the matrix, the active cell and the overlay. Keys and clicks
// are its functions; what the screen must do beyond showing that state is told
// by the TableOutcome that they return.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "grid/table_forms.h"
#include "grid/table_kinds.h"

/// What a key or click asks of the screen, in this order.
struct TableOutcome {
    std::string message = {};  ///< to be told in a box, over the state as it is now; empty: none
    std::vector<StatusWord> words = {};
    bool unload = false;    ///< the table is gone: nothing of it may be used any more
    std::string load = {};  ///< the form that comes up after it; empty: none
};

/// The active cell, the end of the selection, and the first visible row. Row 0 holds the heads, column 0
/// the line numbers.
struct TablePosition {
    int Row = 1, Col = 1;
    int RowSel = 1, ColSel = 1;
    int TopRow = 1;
};

struct CellOverlay {
    bool open = false;
    int row = 1, col = 1;  ///< the cell that it was opened on
    std::string text;      ///< stays behind when the overlay is closed
    int selStart = 0;
};

class TableEngine {
  public:
    /// Loads the table that the store's selectors name; keeps them, since other screens may change them
    /// while the table is open. InvalidCall when the form has no such table, Overflow when there are more
    /// lines than a table can count.
    TableEngine(Store& store, const TableForm& form);

    const TableEntry& entry() const { return entry_; }
    std::string caption() const;
    std::string unit() const;
    std::vector<UnitWord> unitWords() const;
    std::string delInsHint() const;

    int Rows() const { return static_cast<int>(cells_.size()); }
    int Cols() const { return cols_; }
    const std::string& Text(int row, int col) const;
    const TablePosition& position() const { return at_; }
    const CellOverlay& overlay() const { return overlay_; }

    /// Takes over what the user did in the widgets: moved, selected, scrolled, typed into the overlay.
    void setPosition(const TablePosition& position);
    void setOverlayText(const std::string& text) { overlay_.text = text; }

    /// Opens the overlay over the active cell: a character (its code point) replaces the cell's text; the
    /// blank, Enter and the other key codes up to 32 edit it.
    void GridEdit(int keyCode);
    /// Puts the overlay's text into the cell that it was opened on, if it is open.
    void CommitCell();
    /// A key in the overlay: Esc 27, Up 38, Down 40, Enter 13.
    TableOutcome CellKeyDown(int keyCode);
    /// A key on the grid, as key code x 10 + shift state: Esc 270, Ctrl-Ins 452, Del 460, Ctrl-Del 462.
    TableOutcome GridKeyDown(int keyAndShift);
    /// Leaves a line of a main table for its auxiliary form. Nothing on other forms.
    TableOutcome DblClick();
    TableOutcome OK();

  private:
    int lines() const { return Rows() - 1; }
    std::string& cell(int row, int col);
    const TableColumn& column(int col) const { return entry_.columns[static_cast<std::size_t>(col - 1)]; }
    bool linesEditable() const { return form_.lineEditing && !entry_.fixedLines; }
    bool isCrossed(int line, int col) const { return entry_.crossesLast && line == lines() && col == 1; }

    void BuildGrid(int lines);
    void labelRows();
    std::string rowLabel(int line);
    std::string storedText(TableFieldAt field, int line);
    void moveTo(int row, int col);
    void DeleteLine();
    void InsertLine();
    void moveStoredLine(int from, int to);

    bool enterStartsChain() const;
    void enterNextCell();
    void turnPage(int step);

    std::optional<std::vector<Single>> readLine(int line) const;
    void storeCount();
    std::string storeLine(int line, const std::vector<Single>& numbers);
    void storeCell(int line, int col, const std::vector<Single>& numbers);
    std::string refusal(int line, int storedCol);
    TableOutcome finish();
    void restoreSelectors();

    Store& store_;
    const TableForm& form_;
    TablePlace place_;
    const TableEntry& entry_;
    int cols_;
    std::vector<std::vector<std::string>> cells_;
    TablePosition at_;
    CellOverlay overlay_;
};
