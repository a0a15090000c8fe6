// Journeys through every form of nonlinear, viscoelastic and damage data, from
// File/New to the saved deck. On the way each save that comes too early is refused
// by name.
#include "roads/road.h"

namespace {

using Cells = std::vector<std::string>;
using Boxes = std::vector<std::pair<std::string, std::string>>;

struct LoadGroup {
    Cells line, points;
};

struct NonlinearLayer {
    Cells line;       ///< of the table of nonlinear layers
    Boxes constants;  ///< of the form that the line leads to
    Cells clayTypes;  ///< by period; none for granular materials
    Cells seasonal;   ///< typed over what is there
};

struct Nonlinear {
    Boxes general;
    Cells relaxation = {};
    std::vector<NonlinearLayer> layers;
};

struct Viscoelastic {
    Boxes general;
    Cells times;
    std::string wordOfTimes;  ///< under Time after General
    Cells layers;
    std::string wordOfTemperatures;  ///< under Temperature after Layer
    std::vector<Cells> creep;        ///< by layer
    std::vector<Cells> temperatures = {};
};

struct Damage {
    Cells bottom, top;
    std::vector<Cells> repetitions;  ///< by period
};

struct Journey {
    std::string name;
    Boxes general;
    Cells depths = {}, layers;
    std::vector<Cells> moduli;  ///< by period
    std::vector<LoadGroup> loads;
    std::optional<Nonlinear> nonlinear = {};
    std::optional<Viscoelastic> viscoelastic = {};
    std::optional<Damage> damage = {};
    std::string deck;  ///< with plain line ends
};

void PrintTo(const Journey& road, std::ostream* out) { *out << road.name; }

std::string withPlainLineEnds(const std::string& text) {
    return QString::fromStdString(text).replace("\r\n", "\n").toStdString();
}

class MaterialsRoad : public Road, public ::testing::WithParamInterface<Journey> {
  protected:
    void fill(const std::string& form, const Boxes& boxes) {
        for (const auto& [box, text] : boxes) type(form, box, text);
    }
    void fillTable(const std::string& form, const Cells& cells) {
        enter(form, cells);
        picture(form, GetParam().name + "_" + std::to_string(store.TableKind));
        click(form, "BtnRun");
    }
    /// A table behind each button of a board.
    void fillBoard(const std::string& thing, const std::vector<Cells>& tables) {
        const std::string board = "frm" + thing;
        for (std::size_t n = 1; n <= tables.size(); ++n) {
            click(board, "cmd" + thing + std::to_string(n));
            fillTable("frmspreadb", tables[n - 1]);
            EXPECT_EQ(word(board, "lbl" + thing + std::to_string(n)), "done");
        }
        click(board, "cmdOk");
    }
    void saveForgets(const std::string& what) {
        dialogs.expectBox("You forgot to enter the " + what + " menu.");
        click("frmBEDFORM", "cmdSave");
        EXPECT_TRUE(dialogs.finished()) << what;
    }

    void enterLayersAndLoads(const Journey& road) {
        click("frmBEDFORM", "mnuGeneral");
        fill("frmGeneral1", road.general);
        click("frmGeneral1", "cmdOk");
        if (!road.depths.empty()) {
            click("frmBEDFORM", "mnuZcoord");
            fillTable("frmspreadb", road.depths);
        }
        saveForgets("layer thickness by clicking the Layer");
        click("frmBEDFORM", "mnuLayer");
        fillTable("frmSpread2", road.layers);
        if (!road.viscoelastic) saveForgets("elastic modulus by clicking the moduli");
        click("frmBEDFORM", "mnuModuli");
        fillBoard("Period", road.moduli);
        saveForgets("load by clicking the Load");
        click("frmBEDFORM", "mnuLoad");
        for (const LoadGroup& load : road.loads) {
            enter("frmSpread1", load.line);
            fillTable("frmspreadb", load.points);
        }
        click("frmSpread1", "BtnRun");
    }

    void enterNonlinear(const Nonlinear& data) {
        saveForgets("Nonseasonal Information by clicking the Nonlinear\\Nonseasonal");
        click("frmBEDFORM", "mnuNonlinear");
        click("frmNonlin", "mnuGeneral");
        fill("frmGenNon", data.general);
        click("frmGenNon", "cmdOK");
        if (!data.relaxation.empty()) {
            click("frmNonlin", "mnuRelaxation");
            fillTable("frmspreadb", data.relaxation);
            EXPECT_EQ(word("frmNonlin", "lblRelaxation"), "done");
        }
        click("frmNonlin", "mnuNonseasonal");
        for (const NonlinearLayer& layer : data.layers) {
            enter("frmSpread1", layer.line);
            const std::string form = layer.line[2] == "0" ? "frmGranular" : "frmClay";
            fill(form, layer.constants);
            click(form, "cmdOK");
        }
        picture("frmSpread1", GetParam().name + "_111");
        click("frmSpread1", "BtnRun");
        EXPECT_EQ(word("frmNonlin", "lblNonseasonal"), "done");

        saveForgets("seasonal input parameters by clicking the Nonlinear\\Seasonal\\Layer No.");
        click("frmNonlin", "mnuSeasonal");
        for (std::size_t n = 1; n <= data.layers.size(); ++n) {
            const NonlinearLayer& layer = data.layers[n - 1];
            click("frmLayer", "cmdLayer" + std::to_string(n));
            if (layer.clayTypes.empty()) {
                fillTable("frmspreadb", layer.seasonal);
            } else {
                fillTable("frmspreadb", layer.clayTypes);
                fillTable("frmSpread2", layer.seasonal);
            }
            EXPECT_EQ(word("frmLayer", "lblLayer" + std::to_string(n)), "done");
        }
        click("frmLayer", "cmdOk");
        EXPECT_EQ(word("frmNonlin", "lblSeasonal"), "done");
        click("frmNonlin", "cmdOK");
        EXPECT_EQ(word("frmBEDFORM", "lblNonlinear"), "done");
    }

    void enterViscoelastic(const Viscoelastic& data) {
        saveForgets("Viscoelastic Layer Information by clicking the Viscoelastic\\layer");
        click("frmBEDFORM", "mnuViscoelastic");
        click("frmVisco", "mnuGeneral");
        fill("frmGenvis", data.general);
        click("frmGenvis", "cmdOK");
        EXPECT_EQ(word("frmVisco", "lblDuration"), data.wordOfTimes);
        if (!data.times.empty()) {
            click("frmVisco", "mnuDuration");
            fillTable("frmspreadb", data.times);
            EXPECT_EQ(word("frmVisco", "lblDuration"), "done");
        }
        click("frmVisco", "mnuLayer");
        fillTable("frmSpread2", data.layers);
        EXPECT_EQ(word("frmVisco", "lbltemperature"), data.wordOfTemperatures);
        saveForgets("creep compliances by clicking the Viscoelastic\\Creep\\Layer No.");
        click("frmVisco", "mnuCreep");
        fillBoard("Layer", data.creep);
        EXPECT_EQ(word("frmVisco", "lblCreep"), "done");
        if (!data.temperatures.empty()) {
            click("frmVisco", "mnuTemperature");
            fillBoard("Period", data.temperatures);
            EXPECT_EQ(word("frmVisco", "lbltemperature"), "done");
        }
        picture("frmVisco", GetParam().name + "_visco");
        click("frmVisco", "cmdOK");
        EXPECT_EQ(word("frmBEDFORM", "lblViscoelastic"), "done");
    }

    void enterDamage(const Damage& data) {
        click("frmBEDFORM", "mnuDamage");
        click("frmDamage1", "mnuBottom");
        fillTable("frmSpread2", data.bottom);
        click("frmDamage1", "mnuTop");
        fillTable("frmSpread2", data.top);
        click("frmDamage1", "mnuVolume");
        fillBoard("Period", data.repetitions);
        for (const char* label : {"lblBottom", "lblTop", "lblVolume"})
            EXPECT_EQ(word("frmDamage1", label), "done");
        click("frmDamage1", "cmdOK");
        EXPECT_EQ(word("frmBEDFORM", "lblDamage"), "done");
    }
};

TEST_P(MaterialsRoad, FromAnEmptyMachineToASavedDeck) {
    const Journey& road = GetParam();
    front("frmTOLMARK").control<ComboBox>("cmbDataPath").setTextValue(directory.path());
    click("frmTOLMARK", "cmdBedform");
    choose("frmBEDFORM", "mnuNew");
    enterLayersAndLoads(road);
    if (road.nonlinear) enterNonlinear(*road.nonlinear);
    if (road.viscoelastic) enterViscoelastic(*road.viscoelastic);
    if (road.damage) enterDamage(*road.damage);

    dialogs.expectFile(FileAnswer{directory.path() + road.name + ".DAT", 1});
    dialogs.expectBox("File with a filename of " + road.name + ".DAT has been saved");
    click("frmBEDFORM", "cmdSaveAs");
    click("frmBEDFORM", "cmdExit");
    EXPECT_TRUE(dialogs.finished());
    EXPECT_EQ(withPlainLineEnds(directory.read(road.name + ".DAT")), road.deck);
}

/// A granular base on a soft clay.
const Journey nonlinear = {
    .name = "nonlinear",
    .general = {{"txtTitle1", "Granular base on soft clay"}, {"txtMatl", "2"}, {"txtNz", "2"}},
    .depths = {"0", "4"},
    .layers = {"4", ".35", "145", "8", ".3", "135", ".45", "125"},
    .moduli = {{"500000", "20000", "3020"}},
    .loads = {{{"0", "4.5", "100", "0", "0", "1"}, {"0"}}},
    .nonlinear = Nonlinear{.general = {{"txtNolay", "2"}},
                           .relaxation = {".25"},
                           .layers = {{{"2", "8", "0"}, {{"txtK2", ".45"}}, {}, {"0", "5000"}},
                                      {{"3", "13", "1"}, {{"txtK0", ".7"}}, {"2"}, {}}}},
    .deck = R"( 1  (1) NPROB
Granular base on soft clay
 2  0  1  1  (3) MATL NDAMA NPY NLG
 .001  (4) DEL
 3  2  80  9  0  (5) NL NZ ICL NSTD NUNIT
4 8  (6) TH
.35 .3 .45  (7) PR
0 4  (8) ZC
 1  (9) NBOND
500000 20000 3020  (11) E
 0   (13) LOAD
 4.5   100   (14) CR CP
 1   (16) NR
0  (17) RC
 2  15  (25) NOLAY ITENOL
 2   0   3   1   (26) LAYNO NCLAY
 8   13   (27) ZCNOL
 0  0  0  0  .01  (28) RCNOL XCNOL YCNOL SLD DELNOL
 .25   (29) RELAX
145 135 125  (30) GAM
 .45  .6  (31) K2 K0
 6.2  1110  178  .7  (31) K2 K3 K4 K0
0 5000  (33) PHI K1
 1827  7682  3020  (33) EMIN EMAX K1
)"};

/// Creep under a standing wheel, in SI units.
const Journey viscoelastic = {.name = "viscoelastic",
                              .general = {{"txtTitle1", "Asphalt under a standing wheel"},
                                          {"txtMatl", "3"},
                                          {"txtNl", "2"},
                                          {"txtNz", "1"},
                                          {"txtNunit", "1"}},
                              .depths = {"0"},
                              .layers = {"20", ".4", ".45"},
                              .moduli = {{"0", "70000"}},
                              .loads = {{{"0", "15", "700", "0", "0", "2"}, {"0", "15"}}},
                              .viscoelastic = Viscoelastic{.general = {{"txtDur", "0"}, {"txtNtyme", "3"}},
                                                           .times = {"1", "10", "100"},
                                                           .wordOfTimes = "input",
                                                           .layers = {"1"},
                                                           .wordOfTemperatures = "default",
                                                           .creep = {{"1E-6", "2.5E-6", "4E-6"}}},
                              .deck = R"( 1  (1) NPROB
Asphalt under a standing wheel
 3  0  1  1  (3) MATL NDAMA NPY NLG
 .001  (4) DEL
 2  1  80  9  1  (5) NL NZ ICL NSTD NUNIT
20  (6) TH
.4 .45  (7) PR
0  (8) ZC
 1  (9) NBOND
0 70000  (11) E
 0   (13) LOAD
 15   700   (14) CR CP
 2   (16) NR
0 15  (17) RC
 0  (36) DUR
 1 1  (37) NVL LNV
 3  (38) NTYME
1 10 100  (39) TYME
 .2034  21.1  (41) BETA TEMPREF
 .000001   .0000025   .000004   (42) CREEP
 21.1   (44) TEMP
)"};

/// A moving wheel in two seasons on viscoelastic asphalt and a clay whose moduli depend on the season.
const Journey combined = {
    .name = "combined",
    .general = {{"txtTitle1", "Two seasons"}, {"txtMatl", "4"}, {"txtNpy", "2"}, {"txtNz", "2"}},
    .depths = {"6", "14.0001"},
    .layers = {"6", ".35", "145", "8", ".3", "135", ".45", "125"},
    .moduli = {{"0", "30000", "7680"}, {"0", "30000", "3020"}},
    .loads = {{{"1", "4.2", "90", "13.5", "0", "2"}, {"0", "0", "0", "6.75"}}},
    .nonlinear = Nonlinear{.general = {{"txtYcnol", "6.75"}, {"txtSld", "0"}},
                           .layers = {{{"3", "15", "1"}, {}, {"3", "2"}, {"5000"}}}},
    .viscoelastic = Viscoelastic{.general = {},
                                 .times = {},
                                 .wordOfTimes = "default",
                                 .layers = {"1", ".113", "68"},
                                 .wordOfTemperatures = "input",
                                 .creep = {{"5E-7", "6E-7", "8E-7", "1.1E-6", "1.6E-6", "2.3E-6", "3.4E-6",
                                            "4.8E-6", "6.5E-6", "8E-6", "9E-6"}},
                                 .temperatures = {{"50"}, {"85.5"}}},
    .deck = R"( 1  (1) NPROB
Two seasons
 4  0  2  1  (3) MATL NDAMA NPY NLG
 .001  (4) DEL
 3  2  80  9  0  (5) NL NZ ICL NSTD NUNIT
6 8  (6) TH
.35 .3 .45  (7) PR
6 14.0001  (8) ZC
 1  (9) NBOND
0 30000 7680  (11) E
0 30000 3020  (11) E
 1   (13) LOAD
 4.2   90   (14) CR CP
 2   (19) NPT
 0   13.5  0 0 0 6.75  (20) XW YW XPT
 1  15  (25) NOLAY ITENOL
 3   1   (26) LAYNO NCLAY
 15   (27) ZCNOL
 0  0  6.75  0  .01  (28) RCNOL XCNOL YCNOL SLD DELNOL
 .5   .5   (29) RELAX
145 135 125  (30) GAM
 6.2  1110  178  .8  (31) K2 K3 K4 K0
5000  12342  7680  (33) EMIN EMAX K1
 1827  7682  3020  (33) EMIN EMAX K1
 .1  (36) DUR
 1 1  (37) NVL LNV
 11  (38) NTYME
 .001   .003   .01   .03   .1   .3   1   3   10   30   100   (39) TYME
.113 68  (41) BETA TEMPREF
 .0000005   .0000006   .0000008   .0000011   .0000016   .0000023   .0000034   .0000048   .0000065   .000008   .000009   (42) CREEP
50  (44) TEMP
85.5  (44) TEMP
)"};

/// Duals and tandem axles in two periods, with damage.
const Journey damage = {
    .name = "damage",
    .general = {{"txtTitle1", "Damage by duals and tandems"},
                {"txtNdama", "1"},
                {"txtNpy", "2"},
                {"txtNlg", "2"},
                {"txtNunit", "1"}},
    .layers = {"15", ".35", "20", ".3", ".45"},
    .moduli = {{"3000000", "200000", "60000"}, {"1500000", "150000", "40000"}},
    .loads = {{{"1", "11", "700", "34", "0", "2"}, {"0", "0", "0", "17"}},
              {{"2", "11", "700", "34", "122", "2"}, {"0", "0", "0", "17"}}},
    .damage = Damage{.bottom = {"1"}, .top = {"3"}, .repetitions = {{"10000", "5000"}, {"8000", "1E4"}}},
    .deck = R"( 1  (1) NPROB
Damage by duals and tandems
 1  1  2  2  (3) MATL NDAMA NPY NLG
 .001  (4) DEL
 3  0  80  9  1  (5) NL NZ ICL NSTD NUNIT
15 20  (6) TH
.35 .3 .45  (7) PR
 1  (9) NBOND
3000000 200000 60000  (11) E
1500000 150000 40000  (11) E
 1   (13) LOAD
 11   700   (14) CR CP
 2   (19) NPT
 0   34  0 0 0 17  (20) XW YW XPT
 2   (13) LOAD
 11   700   (14) CR CP
 2   (19) NPT
 122   34  0 0 0 17  (20) XW YW XPT
 1  1  (46) NLBT NLTC
1  (47) LNBT
 3   (48) LNTC
 10000   5000   (49) TNLR
 8000   10000   (49) TNLR
 .414  3.291  .854  (50) FT1 FT2 FT3
 1.365E-09   4.477   (51) FT4 FT5
)"};

INSTANTIATE_TEST_SUITE_P(Decks, MaterialsRoad, ::testing::Values(nonlinear, viscoelastic, combined, damage),
                         [](const auto& journey) { return journey.param.name; });

}  // namespace
