// From an empty machine to a plotted pavement: each layered deck of the examples is typed into its screens,
// saved, solved and plotted. On the way each save that comes too early is refused by name.
#include "layered/layered_deck.h"
#include "layered/layered_rules.h"
#include "roads/road.h"
#include "support/deck_texts.h"
#include "support/example_files.h"
#include "support/text_change.h"

namespace {

struct Journey {
    const char* deck;
    Cells told;  ///< what the plot pages tell in this order, among others
};

void PrintTo(const Journey& journey, std::ostream* out) { *out << journey.deck; }

class LayeredRoad : public Road, public ::testing::WithParamInterface<Journey> {
  protected:
    LayeredRoad() {
        const std::string deck = GetParam().deck;
        EXPECT_EQ(readLayeredDeck(TOLMARK_SOURCE_DIR "/examples/" + deck + ".DAT", *wanted_).sentence(), "");
        if (deck == "BED6SI") addOwnValues(wanted_->layered[1]);
    }
    /// Where every example has the same.
    static void addOwnValues(LayeredSet& set) {
        set.RCNOL = 1;
        set.XCNOL = 2;
        set.SLD = 3;
        set.NBOND = 0;
        set.INTF[2] = 1;
    }

    void saveForgets(const std::string& what) {
        dialogs.expectBox("You forgot to enter the " + what + " menu.");
        click("frmBEDFORM", "cmdSave");
        EXPECT_TRUE(dialogs.finished()) << what;
    }

    void enterGeneral() {
        click("frmBEDFORM", "mnuGeneral");
        type("frmGeneral1", "txtTitle1", s.TITLE);
        fill("frmGeneral1", {{"txtMatl", s.MATL},
                             {"txtNdama", s.NDAMA},
                             {"txtNpy", s.NPY},
                             {"txtNlg", s.NLG},
                             {"txtDel", s.DEL},
                             {"txtNl", s.NL},
                             {"txtNz", s.NZ},
                             {"txtIcl", s.ICL},
                             {"txtNstd", s.NSTD},
                             {"txtNbond", s.NBOND},
                             {"txtNlbt", s.NLBT},
                             {"txtNltc", s.NLTC},
                             {"txtNunit", s.NUNIT}});
        click("frmGeneral1", "cmdOk");
    }

    void enterLayers() {
        if (s.NDAMA == 0) {
            click("frmBEDFORM", "mnuZcoord");
            fillTable("frmspreadb", columnOf(s.NZ, s.ZC));
        }
        saveForgets("layer thickness by clicking the Layer");
        click("frmBEDFORM", "mnuLayer");
        fillTable("frmSpread2", linesOf(s.NL, [&](int n) {
                      Line line = {s.LAYER[n].PR};
                      if (Variant(n) != Variant(s.NL)) line.insert(line.begin(), s.LAYER[n].TH);
                      if (isNonlinear(s)) line.push_back(s.LAYER[n].GAM);
                      return line;
                  }));
        if (s.NBOND == 0) {
            click("frmBEDFORM", "mnuInterface");
            fillTable("frmspreadb", columnOf(s.NL - 1, s.INTF));
        }
        if (!isViscous(s)) saveForgets("elastic modulus by clicking the moduli");
        click("frmBEDFORM", "mnuModuli");
        fillBoard("frmPeriod", s.NPY, [&](int period) { return columnOf(s.NL, s.EMOD[period]); });
    }

    void enterLoads() {
        saveForgets("load by clicking the Load");
        click("frmBEDFORM", "mnuLoad");
        for (int g = 1; g <= static_cast<int>(s.NLG); ++g) {
            const LayeredSet::Load& load = s.LOADL[g];
            enter("frmSpread1", cellsOf({load.LOAD, load.CR, load.CP, load.YW, load.XW, load.NR}));
            fillTable("frmspreadb", linesOf(load.NR.number(), [&](int n) {
                          if (load.LOAD == Variant(0)) return Line{s.RC[g][n]};
                          return Line{s.PT[g][n].XPT, s.PT[g][n].YPT};
                      }));
        }
        fillTable("frmSpread1", {});
    }

    void enterNonlinear() {
        saveForgets("Nonseasonal Information by clicking the Nonlinear\\Nonseasonal");
        click("frmBEDFORM", "mnuNonlinear");
        click("frmNonlin", "mnuGeneral");
        fill("frmGenNon", {{"txtNolay", s.NOLAY},
                           {"txtItenol", s.ITENOL},
                           {"txtRcnol", s.RCNOL},
                           {"txtXcnol", s.XCNOL},
                           {"txtYcnol", s.YCNOL},
                           {"txtSld", s.SLD},
                           {"txtDelnol", s.DELNOL}});
        click("frmGenNon", "cmdOK");
        click("frmNonlin", "mnuRelaxation");
        fillTable("frmspreadb", columnOf(s.NPY, s.RELAX));
        click("frmNonlin", "mnuNonseasonal");
        for (int n = 1; n <= s.NOLAY.number(); ++n) enterNonseasonal(n);
        fillTable("frmSpread1", {});
        saveForgets("seasonal input parameters by clicking the Nonlinear\\Seasonal\\Layer No.");
        click("frmNonlin", "mnuSeasonal");
        for (int n = 1; n <= s.NOLAY.number(); ++n) enterSeasonal(n);
        click("frmLayer", "cmdOk");
        expectDone("frmNonlin", {"lblGeneral", "lblRelaxation", "lblNonseasonal", "lblSeasonal"});
        click("frmNonlin", "cmdOK");
    }

    void enterNonseasonal(int n) {
        const auto& [LAYNO, ZCNOL, NCLAY] = s.NOLLAY[n];
        enter("frmSpread1", {LAYNO.text(), ZCNOL.text(), NCLAY.text()});
        const auto& [K2, K3, K4, K0] = s.KCLAY[n];
        if (isClay(n))
            fill("frmClay", {{"txtK2", K2}, {"txtK3", K3}, {"txtK4", K4}, {"txtK0", K0}});
        else
            fill("frmGranular", {{"txtK2", s.KGRAN[n].K2}, {"txtK0", s.KGRAN[n].K0}});
        click(isClay(n) ? "frmClay" : "frmGranular", "cmdOK");
    }

    /// A clay's type brings the values of the English decks.
    void enterSeasonal(int n) {
        const auto& K = s.KPER[n];
        click("frmLayer", "cmdLayer" + std::to_string(n));
        if (isClay(n)) {
            fillTable("frmspreadb", linesOf(s.NPY, [&](int p) {
                          const Double K1 = K[p][3].number();
                          return Line{K1 > 10000 ? 4 : K1 > 5000 ? 3 : 2};
                      }));
            fillTable("frmSpread2", s.NUNIT == 0 ? Cells{} : linesOf(s.NPY, [&](int p) {
                          return Line{K[p][1], K[p][2], K[p][3]};
                      }));
        } else {
            fillTable("frmspreadb", linesOf(s.NPY, [&](int p) { return Line{K[p][1], K[p][2]}; }));
        }
        EXPECT_EQ(word("frmLayer", "lblLayer" + std::to_string(n)), "done");
    }

    void enterViscoelastic() {
        saveForgets("Viscoelastic Layer Information by clicking the Viscoelastic\\layer");
        click("frmBEDFORM", "mnuViscoelastic");
        click("frmVisco", "mnuGeneral");
        fill("frmGenvis", {{"txtDur", s.DUR}, {"txtNvl", s.NVL}, {"txtNtyme", s.NTYME}});
        click("frmGenvis", "cmdOK");
        if (word("frmVisco", "lblDuration") == "input") {
            click("frmVisco", "mnuDuration");
            fillTable("frmspreadb", columnOf(s.NTYME.number(), s.TYME));
            expectDone("frmVisco", {"lblDuration"});
        }
        click("frmVisco", "mnuLayer");
        fillTable("frmSpread2", linesOf(s.NVL.number(), [&](int n) {
                      return Line{s.VISLAY[n].LNV, s.VISLAY[n].BETA, s.VISLAY[n].TEMPREF};
                  }));
        saveForgets("creep compliances by clicking the Viscoelastic\\Creep\\Layer No.");
        click("frmVisco", "mnuCreep");
        fillBoard("frmLayer", s.NVL.number(),
                  [&](int layer) { return columnOf(s.NTYME.number(), s.CREEP[layer]); });
        click("frmVisco", "mnuTemperature");
        fillBoard("frmPeriod", s.NPY, [&](int period) { return columnOf(s.NVL.number(), s.TEMP[period]); });
        expectDone("frmVisco", {"lblGeneral", "lblLayer", "lblCreep", "lbltemperature"});
        click("frmVisco", "cmdOK");
    }

    void enterDamage() {
        click("frmBEDFORM", "mnuDamage");
        click("frmDamage1", "mnuBottom");
        fillTable("frmSpread2", linesOf(s.NLBT, [&](int n) {
                      return Line{s.DAMBT[n].LNBT, s.DAMBT[n].FT1, s.DAMBT[n].FT2, s.DAMBT[n].FT3};
                  }));
        click("frmDamage1", "mnuTop");
        fillTable("frmSpread2", linesOf(s.NLTC, [&](int n) {
                      return Line{s.DAMTC[n].LNTC, s.DAMTC[n].FT4, s.DAMTC[n].FT5};
                  }));
        click("frmDamage1", "mnuVolume");
        fillBoard("frmPeriod", s.NPY, [&](int period) { return columnOf(s.NLG, s.TNLR[period]); });
        expectDone("frmDamage1", {"lblBottom", "lblTop", "lblVolume"});
        click("frmDamage1", "cmdOK");
    }

    bool isClay(int n) const { return s.NOLLAY[n].NCLAY == Variant(1); }

    const std::unique_ptr<Store> wanted_ = std::make_unique<Store>();
    const LayeredSet& s = wanted_->layered[1];
};

TEST_P(LayeredRoad, FromAnEmptyMachineToThePlottedPages) {
    name("road");
    click("frmTOLMARK", "cmdBedform");
    choose("frmBEDFORM", "mnuNew");
    enterGeneral();
    enterLayers();
    enterLoads();
    expectDone("frmBEDFORM", {"lblGeneral", "lblLayer", "lblModuli", "lblLoad1"});
    if (isNonlinear(s)) enterNonlinear();
    if (isViscous(s)) enterViscoelastic();
    if (s.NDAMA != 0) enterDamage();
    EXPECT_EQ(word("frmBEDFORM", "lblZcoord"), s.NDAMA == 0 ? "done" : "default");
    EXPECT_EQ(word("frmBEDFORM", "lblNonlinear"), isNonlinear(s) ? "done" : "default");
    EXPECT_EQ(word("frmBEDFORM", "lblViscoelastic"), isViscous(s) ? "done" : "default");
    EXPECT_EQ(word("frmBEDFORM", "lblDamage"), s.NDAMA != 0 ? "done" : "default");
    saveAs("frmBEDFORM", "road.DAT");

    Store saved;  // numbers stand as they were typed: once read and written they stand as in the example
    readLayeredDeck(directory.path() + "road.DAT", saved);
    const std::string deck = GetParam().deck;
    EXPECT_EQ(layeredDeckOf(saved), deck == "BED6SI" ? layeredDeckOf(*wanted_) : example(deck + ".DAT"));

    EXPECT_NE(solve("road").find(s.TITLE), std::string::npos);
    const auto pages = plot("road");
    EXPECT_EQ(static_cast<Single>(pages.size()), s.NPY * s.NLG);
    std::string text;
    for (const std::string& page : pages) text += page;
    std::size_t at = 0;
    for (const std::string& part : GetParam().told) {
        at = text.find(part, at);
        ASSERT_NE(at, std::string::npos) << part << "\n" << text;
    }
}

const Journey journeys[] = {
    {"BED1", {"E = 30000 psi  PR = .3", "SUBGRADE", "Linear elastic three-layer", "Tandem Spacing = 54 in."}},
    {"BED2",
     {"K1 = 6000 psi  K2 = .5  PR = .35   PHI = 0  K0 = .6  GAM = 135 pcf",
      "K1 = 7680 psi  PR = .45   K0 = .8   GAM = 120 pcf",
      "EMIN = 4716 psi  EMAX = 12340 psi  K2 = 6.2 psi  K3 = 1110  K4 = 178", "Stress points for"}},
    {"BED3",
     {"PR = .4  BETA = .113 per F  TEMPREF = 70 F  TEMP = 70 F   CREEP are:",
      "1.760E-06 4.000E-06 1.150E-05 3.200E-05 6.400E-05 per psi", "E = 9000 psi  PR = .45"}},
    {"BED4SI",
     {"TNLR = 32000", "Fatigue C. = .02395", "TEMP = 16.667 C", "E = 206800 kPa", "Period No. 4",
      "TNLR = 27000", "Design Life =  1.28 yrs", "E = 110300 kPa", "Contact Radius = 10.922 cm"}},
    {"BED5",
     {"TNLR = 90000", "Contact Radius = 5.2 in.", "Load Group No. 2   TNLR = 22000", "Fatigue C. = .0094",
      "Tandem Spacing = 50 in.", "TNLR = 3500", "D.R.(Fatigue C.) =  .056581", "D.R.(P. Deform.) =  .149477",
      "Design Life =  6.69 yrs"}},
    {"BED6",
     {"TEMPREF = 70 F  TEMP = 52 F  CREEP are:", "4.700E-05 6.400E-05 per psi  GAM = 146  pcf",
      "EMIN = 7605 psi  EMAX = 17000 psi", "Period No. 2  Load Group No. 2", "TEMP = 88 F",
      "EMIN = 1827 psi  EMAX = 7682 psi"}},
    {"BED6SI", {"EMIN = 52430 kPa  EMAX = 117200 kPa  K2 = 42.747 kPa", "PHI = 45", "EMIN = 12600 kPa"}}};

INSTANTIATE_TEST_SUITE_P(Decks, LayeredRoad, ::testing::ValuesIn(journeys),
                         [](const auto& journey) { return journey.param.deck; });

TEST_F(Road, AnOldLayeredDeckIsOpenedChangedAndSavedUnderItsName) {
    directory.write("Tandem.dat", example("BED1.DAT"));
    name("Tandem.dat");
    click("frmTOLMARK", "cmdBedform");
    dialogs.expectFile(FileAnswer{directory.path() + "Tandem.dat", 1});
    choose("frmBEDFORM", "mnuOpen");
    click("frmBEDFORM", "mnuModuli");
    click("frmPeriod", "cmdPeriod1");
    fillTable("frmspreadb", {"5E5"});
    click("frmPeriod", "cmdOk");
    exitAndSave("frmBEDFORM", "Tandem.dat");
    EXPECT_EQ(directory.read("Tandem.dat"),
              replaced(example("BED1.DAT"), " 400000   30000   8000   (11)", "5E5  30000  8000  (11)"));
}

TEST_F(Road, ANonlinearLayerIsLeftForItsConstantsAndComesBackOnTheNextLine) {
    click("frmTOLMARK", "cmdBedform");
    choose("frmBEDFORM", "mnuNew");
    LayeredSet& set = store.layered[1];
    set.MATL = 2;
    set.NOLAY = 2;
    click("frmBEDFORM", "mnuNonlinear");
    click("frmNonlin", "mnuNonseasonal");
    dialogs.expectBox("ZCNOL cannot be 0");
    enter("frmSpread1", {"2", "0", "0"});
    EXPECT_TRUE(dialogs.finished());

    // OK in the last column leads away first, and a form closed by its frame leads nowhere.
    auto& grid = front("frmSpread1").control<FlexGrid>("GridSpreadsheet");
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, grid.cellRect(1, 2).center());
    enter("frmSpread1", {"8"});
    click("frmSpread1", "BtnRun");
    EXPECT_EQ(screens.loaded("frmSpread1"), nullptr);
    type("frmGranular", "txtK0", "9");
    front("frmGranular").close();
    EXPECT_EQ(screens.loaded("frmSpread1"), nullptr);
    EXPECT_EQ(word("frmNonlin", "lblNonseasonal"), "input");
    EXPECT_EQ(set.NOLLAY[1].ZCNOL, Variant(8));
    EXPECT_EQ(set.KGRAN[1].K0, Variant(.6));

    click("frmNonlin", "mnuNonseasonal");
    front("frmSpread1");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    type("frmGranular", "txtK0", ".5");
    click("frmGranular", "cmdOK");
    enter("frmSpread1", {"3", "13", "1"});
    type("frmClay", "txtK3", "1200");
    click("frmClay", "cmdOK");

    // A line goes in above the first one and out again: the constants go with their lines.
    front("frmSpread1");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Insert, Qt::ControlModifier);
    EXPECT_EQ(set.KGRAN[2].K0, Variant(.5));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Delete, Qt::ControlModifier);
    click("frmSpread1", "BtnRun");
    EXPECT_EQ(word("frmNonlin", "lblNonseasonal"), "done");
    EXPECT_EQ(set.NOLAY, Variant(2));
    EXPECT_EQ(set.NOLLAY[2].LAYNO, Variant(3));
    EXPECT_EQ(set.KGRAN[1].K0, Variant(.5));
    EXPECT_EQ(set.KCLAY[2].K3, Variant(1200));
}

}  // namespace
