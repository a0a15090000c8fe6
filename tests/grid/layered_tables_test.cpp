// What the tables of the layered side show, and what those of nonlinear,
// viscoelastic and damage data do beyond the rules that all tables share.
#include "support/table_bench.h"

namespace {

class LayeredTablesTest : public TableBench {
  protected:
    LayeredTablesTest() { store.CurLayDS = 1; }

    LayeredSet& set(int dataSet = 1) { return store.layered[dataSet]; }
};

TEST_F(LayeredTablesTest, HaveTheirCaptionsHeadsAndUnits) {
    store.CurLayer = 2;
    store.CurPeriod = 5;
    set().LOADL[3].LOAD = 1;
    set().NOLLAY[2].LAYNO = 3;
    set().VISLAY[2].LNV = "6";
    EXPECT_EQ(catalogue(layeredTables(), [this](bool si) { set().NUNIT = si; }),
              R"(103 Z Coordinates of Response Points for Data Set No. 1: Point No.|ZC (in., cm)|
104 Layer Thickness, Poisson's Ratio and Unit Weight for Data Set No. 1: Layer No.|TH (in., cm)|PR|GAM (pcf, kN/m^3)|
105 Type of Interface for Data Set No. 1: Interface No.|INT|
106 Layer Moduli for Period No. 5 and Data Set No. 1: Layer No.|E (psi, kPa)|
107 Load Information for Data Set No. 1: Load Group No.|LOAD|CR (in., cm)|CP (psi, kPa)|YW (in., cm)|XW (in., cm)|NR or NPT|
107 Radial Coordinates of Response Points for Load Group No. 2 of Data Set No. 1: Point No.|RC (in., cm)|
107 X and Y Coordinates of Response Points for Load Group No. 3 and Data Set No. 1: Point No.|XPT (in., cm)|YPT (in., cm)|
110 Relaxation factor of Each Period for Data Set No. 1: Period No.|RELAX|
111 Nonseasonal Information for Data Set No. 1: Sequence|LAYNO|ZCNOL|NCLAY|
112 Seasonal Input Parameters for Layer No. 3 (Granular) and Data Set No. 1: Period No.|PHI (degree, degree)|K1 (psi, kPa)|
112 Seasonal Input Parameters for Layer No. 3 (CLAY) and Data Set No. 1: Period No.|Clay Type|
112 Seasonal Input Parameters for Layer No. 3 (Clay) and Data Set No. 1: Period No.|EMIN (psi, kPa)|EMAX (psi, kPa)|K1 (psi, kPa)|
116 Time Durations of Creep Compliances for Data Set No. 1: Sequence|TYME (sec, sec)|
117 Vicoelastic Layer Information for Data Set No. 1: Sequence|LAYNO|BETA (per F, per C)|TEMPREF (F, C)|
118 Creep Compliances of Layer No. 6 for Data Set No. 1: TYME|CREEP (per psi, per kPa)|
119 Temperature of Each Layer for Period No. 5 and Data Set No. 1: Layer No.|TEMP (F, C)|
121 Layer Number and Fatigue Coefficients for Data Set No. 1: Sequence|LNBT|FT1|FT2|FT3|
122 Layer Number and Permanent Deformation Coefficients for Data Set No. 1: Sequence|LNTC|FT4|FT5|
123 Load Repetition for Period No. 5 and Data Set No. 1: Load Group No.|TNLR|
)");
}

TEST_F(LayeredTablesTest, ClayTypesFillTheModuliOfTheirPeriods) {
    store.CurLayer = 2;
    set().KPER[2][2][1] = 5;
    set().NUNIT = 1;
    TableEngine types = open(112, "frmspreadb", 2, 2);
    EXPECT_EQ(types.Text(1, 1), " 0");
    enter(types, "2");
    TableEngine values = follow(types.OK(), "frmSpread2");
    EXPECT_EQ(set().NPY, 2);
    EXPECT_EQ(row(values, 1) + row(values, 2), "1| 12597| 52967| 20823|2| 5| 0| 0|");
    EXPECT_EQ(told(values.OK()), "lblLayer2 done, closed");
}

TEST_F(LayeredTablesTest, TestsKeepTheTableOpenWithTheLinesStoredSoFar) {
    const struct {
        int kind;
        std::string form;
        int cols, tested;
        std::string text, message;
    } cases[] = {{111, "frmSpread1", 4, 1, "0", "LAYNO should not be 0"},
                 {112, "frmspreadb", 3, 2, "", "K1 should not be 0"},  // an empty text counts as 0
                 {117, "frmSpread2", 4, 1, "", "LAYNO should not be 0"},
                 {121, "frmSpread2", 5, 1, "", "LNBT should not be 0"},
                 {122, "frmSpread2", 4, 1, "0", "LNTC should not be 0"}};
    store.CurLayer = 1;
    for (const auto& c : cases) {
        TableEngine table = open(c.kind, c.form, 3, c.cols);
        for (int line = 1; line <= 3; ++line)
            for (int col = 1; col < c.cols; ++col) put(table, line, col, std::to_string(line * 10 + col));
        put(table, 2, c.tested, c.text);
        go(table, 1, 1);
        EXPECT_EQ(told(table.OK()), c.message);
        const TableColumn& last = table.entry().columns[static_cast<std::size_t>(c.cols - 2)];
        const TablePlace place = currentPlace(store);
        EXPECT_EQ(countOf(last.field(store, place, 1)), 10 + c.cols - 1) << c.kind;
        EXPECT_EQ(countOf(last.field(store, place, 3)), 0) << c.kind;
        EXPECT_EQ(countOf(table.entry().count(store, place, 0)), 3) << c.kind;
    }
}

TEST_F(LayeredTablesTest, ANonlinearLayerLeadsToTheFormOfItsMaterial) {
    set().NOLLAY[1] = {2, 0, ""};
    set().NOLLAY[2] = {3, 9, 1};
    TableEngine table = open(111, "frmSpread1", 2, 4);
    EXPECT_EQ(row(table, 1), "1| 2| 0||");
    EXPECT_EQ(told(enter(table, 1, 3, "0")), "ZCNOL cannot be 0");
    EXPECT_EQ(table.position().Col, 3);
    EXPECT_TRUE(table.overlay().open);
    EXPECT_EQ(told(enter(table, 1, 2, "8")), "");
    EXPECT_EQ(told(enter(table, 1, 3, "0")), "frmGranular") << "whatever the text";
    EXPECT_EQ(set().NOLAY, Variant(2));
    EXPECT_EQ(set().NOLLAY[1].ZCNOL, Variant(8));
    store.CurGroup = 0;
    TableEngine again = open(111, "frmSpread1", 2, 4);
    go(again, 2, 3);
    EXPECT_EQ(told(again.OK()), "frmClay") << "OK in that column leads away first";
    EXPECT_EQ(store.CurGroup, 2);
}

TEST_F(LayeredTablesTest, ConstantsFollowTheirNonlinearLayer) {
    set().NOLLAY[1] = {2, 9, 1};
    set().NOLLAY[2] = {3, 9, 0};
    set().KCLAY[1].K3 = 1110;
    set().KGRAN[2].K0 = .6;
    TableEngine table = open(111, "frmSpread1", 2, 4);
    table.GridKeyDown(CtrlIns);
    EXPECT_EQ(set().KCLAY[2].K3, Variant(1110));
    EXPECT_EQ(set().KGRAN[3].K0, Variant(.6));
    EXPECT_EQ(set().KCLAY[1].K3, Variant(0));
    table.GridKeyDown(CtrlDel);
    EXPECT_EQ(set().KCLAY[1].K3, Variant(1110));
    EXPECT_EQ(set().KGRAN[2].K0, Variant(.6));
}

TEST_F(LayeredTablesTest, AnUnusualReferenceTemperatureAsksForTheOthers) {
    for (const auto& [text, word] :
         {std::pair("70", "default"), {"21.1", "default"}, {"68", "input"}, {"warm", "input"}}) {
        TableEngine table = open(117, "frmSpread2", 1, 4);
        fill(table, std::string("2 0 ") + text);
        EXPECT_EQ(told(table.OK()), std::string("lbltemperature ") + word + ", lblLayer done, closed")
            << text;
    }
}

TEST_F(LayeredTablesTest, CompliancesStandBesideTheirTimes) {
    set().TYME[1] = .001;
    set().TYME[2] = .003;
    store.CurLayer = 1;
    TableEngine table = open(118, "frmspreadb", 2, 2);
    EXPECT_EQ(column(table, 0), " .001| .003|");
    enter(table, 2, 1, "1.325E-5");
    table.GridKeyDown(CtrlIns);
    EXPECT_EQ(column(table, 0), " .001| .003| 0|");
    table.OK();
    EXPECT_EQ(set().NTYME, Variant(3));
    EXPECT_EQ(set().CREEP[1][3], 1.325E-5F);
}

TEST_F(LayeredTablesTest, RepetitionsPutTheirCountOnTheSlabSide) {
    for (int dataSet : {1, 2, 3, 5}) {
        store.CurLayDS = dataSet;
        store.CurPeriod = 2;
        TableEngine table = open(123, "frmspreadb", 4, 2);
        enter(table, 4, 1, "1000");
        EXPECT_TRUE(table.OK().unload);
        EXPECT_EQ(set(dataSet).TNLR[2][4], 1000);
        EXPECT_EQ(set(dataSet).NLG, 0);
        if (dataSet <= 2) {
            EXPECT_EQ(store.slab[dataSet].NLG, 4);
        }
    }
}

}  // namespace
