// What the tables of nonlinear, viscoelastic and damage data do beyond the rules
// that all tables share.
#include "support/table_bench.h"
#include "text/pages.h"

namespace {

class LayeredTablesTest : public TableBench {
  protected:
    LayeredTablesTest() { store.CurLayDS = 1; }

    LayeredSet& set(int dataSet = 1) { return store.layered[dataSet]; }
};

TEST_F(LayeredTablesTest, EachHasACaptionUnitsAndAHelpPage) {
    struct {
        int kind;
        std::string form;
        int cols;
        std::string caption, unit;
    } const cases[] = {
        {112, "frmspreadb", 3, "Seasonal Input Parameters for Layer No. 3 (Granular) and Data Set No. 1",
         "0Unit 1degree 2psi"},
        {112, "frmspreadb", 2, "Seasonal Input Parameters for Layer No. 3 (CLAY) and Data Set No. 1", ""},
        {117, "frmSpread2", 4, "Vicoelastic Layer Information for Data Set No. 1", "0Unit 2per F 3F"},
        {118, "frmspreadb", 2, "Creep Compliances of Layer No. 4 for Data Set No. 1", "0Unit 1per psi"},
        {123, "frmspreadb", 2, "Load Repetition for Period No. 5 and Data Set No. 1", ""},
    };
    store.CurLayer = 2;
    store.CurPeriod = 5;
    set().NOLLAY[2].LAYNO = 3;
    set().VISLAY[2].LNV = "4";
    for (const auto& c : cases) {
        const TableEngine table = open(c.kind, c.form, 2, c.cols);
        EXPECT_EQ(table.caption(), c.caption);
        EXPECT_EQ(units(table), c.unit) << c.kind;
    }
    expectHelpOf(layeredTables());
}

TEST_F(LayeredTablesTest, CaptionsTellTheNumberOfTheLayerAndUnitsItsColumns) {
    store.CurLayer = 2;
    set().NOLLAY[2].LAYNO = 3;
    set().VISLAY[2].LNV = "4";
    EXPECT_EQ(open(112, "frmspreadb", 2, 2).caption(),
              "Seasonal Input Parameters for Layer No. 3 (CLAY) and Data Set No. 1");
    EXPECT_EQ(open(118, "frmspreadb", 2, 2).caption(), "Creep Compliances of Layer No. 4 for Data Set No. 1");
    const auto words = open(117, "frmSpread2", 2, 4).unitWords();
    EXPECT_EQ(words.at(1).text + std::to_string(words.at(1).column), "per F2");
}

TEST_F(LayeredTablesTest, ClayTypesFillTheModuliOfTheirPeriods) {
    store.CurLayer = 2;
    set().KPER[2][2][1] = 5;
    set().NUNIT = 1;
    TableEngine types = open(112, "frmspreadb", 2, 2);
    EXPECT_EQ(types.Text(1, 1), " 0");
    enter(types, 1, 1, "2");
    TableOutcome outcome = types.OK();
    EXPECT_EQ(outcome.load + words(outcome), "frmSpread2");
    EXPECT_EQ(set().NPY, 2);
    TableEngine values(store, formNamed("frmSpread2"));
    EXPECT_EQ(values.Cols(), 4);
    EXPECT_EQ(values.Text(1, 1) + values.Text(1, 2) + values.Text(1, 3), " 12597 52967 20823");
    EXPECT_EQ(values.Text(2, 1), " 5");
    outcome = values.OK();
    EXPECT_EQ(words(outcome) + outcome.load, "lblLayer2 done ");
}

TEST_F(LayeredTablesTest, TestsKeepTheTableOpenWithTheLinesStoredSoFar) {
    struct {
        int kind;
        std::string form;
        int cols, tested;
        std::string message;
    } const cases[] = {
        {111, "frmSpread1", 4, 1, "LAYNO should not be 0"}, {112, "frmspreadb", 3, 2, "K1 should not be 0"},
        {117, "frmSpread2", 4, 1, "LAYNO should not be 0"}, {121, "frmSpread2", 5, 1, "LNBT should not be 0"},
        {122, "frmSpread2", 4, 1, "LNTC should not be 0"},
    };
    store.CurLayer = 1;
    for (const auto& c : cases) {
        TableEngine table = open(c.kind, c.form, 3, c.cols);
        for (int line = 1; line <= 3; ++line) {
            for (int col = 1; col < c.cols; ++col) {
                if (line != 2 || col != c.tested) put(table, line, col, std::to_string(line * 10 + col));
            }
        }
        const bool main = c.form == "frmSpread1";
        if (!main && c.kind != 122) put(table, 2, c.tested, "");  // an empty text counts as 0
        table.setPosition({1, 1, 1, 1, 1});
        const TableOutcome outcome = table.OK();
        EXPECT_EQ(outcome.message, c.message);
        EXPECT_FALSE(outcome.unload);
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
    EXPECT_EQ(table.Text(1, 3), "");
    EXPECT_EQ(enter(table, 1, 3, "0").message, "ZCNOL cannot be 0");
    EXPECT_EQ(table.position().Col, 3);
    EXPECT_TRUE(table.overlay().open);
    EXPECT_EQ(enter(table, 1, 2, "8").load, "");
    EXPECT_EQ(enter(table, 1, 3, "0").load, "frmGranular") << "whatever the text";
    EXPECT_EQ(set().NOLAY, Variant(2));
    EXPECT_EQ(set().NOLLAY[1].ZCNOL, Variant(8));
    store.CurGroup = 0;
    TableEngine again = open(111, "frmSpread1", 2, 4);
    again.setPosition({2, 3, 2, 3, 1});
    EXPECT_EQ(again.OK().load, "frmClay") << "OK in that column leads away first";
    EXPECT_EQ(store.CurGroup, 2);
}

TEST_F(LayeredTablesTest, ConstantsFollowTheirNonlinearLayer) {
    set().NOLLAY[1] = {2, 9, 1};
    set().NOLLAY[2] = {3, 9, 0};
    set().KCLAY[1].K3 = 1110;
    set().KGRAN[2].K0 = .6;
    TableEngine table = open(111, "frmSpread1", 2, 4);
    table.GridKeyDown(452);
    EXPECT_EQ(set().KCLAY[2].K3, Variant(1110));
    EXPECT_EQ(set().KGRAN[3].K0, Variant(.6));
    EXPECT_EQ(set().KCLAY[1].K3, Variant(0));
    table.GridKeyDown(462);
    EXPECT_EQ(set().KCLAY[1].K3, Variant(1110));
    EXPECT_EQ(set().KGRAN[2].K0, Variant(.6));
}

TEST_F(LayeredTablesTest, AnUnusualReferenceTemperatureAsksForTheOthers) {
    const std::pair<const char*, const char*> cases[] = {
        {"70", "lbltemperature default lblLayer done "},
        {"21.1", "lbltemperature default lblLayer done "},
        {"68", "lbltemperature input lblLayer done "},
        {"warm", "lbltemperature input lblLayer done "},
    };
    for (const auto& [text, expected] : cases) {
        TableEngine table = open(117, "frmSpread2", 1, 4);
        enter(table, 1, 1, "2");
        enter(table, 1, 3, text);
        EXPECT_EQ(words(table.OK()), expected) << text;
    }
}

TEST_F(LayeredTablesTest, CompliancesStandBesideTheirTimes) {
    set().TYME[1] = .001;
    set().TYME[2] = .003;
    store.CurLayer = 1;
    TableEngine table = open(118, "frmspreadb", 2, 2);
    EXPECT_EQ(table.Text(2, 0), " .003");
    enter(table, 2, 1, "1.325E-5");
    table.GridKeyDown(452);
    EXPECT_EQ(table.Text(2, 0) + table.Text(3, 0), " .003 0");
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
