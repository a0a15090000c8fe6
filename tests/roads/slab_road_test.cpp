// From File/New to a saved slab deck, through real windows: each slab deck of the examples, and one with
// what none of them has.
#include "roads/road.h"
#include "slab/slab_deck.h"
#include "support/deck_texts.h"
#include "support/example_files.h"

namespace {

class SlabRoad : public Road, public ::testing::WithParamInterface<std::string> {
  protected:
    SlabRoad() {
        const std::string path = TOLMARK_SOURCE_DIR "/examples/" + GetParam().substr(0, 4) + ".DAT";
        EXPECT_EQ(readSlabDeck(path, *wanted_).sentence(), "");
        if (GetParam().ends_with("TwoLayers")) addLayerAndBars(wanted_->slab[1]);
    }
    /// What none of the examples has: two bonded layers, dowels node by node, and the defaults of SI units.
    static void addLayerAndBars(SlabSet& set) {
        set.NLAYER = 2;
        set.NUNIT = 1;
        set.CT = 9e-6;
        set.FMAX = 2.54;
        set.YMSB = 2e8;
        set.LAYER[1].PMR = 3450;
        set.NBOND = set.TC = 1;
        set.NWT = set.NTEMP = 1;
        set.LAYER[2] = set.LAYER[1];
        set.LAYER[2].T = 4;
        set.LAYER[2].GAMA = 140;
        set.LAYER[2].PMR = 0;
        set.JOINT[1].NNAJ = set.SLAB[1].NY;
        for (int node = 1; node <= set.SLAB[1].NY; ++node)
            set.JOINT[1].BARNO[node] = node > 1 && node < set.SLAB[1].NY ? 1 : 0;
    }

    /// Data set 2 begins as a copy of the first, whose slabs and lists it keeps.
    void enterSet(int n) {
        set_ = n;
        if (n > 1) {
            click("frmPANFORM", "optDataSet2");
            EXPECT_EQ(word("frmPANFORM", "Label2"), "Yes");
        }
        enterGeneral();
        if (s().TC == 1) enterCurling();
        if (n == 1) enterSlabs();
        if (s().UL == Variant(1)) enterAreas();
        if (s().CL == Variant(1)) enterRaft();
        enterFoundation();
        if (s().NPY > 1) {
            click("frmPANFORM", "mnuAdjust");
            fillTable("frmspreadb", columnOf(s().NPY, s().FSAF));
        }
        if (s().NJOINT > 0) enterJoints();
        if (n == 1) enterOptional();
        if (s().NDAMA != 0) enterDamage();
    }

    void enterGeneral() {
        click("frmPANFORM", "mnuGeneral");
        auto& title = front("frmGeneral").control<TextBox>("txtTitle");
        title.selectAll();
        QTest::keyClicks(&title, QString::fromStdString(s().TITLE));
        fill("frmGeneral", {{"txtNfound", s().NFOUND},
                            {"txtNdama", s().NDAMA},
                            {"txtNpy", s().NPY},
                            {"txtNlg", s().NLG},
                            {"txtNlayer", s().NLAYER},
                            {"txtNbond", s().NBOND},
                            {"txtNslab", s().NSLAB},
                            {"txtNjoint", s().NJOINT},
                            {"txtNnck", s().NNCK},
                            {"txtNprint", s().NPRINT},
                            {"txtNsx", s().NSX},
                            {"txtNsy", s().NSY},
                            {"txtMdpo", s().MDPO},
                            {"txtNunit", s().NUNIT},
                            {"TxtNat1", s().NAT1},
                            {"txtNat2", s().NAT2}});
        click("frmGeneral", s().UL == Variant(1) ? "optWUL" : "optNUL");
        click("frmGeneral", s().TC == 1 ? "optWTC" : "optNTC");
        click("frmGeneral", s().CL == Variant(1) ? "optWCL" : "optNCL");
        click("frmGeneral", "cmdOk");
    }

    void enterCurling() {
        click("frmPANFORM", "mnuCurling");
        fill("frmCurling", {{"txtNotCon", s().NOTCON},
                            {"txtNgap", s().NGAP},
                            {"txtInput", s().INPUT},
                            {"txtNtemp", s().NTEMP},
                            {"txtNwt", s().NWT},
                            {"txtNcycle", s().NCYCLE},
                            {"txtTemp", s().TEMP}});
        click("frmCurling", "cmdOk");
    }

    void enterSlabs() {
        const auto& SLAB = s().SLAB;
        click("frmPANFORM", "mnuSlab");
        click("frmSlabData", "mnuArrangement");
        fillTable("frmSpread2", linesOf(s().NSLAB, [&](int n) {
                      if (s().NSLAB == 1) return Line{SLAB[n].NX, SLAB[n].NY};
                      return Line{SLAB[n].NX,    SLAB[n].NY,    SLAB[n].JONO1,
                                  SLAB[n].JONO2, SLAB[n].JONO3, SLAB[n].JONO4};
                  }));
        click("frmSlabData", "mnuXcoordinate");
        fillBoard("frmSlabs", s().NSLAB, [&](int n) { return columnOf(SLAB[n].NX, SLAB[n].X); });
        click("frmSlabData", "mnuYcoordinate");
        fillBoard("frmSlabs", s().NSLAB, [&](int n) { return columnOf(SLAB[n].NY, SLAB[n].Y); });
        click("frmSlabData", "lblProperties");
        fillTable("frmSpread3",
                  linesOf(s().NLAYER,
                          [&](int n) {
                              const SlabSet::Layer& layer = s().LAYER[n];
                              Line line = {layer.T, layer.PR, layer.YM};
                              if (s().NWT == Variant(1)) line.push_back(layer.GAMA);
                              return line;
                          }),
                  "cmdOK");
        expectDone("frmSlabData", {"lblArrange", "lblXcoord", "lblYcoord", "lblProperties"});
        click("frmSlabData", "cmdOK");
    }

    void enterAreas() {
        click("frmPANFORM", "mnuUniform");
        for (int g = 1; g <= s().NLG; ++g) {
            enter("frmSpreada", cellsOf({s().NUDL[g]}));
            fillTable("frmSpread2", linesOf(s().NUDL[g], [&](int n) {
                          const SlabSet::Area& area = s().AREA[g][n];
                          return Line{area.LS, area.XL1, area.XL2, area.YL1, area.YL2, area.QQ};
                      }));
        }
        fillTable("frmSpreada", {});
    }

    void enterRaft() {
        click("frmPANFORM", "mnuRaft");
        enter("frmSpreada", cellsOf({s().NCNF}));
        fillTable("frmspreadb", linesOf(s().NCNF, [&](int n) {
                      return Line{s().FORCE[n].NN, s().FORCE[n].FF};
                  }));
        enter("frmSpreada", cellsOf({s().NNMX}));
        fillTable("frmspreadb", linesOf(s().NNMX, [&](int n) {
                      return Line{s().MOMENTX[n].NNX, s().MOMENTX[n].FMX};
                  }));
        enter("frmSpreada", cellsOf({s().NNMY}));
        fillTable("frmspreadb", linesOf(s().NNMY, [&](int n) {
                      return Line{s().MOMENTY[n].NNY, s().MOMENTY[n].FMY};
                  }));
        fillTable("frmSpreada", {});
    }

    void enterFoundation() {
        click("frmPANFORM", "mnuFoundation");
        if (s().NFOUND == 1) {
            fill("frmSolid", {{"txtYms", s().YMS}, {"txtPrs", s().PRS}});
            click("frmSolid", "cmdOk");
        } else if (s().NFOUND == 0) {
            fillTable("frmSpreada", cellsOf({s().SUBMOD, s().NAS}));
        } else {
            enter("frmSpreada", cellsOf({s().MAXIC, s().NL}));
            fillTable("frmSpread2", linesOf(s().NL.number(), [&](int n) {
                          const auto& [TH, E, PRBF] = s().FOUNDATION[n];
                          return s().NL == Variant(n) ? Line{E, PRBF} : Line{TH, E, PRBF};
                      }));
            fillTable("frmSpreada", {});
        }
    }

    void enterJoints() {
        click("frmPANFORM", "mnuJoint");
        for (int n = 1; n <= s().NJOINT; ++n) {
            const SlabSet::Joint& j = s().JOINT[n];
            enter("frmSpread1", cellsOf({j.SPCON1, j.SPCON2, j.SCKV, j.BD, j.BS, j.WJ, j.GDC, j.NNAJ}));
            if (j.NNAJ != Variant(0)) fillTable("frmspreadb", {});  // the arrangement has set the bars
        }
        fillTable("frmSpread1", {});
    }

    void enterOptional() {
        click("frmPANFORM", "mnuOptional");
        for (const auto& [menu, nodes] : {std::pair("mnuNprint", columnOf(s().NPRINT, s().NP)),
                                          {"mnuNsx", columnOf(s().NSX, s().NODSX)},
                                          {"mnuNsy", columnOf(s().NSY, s().NODSY)}}) {
            if (nodes.empty()) continue;
            click("frmOptional", menu);
            fillTable("frmspreadb", menu == std::string("mnuNprint") ? Cells{} : nodes);  // set already
        }
        if (s().NJOINT > 0) {
            click("frmOptional", "mnuDowel");
            fill("frmDowel", {{"txtPrsb", s().PRSB}});
            click("frmDowel", "cmdOk");
        }
        click("frmOptional", "cmdOk");
        expectDone("frmPANFORM", {"lblOptional"});
    }

    void enterDamage() {
        click("frmPANFORM", "mnuDamage");
        click("frmDamage", "mnuFatigue");
        fillTable("frmSpread3",
                  linesOf(s().NLAYER,
                          [&](int n) {
                              return Line{s().LAYER[n].PMR, s().LAYER[n].F1, s().LAYER[n].F2};
                          }),
                  "cmdOK");
        click("frmDamage", "mnuVolume");
        fillBoard("frmPeriod", s().NPY, [&](int period) { return columnOf(s().NLG, s().TNLR[period]); });
        click("frmDamage", "cmdOk");
    }

    const SlabSet& s() const { return wanted_->slab[set_]; }
    const std::unique_ptr<Store> wanted_ = std::make_unique<Store>();
    int set_ = 1;
};

TEST_P(SlabRoad, FromFileNewToASavedDeck) {
    name("slab");
    click("frmTOLMARK", "cmdPanform");
    choose("frmPANFORM", "mnuNew");
    for (int n = 1; n <= wanted_->SlabNPROB.number(); ++n) enterSet(n);
    expectDone("frmPANFORM", {"lblGeneral", "lblSlab", "lblFoundation"});
    EXPECT_EQ(word("frmPANFORM", "lblUniform"), s().UL == Variant(1) ? "done" : "default");
    EXPECT_EQ(word("frmPANFORM", "lblRaft"), s().CL == Variant(1) ? "done" : "default");
    saveAs("frmPANFORM", "slab.DAT");
    const bool isExample = GetParam().size() == 4;
    EXPECT_EQ(directory.read("slab.DAT"), isExample ? example(GetParam() + ".DAT") : slabDeckOf(*wanted_));
}

INSTANTIATE_TEST_SUITE_P(Decks, SlabRoad,
                         ::testing::Values("PAN1", "PAN2", "PAN3", "PAN4", "PAN5", "PAN6", "PAN3TwoLayers"),
                         [](const auto& deck) { return deck.param; });

}  // namespace
