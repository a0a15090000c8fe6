#include "grid/table_engine.h"

#include <algorithm>

#include "store/store.h"

namespace {

constexpr int Enter = 13, Esc = 27, Blank = 32, Up = 38, Down = 40;
constexpr const char* zero = " 0";
constexpr const char* crossedOut = "XXXXXXXXX";
constexpr const char* blankMessage = "An entry is required to fill the blank";

std::string utf8(char32_t code) {
    const auto byte = [](char32_t bits) { return static_cast<char>(static_cast<unsigned char>(bits)); };
    if (code < 0x80) return {byte(code)};
    if (code < 0x800) return {byte(0xC0 | code >> 6), byte(0x80 | (code & 0x3F))};
    if (code < 0x10000)
        return {byte(0xE0 | code >> 12), byte(0x80 | (code >> 6 & 0x3F)), byte(0x80 | (code & 0x3F))};
    return {byte(0xF0 | code >> 18), byte(0x80 | (code >> 12 & 0x3F)), byte(0x80 | (code >> 6 & 0x3F)),
            byte(0x80 | (code & 0x3F))};
}

int sharedCols(const Store& store, const TableForm& form) {
    return form.mainTable ? store.MainCols : store.GridCols;
}

}  // namespace

TableEngine::TableEngine(Store& store, const TableForm& form)
    : store_(store),
      form_(form),
      place_(currentPlace(store)),
      entry_(tableEntry(store, form.name, place_, sharedCols(store, form))) {
    const int columns = static_cast<int>(entry_.columns.size()) + 1;
    cols_ = entry_.allColumns ? columns : std::clamp(sharedCols(store, form), 2, columns);
    const int lines = std::max(0, form.mainTable ? store.MainLines : store.TblLines);
    if (form.mainTable) {
        store.MainRows = lines + 1;
    } else {
        store.GridRows = ToInteger(Double(lines) + 1);
    }
    if (entry_.onLoad) entry_.onLoad(store, place_);
    BuildGrid(lines);
    if (form.mainTable) {
        moveTo(place_.group < Rows() - 1 ? place_.group + 1 : 1, 1);
        at_.TopRow = std::max(1, place_.topRow);
    }
}

std::string TableEngine::caption() const { return fillIn(entry_.caption, store_, place_, entry_, true); }

std::string TableEngine::unit() const { return unitText(entry_, cols_, isSI(store_, place_)); }

std::vector<UnitWord> TableEngine::unitWords() const {
    return ::unitWords(entry_, cols_, isSI(store_, place_));
}

std::string TableEngine::delInsHint() const {
    if (!linesEditable()) return "";
    return "Use <Ctrl>-<Del> to delete a line, <Ctrl>-<Ins> to insert a line, and <Del> to clear a cell.";
}

const std::string& TableEngine::Text(int row, int col) const {
    return cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
}

std::string& TableEngine::cell(int row, int col) {
    return cells_[static_cast<std::size_t>(row)][static_cast<std::size_t>(col)];
}

void TableEngine::BuildGrid(int lines) {
    const std::vector<std::string> row(static_cast<std::size_t>(cols_));
    cells_.assign(static_cast<std::size_t>(lines) + 1, row);
    cell(0, 0) = entry_.rowHead;
    for (int col = 1; col < cols_; ++col) cell(0, col) = column(col).head;
    for (int line = 1; line <= lines; ++line) {
        for (int col = 1; col < cols_; ++col)
            cell(line, col) = entry_.showsZeros ? zero : storedText(column(col).field, line);
    }
    labelRows();
}

/// Column 0 and the crossed-out cell: they belong to places, not to the texts that move with their lines.
void TableEngine::labelRows() {
    for (int line = 1; line <= lines(); ++line) {
        cell(line, 0) = rowLabel(line);
        if (isCrossed(line, 1)) cell(line, 1) = crossedOut;
    }
}

std::string TableEngine::rowLabel(int line) {
    if (entry_.rowLabel) return storedText(entry_.rowLabel, line);
    if (!entry_.rowNames) return std::to_string(line);
    const auto& names = *entry_.rowNames;
    return static_cast<std::size_t>(line) <= names.size() ? names[static_cast<std::size_t>(line - 1)] : "";
}

/// Beyond the store a table shows zeros.
std::string TableEngine::storedText(TableFieldAt field, int line) {
    try {
        return cellText(field(store_, place_, line));
    } catch (const RunTimeError& error) {
        if (error.fault() != Fault::SubscriptOutOfRange) throw;
        return zero;
    }
}

void TableEngine::setPosition(const TablePosition& position) { at_ = position; }

void TableEngine::moveTo(int row, int col) {
    CommitCell();
    at_.Row = at_.RowSel = row;
    at_.Col = at_.ColSel = col;
}

void TableEngine::GridEdit(int keyCode) {
    if (lines() == 0) return;
    CommitCell();
    const bool replaces = keyCode > Blank;
    overlay_.text = replaces ? utf8(static_cast<char32_t>(keyCode)) : Text(at_.Row, at_.Col);
    overlay_.selStart = replaces ? 1 : 1000;
    overlay_.row = at_.Row;
    overlay_.col = at_.Col;
    overlay_.open = true;
}

void TableEngine::CommitCell() {
    if (!overlay_.open) return;
    cell(overlay_.row, overlay_.col) = overlay_.text;
    overlay_.open = false;
}

TableOutcome TableEngine::CellKeyDown(int keyCode) {
    if (keyCode == Esc) {
        overlay_.open = false;
        return {};
    }
    if (keyCode != Enter && keyCode != Up && keyCode != Down) return {};
    CommitCell();
    if (lines() == 0) return {};
    try {
        if (keyCode == Up) {
            moveTo(std::max(1, at_.Row - 1), at_.Col);
        } else if (keyCode == Down) {
            moveTo(std::min(lines(), at_.Row + 1), at_.Col);
            turnPage(form_.pageStepDown);
        } else {
            if (enterStartsChain()) return DblClick();
            enterNextCell();
            turnPage(0);
        }
    } catch (const RunTimeError&) {
        // A key that fails is dropped without a word, with the cell committed.
    }
    return {};
}

/// Looks at the overlay's text even while it is closed. TypeMismatch when that is no number.
bool TableEngine::enterStartsChain() const {
    const TableChain& chain = entry_.chain;
    if (!chain.form || (chain.enterColumn != 0 && at_.Col != chain.enterColumn)) return false;
    return chain.enterAlways || ToSingle(overlay_.text) != 0;
}

/// Column by column and line by line; from the last cell back to the start of its line. The crossed-out
/// cell is passed over.
void TableEngine::enterNextCell() {
    int row = form_.enterBySelection ? at_.RowSel : at_.Row;
    int col = (form_.enterBySelection ? at_.ColSel : at_.Col) + 1;
    if (col >= Cols()) {
        col = entry_.crossesLast && row == lines() - 1 ? 2 : 1;
        row = std::min(row + 1, lines());
    }
    moveTo(row, col);
}

/// The rule looks at the shared GridRows, which a main table does not set: kept.
void TableEngine::turnPage(int step) {
    if (form_.page == 0 || at_.Row != at_.TopRow + form_.page) return;
    const int rows = form_.mainTable ? store_.GridRows : Rows();
    const int top = rows > at_.Row + form_.page + 1 ? at_.Row + step : rows - (form_.page + 1);
    if (top >= 1 && top <= lines()) at_.TopRow = top;
}

TableOutcome TableEngine::GridKeyDown(int keyAndShift) {
    CommitCell();
    switch (keyAndShift) {
        case 270:
            return DblClick();
        case 452:
            InsertLine();
            break;
        case 460:
            if (lines() > 0) cell(at_.Row, at_.Col).clear();
            break;
        case 462:
            DeleteLine();
            break;
        default:
            break;
    }
    return {};
}

void TableEngine::DeleteLine() {
    if (!linesEditable() || lines() == 0) return;
    const int line = at_.Row, last = lines();
    cells_.erase(cells_.begin() + line);
    labelRows();
    moveTo(std::clamp(line, 1, std::max(1, lines())), 1);
    for (int to = line; to < last; ++to) moveStoredLine(to + 1, to);
}

/// There is no upper limit here: limits are tested at OK, by the tables that have them.
void TableEngine::InsertLine() {
    if (!linesEditable()) return;
    const int line = lines() == 0 ? 1 : at_.Row, last = lines();
    cells_.insert(cells_.begin() + line, std::vector<std::string>(static_cast<std::size_t>(cols_), zero));
    labelRows();
    moveTo(line, 1);
    for (int from = last; from >= line; --from) moveStoredLine(from, from + 1);
    if (entry_.clearLine && line <= last) {
        try {
            entry_.clearLine(store_, place_, line);
        } catch (const RunTimeError&) {
            // A line beyond the store has nothing to clear.
        }
    }
}

/// The auxiliary data of a main table follow their line at once, also when the table is left without OK.
void TableEngine::moveStoredLine(int from, int to) {
    if (!entry_.moveLine) return;
    try {
        entry_.moveLine(store_, place_, from, to);
    } catch (const RunTimeError&) {
        // What moves beyond the store is dropped.
    }
}

TableOutcome TableEngine::DblClick() {
    const TableChain& chain = entry_.chain;
    if (!chain.form || lines() == 0) return {};
    CommitCell();
    const int line = at_.Row;
    const auto numbers = readLine(line);
    if (!numbers) return {.message = blankMessage};
    if (chain.editColumn != 0) moveTo(line, chain.editColumn);
    GridEdit(Blank);  // left open over the count when a test fails
    for (const auto& test : chain.tests) {
        if ((*numbers)[static_cast<std::size_t>(test.column)] == 0) return {.message = test.message};
    }
    int count = 0;
    if (chain.countColumn != 0) {
        const Double rows = Double{(*numbers)[static_cast<std::size_t>(chain.countColumn)]} + 1;
        count = ToInteger(rows) - 1;
    }

    storeCount();
    storeLine(line, *numbers);
    place_.group = line;
    place_.topRow = form_.topRowFollowsGroup ? line : at_.TopRow;
    restoreSelectors();
    store_.TblLines = count;
    store_.GridCols = ToInteger(Double(chain.auxiliaryCols));
    return {.unload = true, .load = chain.form(*numbers)};
}

/// The line's numbers, element 0 unused. Nothing when a cell cannot be read as one.
std::optional<std::vector<Single>> TableEngine::readLine(int line) const {
    std::vector<Single> numbers(static_cast<std::size_t>(cols_));
    try {
        for (int col = 1; col < cols_; ++col)
            numbers[static_cast<std::size_t>(col)] = ToSingle(Text(line, col));
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
    return numbers;
}

TableOutcome TableEngine::OK() {
    TableOutcome outcome = CellKeyDown(Enter);
    if (outcome.unload || !outcome.message.empty()) return outcome;

    std::vector<std::vector<Single>> MainRowBuf(cells_.size());
    for (int line = 1; form_.mainTable && line <= lines(); ++line) {
        auto numbers = readLine(line);
        if (!numbers) return {.message = blankMessage};
        MainRowBuf[static_cast<std::size_t>(line)] = std::move(*numbers);
    }
    storeCount();
    for (int line = 1; line <= lines(); ++line) {
        const std::string message = storeLine(line, MainRowBuf[static_cast<std::size_t>(line)]);
        if (!message.empty()) return {.message = message};
    }
    return finish();
}

void TableEngine::storeCount() {
    if (!entry_.count) return;
    try {
        putCount(entry_.count(store_, place_, 0), lines());
    } catch (const RunTimeError&) {
        // A count beyond the store is dropped like the lines there.
    }
}

/// Stores the line and runs its tests; the message of the first that fails, with the line stored so far.
std::string TableEngine::storeLine(int line, const std::vector<Single>& numbers) {
    for (int col = 1; col < cols_; ++col) {
        if (isCrossed(line, col)) continue;
        storeCell(line, col, numbers);
        const std::string message = refusal(line, col);
        if (!message.empty()) return message;
    }
    return "";
}

void TableEngine::storeCell(int line, int col, const std::vector<Single>& numbers) {
    try {
        const TableField field = column(col).field(store_, place_, line);
        if (numbers.empty()) {
            putText(field, Text(line, col));
        } else {
            putNumber(field, numbers[static_cast<std::size_t>(col)]);
        }
    } catch (const RunTimeError&) {
        // A number field whose cell cannot be read keeps its value; a line beyond the store is dropped.
    }
}

std::string TableEngine::refusal(int line, int storedCol) {
    for (const TableTest& test : entry_.tests) {
        if (test.after != storedCol || (test.line != 0 && test.line != line)) continue;
        std::optional<Double> value;
        try {
            value = numberOf(column(test.column).field(store_, place_, line));
        } catch (const RunTimeError&) {
            continue;  // beyond the store
        }
        if (!value) continue;
        const bool bad = test.bad == TableTest::Bad::Zero ? *value == 0 : *value > test.limit;
        if (bad) return test.message;
    }
    return "";
}

/// What follows when all is stored: what the kind adds, the status word, the form that comes next.
TableOutcome TableEngine::finish() {
    TableOutcome outcome;
    outcome.unload = true;
    if (entry_.afterStore) entry_.afterStore(store_, place_, lines(), outcome);
    if (!entry_.status.form.empty()) {
        const std::string label = fillIn(entry_.status.label, store_, place_, entry_, false);
        outcome.words.push_back({entry_.status.form, label});
    }
    if (!entry_.next.form) return outcome;
    restoreSelectors();
    if (entry_.next.mainLines || entry_.next.fixedLines != 0) {
        store_.MainCols = entry_.next.cols;
        store_.MainLines = entry_.next.mainLines ? countOf(entry_.next.mainLines(store_, place_, 0))
                                                 : entry_.next.fixedLines;
    } else {
        store_.GridCols = ToInteger(Double(entry_.next.cols));
    }
    outcome.load = entry_.next.form;
    return outcome;
}

void TableEngine::restoreSelectors() {
    restorePlace(store_, place_);
    if (form_.mainTable) {
        store_.MainLines = lines();
        store_.MainRows = Rows();
        store_.MainCols = cols_;
    } else {
        store_.TblLines = lines();
        store_.GridRows = ToInteger(Double(Rows()));
        store_.GridCols = ToInteger(Double(cols_));
    }
}
