// A grid of texts for data entry, with a text box that floats over one cell.
//
// Row 0 holds the heads and column 0 the line labels; both are fixed. Cells hold
// text and nothing else. The grid reports keys, clicks and leaving a cell; what
// they do to the texts is the owner's business, and the owner sets the result.
// LeaveCell comes before the user's key or click moves the active cell.
#pragma once

#include <QTableWidget>
#include <functional>
#include <string>
#include <vector>

#include "platform/qt/controls.h"

/// The text box over a cell. The keys that leave it are the owner's; none reaches the grid.
class CellBox : public TextBox {
    Q_OBJECT
  public:
    CellBox(const std::string& name, QWidget* parent);
    std::function<void(int keyCode)> onKeyDown;  ///< Enter 13, Esc 27, Up 38, Down 40

  protected:
    void keyPressEvent(QKeyEvent* event) override;
};

class FlexGrid : public QTableWidget {
    Q_OBJECT
  public:
    static constexpr int FixedRows = 1;

    FlexGrid(const std::string& name, const std::string& cellBoxName, QWidget* parent);

    int Rows() const { return rowCount() + FixedRows; }
    int Cols() const { return columnCount() + 1; }
    /// Both counts with the fixed row and column.
    void setSize(int rows, int cols);
    /// A column is never narrower than its head.
    void setColWidth(int col, int twips);
    std::string Text(int row, int col) const;
    void setText(int row, int col, const std::string& text);

    /// The active cell: where the selection began. Row 1 and column 1 in a grid without lines.
    int Row() const;
    int Col() const;
    /// The cell where the selection ends.
    int RowSel() const;
    int ColSel() const;
    /// Makes a cell the active one and the only one selected, and brings it into view.
    void setCell(int row, int col);
    int TopRow() const;
    void setTopRow(int row);
    /// CellLeft, CellTop, CellWidth and CellHeight, within the viewport.
    QRect cellRect(int row, int col) const;

    CellBox& cellBox() { return box_; }
    /// Shows the text box exactly over the cell, brought into view, and gives it the focus.
    void openCellBox(int row, int col, const std::string& text, int selStart);
    /// Hides the text box; the grid takes the focus over if the box has it.
    void closeCellBox();

    std::function<void(int keyCode)> onKeyPress;  ///< the character's code point; Enter is 13
    std::function<void(int keyCode, int shift)>
        onKeyDown;       ///< Esc 27, Ins 45, Del 46; Shift 1, Ctrl 2, Alt 4
    Handler onDblClick;  ///< on a line, its label included
    Handler onGotFocus;
    Handler onLeaveCell;  ///< also when the text box is scrolled out of sight

  signals:
    void columnsMoved();  ///< columns stand elsewhere: resized or scrolled

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void updateGeometries() override;

  private:
    int anchor(Qt::Orientation orientation) const;
    void lineLabelPressed(int row);
    void placeCellBox();

    class CornerHead;
    CornerHead* corner_;
    CellBox box_;
    int boxRow_ = 0, boxCol_ = 0;
};

/// A label whose words stand over columns of a grid, wherever these are. Its caption is the whole text.
class UnitRow : public Label {
    Q_OBJECT
  public:
    struct Word {
        std::string text;
        int column;
    };
    UnitRow(const std::string& name, FlexGrid& grid, QWidget* parent);
    void setWords(const std::string& caption, std::vector<Word> words);
    QSize minimumSizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    FlexGrid& grid_;
    std::vector<Word> words_;
};
