// The tables of the slab side: first the fields that cells and counts stand for,
// then what a few tables do beyond storing, then the catalogue.

#include <algorithm>

#include "grid/table_engine.h"
#include "grid/table_kinds.h"
#include "slab/slab_rules.h"
#include "store/store.h"

namespace {

using Set = SlabSet;

Set& slabs(Store& s, const TablePlace& p) { return s.slab[p.dataSet]; }

/// A field of the data set itself.
template <auto field>
TableField of(Store& s, const TablePlace& p, int) {
    return &(slabs(s, p).*field);
}
/// Element `line` of a list of the data set.
template <auto list>
TableField each(Store& s, const TablePlace& p, int line) {
    return &(slabs(s, p).*list)[line];
}
/// A field of element `line` of such a list.
template <auto list, auto field>
TableField each(Store& s, const TablePlace& p, int line) {
    return &((slabs(s, p).*list)[line].*field);
}
/// A field of the element that the auxiliary table belongs to.
template <auto list, auto field>
TableField ofGroup(Store& s, const TablePlace& p, int) {
    return &((slabs(s, p).*list)[p.group].*field);
}
template <auto field>
TableField ofSlab(Store& s, const TablePlace& p, int) {
    return &(slabs(s, p).SLAB[p.slab].*field);
}
template <auto list>
TableField eachOfSlab(Store& s, const TablePlace& p, int line) {
    return &(slabs(s, p).SLAB[p.slab].*list)[line];
}
template <auto field>
TableField area(Store& s, const TablePlace& p, int line) {
    return &(slabs(s, p).AREA[p.group][line].*field);
}
TableField NUDLofGroup(Store& s, const TablePlace& p, int) { return &slabs(s, p).NUDL[p.group]; }
TableField BARNO(Store& s, const TablePlace& p, int line) { return &slabs(s, p).JOINT[p.group].BARNO[line]; }
TableField TNLR(Store& s, const TablePlace& p, int line) { return &slabs(s, p).TNLR[p.period][line]; }

/// The counts of concentrated loads, by line.
TableField concentrated(Store& s, const TablePlace& p, int line) {
    Set& set = slabs(s, p);
    Integer* const counts[] = {&set.NCNF, &set.NNMX, &set.NNMY};
    if (line < 1 || line > 3) throw RunTimeError(Fault::SubscriptOutOfRange);
    return counts[line - 1];
}
TableField concentratedOfGroup(Store& s, const TablePlace& p, int) { return concentrated(s, p, p.group); }

template <int line>
bool belongsToLine(Store&, const TablePlace& p, int) {
    return p.group == line;
}

void countArrangeVisit(Store& s, const TablePlace&) { ++s.ArrangeVisits; }

void takeArrangementDefaults(Store& s, const TablePlace& p, int, TableOutcome&) {
    if (s.ArrangeVisits == 1 && s.NewFile == 1) setArrangementDefaults(slabs(s, p));
}

void takeRaftDefault(Store& s, const TablePlace& p, int, TableOutcome&) {
    if (s.NewFile == 1) setRaftDefault(slabs(s, p));
}

/// A warning only: all is stored and the table closes.
void warnOfManyAreas(Store& s, const TablePlace& p, int lines, TableOutcome& outcome) {
    constexpr int allowed = 144;
    int sum = 0;
    for (int group = 1; group <= std::min(lines, decltype(Set::NUDL)::last); ++group)
        sum += slabs(s, p).NUDL[group];
    if (sum > allowed)
        outcome.message =
            "Total number of loaded areas =" + Str(Long{sum}) + " which is greater than the allowable 144";
}

void moveAreas(Store& s, const TablePlace& p, int from, int to) {
    Set& set = slabs(s, p);
    const Integer count = set.NUDL[from];
    set.NUDL[to] = count;
    for (int n = 1; n <= std::min<int>(count, 24); ++n) set.AREA[to][n] = set.AREA[from][n];
}

void clearAreas(Store& s, const TablePlace& p, int line) {
    Set& set = slabs(s, p);
    for (int n = 1; n <= std::min<int>(set.NUDL[line], 24); ++n) set.AREA[line][n] = {};
}

int nodesAt(Set::Joint& joint) { return std::min(countOf(&joint.NNAJ), 15); }

void moveJoint(Store& s, const TablePlace& p, int from, int to) {
    Set& set = slabs(s, p);
    Set::Joint& target = set.JOINT[to];
    const auto BARNO = target.BARNO;
    target = set.JOINT[from];
    target.BARNO = BARNO;
    for (int node = 1; node <= nodesAt(set.JOINT[from]); ++node)
        target.BARNO[node] = set.JOINT[from].BARNO[node];
}

/// The joint's own values stay: they are taken from the grid when the line is stored.
void clearJoint(Store& s, const TablePlace& p, int line) {
    Set::Joint& joint = slabs(s, p).JOINT[line];
    for (int node = 1; node <= nodesAt(joint); ++node) joint.BARNO[node] = 0;
}

const char* simpleTable(const std::vector<Single>&) { return "frmspreadb"; }
const char* wideTable(const std::vector<Single>&) { return "frmSpread2"; }

using Bad = TableTest::Bad;

const char* const noZero = "NX and NY should not be 0";
const char* const noMore = "NX and NY should not be greater than 15";

}  // namespace

const std::vector<TableEntry>& slabTables() {
    static const std::vector<TableEntry> tables = {
        {.kind = 203,
         .form = "frmSpread2",
         .caption = "Arrangement of Slabs and Joints for Data Set No.{set}",
         .rowHead = "Slab No.",
         .columns = {{"NX", each<&Set::SLAB, &Set::Slab::NX>},
                     {"NY", each<&Set::SLAB, &Set::Slab::NY>},
                     {"JONO1", each<&Set::SLAB, &Set::Slab::JONO1>},
                     {"JONO2", each<&Set::SLAB, &Set::Slab::JONO2>},
                     {"JONO3", each<&Set::SLAB, &Set::Slab::JONO3>},
                     {"JONO4", each<&Set::SLAB, &Set::Slab::JONO4>}},
         .help = "table_203",
         .onLoad = countArrangeVisit,
         .count = of<&Set::NSLAB>,
         .tests = {{1, 1, Bad::Zero, 0, noZero},
                   {1, 1, Bad::Above, 15, noMore},
                   {2, 2, Bad::Zero, 0, noZero},
                   {2, 2, Bad::Above, 15, noMore}},
         .afterStore = takeArrangementDefaults,
         .status = {"frmSlabData", "lblArrange"}},
        {.kind = 205,
         .form = "frmSpread3",
         .caption = "Strength and  Fatigue Coefficients of Each Slab Layer for Data Set No.{set}",
         .rowHead = "Layer No.",
         .columns = {{"PMR", each<&Set::LAYER, &Set::Layer::PMR>, true},
                     {"F1", each<&Set::LAYER, &Set::Layer::F1>},
                     {"F2", each<&Set::LAYER, &Set::Layer::F2>}},
         .units = "Unit       psi",
         .unitsSI = "Unit       kPa",
         .help = "table_205",
         .status = {"frmDamage", "lblFatigue"}},
        {.kind = 206,
         .form = "frmspreadb",
         .caption = "X Coordinates of Grid for Slab No.{slab} and Data Set No.{set}",
         .rowHead = "Sequence",
         .columns = {{"X", eachOfSlab<&Set::Slab::X>, true}},
         .units = "Unit     in.",
         .unitsSI = "Unit     cm",
         .help = "table_206",
         .count = ofSlab<&Set::Slab::NX>,
         .status = {"frmSlabs", "lblSlab{slab}"}},
        {.kind = 207,
         .form = "frmspreadb",
         .caption = "Y Coordinates of Grid for Slab No.{slab} and Data Set No.{set}",
         .rowHead = "Sequence",
         .columns = {{"Y", eachOfSlab<&Set::Slab::Y>, true}},
         .units = "Unit     in.",
         .unitsSI = "Unit     cm",
         .help = "table_207",
         .count = ofSlab<&Set::Slab::NY>,
         .status = {"frmSlabs", "lblSlab{slab}"}},
        {.kind = 208,
         .form = "frmSpread3",
         .caption =
             "Thickness, Poisson's Ratio, Young's Modulus, and Unit Weight of Concrete for Data Set No.{set}",
         .rowHead = "Layer No.",
         .columns = {{"T", each<&Set::LAYER, &Set::Layer::T>, true},
                     {"PR", each<&Set::LAYER, &Set::Layer::PR>},
                     {"YM", each<&Set::LAYER, &Set::Layer::YM>, true},
                     {"GAMA", each<&Set::LAYER, &Set::Layer::GAMA>, true}},
         .units = "Unit       in.              psi     pcf",
         .unitsSI = "Unit       cm               kPa     kN/m^3",
         .help = "table_208",
         .tests = {{1, 1, Bad::Zero, 0, "T of slab layer 1 should not be 0", 1}},
         .status = {"frmSlabData", "lblProperties"}},
        {.kind = 209,
         .form = "frmSpreada",
         .caption = "Loaded Areas and Contact Pressures for Data Set No.{set}",
         .rowHead = "Load Group No.",
         .columns = {{"NUDL", each<&Set::NUDL>}},
         .help = "table_209",
         .count = of<&Set::NLG>,
         .tests = {{1, 1, Bad::Above, 24, "NUDL should not be greater than 24"}},
         .afterStore = warnOfManyAreas,
         .chain = {.countColumn = 1,
                   .tests = {{1, "You don't have to enter this screen because NUDL = 0"}},
                   .auxiliaryCols = 7,
                   .form = wideTable},
         .moveLine = moveAreas,
         .clearLine = clearAreas},
        {.kind = 209,
         .form = "frmSpread2",
         .caption = "Loaded Areas for Load Group No.{group} and Data Set No.{set}",
         .rowHead = "Load Sequence",
         .columns = {{"LS", area<&Set::Area::LS>},
                     {"XL1", area<&Set::Area::XL1>, true},
                     {"XL2", area<&Set::Area::XL2>, true},
                     {"YL1", area<&Set::Area::YL1>, true},
                     {"YL2", area<&Set::Area::YL2>, true},
                     {"QQ", area<&Set::Area::QQ>, true}},
         .units = "Unit               in.     in.      in.     in.      psi",
         .unitsSI = "Unit               cm      cm       cm      cm       kPa",
         .help = "table_209_areas",
         .count = NUDLofGroup,
         .status = {"frmPANFORM", "lblUniform"},
         .next = {"frmSpreada", 2, of<&Set::NLG>}},
        {.kind = 210,
         .form = "frmSpreada",
         .caption = "Number of Concentrated Forces and Moments",
         .rowHead = "Type",
         .columns = {{"", concentrated}},
         .help = "table_210",
         .fixedLines = true,
         .rowNames = std::vector<const char*>{"NCNF", "NNMX", "NNMY"},
         .afterStore = takeRaftDefault,
         .chain = {.countColumn = 1,
                   .tests = {{1, "You don't have to enter this screen because the entry is 0"}},
                   .auxiliaryCols = 3,
                   .form = simpleTable}},
        {.kind = 210,
         .form = "frmspreadb",
         .when = belongsToLine<1>,
         .caption = "Vertical Loads at Designated nodes",
         .rowHead = "Sequence No.",
         .columns = {{"NN", each<&Set::FORCE, &Set::Force::NN>},
                     {"FF", each<&Set::FORCE, &Set::Force::FF>, true}},
         .units = "Unit              lb",
         .unitsSI = "Unit              kN",
         .help = "table_210_forces",
         .count = concentratedOfGroup,
         .status = {"frmPANFORM", "lblRaft"},
         .next = {"frmSpreada", 2, nullptr, 3}},
        {.kind = 210,
         .form = "frmspreadb",
         .when = belongsToLine<2>,
         .caption = "Moments about X-axis at Designated Nodes",
         .rowHead = "Sequence No.",
         .columns = {{"NNX", each<&Set::MOMENTX, &Set::MomentX::NNX>},
                     {"FMX", each<&Set::MOMENTX, &Set::MomentX::FMX>, true}},
         .units = "Unit              in.-lb",
         .unitsSI = "Unit              cm-kN",
         .help = "table_210_moments_x",
         .count = concentratedOfGroup,
         .status = {"frmPANFORM", "lblRaft"},
         .next = {"frmSpreada", 2, nullptr, 3}},
        {.kind = 210,
         .form = "frmspreadb",
         .when = belongsToLine<3>,
         .caption = "Moment about Y-axis at Designated Nodes",
         .rowHead = "Sequence No.",
         .columns = {{"NNY", each<&Set::MOMENTY, &Set::MomentY::NNY>},
                     {"FMY", each<&Set::MOMENTY, &Set::MomentY::FMY>, true}},
         .units = "Unit              in-lb",
         .unitsSI = "Unit              cm-kN",
         .help = "table_210_moments_y",
         .count = concentratedOfGroup,
         .status = {"frmPANFORM", "lblRaft"},
         .next = {"frmSpreada", 2, nullptr, 3}},
        {.kind = 212,
         .form = "frmspreadb",
         .caption = "Additional Thickness for Slab Layer 1 and Data Set No.{set}",
         .rowHead = "Sequence",
         .columns = {{"NT1", each<&Set::THICK1, &Set::Thickness::NT>},
                     {"T1", each<&Set::THICK1, &Set::Thickness::T>, true}},
         .units = "Unit             in.",
         .unitsSI = "Unit             cm",
         .help = "table_212",
         .count = of<&Set::NAT1>,
         .status = {"frmOptional", "lblNat1"}},
        {.kind = 213,
         .form = "frmspreadb",
         .caption = "Additional Thickness for Slab Layer 2 and Data Set No.{set}",
         .rowHead = "Sequence",
         .columns = {{"NT2", each<&Set::THICK2, &Set::Thickness::NT>},
                     {"T2", each<&Set::THICK2, &Set::Thickness::T>, true}},
         .units = "Unit             in.",
         .unitsSI = "Unit             cm",
         .help = "table_213",
         .count = of<&Set::NAT2>,
         .status = {"frmOptional", "lblNat2"}},
        {.kind = 214,
         .form = "frmspreadb",
         .caption = "Nodes Not in Contact for Data Set No.{set}",
         .rowHead = "Sequence",
         .columns = {{"NODNC", each<&Set::NODNC>}},
         .help = "table_214",
         .count = of<&Set::NOTCON>,
         .status = {"frmOptional", "lblNotcon"}},
        {.kind = 215,
         .form = "frmspreadb",
         .caption = "Nodes for Printout for Data Set No.{set}",
         .rowHead = "Sequence",
         .columns = {{"NP", each<&Set::NP>}},
         .help = "table_215",
         .count = of<&Set::NPRINT>,
         .status = {"frmOptional", "lblNprint"}},
        {.kind = 216,
         .form = "frmspreadb",
         .caption = "Nodes on X Axis of Symmetry for Data Set No.{set}",
         .rowHead = "Sequence",
         .columns = {{"NODSX", each<&Set::NODSX>}},
         .help = "table_216",
         .count = of<&Set::NSX>,
         .status = {"frmOptional", "lblNsx"}},
        {.kind = 217,
         .form = "frmspreadb",
         .caption = "Nodes on Y Axis of Symmetry for Data Set No.{set}",
         .rowHead = "Sequence",
         .columns = {{"NODSY", each<&Set::NODSY>}},
         .help = "table_217",
         .count = of<&Set::NSY>,
         .status = {"frmOptional", "lblNsy"}},
        {.kind = 218,
         .form = "frmspreadb",
         .caption = "Gap at Specified Nodes for Layer 2 and Data Set No.{set}",
         .rowHead = "Sequence",
         .columns = {{"NG", each<&Set::GAP, &Set::Gap::NG>}, {"GAP", each<&Set::GAP, &Set::Gap::CURL>, true}},
         .units = "Unit             in.",
         .unitsSI = "Unit             cm",
         .help = "table_218",
         .count = of<&Set::NGAP>,
         .status = {"frmOptional", "lblNgap"}},
        {.kind = 220,
         .form = "frmspreadb",
         .caption = "Foundation Seasonal Adjustment Factor for Data Set No.{set}",
         .rowHead = "Period No.",
         .columns = {{"FSAF", each<&Set::FSAF>}},
         .help = "table_220",
         .count = of<&Set::NPY>,
         .status = {"frmPANFORM", "lblAdjust"}},
        {.kind = 221,
         .form = "frmSpreada",
         .caption = "Liquid Foundation for Data Set No.{set}",
         .rowHead = "",
         .columns = {{"SUBMOD", of<&Set::SUBMOD>, true}, {"NAS", of<&Set::NAS>}},
         .units = "Unit     pci",
         .unitsSI = "Unit     MN/m^3",
         .help = "table_221",
         .fixedLines = true,
         .rowNames = std::vector<const char*>{},
         .tests = {{2, 1, Bad::Zero, 0, "SUBMOD should not be 0"}},
         .status = {"frmPANFORM", "lblFoundation"},
         .chain = {.enterColumn = 2,
                   .editColumn = 2,
                   .countColumn = 2,
                   .tests = {{2, "You don't have to enter this screen because NAS = 0"}},
                   .auxiliaryCols = 3,
                   .form = simpleTable}},
        {.kind = 221,
         .form = "frmspreadb",
         .caption = "Additional Subgrade Modulus for Data Set No.{set}",
         .rowHead = "Sequence",
         .columns = {{"NS", each<&Set::SUBGRADE, &Set::Modulus::NS>},
                     {"SUBMOD", each<&Set::SUBGRADE, &Set::Modulus::SUBMOD>, true}},
         .units = "Unit              pci",
         .unitsSI = "Unit              MN/m^3",
         .help = "table_221_nodes",
         .count = of<&Set::NAS>,
         .status = {"frmPANFORM", "lblFoundation"},
         .next = {"frmSpreada", 3, nullptr, 1}},
        {.kind = 223,
         .form = "frmSpreada",
         .caption = "Layered Foundation for Data Set No.{set}",
         .rowHead = "",
         .columns = {{"MAXIC", of<&Set::MAXIC>}, {"NL", of<&Set::NL>}},
         .help = "table_223",
         .fixedLines = true,
         .rowNames = std::vector<const char*>{},
         .tests = {{2, 2, Bad::Zero, 0, "NL should not be 0"},
                   {2, 2, Bad::Above, 6, "NL should not be greater than 6"}},
         .status = {"frmPANFORM", "lblFoundation"},
         .chain = {.enterColumn = 2,
                   .editColumn = 2,
                   .countColumn = 2,
                   .tests = {{2, "A nonzero entry is required"}},
                   .auxiliaryCols = 4,
                   .form = wideTable}},
        {.kind = 223,
         .form = "frmSpread2",
         .caption = "Properties of Layered Foundation for Data Set No.{set}",
         .rowHead = "Layer No.",
         .columns = {{"TH", each<&Set::FOUNDATION, &Set::FoundationLayer::TH>, true},
                     {"E", each<&Set::FOUNDATION, &Set::FoundationLayer::E>, true},
                     {"PRBF", each<&Set::FOUNDATION, &Set::FoundationLayer::PRBF>}},
         .units = "Unit      in.      psi",
         .unitsSI = "Unit      cm       kPa",
         .help = "table_223_layers",
         .crossesLast = true,
         .count = of<&Set::NL>,
         .status = {"frmPANFORM", "lblFoundation"},
         .next = {"frmSpreada", 3, nullptr, 1}},
        {.kind = 224,
         .form = "frmSpread1",
         .caption = "Joint Information for Data Set No.{set}",
         .rowHead = "Joint No.",
         .columns = {{"SPCON1", each<&Set::JOINT, &Set::Joint::SPCON1>, true},
                     {"SPCON2", each<&Set::JOINT, &Set::Joint::SPCON2>, true},
                     {"SCKV", each<&Set::JOINT, &Set::Joint::SCKV>, true},
                     {"BD", each<&Set::JOINT, &Set::Joint::BD>, true},
                     {"BS", each<&Set::JOINT, &Set::Joint::BS>, true},
                     {"WJ", each<&Set::JOINT, &Set::Joint::WJ>, true},
                     {"GDC", each<&Set::JOINT, &Set::Joint::GDC>, true},
                     {"NNAJ", each<&Set::JOINT, &Set::Joint::NNAJ>}},
         .units = "Unit      psi    in.-lb/in. pci   in.     in.      in.     in.",
         .unitsSI = "Unit     kN/cm^2 cm-kN/cm Mn/m^3  cm      cm       cm      cm",
         .help = "table_224",
         .doubleHint = "Double click anywhere on a line to get auxiliary form for NNAJ.",
         .count = of<&Set::NJOINT>,
         .status = {"frmPANFORM", "lblJoint"},
         .chain = {.enterColumn = 8,
                   .editColumn = 8,
                   .countColumn = 8,
                   .tests = {{8, "You don't have to enter this screen because NNAJ = 0"}},
                   .auxiliaryCols = 2,
                   .form = simpleTable},
         .moveLine = moveJoint,
         .clearLine = clearJoint},
        {.kind = 224,
         .form = "frmspreadb",
         .caption = "No. of Dowels for Joint No.{group} and Data Set No.{set}",
         .rowHead = "Node Sequence",
         .columns = {{"BARNO", BARNO}},
         .help = "table_224_dowels",
         .count = ofGroup<&Set::JOINT, &Set::Joint::NNAJ>,
         .next = {"frmSpread1", 9, of<&Set::NJOINT>}},
        {.kind = 225,
         .form = "frmspreadb",
         .caption = "Load Repetition for Period No.{period} and Data Set No.{set}",
         .rowHead = "Load Group No.",
         .columns = {{"TNLR", TNLR}},
         .help = "table_225",
         .count = of<&Set::NLG>,
         .status = {"frmPeriod", "lblPeriod{period}"}},
    };
    return tables;
}
