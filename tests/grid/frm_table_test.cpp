// The table forms as a user works them: real keys and mouse clicks on real
// widgets. What the keys mean for the texts is tested on the engine; here it is
// whether each key and click gets there, and what is on the screen afterwards.
#include "grid/frm_table.h"

#include <QScrollBar>

#include "support/desk_screens.h"
#include "support/pictures.h"
#include "support/window_checks.h"

namespace {

/// A caller with the labels that tables mark.
class Caller : public Form {
  public:
    Caller(const std::string& name, const std::vector<std::string>& labels) : Form(name) {
        for (const std::string& label : labels) (new StatusLabel(label, "", this))->input();
    }
    void Form_Load() override {}
};

class TableFormTest : public DeskScreens {
  protected:
    TableFormTest() : DeskScreens({}) {
        screens.add("frmBEDFORM", [] {
            return std::make_unique<Caller>("frmBEDFORM",
                                            std::vector<std::string>{"lblZcoord", "lblLayer", "lblLoad1"});
        });
        addTableForms(program);
        screens.load("frmBEDFORM");
        store.CurLayDS = store.CurSlabDS = 1;
        store.NewFile = 1;
    }
    LayeredSet& set() { return store.layered[1]; }

    /// Opens a table as its menu does and leaves it in front, active.
    Form& open(int kind, const std::string& form, int lines, int cols, int group = 0) {
        store.TableKind = kind;
        store.CurGroup = group;
        store.CurTopRow = 1;
        store.MainLines = store.TblLines = lines;
        store.MainCols = store.GridCols = static_cast<Integer>(cols);
        screens.load(form);
        return front(form);
    }
    /// The line of the main table under which that entry is the one.
    int groupOf(const TableEntry& entry, int cols) {
        TablePlace place{.kind = entry.kind, .dataSet = 1, .layer = 1, .group = 1};
        while (&tableEntry(store, entry.form, place, cols) != &entry && place.group < 4) ++place.group;
        return place.group;
    }
    Form& front(const std::string& form) {
        Form* loaded = screens.loaded(form);
        if (!loaded) throw std::logic_error(form + " is not open");
        EXPECT_TRUE(QTest::qWaitForWindowActive(loaded));
        return *loaded;
    }
    static FlexGrid& grid(Form& form) { return form.control<FlexGrid>("GridSpreadsheet"); }

    static void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    static void type(const char* text) {
        for (const char* letter = text; *letter; ++letter)
            QTest::keyClick(QApplication::focusWidget(), *letter);
    }
    /// Types an entry and ends it with Enter.
    static void enter(const char* text) {
        type(text);
        key(Qt::Key_Return);
    }
    static void click(FlexGrid& grid, int row, int col) {
        QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.cellRect(row, col).center());
    }
    static void doubleClick(FlexGrid& grid, int row, int col) {
        click(grid, row, col);
        QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, grid.cellRect(row, col).center());
    }
    /// The access key of OK; the button clicks a moment after its key.
    void pressOK(const std::string& form) {
        key(Qt::Key_O, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !screens.loaded(form); })) << form << " is still open";
    }
    static std::string at(FlexGrid& grid) {
        return std::to_string(grid.Row()) + "," + std::to_string(grid.Col());
    }
    static std::string column(FlexGrid& grid, int col) {
        std::string texts;
        for (int row = 1; row < grid.Rows(); ++row) texts += grid.Text(row, col) + "|";
        return texts;
    }
    std::string word(const std::string& form, const std::string& label) {
        return screens.loaded(form)->control<StatusLabel>(label).caption();
    }
};

TEST_F(TableFormTest, TheTextBoxLiesOverTheCellAndTakesTheKeys) {
    set().ZC[2] = 12;
    Form& form = open(103, "frmspreadb", 4, 2);
    FlexGrid& table = grid(form);
    CellBox& box = form.control<CellBox>("TxtCell");
    EXPECT_EQ(QApplication::focusWidget(), &table);

    key(Qt::Key_Down);
    type("7");
    EXPECT_EQ(box.geometry(), table.cellRect(2, 1));
    EXPECT_EQ(QApplication::focusWidget(), &box);
    type("5");
    key(Qt::Key_Home);
    type("-");
    EXPECT_EQ(box.textValue() + table.Text(2, 1), "-75 12");
    key(Qt::Key_PageDown);  // is the box's, not the grid's
    EXPECT_EQ(at(table), "2,1");

    key(Qt::Key_Escape);
    EXPECT_FALSE(box.isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &table);
    key(Qt::Key_Escape);  // no auxiliary table here, and nothing else
    EXPECT_EQ(screens.loaded("frmspreadb"), &form);

    key(Qt::Key_Space);
    EXPECT_EQ(box.cursorPosition(), 3);
    type("5");
    key(Qt::Key_Up);
    EXPECT_EQ(column(table, 1) + at(table), " 0| 125| 0| 0|1,1");
    key(Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_TRUE(box.isVisible());
    key(Qt::Key_Up, Qt::KeypadModifier);
    doubleClick(table, 3, 1);
    EXPECT_FALSE(box.isVisible()) << "a double click opens nothing here";
    key(Qt::Key_7, Qt::KeypadModifier);
    EXPECT_EQ(box.textValue(), "7");
}

TEST_F(TableFormTest, ASelectionIsEditedWhereItBeganAndLeftWhereItEnds) {
    FlexGrid& table = grid(open(103, "frmspreadb", 6, 2));
    for (int row = 2; row <= 3; ++row) key(Qt::Key_Down, Qt::ShiftModifier);
    enter("5");
    EXPECT_EQ(column(table, 1) + at(table), "5| 0| 0| 0| 0| 0|4,1");
    EXPECT_EQ(table.RowSel(), 4);
}

TEST_F(TableFormTest, ClicksCommitIntoTheCellThatWasEdited) {
    Form& form = open(104, "frmSpread2", 6, 3);
    FlexGrid& table = grid(form);
    type("8");
    click(table, 3, 2);
    EXPECT_EQ(column(table, 1), "8| 0| 0| 0| 0|XXXXXXXXX|");
    EXPECT_EQ(at(table), "3,2");
    EXPECT_EQ(QApplication::focusWidget(), &table);
    type(".4");
    QTest::mouseClick(table.verticalHeader()->viewport(), Qt::LeftButton, {},
                      {5, table.cellRect(5, 1).center().y()});
    EXPECT_EQ(table.Text(3, 2) + " " + at(table), ".4 5,2");
    type("1");
    key(Qt::Key_Tab);
    EXPECT_TRUE(form.control<CellBox>("TxtCell").isVisible());
    table.setFocus();
    EXPECT_FALSE(form.control<CellBox>("TxtCell").isVisible());
    type("2");
    ::click(form, "BtnRun");
    EXPECT_EQ(set().LAYER[5].PR.text(), "2");
    EXPECT_EQ(set().LAYER[1].TH.text(), "8");
    EXPECT_EQ(set().LAYER[6].TH, Variant(0));
    EXPECT_EQ(word("frmBEDFORM", "lblLayer"), "done");
}

TEST_F(TableFormTest, AClickCommitsAlsoWhereTheWindowGetsNoFocusEvents) {
    FlexGrid& table = grid(open(103, "frmspreadb", 3, 2));
    type("8");
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    click(table, 3, 1);
    EXPECT_EQ(column(table, 1) + at(table), "8| 0| 0|3,1");
    EXPECT_FALSE(table.cellBox().isVisible());
}

TEST_F(TableFormTest, LineKeysAlsoFromTheNumberPadAndNeverToTheClipboard) {
    for (int line = 1; line <= 3; ++line) set().ZC[line] = line;
    QApplication::clipboard()->setText("kept");
    FlexGrid& table = grid(open(103, "frmspreadb", 3, 2));
    key(Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(column(table, 1) + column(table, 0), " 0| 1| 2| 3|1|2|3|4|");
    key(Qt::Key_Insert, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(table.Rows(), 6);
    key(Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(at(table), "5,1");
    key(Qt::Key_Delete, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(column(table, 1) + at(table), " 0| 0| 1| 2|4,1");
    key(Qt::Key_Delete);
    key(Qt::Key_Up);
    key(Qt::Key_Delete, Qt::KeypadModifier);
    for (auto other : {Qt::ShiftModifier, Qt::AltModifier}) {
        key(Qt::Key_Delete, other);
        key(Qt::Key_Insert, other);
    }
    key(Qt::Key_Insert);
    EXPECT_EQ(column(table, 1) + at(table), " 0| 0|||3,1");
    EXPECT_EQ(QApplication::clipboard()->text(), "kept");
}

TEST_F(TableFormTest, EnterTurnsThePageOnTheScreen) {
    FlexGrid& table = grid(open(104, "frmSpread2", 9, 3));
    for (int entry = 0; entry < 10; ++entry) enter("1");
    EXPECT_EQ(at(table), "6,1");
    EXPECT_EQ(table.TopRow(), 4) << "the last page of ten rows";
}

TEST_F(TableFormTest, TheTextBoxFollowsItsCellUntilItIsOutOfSight) {
    Form& form = open(103, "frmspreadb", 60, 2);
    FlexGrid& table = grid(form);
    CellBox& box = form.control<CellBox>("TxtCell");
    click(table, 5, 1);
    type("9");
    table.verticalScrollBar()->setValue(2);
    EXPECT_TRUE(box.isVisible());
    EXPECT_EQ(box.geometry(), table.cellRect(5, 1));
    table.setColumnWidth(0, 160);
    EXPECT_EQ(box.geometry(), table.cellRect(5, 1));
    EXPECT_EQ(box.width(), 159);
    table.setColumnWidth(0, 100);
    table.verticalScrollBar()->setValue(30);
    EXPECT_FALSE(box.isVisible());
    EXPECT_EQ(table.Text(5, 1), "9");
    type("7");  // the active cell comes back into view to be edited
    EXPECT_TRUE(table.viewport()->rect().contains(box.geometry()));
}

TEST_F(TableFormTest, ALoadGroupLeadsToItsPointsAndBack) {
    set().LOADL[1] = {1, 4, 90, 13.5, 0, ""};
    Form& form = open(107, "frmSpread1", 1, 7);
    EXPECT_EQ(form.control<Label>("lblDouble").caption(),
              "Double click anywhere on a line to get auxiliary form for NR or NPT.");
    dialogs.expectBox("An entry is required to fill the blank");
    key(Qt::Key_Escape);
    dialogs.expectBox("An entry is required to fill the blank");
    ::click(form, "BtnRun");
    EXPECT_EQ(QApplication::focusWidget(), &grid(form));
    click(grid(form), 1, 6);
    type("0");
    dialogs.expectBox("NR or NPT cannot be 0");
    doubleClick(grid(form), 1, 3);
    EXPECT_EQ(form.control<CellBox>("TxtCell").geometry(), grid(form).cellRect(1, 6));
    key(Qt::Key_Backspace);
    type("1");
    const QPoint label(5, grid(form).cellRect(1, 1).center().y());
    QTest::mouseDClick(grid(form).verticalHeader()->viewport(), Qt::LeftButton, {}, label);
    EXPECT_EQ(screens.loaded("frmSpread1"), nullptr);
    EXPECT_EQ(grid(front("frmspreadb")).Cols(), 3);
    type("35");
    pressOK("frmspreadb");
    EXPECT_EQ(set().PT[1][1].XPT.text(), "35") << "OK commits the open cell";
    EXPECT_EQ(word("frmBEDFORM", "lblLoad1"), "done");
    EXPECT_EQ(at(grid(front("frmSpread1"))), "1,1") << "behind the last line comes the first";
    pressOK("frmSpread1");
    EXPECT_EQ(set().LOADL[1].YW, Variant(13.5));
}

TEST_F(TableFormTest, ASecondTableClosesTheFirstAndTheFrameStoresNothing) {
    open(103, "frmspreadb", 2, 2);
    type("5");
    Form& form = open(104, "frmSpread2", 2, 3);
    EXPECT_EQ(screens.loaded("frmspreadb"), nullptr);
    enter("6");
    open(104, "frmSpread2", 3, 3);
    EXPECT_NE(screens.loaded("frmSpread2"), &form);
    EXPECT_EQ(grid(front("frmSpread2")).Rows(), 4);
    enter("6");
    front("frmSpread2").close();
    EXPECT_EQ(screens.loaded("frmSpread2"), nullptr);
    EXPECT_EQ(set().ZC[1], Variant(0));
    EXPECT_EQ(set().LAYER[1].TH, Variant(0));
    EXPECT_EQ(set().NL, 0);
    EXPECT_EQ(word("frmBEDFORM", "lblLayer"), "input");
}

TEST_F(TableFormTest, TheHelpTextIsPrinted) {
    ::click(open(105, "frmspreadb", 2, 2), "cmdPrint");
    EXPECT_EQ(printer.jobs.at(0).size, 9);
}

TEST_F(TableFormTest, EveryTableIsWellMade) {
    std::vector<const TableEntry*> entries;
    for (const auto* tables : {&layeredTables(), &slabTables()}) {
        for (const TableEntry& entry : *tables) entries.push_back(&entry);
    }
    for (const TableEntry* each : entries) {
        const TableEntry& entry = *each;
        for (const int NUNIT : {0, 1}) {
            set().NUNIT = static_cast<Single>(NUNIT);
            store.slab[1].NUNIT = static_cast<Integer>(NUNIT);
            set().LOADL[1].LOAD = entry.columns.size() == 1 ? 0 : 1;
            const int cols = static_cast<int>(entry.columns.size()) + 1;
            Form& form = open(entry.kind, entry.form, entry.fixedLines ? 3 : 12, cols, groupOf(entry, cols));
            SCOPED_TRACE(form.caption());
            expectWellMade(form);
            savePicture(form, std::string(entry.help) + (NUNIT ? "_si" : ""));
            FlexGrid& table = grid(form);
            EXPECT_EQ(table.accessibleName(), form.windowTitle());
            const QVariant firstName = table.model()->headerData(0, Qt::Vertical);
            EXPECT_EQ(firstName.toString().toStdString(), table.Text(1, 0)) << "also where it is blank";
            for (int col = 1; col < table.Cols(); ++col) {
                const int head =
                    table.fontMetrics().horizontalAdvance(QString::fromStdString(table.Text(0, col)));
                EXPECT_GT(table.columnWidth(col - 1), head);
            }
        }
    }
    grid(front("frmspreadb")).setFocus();
    type("1");
    EXPECT_EQ(QApplication::focusWidget()->accessibleName(), "TNLR, Load Group No. 1");
}

}  // namespace
