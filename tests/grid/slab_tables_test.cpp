// What the tables of the slab side show, store and refuse.
#include <map>

#include "slab/slab_cards.h"
#include "support/deck_texts.h"
#include "support/table_bench.h"

namespace {

/// Two slabs of two layers, three periods, and every kind of list wanted.
SlabSet twoSlabs() {
    SlabSet s;
    s.NSLAB = s.NLAYER = 2;
    s.NPY = 3;
    s.NDAMA = 1;
    s.LAYER[1].F1 = 7;
    return s;
}

class SlabTablesTest : public TableBench {
  protected:
    SlabTablesTest() {
        store.CurSlabDS = 1;
        store.CurLayDS = 2;  // of the other side: no slab table looks at it
        store.CurSlab = 2;
        store.CurPeriod = 3;
        restart();
    }
    void restart() {
        set = twoSlabs();
        changes();
    }
    /// The fields of the data set's cards that have other values than at the last call.
    std::string changes() {
        std::string text;
        std::map<std::string, std::string> now;
        for (const auto& [place, value] : valuesOf(set, slabCards())) {
            now[place] = value.text();
            const auto known = known_.find(place);
            if (value.text() != (known == known_.end() ? "0" : known->second))
                text +=
                    (text.empty() ? "" : " ") + place.substr(0, place.find(", card")) + "=" + value.text();
        }
        known_ = now;
        return text;
    }

    SlabSet& set = store.slab[1];

  private:
    std::map<std::string, std::string> known_;
};

TEST_F(SlabTablesTest, HaveTheirCaptionsHeadsAndUnits) {
    store.CurPeriod = 5;
    EXPECT_EQ(
        catalogue(slabTables(), [this](bool si) { set.NUNIT = si ? 1 : 0; }),
        R"(203 Arrangement of Slabs and Joints for Data Set No. 1: Slab No.|NX|NY|JONO1|JONO2|JONO3|JONO4|
205 Strength and  Fatigue Coefficients of Each Slab Layer for Data Set No. 1: Layer No.|PMR (psi, kPa)|F1|F2|
206 X Coordinates of Grid for Slab No. 2 and Data Set No. 1: Sequence|X (in., cm)|
207 Y Coordinates of Grid for Slab No. 2 and Data Set No. 1: Sequence|Y (in., cm)|
208 Thickness, Poisson's Ratio, Young's Modulus, and Unit Weight of Concrete for Data Set No. 1: Layer No.|T (in., cm)|PR|YM (psi, kPa)|GAMA (pcf, kN/m^3)|
209 Loaded Areas and Contact Pressures for Data Set No. 1: Load Group No.|NUDL|
209 Loaded Areas for Load Group No. 3 and Data Set No. 1: Load Sequence|LS|XL1 (in., cm)|XL2 (in., cm)|YL1 (in., cm)|YL2 (in., cm)|QQ (psi, kPa)|
210 Number of Concentrated Forces and Moments: Type||
210 Vertical Loads at Designated nodes: Sequence No.|NN|FF (lb, kN)|
210 Moments about X-axis at Designated Nodes: Sequence No.|NNX|FMX (in.-lb, cm-kN)|
210 Moment about Y-axis at Designated Nodes: Sequence No.|NNY|FMY (in-lb, cm-kN)|
212 Additional Thickness for Slab Layer 1 and Data Set No. 1: Sequence|NT1|T1 (in., cm)|
213 Additional Thickness for Slab Layer 2 and Data Set No. 1: Sequence|NT2|T2 (in., cm)|
214 Nodes Not in Contact for Data Set No. 1: Sequence|NODNC|
215 Nodes for Printout for Data Set No. 1: Sequence|NP|
216 Nodes on X Axis of Symmetry for Data Set No. 1: Sequence|NODSX|
217 Nodes on Y Axis of Symmetry for Data Set No. 1: Sequence|NODSY|
218 Gap at Specified Nodes for Layer 2 and Data Set No. 1: Sequence|NG|GAP (in., cm)|
220 Foundation Seasonal Adjustment Factor for Data Set No. 1: Period No.|FSAF|
221 Liquid Foundation for Data Set No. 1: |SUBMOD (pci, MN/m^3)|NAS|
221 Additional Subgrade Modulus for Data Set No. 1: Sequence|NS|SUBMOD (pci, MN/m^3)|
223 Layered Foundation for Data Set No. 1: |MAXIC|NL|
223 Properties of Layered Foundation for Data Set No. 1: Layer No.|TH (in., cm)|E (psi, kPa)|PRBF|
224 Joint Information for Data Set No. 1: Joint No.|SPCON1 (psi, kN/cm^2)|SPCON2 (in.-lb/in., cm-kN/cm)|SCKV (pci, Mn/m^3)|BD (in., cm)|BS (in., cm)|WJ (in., cm)|GDC (in., cm)|NNAJ|
224 No. of Dowels for Joint No. 3 and Data Set No. 1: Node Sequence|BARNO|
225 Load Repetition for Period No. 5 and Data Set No. 1: Load Group No.|TNLR|
)");
}

TEST_F(SlabTablesTest, SimpleTablesStoreCellsAndCount) {
    const struct {
        int kind;
        const char* form;
        int lines, cols;
        const char *cells, *stored, *label;
    } cases[] = {
        {205, "frmSpread3", 1, 2, "550", "PMR(1)=550", "lblFatigue"},
        {205, "frmSpread3", 2, 4, "5 6.6 8 6 7 9", "PMR(1)=5 PMR(2)=6 F1(1)=6.6 F1(2)=7 F2(1)=8 F2(2)=9",
         "lblFatigue"},
        {206, "frmspreadb", 3, 2, "0 60.5 120", "NX(2)=3 X(2, 2)=60.5 X(2, 3)=120", "lblSlab2"},
        {207, "frmspreadb", 2, 2, "0 72", "NY(2)=2 Y(2, 2)=72", "lblSlab2"},
        {208, "frmSpread3", 2, 5, "8 .15 4E6 150 0 .2 3.5E6 140",
         "GAMA(1)=150 GAMA(2)=140 T(1)=8 PR(1)=.15 YM(1)=4000000 PR(2)=.2 YM(2)=3500000", "lblProperties"},
        {212, "frmspreadb", 1, 3, "5 2.5", "NAT1=1 NT1(1)=5 T1(1)=2.5", "lblNat1"},
        {213, "frmspreadb", 2, 3, "5 2.5 6 3", "NAT2=2 NT2(1)=5 T2(1)=2.5 NT2(2)=6 T2(2)=3", "lblNat2"},
        {214, "frmspreadb", 2, 2, "5 6", "NOTCON=2 NODNC(1)=5 NODNC(2)=6", "lblNotcon"},
        {215, "frmspreadb", 2, 2, "5 6", "NPRINT=2 NP(1)=5 NP(2)=6", "lblNprint"},
        {216, "frmspreadb", 2, 2, "5 6", "NSX=2 NODSX(1)=5 NODSX(2)=6", "lblNsx"},
        {217, "frmspreadb", 2, 2, "5 6", "NSY=2 NODSY(1)=5 NODSY(2)=6", "lblNsy"},
        {218, "frmspreadb", 1, 3, "5 .25", "NGAP=1 NG(1)=5 CURL(1)=.25", "lblNgap"},
        {220, "frmspreadb", 2, 2, "1 .8", "NPY=2 FSAF(1)=1 FSAF(2)=.8", "lblAdjust"},
        {225, "frmspreadb", 2, 2, "1000 2E6", "NLG=2 TNLR(3, 1)=1000 TNLR(3, 2)=2E6", "lblPeriod3"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.kind);
        restart();
        TableEngine table = open(c.kind, c.form, c.lines, c.cols);
        fill(table, c.cells);
        EXPECT_EQ(told(table.OK()), std::string(c.label) + " done, closed");
        EXPECT_EQ(changes(), c.stored);
    }
}

/// The count in the last cell of a line leads to the values, their OK back to the next line.
TEST_F(SlabTablesTest, CountsLeadToTheirValuesAndBack) {
    const struct {
        int kind;
        const char* form;
        int lines, cols, line;
        const char *zeroCount, *cells, *auxiliary, *values, *stored, *told, *toldByMain;
    } cases[] = {
        {209, "frmSpreada", 2, 2, 1, "You don't have to enter this screen because NUDL = 0", "2",
         "frmSpread2", "1 0 10 0 12.5 80 2 60 70 5 6 7",
         "NLG=2 NUDL(1)=2 LS(1, 1)=1 XL2(1, 1)=10 YL2(1, 1)=12.5 QQ(1, 1)=80 LS(1, 2)=2 "
         "XL1(1, 2)=60 XL2(1, 2)=70 YL1(1, 2)=5 YL2(1, 2)=6 QQ(1, 2)=7",
         "lblUniform done, frmSpreada", "closed"},
        {210, "frmSpreada", 3, 2, 1, "You don't have to enter this screen because the entry is 0", "2",
         "frmspreadb", "4 1000 9 123456789.5", "NCNF=2 NN(1)=4 FF(1)=1000 NN(2)=9 FF(2)=123456789.5",
         "lblRaft done, frmSpreada", "closed"},
        {210, "frmSpreada", 3, 2, 2, "You don't have to enter this screen because the entry is 0", "1",
         "frmspreadb", "4 -7.5", "NNMX=1 NNX(1)=4 FMX(1)=-7.5", "lblRaft done, frmSpreada", "closed"},
        {210, "frmSpreada", 3, 2, 3, "You don't have to enter this screen because the entry is 0", "1",
         "frmspreadb", "5 8", "NNMY=1 NNY(1)=5 FMY(1)=8", "lblRaft done, frmSpreada", "closed"},
        {221, "frmSpreada", 1, 3, 1, "You don't have to enter this screen because NAS = 0", "100 2",
         "frmspreadb", "3 50 4 60", "NAS=2 SUBMOD=100 NS(1)=3 SUBMOD(1)=50 NS(2)=4 SUBMOD(2)=60",
         "lblFoundation done, frmSpreada", "lblFoundation done, closed"},
        {223, "frmSpreada", 1, 3, 1, "A nonzero entry is required", "30 2", "frmSpread2",
         "6 20000 .4 5000 .45",  // Enter passes over the last thickness
         "NL=2 MAXIC=30 TH(1)=6 E(1)=20000 E(2)=5000 PRBF(1)=.4 PRBF(2)=.45",
         "lblFoundation done, frmSpreada", "lblFoundation done, closed"},
        {224, "frmSpread1", 2, 9, 1, "You don't have to enter this screen because NNAJ = 0",
         "0 0 1.5E6 1 12 .2 0 3", "frmspreadb", ".5 0 .5",
         "NJOINT=2 SCKV(1)=1500000 BD(1)=1 BS(1)=12 WJ(1)=.2 NNAJ(1)=3 BARNO(1, 1)=.5 BARNO(1, 3)=.5",
         "frmSpread1", "lblJoint done, closed"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.kind) + ", line " + std::to_string(c.line));
        restart();
        if (c.kind == 223) set.NFOUND = 2;
        changes();
        TableEngine main = open(c.kind, c.form, c.lines, c.cols);
        go(main, c.line, 1);
        EXPECT_EQ(told(main.DblClick()), c.zeroCount);
        TableEngine values = follow(fill(main, c.cells, c.line), c.auxiliary);
        fill(values, c.values);
        const TableOutcome outcome = values.OK();
        EXPECT_EQ(told(outcome), c.told);
        EXPECT_EQ(changes(), c.stored);
        TableEngine back = follow(outcome, c.form);
        EXPECT_EQ(back.Rows() - 1, c.lines);
        EXPECT_EQ(back.Cols(), c.cols);
        EXPECT_EQ(back.position().Row, c.line % c.lines + 1);
        EXPECT_EQ(back.position().TopRow, main.entry().form == std::string("frmSpreada") ? c.line : 1);
        EXPECT_EQ(told(back.OK()), c.toldByMain);
    }
}

TEST_F(SlabTablesTest, OKRefusesWhatNoDeckMayHave) {
    const struct {
        int kind;
        const char* form;
        int line, col, cols;
        const char *text, *message;
    } cases[] = {
        {203, "frmSpread2", 2, 1, 3, "0", "NX and NY should not be 0"},
        {203, "frmSpread2", 2, 2, 3, "16", "NX and NY should not be greater than 15"},
        {208, "frmSpread3", 1, 1, 4, "0", "T of slab layer 1 should not be 0"},
        {209, "frmSpreada", 2, 1, 2, "25", "NUDL should not be greater than 24"},
        {221, "frmSpreada", 1, 1, 3, "0", "SUBMOD should not be 0"},
        {223, "frmSpreada", 1, 2, 3, "", "An entry is required to fill the blank"},
        {223, "frmSpreada", 1, 2, 3, "0", "NL should not be 0"},
        {223, "frmSpreada", 1, 2, 3, "7", "NL should not be greater than 6"},
    };
    for (const auto& c : cases) {
        TableEngine table = open(c.kind, c.form, c.line, c.cols);
        for (int line = 1; line <= c.line; ++line)
            for (int col = 1; col < c.cols; ++col) put(table, line, col, "6");
        const auto OK = [&] {
            go(table, 1, 1);
            table.setOverlayText("0");  // OK plays Enter, which must lead nowhere
            return told(table.OK());
        };
        put(table, c.line, c.col, c.text);
        EXPECT_EQ(OK(), c.message);
        put(table, c.line, c.col, "6");
        EXPECT_TRUE(OK().ends_with("closed")) << c.message;
    }
}

TEST_F(SlabTablesTest, ArrangementTestsEachCellAfterItIsStored) {
    TableEngine table = open(203, "frmSpread2", 2, 7);
    EXPECT_EQ(store.ArrangeVisits, 1);
    fill(table, "5 16 0 1 0 0 7 3 1");
    table.GridKeyDown(CtrlIns);  // the new line holds zeros and stands in front of slab 2
    EXPECT_EQ(told(table.OK()), "NX and NY should not be greater than 15");
    EXPECT_EQ(changes(), "NSLAB=3 NX(1)=5 NY(1)=16") << "the count comes first, JONO2 not at all";
    put(table, 1, 2, "9");
    EXPECT_EQ(told(table.OK()), "NX and NY should not be 0");
    go(table, 2, 1);
    table.GridKeyDown(CtrlDel);
    changes();
    EXPECT_EQ(told(table.OK()), "lblArrange done, closed");
    EXPECT_EQ(changes(), "NSLAB=2 NX(2)=7 NY(2)=3 JONO1(2)=1");
}

TEST_F(SlabTablesTest, TheFirstArrangementOfANewFileSetsDowelsAndNodes) {
    set.NJOINT = 1;
    set.NDAMA = 2;
    const struct {
        Integer NewFile, visits, dowels, node;
    } cases[] = {{0, 0, 1, 0}, {1, 1, 1, 0}, {1, 0, 0, 21}};
    for (const auto& c : cases) {
        store.NewFile = c.NewFile;
        store.ArrangeVisits = c.visits;
        set.JOINT[1].BARNO[5] = 1;
        TableEngine table = open(203, "frmSpread2", 1, 7);
        fill(table, "4 5 1");
        EXPECT_EQ(told(table.OK()), "lblArrange done, closed");
        EXPECT_EQ(set.JOINT[1].BARNO[5], Variant(c.dowels));
        EXPECT_EQ(set.NP[3], c.node);
    }
}

TEST_F(SlabTablesTest, ARaftOfANewFileMayMoveMore) {
    set.FMAX = 1;
    set.NNMX = 2;
    for (const int NewFile : {0, 1}) {
        store.NewFile = NewFile;
        TableEngine counts = open(210, "frmSpreada", 3, 2);
        go(counts, 1, 1);
        EXPECT_EQ(told(counts.OK()), "closed");
        EXPECT_EQ(set.FMAX, Variant(NewFile ? 10 : 1));
    }
}

TEST_F(SlabTablesTest, MoreThan144AreasInAllAreWarnedOf) {
    TableEngine groups = open(209, "frmSpreada", 7, 2);
    for (int line = 1; line <= 7; ++line) put(groups, line, 1, line < 7 ? "24" : "0");
    groups.setOverlayText("0");
    EXPECT_EQ(told(groups.OK()), "closed") << "144 are allowed";
    put(groups, 7, 1, "1");
    groups.setOverlayText("0");
    EXPECT_EQ(told(groups.OK()),
              "Total number of loaded areas = 145 which is greater than the allowable 144, closed");
    EXPECT_EQ(set.NUDL[7], 1);
}

TEST_F(SlabTablesTest, AreasAndDowelsFollowTheirLines) {
    set.NLG = 2;
    set.NUDL[1] = 1;
    set.NUDL[2] = 2;
    set.AREA[1][1].QQ = 80;
    set.AREA[2][2].QQ = 90;
    TableEngine groups = open(209, "frmSpreada", 2, 2);
    changes();
    groups.GridKeyDown(CtrlIns);
    set.NLG = 3;
    EXPECT_EQ(changes(), "NLG=3 NUDL(2)=1 NUDL(3)=2 QQ(1, 1)=0 QQ(2, 1)=80 QQ(3, 2)=90");
    groups.GridKeyDown(CtrlDel);
    EXPECT_EQ(changes(), "NUDL(2)=2 QQ(1, 1)=80 QQ(2, 1)=0 QQ(2, 2)=90");

    set.NJOINT = 2;
    set.JOINT[1].NNAJ = "2";
    set.JOINT[1].BD = 1.25;
    set.JOINT[1].BARNO[2] = .5;
    set.JOINT[2].BARNO[15] = 7;
    TableEngine joints = open(224, "frmSpread1", 1, 9);
    changes();
    joints.GridKeyDown(CtrlIns);
    EXPECT_EQ(changes(), "BD(2)=1.25 NNAJ(2)=2 BARNO(1, 2)=0 BARNO(2, 2)=.5");
    EXPECT_EQ(set.JOINT[2].BARNO[15], Variant(7)) << "behind the nodes of the joint";
    EXPECT_EQ(row(joints, 1), "1| 0| 0| 0| 0| 0| 0| 0| 0|");
}

TEST_F(SlabTablesTest, SomeHaveFixedLines) {
    set.MAXIC = 30;
    set.NL = "";
    const struct {
        int kind;
        const char* form;
        int cols;
        const char* rows;
    } cases[] = {{208, "frmSpread3", 4, "1| 0| 0| 0|2| 0| 0| 0|3| 0| 0| 0|"},
                 {210, "frmSpreada", 2, "NCNF| 0|NNMX| 0|NNMY| 0|"},
                 {221, "frmSpreada", 3, "| 0| 0|| 0| 0|| 0| 0|"},
                 {223, "frmSpreada", 3, "| 30||| 30||| 30||"}};
    for (const auto& c : cases) {
        TableEngine table = open(c.kind, c.form, 3, c.cols);
        EXPECT_EQ(table.delInsHint(), "");
        for (const int key : {CtrlIns, CtrlDel}) table.GridKeyDown(key);
        EXPECT_EQ(table.Rows(), 4);
        EXPECT_EQ(row(table, 1) + row(table, 2) + row(table, 3), c.rows);
    }
}

}  // namespace
