// The table engine on its matrix of texts: keys, the overlay, line editing, what
// OK stores, and the chain between a main table and its auxiliary table.
#include "support/table_bench.h"

namespace {

class TableEngineTest : public TableBench {
  protected:
    TableEngineTest() { store.CurLayDS = 2; }

    LayeredSet& set = store.layered[2];
};

TEST_F(TableEngineTest, TheUnitRowGoesAsFarAsTheColumns) {
    EXPECT_EQ(open(104, "frmSpread2", 1, 3).unit(), "Unit       in.");
    EXPECT_EQ(open(104, "frmSpread2", 1, 4).unit(), "Unit       in.               pcf");
    EXPECT_EQ(open(104, "frmSpread2", 1, 4).unitWords().at(0).text, "Unit");
    EXPECT_EQ(open(105, "frmspreadb", 1, 2).unit(), "");
}

TEST_F(TableEngineTest, CellsShowNumberText) {
    const std::pair<Variant, std::string> cases[] = {
        {Variant(0), " 0"},     {Variant(Single(4.3F)), " 4.3"},
        {Variant(.35), " .35"}, {Variant("1.234E5"), " 123400"},
        {Variant(" 0"), " 0"},  {Variant("-2.50"), "-2.5"},
        {Variant(""), ""},      {Variant("abc"), "abc"},
    };
    int line = 0;
    for (const auto& [value, text] : cases) set.ZC[++line] = value;
    TableEngine table = open(103, "frmspreadb", line, 2);
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
    set.ZC[1] = 12;
    TableEngine table = open(103, "frmspreadb", 2, 2);
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
    TableEngine table = open(103, "frmspreadb", 3, 2);
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
    TableEngine table = open(104, "frmSpread2", 4, 4);
    std::string walk;
    for (int i = 0; i < 14; ++i) {
        enter(table, "1");
        walk += at(table) + " ";
    }
    EXPECT_EQ(walk, "1,2 1,3 2,1 2,2 2,3 3,1 3,2 3,3 4,2 4,3 4,1 4,2 4,3 4,1 ");
    const struct {
        int row, key;
        const char* after;
    } arrows[] = {{4, Down, "4,2"}, {1, Up, "1,2"}, {1, Down, "2,2"}};
    for (const auto& arrow : arrows) {
        go(table, arrow.row, 2);
        table.GridEdit('6');
        table.CellKeyDown(arrow.key);
        EXPECT_EQ(at(table) + table.Text(arrow.row, 2), arrow.after + std::string("6"));
    }
    table.setPosition({2, 1, 3, 2, 1});
    table.CellKeyDown(Enter);
    EXPECT_EQ(at(table), "2,2");
    TableEngine points = open(103, "frmspreadb", 9, 2);
    points.setPosition({2, 1, 5, 1, 1});
    points.CellKeyDown(Enter);
    EXPECT_EQ(at(points), "6,1") << "this form goes on from the selection's end";
}

TEST_F(TableEngineTest, PagesTurnAtFiveAndTwentyRows) {
    const struct {
        int kind;
        std::string form;
        int lines, row, key, gridRows, newTop;
    } cases[] = {
        {104, "frmSpread2", 19, 5, Down, 0, 7},     // row 6 is five below the top: one further
        {104, "frmSpread2", 19, 5, Enter, 0, 6},    // Enter puts the row itself on top
        {104, "frmSpread2", 19, 4, Down, 0, 1},     // not yet
        {104, "frmSpread2", 12, 5, Down, 0, 7},     // 13 rows: a full page is left
        {104, "frmSpread2", 11, 5, Down, 0, 6},     // 12 rows: the last six
        {107, "frmSpread1", 60, 20, Down, 61, 21},  // as Enter
        {107, "frmSpread1", 60, 20, Down, 40, 19},  // looks at the shared GridRows
        {107, "frmSpread1", 60, 20, Down, 5, 1},    // that makes no row: dropped
        {107, "frmSpread1", 60, 21, Down, 61, 1},
    };
    for (const auto& c : cases) {
        TableEngine table = open(c.kind, c.form, c.lines, 3);
        if (c.kind == 107) store.GridRows = static_cast<Integer>(c.gridRows);
        go(table, c.row, c.key == Enter ? 2 : 1);
        table.CellKeyDown(c.key);
        EXPECT_EQ(table.position().Row, c.row + 1);
        EXPECT_EQ(table.position().TopRow, c.newTop) << c.form << " " << c.lines << " " << c.row;
    }
}

TEST_F(TableEngineTest, LinesAreDeletedAndInsertedWithWhatWasTyped) {
    TableEngine table = open(103, "frmspreadb", 3, 2);
    fill(table, "1 2 3");
    go(table, 1, 1);
    table.GridKeyDown(CtrlIns);
    EXPECT_EQ(column(table, 1) + at(table), " 0|1|2|3|1,1");
    EXPECT_EQ(column(table, 0), "1|2|3|4|");
    go(table, 4, 1);
    table.GridKeyDown(CtrlDel);
    EXPECT_EQ(column(table, 1) + at(table), " 0|1|2|3,1");
    table.GridKeyDown(ShiftDel);
    EXPECT_EQ(table.Rows(), 4);
    table.OK();
    EXPECT_EQ(set.NZ, 3);
    EXPECT_EQ(set.ZC[3], Variant(2));
}

TEST_F(TableEngineTest, TheOnlyLineCanGoAndComeBack) {
    TableEngine table = open(103, "frmspreadb", 1, 2);
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
    EXPECT_EQ(set.NZ, 0);
}

TEST_F(TableEngineTest, InterfacesHaveFixedLinesAndKeepWhatCannotBeRead) {
    TableEngine table = open(105, "frmspreadb", 4, 2);
    table.GridKeyDown(CtrlDel);
    table.GridKeyDown(CtrlIns);
    EXPECT_EQ(table.Rows(), 5);
    EXPECT_EQ(table.delInsHint(), "");
    for (int line = 1; line <= 4; ++line) set.INTF[line] = 7;
    for (const char* text : {"1.5", "", "abc", "40000"}) enter(table, text);
    EXPECT_EQ(told(table.OK()), "lblInterface done, closed");
    EXPECT_EQ(set.INTF[1], 2);
    for (int line = 2; line <= 4; ++line) EXPECT_EQ(set.INTF[line], 7) << line;
}

TEST_F(TableEngineTest, TheLastThicknessIsCrossedOutAndNeverStored) {
    set.LAYER[4].TH = 99;
    TableEngine table = open(104, "frmSpread2", 4, 3);
    EXPECT_EQ(column(table, 1), " 0| 0| 0|XXXXXXXXX|");
    go(table, 2, 1);
    table.GridKeyDown(CtrlIns);
    EXPECT_EQ(column(table, 1), " 0| 0| 0| 0|XXXXXXXXX|");
    go(table, 5, 1);
    table.GridKeyDown(CtrlDel);
    EXPECT_EQ(column(table, 1), " 0| 0| 0|XXXXXXXXX|");
    enter(table, 4, 1, "12");  // typed over: it is the place that counts
    enter(table, 1, 1, "4.5");
    enter(table, "");
    table.OK();
    EXPECT_EQ(set.NL, 4);
    EXPECT_EQ(set.LAYER[1].TH.text(), "4.5");
    EXPECT_TRUE(set.LAYER[1].PR.isEmptyText());
    EXPECT_EQ(set.LAYER[4].TH, Variant(99));
}

TEST_F(TableEngineTest, BeyondTheStoreATableShowsZerosAndDropsThem) {
    TableEngine table = open(103, "frmspreadb", 20, 2);
    EXPECT_EQ(table.Text(20, 1), " 0");
    fill(table, "8 9", 19);
    EXPECT_TRUE(table.OK().unload);
    EXPECT_EQ(set.NZ, 20);
    EXPECT_EQ(set.ZC[19].text(), "8");
    EXPECT_EQ(open(103, "frmspreadb", -2, 2).Rows(), 1);
    EXPECT_THROW(open(103, "frmspreadb", 40000, 2), RunTimeError);
}

TEST_F(TableEngineTest, AnOpenTableKeepsItsPlaceWhateverOtherScreensSelect) {
    store.CurPeriod = 3;
    TableEngine table = open(106, "frmspreadb", 2, 2);
    enter(table, "1.234E5");
    store.CurLayDS = 5;
    store.CurPeriod = 9;
    store.TableKind = 102;
    store.TblLines = 7;
    EXPECT_EQ(told(table.OK()), "lblPeriod3 done, closed");
    EXPECT_EQ(set.EMOD[3][1], Variant(123400));
    EXPECT_EQ(set.NL, 2);
    EXPECT_EQ(store.CurLayDS, 5) << "no form comes next: the selectors are the others'";
}

// The load table and its auxiliary tables.

TEST_F(TableEngineTest, PointsGoWithTheKindOfTheirLoad) {
    TableEngine loads = open(107, "frmSpread1", 2, 7);
    TableEngine radial = follow(fill(loads, "0 4.5 80 0 0 2"), "frmspreadb");
    EXPECT_EQ(row(radial, 0), "Point No.|RC|");
    fill(radial, "0 6.75");
    radial.GridKeyDown(CtrlIns);
    store.CurLayDS = 1;  // a click on another data set while the table is open
    store.TableKind = 102;
    const TableOutcome outcome = radial.OK();
    EXPECT_EQ(told(outcome), "lblLoad1 done, frmSpread1");
    EXPECT_EQ(set.LOADL[1].NR, Variant(3));
    EXPECT_EQ(set.RC[1][3].text(), "6.75");

    TableEngine back = follow(outcome, "frmSpread1");
    EXPECT_EQ(row(back, 1) + row(back, 2), "1| 0| 4.5| 80| 0| 0| 3|2| 0| 0| 0| 0| 0| 0|");
    set.PT[1][1] = {3, 4};
    put(back, 1, 1, "1");
    TableEngine points = follow(back.DblClick(), "frmspreadb");
    EXPECT_EQ(row(points, 1), "1| 3| 4|");
    points.OK();
    EXPECT_EQ(set.RC[1][3].text(), "6.75") << "both kinds are kept";
}

TEST_F(TableEngineTest, TheChainRefusesBlanksAndNoCount) {
    set.LOADL[1] = {0, 4, 80, 0, 0, ""};
    TableEngine table = open(107, "frmSpread1", 1, 7);
    EXPECT_EQ(told(table.GridKeyDown(EscOnGrid)), "An entry is required to fill the blank");
    EXPECT_FALSE(table.overlay().open);
    EXPECT_EQ(told(table.OK()), "An entry is required to fill the blank");
    EXPECT_EQ(set.NLG, 0);
    EXPECT_EQ(told(enter(table, 1, 6, "0")), "") << "a count of 0 just moves on";
    EXPECT_EQ(at(table), "1,1");
    go(table, 1, 2);
    EXPECT_EQ(told(table.DblClick()), "NR or NPT cannot be 0");
    EXPECT_TRUE(table.overlay().open);
    EXPECT_EQ(at(table), "1,6");
    table.setOverlayText("abc");
    EXPECT_EQ(told(table.CellKeyDown(Enter)), "");
    EXPECT_EQ(at(table) + table.Text(1, 6), "1,6abc") << "no number: committed, and the key is dropped";
}

TEST_F(TableEngineTest, OKPlaysEnterFirstAndEndsWhenThatLedAway) {
    const struct {
        int NR;
        const char *typed, *told;  ///< XW, which stays in the closed overlay
    } cases[] = {{3, nullptr, "closed"}, {3, "12", "frmspreadb"}, {0, "14", "NR or NPT cannot be 0"}};
    for (const auto& c : cases) {
        set.LOADL[1] = {0, 4, 80, 0, 0, c.NR};
        TableEngine table = open(107, "frmSpread1", 1, 7);
        go(table, 1, 6);
        if (c.typed) enter(table, 1, 5, c.typed);
        EXPECT_EQ(at(table), "1,6");
        EXPECT_EQ(told(table.OK()), c.told);
        EXPECT_EQ(set.LOADL[1].XW, Variant(c.NR && c.typed ? 12 : 0));
    }
}

TEST_F(TableEngineTest, OnlyTheMainTablesOKRefusesMoreThan25Points) {
    for (int group : {1, 2, 3}) set.LOADL[group] = {0, 4, 80, 0, 0, 1};
    TableEngine table = open(107, "frmSpread1", 3, 7);
    TableEngine points = follow(enter(table, 2, 6, "26"), "frmspreadb");
    EXPECT_EQ(points.Rows(), 27);
    fill(points, "7 8", 25);
    TableEngine back = follow(points.OK(), "frmSpread1");
    EXPECT_EQ(set.LOADL[2].NR, Variant(26));
    EXPECT_EQ(set.RC[2][25].text(), "7");
    EXPECT_EQ(at(back), "3,1");
    put(back, 3, 1, "2");
    put(back, 1, 1, "2");
    EXPECT_EQ(told(back.OK()), "NR or NPT should not be greater than 25.");
    EXPECT_EQ(set.LOADL[1].LOAD, Variant(2));
    EXPECT_EQ(set.LOADL[3].LOAD, Variant(0)) << "lines behind the refused one are not stored";
}

TEST_F(TableEngineTest, PointsFollowTheirLineAtOnce) {
    for (int group = 1; group <= 12; ++group) {
        set.LOADL[group] = {group % 2, 4, 80, 0, 0, 2};
        set.RC[group][1] = group;
        set.PT[group][1] = {group, -group};
    }
    TableEngine table = open(107, "frmSpread1", 12, 7);
    go(table, 2, 1);
    table.GridKeyDown(CtrlDel);
    EXPECT_EQ(set.LOADL[2].LOAD, Variant(1));
    EXPECT_EQ(set.PT[2][1].YPT, Variant(-3));
    EXPECT_EQ(set.RC[2][1], Variant(2)) << "the other kind of points stays";
    EXPECT_EQ(set.RC[3][1], Variant(4));
    EXPECT_EQ(set.RC[11][1], Variant(12));
    set.RC[12][1] = 99;
    go(table, 11, 1);
    table.GridKeyDown(CtrlDel);
    EXPECT_EQ(set.RC[11][1], Variant(12)) << "deleting the last line moves nothing";

    go(table, 3, 1);
    table.GridKeyDown(CtrlIns);
    EXPECT_EQ(set.RC[3][1], Variant(0));
    EXPECT_EQ(set.RC[4][1], Variant(4));
    EXPECT_EQ(set.PT[5][1].XPT, Variant(5));
    EXPECT_EQ(set.LOADL[4].LOAD, Variant(0));
    for (int i = 0; i < 3; ++i) table.GridKeyDown(CtrlIns);
    EXPECT_EQ(table.Rows(), 15);
}

}  // namespace
