// A whole program on a desk: every screen, the real desktop that starts real
// solvers, a script of answers in place of message boxes, PDF in place of paper.
// A journey types and clicks as a user does.
#pragma once

#include <gtest/gtest.h>

#include <QtTest>
#include <string>
#include <vector>

#include "platform/page.h"
#include "platform/qt/flex_grid.h"
#include "platform/qt/form.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/qt_printer.h"
#include "program/screens.h"
#include "store/program.h"
#include "store/store.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_directory.h"

using Cells = std::vector<std::string>;
using Line = std::vector<Variant>;
using Boxes = std::vector<std::pair<const char*, Variant>>;

Cells cellsOf(const Line& values);

/// A table's cells line by line: `line(n)` gives the values of line n.
template <class LineOf>
Cells linesOf(Double count, LineOf line) {
    Cells cells;
    for (int n = 1; n <= count; ++n)
        for (const std::string& cell : cellsOf(line(n))) cells.push_back(cell);
    return cells;
}

/// The cells of a table of one column.
template <class Array>
Cells columnOf(Double count, const Array& values) {
    return linesOf(count, [&](int n) { return Line{values[n]}; });
}

/// All texts of a page, line by line.
std::string textOf(const Page& page);

class Road : public ::testing::Test {
  protected:
    Road();
    ~Road() override;

    /// The main screen gets the test's directory and this name.
    void name(const std::string& file);

    /// The loaded form of that name, in front and active.
    Form& front(const std::string& form);
    void click(const std::string& form, const std::string& control);
    /// An entry of a menu that drops down.
    void choose(const std::string& form, const std::string& entry);
    /// Into a box: a click, which may empty it, then the keys.
    void type(const std::string& form, const std::string& box, const std::string& text);
    /// From the active cell of a table on: each text and Enter.
    void enter(const std::string& form, const Cells& cells);
    void fill(const std::string& form, const Boxes& boxes);
    /// The table's cells and its OK.
    void fillTable(const std::string& form, const Cells& cells, const std::string& okButton = "BtnRun");
    /// A table behind each button of a board: `table(n)` gives its cells.
    template <class Table>
    void fillBoard(const std::string& board, Double buttons, Table table) {
        const std::string thing = board == "frmSlabs" ? "Slab" : board.substr(3);
        for (int n = 1; n <= buttons; ++n) {
            click(board, "cmd" + thing + std::to_string(n));
            fillTable("frmspreadb", table(n));
            EXPECT_EQ(word(board, "lbl" + thing + std::to_string(n)), "done");
        }
        picture(board, board);
        click(board, "cmdOk");
    }
    /// Save As under that name, and Exit.
    void saveAs(const std::string& menu, const std::string& file);
    /// Exit with the question answered by Yes: the deck is saved as `file`.
    void exitAndSave(const std::string& menu, const std::string& file);
    std::string word(const std::string& form, const std::string& label);
    void expectDone(const std::string& form, const Cells& labels);
    /// As savePicture() has it.
    void picture(const std::string& form, const std::string& name);
    /// Solves the deck that the main screen names and waits for its plot file: the text of the results.
    std::string solve(const std::string& name);
    /// Its plot pages on the screen, each with the question whether to print it, answered by No but for the
    /// last one: the texts of each page.
    std::vector<std::string> plot(const std::string& name);

    TemporaryDirectory directory;
    Store store;
    ScriptedDialogs dialogs;
    std::vector<std::string> notes;
    Screens screens{dialogs};
    QtPrinter printer{[this] { return store.cmbDirectory; },
                      [this](const std::string& note) { notes.push_back(note); }};
    QtDesktop desktop{dialogs, TOLMARK_BIN_DIR};
    Program program{store, screens, dialogs, printer, desktop};
};
