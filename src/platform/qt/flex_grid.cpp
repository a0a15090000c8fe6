#include "platform/qt/flex_grid.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionHeader>
#include <algorithm>

namespace {

constexpr int twipsPerPixel = 10;
constexpr int headMargin = 14;  ///< pixels that a head needs beside its text

QString shown(const std::string& text) { return QString::fromStdString(text); }

/// Key codes as handlers know them. The number pad's keys have the same codes.
int keyCode(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return 13;
        case Qt::Key_Escape:
            return 27;
        case Qt::Key_Up:
            return 38;
        case Qt::Key_Down:
            return 40;
        case Qt::Key_Insert:
            return 45;
        case Qt::Key_Delete:
            return 46;
        default:
            return 0;
    }
}

int shiftState(const QKeyEvent& event) {
    const Qt::KeyboardModifiers held = event.modifiers();
    return (held & Qt::ShiftModifier ? 1 : 0) + (held & Qt::ControlModifier ? 2 : 0) +
           (held & Qt::AltModifier ? 4 : 0);
}

bool moves(const QKeyEvent& event) {
    switch (event.key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Home:
        case Qt::Key_End:
        case Qt::Key_PageUp:
        case Qt::Key_PageDown:
            return true;
        default:
            return false;
    }
}

/// The character that the key gives, 0 when it gives none.
int character(const QKeyEvent& event) {
    if (event.modifiers() & Qt::AltModifier || event.text().isEmpty()) return 0;
    return static_cast<int>(event.text().toUcs4().front());
}

}  // namespace

/// The head of column 0, in the corner between Qt's two headers.
class FlexGrid::CornerHead : public QWidget {
  public:
    using QWidget::QWidget;
    QString text;

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        QStyleOptionHeader head;
        head.initFrom(this);
        head.text = text;
        head.textAlignment = Qt::AlignCenter;
        head.position = QStyleOptionHeader::OnlyOneSection;
        style()->drawControl(QStyle::CE_Header, &head, &painter, this);
    }
};

CellBox::CellBox(const std::string& name, QWidget* parent) : TextBox(name, "", parent) {
    setFrame(false);
    setStyleSheet("QLineEdit { border: 1px solid palette(highlight); padding: 0px; }");
}

void CellBox::keyPressEvent(QKeyEvent* event) {
    const int code = keyCode(*event);
    if (code == 13 || code == 27 || code == 38 || code == 40) {
        dispatch([&] {
            if (onKeyDown) onKeyDown(code);
        });
    } else {
        TextBox::keyPressEvent(event);
    }
    event->accept();
}

FlexGrid::FlexGrid(const std::string& name, const std::string& cellBoxName, QWidget* parent)
    : QTableWidget(parent), corner_(new CornerHead(this)), box_(cellBoxName, viewport()) {
    setObjectName(shown(name));
    setSelectionMode(ContiguousSelection);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    horizontalHeader()->setSectionsClickable(false);
    verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setSectionsClickable(true);
    // Qt selects the whole line; here the line becomes the active one.
    disconnect(verticalHeader(), &QHeaderView::sectionPressed, this, nullptr);
    connect(verticalHeader(), &QHeaderView::sectionPressed, this, &FlexGrid::lineLabelPressed);
    connect(verticalHeader(), &QHeaderView::sectionDoubleClicked, this, [this] { dispatch(onDblClick); });
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this] { updateGeometries(); });
    box_.hide();
}

void FlexGrid::setSize(int rows, int cols) {
    const int before = rowCount(), columnsBefore = columnCount();
    setColumnCount(cols - 1);
    setRowCount(rows - FixedRows);
    for (int row = 0; row < rowCount(); ++row) {
        for (int col = row < before ? columnsBefore : 0; col < columnCount(); ++col)
            setItem(row, col, new QTableWidgetItem);
    }
    // Where there is no text Qt shows a number.
    for (int row = before; row < rowCount(); ++row) setText(row + FixedRows, 0, "");
    for (int col = columnsBefore; col < columnCount(); ++col) setText(0, col + 1, "");
}

void FlexGrid::setColWidth(int col, int twips) {
    const int head = fontMetrics().horizontalAdvance(shown(Text(0, col))) + headMargin;
    const int width = std::max(twips / twipsPerPixel, head);
    if (col == 0) {
        verticalHeader()->setFixedWidth(width);
    } else {
        setColumnWidth(col - 1, width);
    }
}

std::string FlexGrid::Text(int row, int col) const {
    const QTableWidgetItem* there = nullptr;
    if (row == 0 && col == 0) return corner_->text.toStdString();
    if (row == 0) {
        there = horizontalHeaderItem(col - 1);
    } else {
        there = col == 0 ? verticalHeaderItem(row - 1) : item(row - 1, col - 1);
    }
    return there ? there->text().toStdString() : "";
}

void FlexGrid::setText(int row, int col, const std::string& text) {
    if (row == 0 && col == 0) {
        corner_->text = shown(text);
        corner_->update();
    } else if (row == 0) {
        setHorizontalHeaderItem(col - 1, new QTableWidgetItem(shown(text)));
    } else if (col == 0) {
        setVerticalHeaderItem(row - 1, new QTableWidgetItem(shown(text)));
    } else {
        item(row - 1, col - 1)->setText(shown(text));
    }
}

/// Qt's current cell is the end of the selection; the cell where it began is the opposite corner.
int FlexGrid::anchor(Qt::Orientation orientation) const {
    const bool rows = orientation == Qt::Vertical;
    const int current = rows ? currentRow() : currentColumn();
    const QItemSelection selected = selectionModel()->selection();
    if (selected.isEmpty()) return current;
    const int first = rows ? selected.front().top() : selected.front().left();
    const int last = rows ? selected.front().bottom() : selected.front().right();
    return current == first ? last : first;
}

int FlexGrid::Row() const { return std::max(0, anchor(Qt::Vertical)) + FixedRows; }
int FlexGrid::Col() const { return std::max(0, anchor(Qt::Horizontal)) + 1; }
int FlexGrid::RowSel() const { return std::max(0, currentRow()) + FixedRows; }
int FlexGrid::ColSel() const { return std::max(0, currentColumn()) + 1; }

void FlexGrid::setCell(int row, int col) {
    const QModelIndex cell = model()->index(row - FixedRows, col - 1);
    if (!cell.isValid()) return;
    if (currentIndex() == cell) {
        scrollTo(cell);
    } else {
        setCurrentIndex(cell);
    }
    // Qt extends the selection when the user holds Shift while the cell is set.
    selectionModel()->select(cell, QItemSelectionModel::ClearAndSelect);
}

int FlexGrid::TopRow() const { return verticalScrollBar()->value() + FixedRows; }

void FlexGrid::setTopRow(int row) {
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(row - FixedRows);
}

QRect FlexGrid::cellRect(int row, int col) const {
    return visualRect(model()->index(row - FixedRows, col - 1));
}

void FlexGrid::openCellBox(int row, int col, const std::string& text, int selStart) {
    boxRow_ = row;
    boxCol_ = col;
    scrollTo(model()->index(row - FixedRows, col - 1));
    box_.setTextValue(text);
    box_.setCursorPosition(selStart);
    QStringList name = {shown(Text(0, col)), shown(Text(0, 0) + " " + Text(row, 0)).trimmed()};
    name.removeAll("");  // a head or the name of a line may be blank
    box_.setAccessibleName(name.join(", "));
    box_.show();
    placeCellBox();
    box_.setFocus();
}

void FlexGrid::closeCellBox() {
    if (box_.hasFocus()) setFocus();
    box_.hide();
}

void FlexGrid::placeCellBox() {
    if (box_.isHidden()) return;
    const QRect cell = cellRect(boxRow_, boxCol_);
    box_.setGeometry(cell);
    if (!viewport()->rect().intersects(cell)) dispatch(onLeaveCell);
}

void FlexGrid::keyPressEvent(QKeyEvent* event) {
    const int code = keyCode(*event);
    const int letter = code == 13 ? code : character(*event);
    event->accept();
    if (code == 27 || code == 45 || code == 46) {
        const int shift = shiftState(*event);
        dispatch([&] {
            if (onKeyDown) onKeyDown(code, shift);
        });
    } else if (moves(*event)) {
        dispatch(onLeaveCell);
        QTableWidget::keyPressEvent(event);
    } else if (letter != 0) {
        dispatch([&] {
            if (onKeyPress) onKeyPress(letter);
        });
    } else {
        event->ignore();
    }
}

void FlexGrid::mousePressEvent(QMouseEvent* event) {
    dispatch(onLeaveCell);
    if (indexAt(event->pos()).isValid()) QTableWidget::mousePressEvent(event);
}

void FlexGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && indexAt(event->pos()).isValid()) dispatch(onDblClick);
}

void FlexGrid::lineLabelPressed(int row) {
    dispatch(onLeaveCell);
    setFocus();
    setCell(row + FixedRows, Col());
}

void FlexGrid::focusInEvent(QFocusEvent* event) {
    QTableWidget::focusInEvent(event);
    dispatch(onGotFocus);
}

void FlexGrid::scrollContentsBy(int dx, int dy) {
    QTableWidget::scrollContentsBy(dx, dy);
    placeCellBox();
    emit columnsMoved();
}

void FlexGrid::updateGeometries() {
    QTableWidget::updateGeometries();
    const QRect heads = horizontalHeader()->geometry(), labels = verticalHeader()->geometry();
    corner_->setGeometry(labels.left(), heads.top(), labels.width(), heads.height());
    placeCellBox();
    emit columnsMoved();
}

UnitRow::UnitRow(const std::string& name, FlexGrid& grid, QWidget* parent)
    : Label(name, "", parent), grid_(grid) {
    connect(&grid, &FlexGrid::columnsMoved, this, [this] { update(); });
}

void UnitRow::setWords(const std::string& caption, std::vector<Word> words) {
    words_ = std::move(words);
    setCaption(caption);
}

QSize UnitRow::minimumSizeHint() const { return {0, fontMetrics().height()}; }

void UnitRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const int gridLeft = grid_.mapTo(window(), QPoint()).x() - mapTo(window(), QPoint()).x();
    const QRect view = grid_.viewport()->geometry().translated(gridLeft, 0);
    const QRect labels = grid_.verticalHeader()->geometry().translated(gridLeft, 0);
    for (const Word& word : words_) {
        QRect place(labels.left(), 0, labels.width(), height());
        if (word.column > 0) {
            painter.setClipRect(view.left(), 0, view.width(), height());
            place.moveLeft(view.left() + grid_.columnViewportPosition(word.column - 1));
            place.setWidth(grid_.columnWidth(word.column - 1));
        }
        painter.drawText(place, Qt::AlignCenter, shown(word.text));
    }
}
