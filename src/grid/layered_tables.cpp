// The tables of the layered side. First the fields that cells and counts stand
// for, then what a few tables do beyond storing, then the catalogue.

#include <algorithm>

#include "grid/table_engine.h"
#include "grid/table_kinds.h"
#include "layered/layered_rules.h"
#include "store/store.h"

namespace {

LayeredSet& layered(Store& s, const TablePlace& p) { return s.layered[p.dataSet]; }

TableField NLG(Store& s, const TablePlace& p, int) { return &layered(s, p).NLG; }
TableField NL(Store& s, const TablePlace& p, int) { return &layered(s, p).NL; }
TableField NZ(Store& s, const TablePlace& p, int) { return &layered(s, p).NZ; }
/// NR or NPT of the line that the auxiliary table belongs to.
TableField NRofGroup(Store& s, const TablePlace& p, int) { return &layered(s, p).LOADL[p.group].NR; }

TableField NPY(Store& s, const TablePlace& p, int) { return &layered(s, p).NPY; }
TableField NLBT(Store& s, const TablePlace& p, int) { return &layered(s, p).NLBT; }
TableField NLTC(Store& s, const TablePlace& p, int) { return &layered(s, p).NLTC; }
TableField NOLAY(Store& s, const TablePlace& p, int) { return &layered(s, p).NOLAY; }
TableField NVL(Store& s, const TablePlace& p, int) { return &layered(s, p).NVL; }
TableField NTYME(Store& s, const TablePlace& p, int) { return &layered(s, p).NTYME; }
/// Kept: the count of load repetitions goes to the slab side, at the index of the layered data set.
TableField slabNLG(Store& s, const TablePlace& p, int) { return &s.slab[p.dataSet].NLG; }

TableField ZC(Store& s, const TablePlace& p, int line) { return &layered(s, p).ZC[line]; }
TableField TH(Store& s, const TablePlace& p, int line) { return &layered(s, p).LAYER[line].TH; }
TableField PR(Store& s, const TablePlace& p, int line) { return &layered(s, p).LAYER[line].PR; }
TableField GAM(Store& s, const TablePlace& p, int line) { return &layered(s, p).LAYER[line].GAM; }
TableField INT(Store& s, const TablePlace& p, int line) { return &layered(s, p).INTF[line]; }
TableField E(Store& s, const TablePlace& p, int line) { return &layered(s, p).EMOD[p.period][line]; }

TableField LOAD(Store& s, const TablePlace& p, int line) { return &layered(s, p).LOADL[line].LOAD; }
TableField CR(Store& s, const TablePlace& p, int line) { return &layered(s, p).LOADL[line].CR; }
TableField CP(Store& s, const TablePlace& p, int line) { return &layered(s, p).LOADL[line].CP; }
TableField YW(Store& s, const TablePlace& p, int line) { return &layered(s, p).LOADL[line].YW; }
TableField XW(Store& s, const TablePlace& p, int line) { return &layered(s, p).LOADL[line].XW; }
TableField NR(Store& s, const TablePlace& p, int line) { return &layered(s, p).LOADL[line].NR; }
TableField RC(Store& s, const TablePlace& p, int line) { return &layered(s, p).RC[p.group][line]; }
TableField XPT(Store& s, const TablePlace& p, int line) { return &layered(s, p).PT[p.group][line].XPT; }
TableField YPT(Store& s, const TablePlace& p, int line) { return &layered(s, p).PT[p.group][line].YPT; }

TableField RELAX(Store& s, const TablePlace& p, int line) { return &layered(s, p).RELAX[line]; }
TableField LAYNO(Store& s, const TablePlace& p, int line) { return &layered(s, p).NOLLAY[line].LAYNO; }
TableField ZCNOL(Store& s, const TablePlace& p, int line) { return &layered(s, p).NOLLAY[line].ZCNOL; }
TableField NCLAY(Store& s, const TablePlace& p, int line) { return &layered(s, p).NOLLAY[line].NCLAY; }
/// Value m of the nonlinear layer and period: PHI, K1 of granular materials, EMIN, EMAX, K1 of clays.
template <int m>
TableField KPER(Store& s, const TablePlace& p, int line) {
    return &layered(s, p).KPER[p.layer][line][m];
}
TableField clayType(Store& s, const TablePlace& p, int line) {
    return &layered(s, p).KPERX[p.layer][line][1];
}

TableField TYME(Store& s, const TablePlace& p, int line) { return &layered(s, p).TYME[line]; }
TableField LNV(Store& s, const TablePlace& p, int line) { return &layered(s, p).VISLAY[line].LNV; }
TableField BETA(Store& s, const TablePlace& p, int line) { return &layered(s, p).VISLAY[line].BETA; }
TableField TEMPREF(Store& s, const TablePlace& p, int line) { return &layered(s, p).VISLAY[line].TEMPREF; }
TableField CREEP(Store& s, const TablePlace& p, int line) { return &layered(s, p).CREEP[p.layer][line]; }
TableField TEMP(Store& s, const TablePlace& p, int line) { return &layered(s, p).TEMP[p.period][line]; }

TableField LNBT(Store& s, const TablePlace& p, int line) { return &layered(s, p).DAMBT[line].LNBT; }
TableField FT1(Store& s, const TablePlace& p, int line) { return &layered(s, p).DAMBT[line].FT1; }
TableField FT2(Store& s, const TablePlace& p, int line) { return &layered(s, p).DAMBT[line].FT2; }
TableField FT3(Store& s, const TablePlace& p, int line) { return &layered(s, p).DAMBT[line].FT3; }
TableField LNTC(Store& s, const TablePlace& p, int line) { return &layered(s, p).DAMTC[line].LNTC; }
TableField FT4(Store& s, const TablePlace& p, int line) { return &layered(s, p).DAMTC[line].FT4; }
TableField FT5(Store& s, const TablePlace& p, int line) { return &layered(s, p).DAMTC[line].FT5; }
TableField TNLR(Store& s, const TablePlace& p, int line) { return &layered(s, p).TNLR[p.period][line]; }

/// A load group beyond the store counts as a single wheel, as its line shows 0.
bool isSingleWheel(Store& s, const TablePlace& p, int) {
    return p.group > decltype(LayeredSet::LOADL)::last || countOf(LOAD(s, p, p.group)) == 0;
}

/// Calls `visit` with each point of the group that its count covers: radial or x, y, as its LOAD says.
template <class Visit>
void forPoints(const LayeredSet::Load& load, Visit visit) {
    Variant count = load.NR, kind = load.LOAD;
    const bool radial = countOf(&kind) == 0;
    const int last = std::min(countOf(&count), 25);
    for (int point = 1; point <= last; ++point) visit(point, radial);
}

void moveLoad(Store& s, const TablePlace& p, int from, int to) {
    LayeredSet& set = layered(s, p);
    const LayeredSet::Load load = set.LOADL[from];
    set.LOADL[to] = load;
    forPoints(load, [&](int point, bool radial) {
        if (radial) {
            set.RC[to][point] = set.RC[from][point];
        } else {
            set.PT[to][point] = set.PT[from][point];
        }
    });
}

/// The six load values stay: they are taken from the grid when the line is stored.
void clearLoad(Store& s, const TablePlace& p, int line) {
    LayeredSet& set = layered(s, p);
    forPoints(set.LOADL[line], [&](int point, bool radial) {
        if (radial) {
            set.RC[line][point] = 0;
        } else {
            set.PT[line][point] = {0, 0};
        }
    });
}

void moveNonlinearLayer(Store& s, const TablePlace& p, int from, int to) {
    LayeredSet& set = layered(s, p);
    set.NOLLAY[to] = set.NOLLAY[from];
    if (numberOf(&set.NOLLAY[to].NCLAY).value_or(0) != 0) {
        set.KCLAY[to] = set.KCLAY[from];
    } else {
        set.KGRAN[to] = set.KGRAN[from];
    }
}

void clearNonlinearLayer(Store& s, const TablePlace& p, int line) {
    layered(s, p).KCLAY[line] = {};
    layered(s, p).KGRAN[line] = {};
}

const char* nonlinearForm(const std::vector<Single>& values) {
    return values[3] != 0 ? "frmClay" : "frmGranular";
}

/// EMIN, EMAX and K1 by clay type (1 very soft to 4 stiff), in psi and in kPa.
constexpr int clayDefaults[2][4][3] = {
    {{1000, 5662, 1000}, {1827, 7682, 3020}, {4716, 12342, 7680}, {7605, 17002, 12340}},
    {{6895, 39040, 6895}, {12597, 52967, 20823}, {32517, 85098, 52954}, {52436, 117229, 85084}}};

/// Periods of any other type keep their values.
void takeClayDefaults(Store& s, const TablePlace& p, int lines, TableOutcome&) {
    LayeredSet& set = layered(s, p);
    for (int period = 1; period <= std::min(lines, 12); ++period) {
        const Double type = numberOf(clayType(s, p, period)).value_or(0);
        for (int known = 1; known <= 4; ++known) {
            if (type != known) continue;
            for (int m = 1; m <= 3; ++m)
                set.KPER[p.layer][period][m] = clayDefaults[isSI(s, p) ? 1 : 0][known - 1][m - 1];
        }
    }
}

bool isClayTypes(Store&, const TablePlace&, int cols) { return cols == 2; }
bool isGranular(Store&, const TablePlace&, int cols) { return cols == 3; }

/// A reference temperature of one's own calls for the temperatures of the periods.
void tellTemperature(Store& s, const TablePlace& p, int, TableOutcome& outcome) {
    const auto word =
        temperaturesNeedInput(layered(s, p)) ? StatusWord::Word::Input : StatusWord::Word::BlueDefault;
    outcome.words.push_back({"frmVisco", "lbltemperature", word});
}

using Bad = TableTest::Bad;

const char* pointTable(const std::vector<Single>&) { return "frmspreadb"; }

}  // namespace

const std::vector<TableEntry>& layeredTables() {
    static const std::vector<TableEntry> tables = {
        {.kind = 103,
         .form = "frmspreadb",
         .caption = "Z Coordinates of Response Points for Data Set No.{set}",
         .rowHead = "Point No.",
         .columns = {{"ZC", ZC, true}},
         .units = "Unit     in.",
         .unitsSI = "Unit     cm",
         .help = "table_103",
         .count = NZ,
         .status = {"frmBEDFORM", "lblZcoord"}},
        {.kind = 104,
         .form = "frmSpread2",
         .caption = "Layer Thickness, Poisson's Ratio and Unit Weight for Data Set No.{set}",
         .rowHead = "Layer No.",
         .columns = {{"TH", TH, true}, {"PR", PR}, {"GAM", GAM, true}},
         .units = "Unit       in.               pcf",
         .unitsSI = "Unit       cm               kN/m^3",
         .help = "table_104",
         .crossesLast = true,
         .count = NL,
         .status = {"frmBEDFORM", "lblLayer"}},
        {.kind = 105,
         .form = "frmspreadb",
         .caption = "Type of Interface for Data Set No.{set}",
         .rowHead = "Interface No.",
         .columns = {{"INT", INT}},
         .help = "table_105",
         .fixedLines = true,
         .status = {"frmBEDFORM", "lblInterface"}},
        {.kind = 106,
         .form = "frmspreadb",
         .caption = "Layer Moduli for Period No.{period} and Data Set No.{set}",
         .rowHead = "Layer No.",
         .columns = {{"E", E, true}},
         .units = "Unit     psi",
         .unitsSI = "Unit     kPa",
         .help = "table_106",
         .count = NL,
         .status = {"frmPeriod", "lblPeriod{period}"}},
        {.kind = 107,
         .form = "frmSpread1",
         .caption = "Load Information for Data Set No.{set}",
         .rowHead = "Load Group No.",
         .columns = {{"LOAD", LOAD},
                     {"CR", CR, true},
                     {"CP", CP, true},
                     {"YW", YW, true},
                     {"XW", XW, true},
                     {"NR or NPT", NR}},
         .units = "Unit              in.     psi     in.     in.",
         .unitsSI = "Unit              cm      kPa     cm      cm",
         .help = "table_107",
         .doubleHint = "Double click anywhere on a line to get auxiliary form for NR or NPT.",
         .count = NLG,
         .tests = {{6, 6, Bad::Above, 25, "NR or NPT should not be greater than 25."}},
         .chain = {.enterColumn = 6,
                   .editColumn = 6,
                   .countColumn = 6,
                   .tests = {{6, "NR or NPT cannot be 0"}},
                   .auxiliaryCols = 2,
                   .form = pointTable},
         .moveLine = moveLoad,
         .clearLine = clearLoad},
        {.kind = 107,
         .form = "frmspreadb",
         .when = isSingleWheel,
         .caption = "Radial Coordinates of Response Points for Load Group No.{group} of Data Set No.{set}",
         .rowHead = "Point No.",
         .columns = {{"RC", RC, true}},
         .units = "Unit     in.",
         .unitsSI = "Unit     cm",
         .help = "table_107_radial",
         .allColumns = true,
         .count = NRofGroup,
         .status = {"frmBEDFORM", "lblLoad1"},
         .next = {"frmSpread1", 7, NLG}},
        {.kind = 107,
         .form = "frmspreadb",
         .caption = "X and Y Coordinates of Response Points for Load Group No.{group} and Data Set No.{set}",
         .rowHead = "Point No.",
         .columns = {{"XPT", XPT, true}, {"YPT", YPT, true}},
         .units = "Unit     in.     in.",
         .unitsSI = "Unit     cm      cm",
         .help = "table_107_xy",
         .allColumns = true,
         .count = NRofGroup,
         .status = {"frmBEDFORM", "lblLoad1"},
         .next = {"frmSpread1", 7, NLG}},
        {.kind = 110,
         .form = "frmspreadb",
         .caption = "Relaxation factor of Each Period for Data Set No.{set}",
         .rowHead = "Period No.",
         .columns = {{"RELAX", RELAX}},
         .help = "table_110",
         .count = NPY,
         .status = {"frmNonlin", "lblRelaxation"}},
        {.kind = 111,
         .form = "frmSpread1",
         .caption = "Nonseasonal Information for Data Set No.{set}",
         .rowHead = "Sequence",
         .columns = {{"LAYNO", LAYNO}, {"ZCNOL", ZCNOL}, {"NCLAY", NCLAY}},
         .help = "table_111",
         .doubleHint = "Double click anywhere on a line to get auxiliary form.",
         .count = NOLAY,
         .tests = {{3, 1, Bad::Zero, 0, "LAYNO should not be 0"}},
         .status = {"frmNonlin", "lblNonseasonal"},
         .chain = {.enterColumn = 3,
                   .enterAlways = true,
                   .tests = {{1, "LAYNO cannot be 0"}, {2, "ZCNOL cannot be 0"}},
                   .form = nonlinearForm},
         .moveLine = moveNonlinearLayer,
         .clearLine = clearNonlinearLayer},
        {.kind = 112,
         .form = "frmspreadb",
         .when = isGranular,
         .caption = "Seasonal Input Parameters for Layer No.{number} (Granular) and Data Set No.{set}",
         .number = LAYNO,
         .rowHead = "Period No.",
         .columns = {{"PHI", KPER<1>, true}, {"K1", KPER<2>, true}},
         .units = "Unit   degree    psi",
         .unitsSI = "Unit   degree    kPa",
         .help = "table_112_granular",
         .count = NPY,
         .tests = {{2, 2, Bad::Zero, 0, "K1 should not be 0"}},
         .status = {"frmLayer", "lblLayer{layer}"}},
        {.kind = 112,
         .form = "frmspreadb",
         .when = isClayTypes,
         .caption = "Seasonal Input Parameters for Layer No.{number} (CLAY) and Data Set No.{set}",
         .number = LAYNO,
         .rowHead = "Period No.",
         .columns = {{"Clay Type", clayType}},
         .help = "table_112_types",
         .showsZeros = true,
         .count = NPY,
         .afterStore = takeClayDefaults,
         .next = {"frmSpread2", 4}},
        {.kind = 112,
         .form = "frmSpread2",
         .caption = "Seasonal Input Parameters for Layer No.{number} (Clay) and Data Set No.{set}",
         .number = LAYNO,
         .rowHead = "Period No.",
         .columns = {{"EMIN", KPER<1>, true}, {"EMAX", KPER<2>, true}, {"K1", KPER<3>, true}},
         .units = "Unit        psi     psi     psi",
         .unitsSI = "Unit        kPa     kPa     kPa",
         .help = "table_112_clay",
         .count = NPY,
         .status = {"frmLayer", "lblLayer{layer}"}},
        {.kind = 116,
         .form = "frmspreadb",
         .caption = "Time Durations of Creep Compliances for Data Set No.{set}",
         .rowHead = "Sequence",
         .columns = {{"TYME", TYME, true}},
         .units = "Unit     sec",
         .unitsSI = "Unit     sec",
         .help = "table_116",
         .count = NTYME,
         .status = {"frmVisco", "lblDuration"}},
        {.kind = 117,
         .form = "frmSpread2",
         .caption = "Vicoelastic Layer Information for Data Set No.{set}",  // so spelt: kept
         .rowHead = "Sequence",
         .columns = {{"LAYNO", LNV}, {"BETA", BETA, true}, {"TEMPREF", TEMPREF, true}},
         .units = "Unit               per F    F",
         .unitsSI = "Unit               per C    C",
         .help = "table_117",
         .count = NVL,
         .tests = {{3, 1, Bad::Zero, 0, "LAYNO should not be 0"}},
         .afterStore = tellTemperature,
         .status = {"frmVisco", "lblLayer"}},
        {.kind = 118,
         .form = "frmspreadb",
         .caption = "Creep Compliances of Layer No.{number} for Data Set No.{set}",
         .number = LNV,
         .rowHead = "TYME",
         .columns = {{"CREEP", CREEP, true}},
         .units = "Unit     per psi",
         .unitsSI = "Unit     per kPa",
         .help = "table_118",
         .rowLabel = TYME,
         .count = NTYME,
         .status = {"frmLayer", "lblLayer{layer}"}},
        {.kind = 119,
         .form = "frmspreadb",
         .caption = "Temperature of Each Layer for Period No.{period} and Data Set No.{set}",
         .rowHead = "Layer No.",
         .columns = {{"TEMP", TEMP, true}},
         .units = "Unit      F",
         .unitsSI = "Unit      C",
         .help = "table_119",
         .count = NVL,
         .status = {"frmPeriod", "lblPeriod{period}"}},
        {.kind = 121,
         .form = "frmSpread2",
         .caption = "Layer Number and Fatigue Coefficients for Data Set No.{set}",
         .rowHead = "Sequence",
         .columns = {{"LNBT", LNBT}, {"FT1", FT1}, {"FT2", FT2}, {"FT3", FT3}},
         .help = "table_121",
         .count = NLBT,
         .tests = {{4, 1, Bad::Zero, 0, "LNBT should not be 0"}},
         .status = {"frmDamage1", "lblBottom"}},
        {.kind = 122,
         .form = "frmSpread2",
         .caption = "Layer Number and Permanent Deformation Coefficients for Data Set No.{set}",
         .rowHead = "Sequence",
         .columns = {{"LNTC", LNTC}, {"FT4", FT4}, {"FT5", FT5}},
         .help = "table_122",
         .count = NLTC,
         .tests = {{3, 1, Bad::Zero, 0, "LNTC should not be 0"}},
         .status = {"frmDamage1", "lblTop"}},
        {.kind = 123,
         .form = "frmspreadb",
         .caption = "Load Repetition for Period No.{period} and Data Set No.{set}",
         .rowHead = "Load Group No.",
         .columns = {{"TNLR", TNLR}},
         .help = "table_123",
         .count = slabNLG,
         .status = {"frmPeriod", "lblPeriod{period}"}},
    };
    return tables;
}
