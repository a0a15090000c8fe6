// What the tables of the slab side show, store and refuse.
#include "support/table_bench.h"

namespace {

class SlabTablesTest : public TableBench {
  protected:
    SlabTablesTest() {
        store.CurSlabDS = 1;
        store.CurLayDS = 2;  // of the other side: no slab table looks at it
        store.CurSlab = 2;
        store.CurPeriod = 3;
        store.CurGroup = 0;
    }
    /// What stands in the row, column 0 first.
    static std::string row(const TableEngine& table, int line) {
        std::string text;
        for (int col = 0; col < table.Cols(); ++col) text += (col ? "|" : "") + table.Text(line, col);
        return text;
    }
    /// From the start of a line on, each text and Enter.
    static TableOutcome fill(TableEngine& table, const std::vector<std::string>& texts, int line = 1) {
        table.setPosition({line, 1, line, 1, 1});
        TableOutcome outcome;
        for (const std::string& text : texts) {
            const TablePosition at = table.position();
            outcome = enter(table, at.Row, at.Col, text);
            if (outcome.unload) break;
        }
        return outcome;
    }

    SlabSet& set = store.slab[1];
};

TEST_F(SlabTablesTest, EachHasItsCaptionHeadsUnitsAndHelp) {
    const struct {
        int kind;
        const char* form;
        int cols, group;
        const char *caption, *heads, *units, *unitsSI;
    } cases[] = {
        {203, "frmSpread2", 7, 0, "Arrangement of Slabs and Joints for Data Set No. 1",
         "Slab No.|NX|NY|JONO1|JONO2|JONO3|JONO4", "", ""},
        {203, "frmSpread2", 3, 0, "Arrangement of Slabs and Joints for Data Set No. 1", "Slab No.|NX|NY", "",
         ""},
        {205, "frmSpread3", 4, 0, "Strength and  Fatigue Coefficients of Each Slab Layer for Data Set No. 1",
         "Layer No.|PMR|F1|F2", "0Unit 1psi", "0Unit 1kPa"},
        {206, "frmspreadb", 2, 0, "X Coordinates of Grid for Slab No. 2 and Data Set No. 1", "Sequence|X",
         "0Unit 1in.", "0Unit 1cm"},
        {207, "frmspreadb", 2, 0, "Y Coordinates of Grid for Slab No. 2 and Data Set No. 1", "Sequence|Y",
         "0Unit 1in.", "0Unit 1cm"},
        {208, "frmSpread3", 5, 0,
         "Thickness, Poisson's Ratio, Young's Modulus, and Unit Weight of Concrete for Data Set No. 1",
         "Layer No.|T|PR|YM|GAMA", "0Unit 1in. 3psi 4pcf", "0Unit 1cm 3kPa 4kN/m^3"},
        {208, "frmSpread3", 4, 0,
         "Thickness, Poisson's Ratio, Young's Modulus, and Unit Weight of Concrete for Data Set No. 1",
         "Layer No.|T|PR|YM", "0Unit 1in. 3psi", "0Unit 1cm 3kPa"},
        {209, "frmSpreada", 2, 0, "Loaded Areas and Contact Pressures for Data Set No. 1",
         "Load Group No.|NUDL", "", ""},
        {209, "frmSpread2", 7, 4, "Loaded Areas for Load Group No. 4 and Data Set No. 1",
         "Load Sequence|LS|XL1|XL2|YL1|YL2|QQ", "0Unit 2in. 3in. 4in. 5in. 6psi",
         "0Unit 2cm 3cm 4cm 5cm 6kPa"},
        {210, "frmSpreada", 2, 0, "Number of Concentrated Forces and Moments", "Type|", "", ""},
        {210, "frmspreadb", 3, 1, "Vertical Loads at Designated nodes", "Sequence No.|NN|FF", "0Unit 2lb",
         "0Unit 2kN"},
        {210, "frmspreadb", 3, 2, "Moments about X-axis at Designated Nodes", "Sequence No.|NNX|FMX",
         "0Unit 2in.-lb", "0Unit 2cm-kN"},
        {210, "frmspreadb", 3, 3, "Moment about Y-axis at Designated Nodes", "Sequence No.|NNY|FMY",
         "0Unit 2in-lb", "0Unit 2cm-kN"},
        {212, "frmspreadb", 3, 0, "Additional Thickness for Slab Layer 1 and Data Set No. 1",
         "Sequence|NT1|T1", "0Unit 2in.", "0Unit 2cm"},
        {213, "frmspreadb", 3, 0, "Additional Thickness for Slab Layer 2 and Data Set No. 1",
         "Sequence|NT2|T2", "0Unit 2in.", "0Unit 2cm"},
        {214, "frmspreadb", 2, 0, "Nodes Not in Contact for Data Set No. 1", "Sequence|NODNC", "", ""},
        {215, "frmspreadb", 2, 0, "Nodes for Printout for Data Set No. 1", "Sequence|NP", "", ""},
        {216, "frmspreadb", 2, 0, "Nodes on X Axis of Symmetry for Data Set No. 1", "Sequence|NODSX", "", ""},
        {217, "frmspreadb", 2, 0, "Nodes on Y Axis of Symmetry for Data Set No. 1", "Sequence|NODSY", "", ""},
        {218, "frmspreadb", 3, 0, "Gap at Specified Nodes for Layer 2 and Data Set No. 1", "Sequence|NG|GAP",
         "0Unit 2in.", "0Unit 2cm"},
        {220, "frmspreadb", 2, 0, "Foundation Seasonal Adjustment Factor for Data Set No. 1",
         "Period No.|FSAF", "", ""},
        {221, "frmSpreada", 3, 0, "Liquid Foundation for Data Set No. 1", "|SUBMOD|NAS", "0Unit 1pci",
         "0Unit 1MN/m^3"},
        {221, "frmspreadb", 3, 1, "Additional Subgrade Modulus for Data Set No. 1", "Sequence|NS|SUBMOD",
         "0Unit 2pci", "0Unit 2MN/m^3"},
        {223, "frmSpreada", 3, 0, "Layered Foundation for Data Set No. 1", "|MAXIC|NL", "", ""},
        {223, "frmSpread2", 4, 1, "Properties of Layered Foundation for Data Set No. 1",
         "Layer No.|TH|E|PRBF", "0Unit 1in. 2psi", "0Unit 1cm 2kPa"},
        {224, "frmSpread1", 9, 0, "Joint Information for Data Set No. 1",
         "Joint No.|SPCON1|SPCON2|SCKV|BD|BS|WJ|GDC|NNAJ", "0Unit 1psi 2in.-lb/in. 3pci 4in. 5in. 6in. 7in.",
         "0Unit 1kN/cm^2 2cm-kN/cm 3Mn/m^3 4cm 5cm 6cm 7cm"},
        {224, "frmspreadb", 2, 4, "No. of Dowels for Joint No. 4 and Data Set No. 1", "Node Sequence|BARNO",
         "", ""},
        {225, "frmspreadb", 2, 0, "Load Repetition for Period No. 3 and Data Set No. 1",
         "Load Group No.|TNLR", "", ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.caption) + " on " + c.form);
        store.CurGroup = c.group;
        for (const int NUNIT : {0, 1}) {
            set.NUNIT = static_cast<Integer>(NUNIT);
            const TableEngine table = open(c.kind, c.form, 1, c.cols);
            EXPECT_EQ(table.caption(), c.caption);
            EXPECT_EQ(row(table, 0), c.heads);
            EXPECT_EQ(units(table), NUNIT ? c.unitsSI : c.units);
        }
    }
    expectHelpOf(slabTables());
}

/// Simple tables: what is typed goes to fields and count, and a word is set.
TEST_F(SlabTablesTest, SimpleTablesStoreCellsAndCount) {
    SlabSet& s = set;
    const struct {
        int kind;
        const char* form;
        int cols, lines;
        std::vector<std::string> texts;
        std::function<std::string()> stored;
        const char *expected, *words;
    } cases[] = {
        {205,
         "frmSpread3",
         2,
         1,
         {"550"},
         [&] { return numberText(s.LAYER[1].PMR) + " " + numberText(s.LAYER[1].F1); },
         "550 7",
         "lblFatigue done "},
        {205,
         "frmSpread3",
         4,
         2,
         {"550", "16.6", "18", "600", "17", "19"},
         [&] { return numberText(s.LAYER[1].F1) + " " + numberText(s.LAYER[2].F2); },
         "16.6 19",
         "lblFatigue done "},
        {206,
         "frmspreadb",
         2,
         3,
         {"0", "60.5", "120"},
         [&] { return numberText(s.SLAB[2].X[2]) + " " + numberText(s.SLAB[2].NX); },
         "60.5 3",
         "lblSlab2 done "},
        {207,
         "frmspreadb",
         2,
         2,
         {"0", "72"},
         [&] { return numberText(s.SLAB[2].Y[2]) + " " + numberText(s.SLAB[2].NY); },
         "72 2",
         "lblSlab2 done "},
        {208,
         "frmSpread3",
         5,
         2,
         {"8", ".15", "4E6", "150", "0", ".2", "3.5E6", "140"},
         [&] { return numberText(s.LAYER[1].YM) + " " + numberText(s.LAYER[2].GAMA); },
         "4000000 140",
         "lblProperties done "},
        {212,
         "frmspreadb",
         3,
         1,
         {"5", "2.5"},
         [&] { return s.THICK1[1].NT.text() + " " + s.THICK1[1].T.text() + " " + numberText(s.NAT1); },
         "5 2.5 1",
         "lblNat1 done "},
        {213,
         "frmspreadb",
         3,
         2,
         {"5", "2.5", "6", "3"},
         [&] { return s.THICK2[2].NT.text() + " " + s.THICK2[2].T.text() + " " + numberText(s.NAT2); },
         "6 3 2",
         "lblNat2 done "},
        {214,
         "frmspreadb",
         2,
         2,
         {"5", "6"},
         [&] { return numberText(s.NODNC[2]) + " " + s.NOTCON.text(); },
         "6 2",
         "lblNotcon done "},
        {215,
         "frmspreadb",
         2,
         2,
         {"5", "6"},
         [&] { return numberText(s.NP[2]) + " " + numberText(s.NPRINT); },
         "6 2",
         "lblNprint done "},
        {216,
         "frmspreadb",
         2,
         2,
         {"5", "6"},
         [&] { return numberText(s.NODSX[2]) + " " + numberText(s.NSX); },
         "6 2",
         "lblNsx done "},
        {217,
         "frmspreadb",
         2,
         2,
         {"5", "6"},
         [&] { return numberText(s.NODSY[2]) + " " + numberText(s.NSY); },
         "6 2",
         "lblNsy done "},
        {218,
         "frmspreadb",
         3,
         1,
         {"5", ".25"},
         [&] { return s.GAP[1].NG.text() + " " + s.GAP[1].CURL.text() + " " + s.NGAP.text(); },
         "5 .25 1",
         "lblNgap done "},
        {220,
         "frmspreadb",
         2,
         2,
         {"1", ".8"},
         [&] { return numberText(s.FSAF[2]) + " " + numberText(s.NPY); },
         ".8 2",
         "lblAdjust done "},
        {225,
         "frmspreadb",
         2,
         2,
         {"1000", "2E6"},
         [&] { return s.TNLR[3][2].text() + " " + numberText(s.NLG); },
         "2E6 2",
         "lblPeriod3 done "},
    };
    s.LAYER[1].F1 = 7;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.kind);
        TableEngine table = open(c.kind, c.form, c.lines, c.cols);
        fill(table, c.texts);
        const TableOutcome outcome = table.OK();
        EXPECT_TRUE(outcome.unload);
        EXPECT_EQ(outcome.message + outcome.load, "");
        EXPECT_EQ(c.stored(), c.expected);
        EXPECT_EQ(words(outcome), c.words);
    }
}

TEST_F(SlabTablesTest, ArrangementTestsEachCellAfterItIsStored) {
    set.NSLAB = 2;
    TableEngine table = open(203, "frmSpread2", 2, 7);
    EXPECT_EQ(store.ArrangeVisits, 1);
    EXPECT_EQ(table.OK().message, "NX and NY should not be 0");
    fill(table, {"5", "16", "0", "1", "0", "0", "7", "3", "1"});
    table.GridKeyDown(452);  // the new line holds zeros and stands in front of slab 2
    EXPECT_EQ(table.OK().message, "NX and NY should not be greater than 15");
    EXPECT_EQ(set.NSLAB, 3) << "the count comes first";
    EXPECT_EQ(set.SLAB[1].NX, 5);
    EXPECT_EQ(set.SLAB[1].NY, 16);
    EXPECT_EQ(set.SLAB[1].JONO2, 0) << "what lies behind the refused cell is not stored";
    put(table, 1, 2, "9");
    EXPECT_EQ(table.OK().message, "NX and NY should not be 0");
    EXPECT_EQ(set.SLAB[1].JONO2, 1);
    table.setPosition({2, 1, 2, 1, 1});
    table.GridKeyDown(462);
    const TableOutcome outcome = table.OK();
    EXPECT_EQ(words(outcome), "lblArrange done ");
    EXPECT_EQ(set.SLAB[2].NX, 7);
}

TEST_F(SlabTablesTest, TheFirstArrangementOfANewFileSetsDowelsAndNodes) {
    set.NJOINT = set.NSLAB = 1;
    set.NDAMA = 2;
    set.JOINT[1].BARNO[5] = 1;
    for (const int NewFile : {0, 1}) {
        store.NewFile = NewFile;
        store.ArrangeVisits = 0;
        TableEngine table = open(203, "frmSpread2", 1, 7);
        fill(table, {"4", "5", "1"});
        EXPECT_TRUE(table.OK().unload);
        EXPECT_EQ(set.JOINT[1].BARNO[5], Variant(NewFile ? 0 : 1));
        EXPECT_EQ(set.NP[3], NewFile ? 21 : 0);
    }
    set.NP[3] = 99;
    TableEngine second = open(203, "frmSpread2", 1, 7);
    EXPECT_TRUE(second.OK().unload);
    EXPECT_EQ(set.NP[3], 99) << "once only";
}

TEST_F(SlabTablesTest, OnlyTheThicknessOfTheFirstLayerIsTested) {
    TableEngine table = open(208, "frmSpread3", 2, 4);
    fill(table, {"0", ".15", "4E6", "0"});
    EXPECT_EQ(table.OK().message, "T of slab layer 1 should not be 0");
    put(table, 1, 1, "8");
    table.setPosition({1, 1, 1, 1, 1});
    EXPECT_TRUE(table.OK().unload);
    table.GridKeyDown(452);
    EXPECT_EQ(table.Rows(), 3) << "no line editing";
}

TEST_F(SlabTablesTest, LoadGroupsLeadToTheirAreasAndBack) {
    set.NLG = 2;
    TableEngine groups = open(209, "frmSpreada", 2, 2);
    EXPECT_EQ(groups.DblClick().message, "You don't have to enter this screen because NUDL = 0");
    EXPECT_EQ(enter(groups, 1, 1, "0").load, "") << "Enter on a zero just moves on";
    EXPECT_EQ(enter(groups, 1, 1, "2").load, "frmSpread2");
    EXPECT_EQ(store.GridCols, 7);
    EXPECT_EQ(store.TblLines, 2);
    EXPECT_EQ(store.CurGroup, 1);
    EXPECT_EQ(store.CurTopRow, 1);
    TableEngine areas(store, formNamed("frmSpread2"));
    fill(areas, {"1", "0", "10", "0", "12.5", "80", "1", "60"});
    const TableOutcome back = areas.OK();
    EXPECT_EQ(words(back) + back.load, "lblUniform done frmSpreada");
    EXPECT_EQ(set.AREA[1][1].QQ, Variant(80));
    EXPECT_EQ(set.AREA[1][2].XL1, Variant(60));
    EXPECT_EQ(set.NUDL[1], 2);
    TableEngine again(store, formNamed("frmSpreada"));
    EXPECT_EQ(again.Rows(), 3);
    EXPECT_EQ(again.position().Row, 2) << "on the next line";
    EXPECT_EQ(again.Text(1, 1), " 2");
    const TableOutcome outcome = again.OK();
    EXPECT_TRUE(outcome.unload && outcome.message.empty() && outcome.words.empty());
}

TEST_F(SlabTablesTest, ManyAreasAreRefusedPerGroupAndWarnedOfInAll) {
    TableEngine groups = open(209, "frmSpreada", 7, 2);
    for (int line = 1; line <= 7; ++line) put(groups, line, 1, line == 3 ? "25" : "24");
    groups.CellKeyDown(27);
    groups.setOverlayText("0");
    EXPECT_EQ(groups.OK().message, "NUDL should not be greater than 24");
    EXPECT_EQ(set.NUDL[3], 25);
    EXPECT_EQ(set.NUDL[4], 0);
    put(groups, 3, 1, "24");
    groups.setOverlayText("0");
    const TableOutcome outcome = groups.OK();
    EXPECT_EQ(outcome.message, "Total number of loaded areas = 168 which is greater than the allowable 144");
    EXPECT_TRUE(outcome.unload) << "a warning only";
    EXPECT_EQ(set.NUDL[7], 24);
    put(groups, 7, 1, "0");
    groups.setOverlayText("0");
    EXPECT_EQ(groups.OK().message, "") << "144 are allowed";
}

TEST_F(SlabTablesTest, AreasAndDowelsFollowTheirLines) {
    set.NUDL[1] = 1;
    set.NUDL[2] = 2;
    set.AREA[1][1].QQ = 80;
    set.AREA[2][2].QQ = 90;
    TableEngine groups = open(209, "frmSpreada", 2, 2);
    groups.GridKeyDown(452);
    EXPECT_EQ(set.AREA[2][1].QQ, Variant(80));
    EXPECT_EQ(set.AREA[3][2].QQ, Variant(90));
    EXPECT_EQ(set.AREA[1][1].QQ, Variant(0));
    groups.GridKeyDown(462);
    EXPECT_EQ(set.AREA[1][1].QQ, Variant(80));
    EXPECT_EQ(set.NUDL[2], 2);

    set.JOINT[1].NNAJ = "2";
    set.JOINT[1].BD = 1.25;
    set.JOINT[1].BARNO[2] = .5;
    set.JOINT[2].BARNO[15] = 7;
    TableEngine joints = open(224, "frmSpread1", 1, 9);
    joints.GridKeyDown(452);
    EXPECT_EQ(set.JOINT[2].BD, Variant(1.25));
    EXPECT_EQ(set.JOINT[2].BARNO[2], Variant(.5));
    EXPECT_EQ(set.JOINT[2].BARNO[15], Variant(7)) << "behind the nodes of the joint";
    EXPECT_EQ(set.JOINT[1].BARNO[2], Variant(0));
    EXPECT_EQ(row(joints, 1), "1| 0| 0| 0| 0| 0| 0| 0| 0");
}

TEST_F(SlabTablesTest, ConcentratedLoadsHaveThreeLinesOfTheirOwn) {
    TableEngine counts = open(210, "frmSpreada", 3, 2);
    EXPECT_EQ(row(counts, 1) + row(counts, 2) + row(counts, 3), "NCNF| 0NNMX| 0NNMY| 0");
    EXPECT_EQ(counts.delInsHint(), "");
    counts.GridKeyDown(452);
    EXPECT_EQ(counts.Rows(), 4);
    EXPECT_EQ(counts.DblClick().message, "You don't have to enter this screen because the entry is 0");
    const struct {
        int line;
        std::function<Double()> node, value;
    } rows[] = {{1, [&] { return set.FORCE[2].NN; }, [&] { return set.FORCE[2].FF; }},
                {2, [&] { return set.MOMENTX[2].NNX; }, [&] { return set.MOMENTX[2].FMX; }},
                {3, [&] { return set.MOMENTY[2].NNY; }, [&] { return set.MOMENTY[2].FMY; }}};
    for (const auto& r : rows) {
        store.TableKind = 210;
        store.MainLines = 3;
        store.MainCols = 2;
        TableEngine main(store, formNamed("frmSpreada"));
        EXPECT_EQ(enter(main, r.line, 1, "2").load, "frmspreadb");
        TableEngine values(store, formNamed("frmspreadb"));
        fill(values, {"4", "1000", "9", "123456789.5"});
        const TableOutcome outcome = values.OK();
        EXPECT_EQ(words(outcome) + outcome.load, "lblRaft done frmSpreada");
        EXPECT_EQ(store.MainLines, 3);
        EXPECT_EQ(r.node(), 9);
        EXPECT_EQ(r.value(), 123456789.5) << "nine digits of a double";
    }
    EXPECT_EQ(set.NCNF + set.NNMX + set.NNMY, 6);
}

TEST_F(SlabTablesTest, ARaftOfANewFileMayMoveMore) {
    for (const int NewFile : {0, 1}) {
        set.FMAX = 1;
        set.NNMX = 2;
        store.NewFile = NewFile;
        TableEngine counts = open(210, "frmSpreada", 3, 2);
        counts.setOverlayText("0");
        EXPECT_TRUE(counts.OK().unload);
        EXPECT_EQ(set.FMAX, Variant(NewFile ? 10 : 1));
    }
}

TEST_F(SlabTablesTest, LiquidFoundation) {
    TableEngine table = open(221, "frmSpreada", 1, 3);
    EXPECT_EQ(row(table, 1), "| 0| 0");
    EXPECT_EQ(table.delInsHint(), "");
    EXPECT_EQ(enter(table, 1, 2, "0").load, "");
    EXPECT_EQ(table.OK().message, "SUBMOD should not be 0");
    fill(table, {"100", "0"});
    EXPECT_EQ(table.DblClick().message, "You don't have to enter this screen because NAS = 0");
    TableOutcome outcome = table.OK();
    EXPECT_EQ(words(outcome), "lblFoundation done ");
    TableEngine again = open(221, "frmSpreada", 1, 3);
    EXPECT_EQ(enter(again, 1, 2, "2").load, "frmspreadb");
    TableEngine nodes(store, formNamed("frmspreadb"));
    fill(nodes, {"3", "50", "4", "60"});
    outcome = nodes.OK();
    EXPECT_EQ(words(outcome) + outcome.load, "lblFoundation done frmSpreada");
    EXPECT_EQ(store.MainLines, 1);
    EXPECT_EQ(set.SUBGRADE[2].SUBMOD, Variant(60));
    EXPECT_EQ(set.SUBMOD, Variant(100));
    EXPECT_EQ(set.NAS, Variant(2));
}

TEST_F(SlabTablesTest, LayeredFoundation) {
    set.MAXIC = 30;
    set.NL = "";
    TableEngine table = open(223, "frmSpreada", 1, 3);
    EXPECT_EQ(row(table, 1), "| 30|");
    EXPECT_EQ(table.OK().message, "An entry is required to fill the blank");
    put(table, 1, 2, "0");
    EXPECT_EQ(table.GridKeyDown(270).message, "A nonzero entry is required");
    table.CellKeyDown(27);
    table.setPosition({1, 1, 1, 1, 1});
    table.setOverlayText("0");
    EXPECT_EQ(table.OK().message, "NL should not be 0");
    EXPECT_EQ(enter(table, 1, 2, "7").load, "frmSpread2") << "only OK refuses";
    TableEngine seven(store, formNamed("frmSpread2"));
    EXPECT_EQ(seven.Rows(), 8);
    EXPECT_EQ(seven.Text(7, 1), "XXXXXXXXX");
    EXPECT_EQ(seven.OK().load, "frmSpreada");
    TableEngine back(store, formNamed("frmSpreada"));
    EXPECT_EQ(back.OK().message, "NL should not be greater than 6");

    EXPECT_EQ(enter(back, 1, 2, "2").load, "frmSpread2");
    TableEngine layers(store, formNamed("frmSpread2"));
    set.FOUNDATION[2].TH = 77;
    fill(layers, {"6", "20000", ".4", "5000", ".45"});  // Enter passes over the crossed-out cell
    const TableOutcome outcome = layers.OK();
    EXPECT_EQ(words(outcome) + outcome.load, "lblFoundation done frmSpreada");
    EXPECT_EQ(set.FOUNDATION[1].TH, Variant(6));
    EXPECT_EQ(set.FOUNDATION[2].TH, Variant(77)) << "left alone";
    EXPECT_EQ(set.FOUNDATION[2].PRBF, Variant(.45));
    EXPECT_EQ(set.NL, Variant(2));
}

TEST_F(SlabTablesTest, JointsLeadToTheirDowels) {
    set.NJOINT = 2;
    for (int node = 2; node <= 15; ++node) set.JOINT[1].BARNO[node] = 1;
    TableEngine joints = open(224, "frmSpread1", 2, 9);
    const TableOutcome chain = fill(joints, {"0", "0", "1.5E6", "1", "12", ".2", "0", "3"});
    EXPECT_EQ(chain.load, "frmspreadb");
    TableEngine dowels(store, formNamed("frmspreadb"));
    EXPECT_EQ(dowels.Text(1, 1) + dowels.Text(2, 1), " 0 1");
    fill(dowels, {".5", "1", ".5"});
    const TableOutcome back = dowels.OK();
    EXPECT_EQ(words(back) + back.load, "frmSpread1");
    EXPECT_EQ(store.MainCols, 9);
    EXPECT_EQ(store.MainLines, 2);
    EXPECT_EQ(set.JOINT[1].SCKV, Variant(1.5e6));
    EXPECT_EQ(set.JOINT[1].BARNO[3], Variant(.5));
    TableEngine again(store, formNamed("frmSpread1"));
    EXPECT_EQ(again.position().Row, 2);
    fill(again, {"100", "0", "0", "0", "0", "0", "0", "0"}, 2);
    EXPECT_EQ(words(again.OK()), "lblJoint done ");
    EXPECT_EQ(set.JOINT[2].SPCON1, Variant(100));
}

TEST_F(SlabTablesTest, LinesBeyondTheStoreShowZerosAndAreDropped) {
    set.NPRINT = 200;
    TableEngine nodes = open(215, "frmspreadb", 200, 2);
    EXPECT_EQ(nodes.Text(200, 1), " 0");
    put(nodes, 120, 1, "7");
    put(nodes, 121, 1, "8");
    EXPECT_TRUE(nodes.OK().unload);
    EXPECT_EQ(set.NP[120], 7);
    EXPECT_EQ(set.NPRINT, 200);
    set.NSLAB = 6;
    TableEngine slabs = open(203, "frmSpread2", 6, 3);
    for (int line = 1; line <= 6; ++line) {
        put(slabs, line, 1, "2");
        put(slabs, line, 2, "2");
    }
    slabs.setPosition({1, 1, 1, 1, 1});
    slabs.GridKeyDown(452);
    put(slabs, 1, 1, "3");
    put(slabs, 1, 2, "3");
    EXPECT_TRUE(slabs.OK().unload);
    EXPECT_EQ(set.NSLAB, 7);
    EXPECT_EQ(set.SLAB[1].NX + set.SLAB[6].NX, 5);
}

}  // namespace
