// The table engine on its matrix of texts: keys, the overlay, line editing, what
// OK stores, and the chain between a main table and its auxiliary table.
#include "grid/table_engine.h"

#include <gtest/gtest.h>

#include "store/store.h"

namespace {

constexpr int Enter = 13, Esc = 27, Up = 38, Down = 40;
constexpr int EscOnGrid = 270, CtrlIns = 452, Del = 460, CtrlDel = 462;
constexpr int BeforeDel = 461;  // Shift-Del: no key of the table

const TableForm& formNamed(const std::string& name) {
    for (const TableForm& form : tableForms) {
        if (form.name == name) return form;
    }
    throw std::logic_error(name);
}

class TableEngineTest : public ::testing::Test {
  protected:
    TableEngineTest() { store.CurLayDS = 2; }

    LayeredSet& set() { return store.layered[2]; }

    TableEngine simple(int kind, const std::string& form, int lines, int cols) {
        store.TableKind = kind;
        store.TblLines = lines;
        store.GridCols = static_cast<Integer>(cols);
        return TableEngine(store, formNamed(form));
    }
    TableEngine loads(int lines) {
        store.TableKind = 107;
        store.MainLines = lines;
        store.MainCols = 7;
        return TableEngine(store, formNamed("frmSpread1"));
    }
    /// Types over the cell, character by character as the overlay would hold it, and ends with Enter.
    static TableOutcome enter(TableEngine& table, const std::string& text) {
        table.GridEdit(text.empty() ? 32 : text[0]);
        table.setOverlayText(text);
        return table.CellKeyDown(Enter);
    }
    static void go(TableEngine& table, int row, int col, int top = 1) {
        table.setPosition({row, col, row, col, top});
    }
    static std::string at(const TableEngine& table) {
        return std::to_string(table.position().Row) + "," + std::to_string(table.position().Col);
    }
    static std::string column(const TableEngine& table, int col) {
        std::string texts;
        for (int row = 1; row < table.Rows(); ++row) texts += table.Text(row, col) + "|";
        return texts;
    }

    Store store;
};

TEST_F(TableEngineTest, CaptionsAndUnitsStandForSetGroupAndColumns) {
    store.CurGroup = 3;
    set().LOADL[3].LOAD = 1;
    const auto shown = [](const TableEngine& table) {
        std::string text = table.caption() + " / " + table.unit() + " /";
        for (const UnitWord& word : table.unitWords()) text += " " + std::to_string(word.column) + word.text;
        return text;
    };
    EXPECT_EQ(
        shown(simple(104, "frmSpread2", 1, 3)),
        "Layer Thickness, Poisson's Ratio and Unit Weight for Data Set No. 2 / Unit       in. / 0Unit 1in.");
    EXPECT_EQ(shown(simple(105, "frmspreadb", 1, 2)), "Type of Interface for Data Set No. 2 /  /");
    set().NUNIT = 1;
    EXPECT_EQ(shown(simple(104, "frmSpread2", 1, 4)),
              "Layer Thickness, Poisson's Ratio and Unit Weight for Data Set No. 2 / "
              "Unit       cm               kN/m^3 / 0Unit 1cm 3kN/m^3");
    EXPECT_EQ(shown(simple(107, "frmspreadb", 1, 2)),
              "X and Y Coordinates of Response Points for Load Group No. 3 and Data Set No. 2 / "
              "Unit     cm      cm / 0Unit 1cm 2cm");
}

TEST_F(TableEngineTest, CellsShowNumberText) {
    const std::pair<Variant, std::string> cases[] = {
        {Variant(0), " 0"},     {Variant(Single(4.3F)), " 4.3"},
        {Variant(.35), " .35"}, {Variant("1.234E5"), " 123400"},
        {Variant(" 0"), " 0"},  {Variant("-2.50"), "-2.5"},
        {Variant(""), ""},      {Variant("abc"), "abc"},
    };
    int line = 0;
    for (const auto& [value, text] : cases) set().ZC[++line] = value;
    TableEngine table = simple(103, "frmspreadb", line, 2);
    line = 0;
    for (const auto& [value, text] : cases) EXPECT_EQ(table.Text(++line, 1), text);
}

TEST_F(TableEngineTest, ACharacterReplacesAndOtherKeysEdit) {
    struct {
        int key;
        std::string text;
        int selStart;
    } const cases[] = {
        {'7', "7", 1},        {'-', "-", 1},      {0xE9, "\u00e9", 1}, {0x20AC, "\u20ac", 1},
        {Enter, " 12", 1000}, {' ', " 12", 1000}, {8, " 12", 1000},    {0, " 12", 1000},
    };
    set().ZC[1] = 12;
    TableEngine table = simple(103, "frmspreadb", 2, 2);
    for (const auto& c : cases) {
        table.GridEdit(c.key);
        EXPECT_TRUE(table.overlay().open);
        EXPECT_EQ(table.overlay().text, c.text) << c.key;
        EXPECT_EQ(table.overlay().selStart, c.selStart) << c.key;
        table.CellKeyDown(Esc);
        EXPECT_FALSE(table.overlay().open);
        EXPECT_EQ(table.Text(1, 1), " 12") << "Esc throws the edit away";
    }
}

TEST_F(TableEngineTest, TheOverlayCommitsIntoTheCellItWasOpenedOn) {
    TableEngine table = simple(103, "frmspreadb", 3, 2);
    table.GridEdit('5');
    go(table, 3, 1);  // the click has already moved the active cell
    table.CommitCell();
    EXPECT_EQ(column(table, 1), "5| 0| 0|");
    table.GridEdit('8');
    table.GridEdit('9');
    table.GridKeyDown(Del);
    EXPECT_EQ(column(table, 1), "5| 0||");
}

TEST_F(TableEngineTest, EnterWalksAndTheArrowsStayInTheTable) {
    TableEngine table = simple(104, "frmSpread2", 4, 4);
    std::string walk;
    for (int i = 0; i < 14; ++i) {
        enter(table, "1");
        walk += at(table) + " ";
    }
    EXPECT_EQ(walk, "1,2 1,3 2,1 2,2 2,3 3,1 3,2 3,3 4,2 4,3 4,1 4,2 4,3 4,1 ");

    table.GridEdit('6');
    table.CellKeyDown(Down);
    EXPECT_EQ(at(table), "4,1");
    EXPECT_FALSE(table.overlay().open);
    go(table, 1, 2);
    table.GridEdit('6');
    table.CellKeyDown(Up);
    EXPECT_EQ(at(table) + table.Text(1, 2), "1,26");
    table.CellKeyDown(Down);
    EXPECT_EQ(at(table), "2,2");
}

TEST_F(TableEngineTest, EnterGoesOnFromTheSelectionsEndOnTheFormsThatSaySo) {
    TableEngine points = simple(103, "frmspreadb", 9, 2);
    points.setPosition({2, 1, 5, 1, 1});
    points.CellKeyDown(Enter);
    EXPECT_EQ(at(points), "6,1");
    TableEngine layers = simple(104, "frmSpread2", 9, 4);
    layers.setPosition({2, 1, 5, 2, 1});
    layers.CellKeyDown(Enter);
    EXPECT_EQ(at(layers), "2,2");
}

TEST_F(TableEngineTest, PagesTurnAtFiveAndTwentyRows) {
    struct {
        std::string form;
        int lines, row, top, key, gridRows, newTop;
    } const cases[] = {
        {"frmSpread2", 19, 5, 1, Down, 0, 7},     // row 6 is five below the top: one further
        {"frmSpread2", 19, 4, 1, Down, 0, 1},     // not yet
        {"frmSpread2", 12, 5, 1, Down, 0, 7},     // 13 rows: the last full page
        {"frmSpread2", 8, 5, 1, Down, 0, 3},      // near the end: the last six rows
        {"frmSpread1", 60, 20, 1, Down, 61, 21},  // as Enter
        {"frmSpread1", 60, 20, 1, Down, 40, 19},  // looks at the shared GridRows
        {"frmSpread1", 60, 20, 1, Down, 5, 1},    // that makes no row: dropped
        {"frmSpread1", 60, 21, 1, Down, 61, 1},
    };
    for (const auto& c : cases) {
        store.GridRows = static_cast<Integer>(c.gridRows);
        TableEngine table = c.form == "frmSpread1" ? loads(c.lines) : simple(104, c.form, c.lines, 3);
        go(table, c.row, 1, c.top);
        table.CellKeyDown(c.key);
        EXPECT_EQ(table.position().Row, c.row + 1);
        EXPECT_EQ(table.position().TopRow, c.newTop) << c.form << " " << c.lines << " " << c.row;
    }
    TableEngine table = simple(104, "frmSpread2", 19, 3);
    go(table, 5, 2, 1);
    table.CellKeyDown(Enter);
    EXPECT_EQ(table.position().TopRow, 6) << "Enter puts the row itself on top";
}

TEST_F(TableEngineTest, LinesAreDeletedAndInsertedWithWhatWasTyped) {
    TableEngine table = simple(103, "frmspreadb", 3, 2);
    for (const char* text : {"1", "2", "3"}) enter(table, text);
    go(table, 1, 1);
    table.GridKeyDown(CtrlIns);
    EXPECT_EQ(column(table, 1) + at(table), " 0|1|2|3|1,1");
    EXPECT_EQ(column(table, 0), "1|2|3|4|");
    go(table, 4, 1);
    table.GridKeyDown(CtrlDel);
    EXPECT_EQ(column(table, 1) + at(table), " 0|1|2|3,1");
    table.GridKeyDown(BeforeDel);
    EXPECT_EQ(table.Rows(), 4);
    table.OK();
    EXPECT_EQ(set().NZ, 3);
    EXPECT_EQ(set().ZC[3], Variant(2));
}

TEST_F(TableEngineTest, TheOnlyLineCanGoAndComeBack) {
    TableEngine table = simple(103, "frmspreadb", 1, 2);
    table.GridKeyDown(CtrlDel);
    EXPECT_EQ(table.Rows(), 1);
    for (int key : {EscOnGrid, Del, CtrlDel}) table.GridKeyDown(key);
    table.GridEdit('1');
    EXPECT_FALSE(table.overlay().open);
    for (int key : {Enter, Up, Down}) table.CellKeyDown(key);
    table.GridKeyDown(CtrlIns);
    EXPECT_EQ(column(table, 1) + at(table), " 0|1,1");
    table.GridKeyDown(CtrlDel);
    EXPECT_TRUE(table.OK().unload);
    EXPECT_EQ(set().NZ, 0);
}

TEST_F(TableEngineTest, InterfacesHaveFixedLinesAndKeepWhatCannotBeRead) {
    TableEngine table = simple(105, "frmspreadb", 4, 2);
    table.GridKeyDown(CtrlDel);
    table.GridKeyDown(CtrlIns);
    EXPECT_EQ(table.Rows(), 5);
    EXPECT_EQ(table.delInsHint(), "");
    for (int line = 1; line <= 4; ++line) set().INTF[line] = 7;
    for (const char* text : {"1.5", "", "abc", "40000"}) enter(table, text);
    const TableOutcome outcome = table.OK();
    EXPECT_TRUE(outcome.unload);
    EXPECT_EQ(outcome.words.at(0).label, "lblInterface");
    EXPECT_EQ(set().INTF[1], 2);
    for (int line = 2; line <= 4; ++line) EXPECT_EQ(set().INTF[line], 7) << line;
}

TEST_F(TableEngineTest, TheLastThicknessIsCrossedOutAndNeverStored) {
    set().LAYER[4].TH = 99;
    TableEngine table = simple(104, "frmSpread2", 4, 3);
    EXPECT_EQ(column(table, 1), " 0| 0| 0|XXXXXXXXX|");
    go(table, 2, 1);
    table.GridKeyDown(CtrlIns);
    EXPECT_EQ(column(table, 1), " 0| 0| 0| 0|XXXXXXXXX|");
    go(table, 5, 1);
    table.GridKeyDown(CtrlDel);
    EXPECT_EQ(column(table, 1), " 0| 0| 0|XXXXXXXXX|");
    go(table, 4, 1);
    enter(table, "12");  // typed over: it is the place that counts
    go(table, 1, 1);
    enter(table, "4.5");
    enter(table, "");
    table.OK();
    EXPECT_EQ(set().NL, 4);
    EXPECT_EQ(set().LAYER[1].TH.text(), "4.5");
    EXPECT_TRUE(set().LAYER[1].PR.isEmptyText());
    EXPECT_EQ(set().LAYER[4].TH, Variant(99));
}

TEST_F(TableEngineTest, BeyondTheStoreATableShowsZerosAndDropsThem) {
    TableEngine table = simple(103, "frmspreadb", 20, 2);
    EXPECT_EQ(table.Text(20, 1), " 0");
    go(table, 19, 1);
    enter(table, "8");
    enter(table, "9");
    EXPECT_TRUE(table.OK().unload);
    EXPECT_EQ(set().NZ, 20);
    EXPECT_EQ(set().ZC[19].text(), "8");
    EXPECT_EQ(simple(103, "frmspreadb", -2, 2).Rows(), 1);
    EXPECT_THROW(simple(103, "frmspreadb", 40000, 2), RunTimeError);
}

TEST_F(TableEngineTest, AnOpenTableKeepsItsPlaceWhateverOtherScreensSelect) {
    store.CurPeriod = 3;
    TableEngine table = simple(106, "frmspreadb", 2, 2);
    enter(table, "1.234E5");
    store.CurLayDS = 5;
    store.CurPeriod = 9;
    store.TableKind = 102;
    store.TblLines = 7;
    const TableOutcome outcome = table.OK();
    EXPECT_EQ(set().EMOD[3][1], Variant(123400));
    EXPECT_EQ(set().NL, 2);
    EXPECT_EQ(outcome.words.at(0).form + outcome.words.at(0).label, "frmPeriodlblPeriod3");
    EXPECT_EQ(store.CurLayDS, 5) << "no form comes next: the selectors are the others'";
}

// The load table and its auxiliary tables.

TEST_F(TableEngineTest, EnterInTheCountCellLeadsToThePointsAndTheirOKBack) {
    TableEngine table = loads(2);
    for (const char* text : {"0", "4.5", "80", "0", "0"}) EXPECT_FALSE(enter(table, text).unload);
    go(table, 1, 6, 1);
    TableOutcome outcome = enter(table, "2");
    EXPECT_TRUE(outcome.unload);
    EXPECT_EQ(outcome.load, "frmspreadb");
    EXPECT_EQ(set().NLG, 2);
    EXPECT_EQ(set().LOADL[1].CR.text(), "4.5");
    EXPECT_EQ(set().LOADL[1].NR, Variant(2));

    TableEngine points(store, formNamed("frmspreadb"));
    EXPECT_EQ(points.Text(0, 1), "RC");
    EXPECT_EQ(std::to_string(points.Rows()) + "x" + std::to_string(points.Cols()), "3x2");
    enter(points, "0");
    enter(points, "6.75");
    points.GridKeyDown(CtrlIns);
    store.CurLayDS = 1;  // a click on another data set while the table is open
    store.TableKind = 102;
    outcome = points.OK();
    EXPECT_EQ(outcome.load, "frmSpread1");
    EXPECT_EQ(outcome.words.at(0).label, "lblLoad1");
    EXPECT_EQ(set().LOADL[1].NR, Variant(3));
    EXPECT_EQ(set().RC[1][3].text(), "6.75");

    TableEngine back(store, formNamed("frmSpread1"));
    EXPECT_EQ(back.caption(), "Load Information for Data Set No. 2");
    EXPECT_EQ(at(back) + " " + std::to_string(back.Rows()), "2,1 3");
    EXPECT_EQ(back.Text(1, 6), " 3");
    EXPECT_EQ(back.Text(2, 6), " 0");
}

TEST_F(TableEngineTest, AChangedLoadShowsTheOtherPointsAndKeepsBoth) {
    set().LOADL[1] = {1, 4, 80, 12, 0, 2};
    set().RC[1][1] = 5;
    set().PT[1][1] = {3, 4};
    TableEngine table = loads(1);
    go(table, 1, 3);
    EXPECT_EQ(table.DblClick().load, "frmspreadb");
    TableEngine points(store, formNamed("frmspreadb"));
    EXPECT_EQ(points.Text(1, 1) + points.Text(1, 2), " 3 4");
    points.OK();
    EXPECT_EQ(set().RC[1][1], Variant(5));
}

TEST_F(TableEngineTest, TheChainRefusesBlanksAndNoCount) {
    set().LOADL[1] = {0, 4, 80, 0, 0, ""};
    TableEngine table = loads(1);
    EXPECT_EQ(table.Text(1, 6), "");
    EXPECT_EQ(table.GridKeyDown(EscOnGrid).message, "An entry is required to fill the blank");
    EXPECT_FALSE(table.overlay().open);
    EXPECT_EQ(table.OK().message, "An entry is required to fill the blank");
    EXPECT_EQ(set().NLG, 0);
    go(table, 1, 6);
    EXPECT_EQ(enter(table, "0").message, "") << "a count of 0 just moves on";
    EXPECT_EQ(at(table), "1,1");
    go(table, 1, 2);
    EXPECT_EQ(table.DblClick().message, "NR or NPT cannot be 0");
    EXPECT_TRUE(table.overlay().open);
    EXPECT_EQ(at(table), "1,6");
    table.setOverlayText("abc");
    EXPECT_EQ(table.CellKeyDown(Enter).message, "");
    EXPECT_EQ(at(table) + table.Text(1, 6), "1,6abc") << "no number: committed, and the key is dropped";
}

TEST_F(TableEngineTest, OKPlaysEnterFirstAndEndsWhenThatLedAway) {
    set().LOADL[1] = {0, 4, 80, 0, 0, 3};
    TableEngine table = loads(1);
    go(table, 1, 6);
    EXPECT_TRUE(table.OK().load.empty()) << "no text was ever in the overlay";

    TableEngine second = loads(1);
    go(second, 1, 5);
    enter(second, "12");  // stays in the closed overlay
    EXPECT_EQ(at(second), "1,6");
    set().LOADL[1].XW = 0;
    EXPECT_EQ(second.OK().load, "frmspreadb");
    EXPECT_EQ(set().LOADL[1].XW, Variant(12));

    set().LOADL[1].NR = 0;
    TableEngine third = loads(1);
    go(third, 1, 5);
    enter(third, "14");
    const TableOutcome refused = third.OK();
    EXPECT_EQ(refused.message, "NR or NPT cannot be 0");
    EXPECT_FALSE(refused.unload) << "the count is there to be corrected";
    EXPECT_EQ(set().LOADL[1].XW, Variant(12));
}

TEST_F(TableEngineTest, OnlyTheMainTablesOKRefusesMoreThan25Points) {
    for (int group : {1, 2, 3}) set().LOADL[group] = {0, 4, 80, 0, 0, 1};
    TableEngine table = loads(3);
    go(table, 2, 6);
    EXPECT_EQ(enter(table, "26").load, "frmspreadb");
    TableEngine points(store, formNamed("frmspreadb"));
    EXPECT_EQ(points.Rows(), 27);
    go(points, 25, 1);
    enter(points, "7");
    enter(points, "8");
    EXPECT_TRUE(points.OK().unload);
    EXPECT_EQ(set().LOADL[2].NR, Variant(26));
    EXPECT_EQ(set().RC[2][25].text(), "7");

    TableEngine back(store, formNamed("frmSpread1"));
    EXPECT_EQ(at(back), "3,1");
    enter(back, "2");
    go(back, 1, 1);
    enter(back, "2");
    const TableOutcome outcome = back.OK();
    EXPECT_EQ(outcome.message, "NR or NPT should not be greater than 25.");
    EXPECT_FALSE(outcome.unload);
    EXPECT_EQ(set().LOADL[1].LOAD, Variant(2));
    EXPECT_EQ(set().LOADL[3].LOAD, Variant(0)) << "lines behind the refused one are not stored";
}

TEST_F(TableEngineTest, PointsFollowTheirLineAtOnce) {
    for (int group = 1; group <= 12; ++group) {
        set().LOADL[group] = {group % 2, 4, 80, 0, 0, 2};
        set().RC[group][1] = group;
        set().PT[group][1] = {group, -group};
    }
    TableEngine table = loads(12);
    go(table, 2, 1);
    table.GridKeyDown(CtrlDel);
    EXPECT_EQ(set().LOADL[2].LOAD, Variant(1));
    EXPECT_EQ(set().PT[2][1].YPT, Variant(-3));
    EXPECT_EQ(set().RC[2][1], Variant(2)) << "the other kind of points stays";
    EXPECT_EQ(set().RC[3][1], Variant(4));
    EXPECT_EQ(set().RC[11][1], Variant(12));
    go(table, 11, 1);
    table.GridKeyDown(CtrlDel);
    EXPECT_EQ(set().RC[10][1], Variant(10)) << "deleting the last line moves nothing";

    go(table, 3, 1);
    table.GridKeyDown(CtrlIns);
    EXPECT_EQ(set().RC[3][1], Variant(0));
    EXPECT_EQ(set().RC[4][1], Variant(4));
    EXPECT_EQ(set().PT[5][1].XPT, Variant(5));
    EXPECT_EQ(set().LOADL[4].LOAD, Variant(0));
    for (int i = 0; i < 3; ++i) table.GridKeyDown(CtrlIns);
    EXPECT_EQ(table.Rows(), 15);
    EXPECT_EQ(table.DblClick().message, "NR or NPT cannot be 0");
}

}  // namespace
