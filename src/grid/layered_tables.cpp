// The tables of the layered side. First the fields that cells and counts stand
// for, then what a few tables do beyond storing, then the catalogue.

#include <algorithm>

#include "grid/table_engine.h"
#include "grid/table_kinds.h"
#include "store/store.h"

namespace {

LayeredSet& layered(Store& s, const TablePlace& p) { return s.layered[p.dataSet]; }

TableField NLG(Store& s, const TablePlace& p, int) { return &layered(s, p).NLG; }
TableField NL(Store& s, const TablePlace& p, int) { return &layered(s, p).NL; }
TableField NZ(Store& s, const TablePlace& p, int) { return &layered(s, p).NZ; }
/// NR or NPT of the line that the auxiliary table belongs to.
TableField NRofGroup(Store& s, const TablePlace& p, int) { return &layered(s, p).LOADL[p.group].NR; }

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
    };
    return tables;
}
