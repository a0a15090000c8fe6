// From File/New to a saved slab deck, through real windows.
#include "roads/road.h"
#include "slab/slab_deck.h"

namespace {

using Texts = std::vector<std::string>;

/// Labels of the longer cards.
#define LABEL5 "(5) NX NY JONO1 JONO2 JONO3 JONO4|"
#define LABEL6 \
    "(6) NLAYER NNCK NOTCON NGAP NPRINT INPUT NBOND NTEMP NWT NCYCLE NAT1 NAT2 NSX NSY MDPO NUNIT UL TC CL|"
#define LABEL7 "(7) TEMP GAMA(1) GAMA(2) PMR(1) PMR(2) CT DEL FMAX|"
#define LABEL8 "(8) F1(1) F1(2) F2(1) F2(2)|"
#define LABEL15 "(15) LS XL1 XL2 YL1 YL2 QQ|"
#define LABEL35 "(35) SPCON1 SPCON2 SCKV BD BS WJ GDC NNAJ|"

class SlabRoad : public Road {
  protected:
    SlabRoad() {
        front("frmTOLMARK").control<ComboBox>("cmbDataPath").setTextValue(directory.path());
        front("frmTOLMARK").control<ComboBox>("cmbFileName").setTextValue("slab");
        click("frmTOLMARK", "cmdPanform");
        choose("frmPANFORM", "mnuNew");
    }

    /// General information: title and what differs from a new file.
    void general(const std::string& title, const std::vector<std::pair<const char*, const char*>>& boxes,
                 const std::vector<const char*>& options = {}) {
        click("frmPANFORM", "mnuGeneral");
        type("frmGeneral", "txtTitle", title);
        for (const auto& [box, text] : boxes) type("frmGeneral", box, text);
        for (const char* option : options) click("frmGeneral", option);
        picture("frmGeneral", "slab_general");
        click("frmGeneral", "cmdOk");
    }
    void curling(const std::vector<std::pair<const char*, const char*>>& boxes) {
        click("frmPANFORM", "mnuCurling");
        for (const auto& [box, text] : boxes) type("frmCurling", box, text);
        picture("frmCurling", "slab_curling");
        click("frmCurling", "cmdOk");
    }
    /// Arrangement, the coordinates of each slab, and the properties.
    void slabs(const Texts& arrangement, const std::vector<Texts>& X, const std::vector<Texts>& Y,
               const Texts& properties) {
        click("frmPANFORM", "mnuSlab");
        click("frmSlabData", "mnuArrangement");
        enter("frmSpread2", arrangement);
        picture("frmSpread2", "slab_arrangement");
        click("frmSpread2", "BtnRun");
        coordinates("mnuXcoordinate", X);
        coordinates("mnuYcoordinate", Y);
        click("frmSlabData", "lblProperties");
        enter("frmSpread3", properties);
        picture("frmSpread3", "slab_properties");
        click("frmSpread3", "cmdOK");
        for (const char* label : {"lblArrange", "lblXcoord", "lblYcoord", "lblProperties"})
            EXPECT_EQ(word("frmSlabData", label), "done");
        picture("frmSlabData", "slab_data");
        click("frmSlabData", "cmdOK");
    }
    void coordinates(const char* menu, const std::vector<Texts>& lists) {
        click("frmSlabData", menu);
        for (std::size_t n = 1; n <= lists.size(); ++n) {
            click("frmSlabs", "cmdSlab" + std::to_string(n));
            enter("frmspreadb", lists[n - 1]);
            picture("frmspreadb", "slab_coordinates");
            click("frmspreadb", "BtnRun");
            EXPECT_EQ(word("frmSlabs", "lblSlab" + std::to_string(n)), "done");
        }
        picture("frmSlabs", "slab_board");
        click("frmSlabs", "cmdOk");
    }
    /// Per load group its number of areas, which leads to them, and their values.
    void uniform(const std::vector<std::pair<const char*, Texts>>& groups) {
        click("frmPANFORM", "mnuUniform");
        for (const auto& [NUDL, areas] : groups) {
            enter("frmSpreada", {NUDL});
            enter("frmSpread2", areas);
            picture("frmSpread2", "slab_areas");
            click("frmSpread2", "BtnRun");
        }
        picture("frmSpreada", "slab_uniform");
        click("frmSpreada", "BtnRun");
        EXPECT_EQ(word("frmPANFORM", "lblUniform"), "done");
    }
    void liquid(const char* SUBMOD) {
        click("frmPANFORM", "mnuFoundation");
        enter("frmSpreada", {SUBMOD, "0"});
        picture("frmSpreada", "slab_liquid");
        click("frmSpreada", "BtnRun");
        EXPECT_EQ(word("frmPANFORM", "lblFoundation"), "done");
    }
    void optionalList(const char* menu, const Texts& texts) {
        click("frmPANFORM", "mnuOptional");
        click("frmOptional", menu);
        enter("frmspreadb", texts);
        picture("frmspreadb", std::string("slab_") + menu);
        click("frmspreadb", "BtnRun");
        picture("frmOptional", "slab_optional");
        click("frmOptional", "cmdOk");
    }
    /// The deck that Save As leaves, with line ends as "|". It reads and writes as the same values.
    std::string saved() {
        picture("frmPANFORM", "panform");
        dialogs.expectFile(FileAnswer{directory.path() + "slab.DAT", 1});
        dialogs.expectBox("File with a filename of slab.DAT has been saved");
        click("frmPANFORM", "cmdSaveAs");
        click("frmPANFORM", "cmdExit");
        EXPECT_TRUE(dialogs.finished());
        Store read;
        EXPECT_EQ(readSlabDeck(directory.path() + "slab.DAT", read).sentence(), "");
        std::string text;
        for (const char c : directory.read("slab.DAT"))
            if (c != '\r') text += c == '\n' ? '|' : c;
        return text;
    }
};

TEST_F(SlabRoad, ASingleSlabOnALiquidFoundationWithAnEdgeLoad) {
    general("Edge load", {});
    slabs({"3", "2"}, {{"0", "60", "120.5"}}, {{"0", "72"}}, {"8", ".15", "4E6"});
    uniform({{"1", {"1", "50", "70", "0", "10", "80"}}});
    liquid("100");
    EXPECT_EQ(saved(),
              " 1  (1) NPROB|Edge load|"
              " 0  0  1  1  (3) NFOUND NDAMA NPY NLG| 1  0  (4) NSLAB NJOINT|"
              " 3   2   0   0   0   0   " LABEL5
              " 1  1  0  0  0  0  0  0  0  1  0  0  0  0  0  0  1  2  2 " LABEL6
              " 0  150   0   500   0   .000005  .001  1  " LABEL7 " 0   0   0   0   " LABEL8
              " 0   60   120.5   0   72   (9) X's and then Y's|"
              " 8   .15   4000000   (10) T PR YM|"
              " 1   (12) NUDL| 0   (13) NCNF| 0   0   (14) NNMX NNMY|"
              " 1   50   70   0   10   80   " LABEL15 " 1   (22) FSAF| 0   100   (24) NAS SUBMOD|");
}

TEST_F(SlabRoad, TwoSlabsWithDowelsOnASolidFoundation) {
    general("Two slabs; dowels", {{"txtNfound", "1"}, {"txtNslab", "2"}, {"txtNjoint", "1"}});
    EXPECT_EQ(word("frmPANFORM", "lblJoint"), "input");
    slabs({"2", "3", "0", "1", "0", "0", "2", "3", "1", "0", "0", "0"}, {{"0", "60"}, {"0", "60"}},
          {{"0", "36", "72"}, {"0", "36", "72"}}, {"9", ".15", "4E6"});
    uniform({{"1", {"1", "50", "60", "0", "10", "80"}}});
    click("frmPANFORM", "mnuFoundation");
    type("frmSolid", "txtYms", "7500");
    type("frmSolid", "txtPrs", ".45");
    picture("frmSolid", "slab_solid");
    click("frmSolid", "cmdOk");
    click("frmPANFORM", "mnuJoint");
    enter("frmSpread1", {"0", "0", "1.5E6", "1", "12", ".2", "0", "3"});
    enter("frmspreadb", {});  // the first arrangement has set them
    picture("frmspreadb", "slab_dowels");
    click("frmspreadb", "BtnRun");
    picture("frmSpread1", "slab_joints");
    click("frmSpread1", "BtnRun");
    click("frmPANFORM", "mnuOptional");
    click("frmOptional", "mnuDowel");
    type("frmDowel", "txtPrsb", ".29");
    picture("frmDowel", "slab_dowel");
    click("frmDowel", "cmdOk");
    click("frmOptional", "cmdOk");
    EXPECT_EQ(saved(),
              " 1  (1) NPROB|Two slabs; dowels|"
              " 1  0  1  1  (3) NFOUND NDAMA NPY NLG| 2  1  (4) NSLAB NJOINT|"
              " 2   3   0   1   0   0   " LABEL5 " 2   3   1   0   0   0   " LABEL5
              " 1  1  0  0  0  0  0  0  0  1  0  0  0  0  0  0  1  2  2 " LABEL6
              " 0  150   0   500   0   .000005  .001  1  " LABEL7 " 0   0   0   0   " LABEL8
              " 0   60   0   36   72   (9) X's and then Y's|"
              " 0   60   0   36   72   (9) X's and then Y's|"
              " 9   .15   4000000   (10) T PR YM|"
              " 1   (12) NUDL| 0   (13) NCNF| 0   0   (14) NNMX NNMY|"
              " 1   50   60   0   10   80   " LABEL15
              " 1   (22) FSAF| 7500   .45   (28) YMS PRS|"
              " 29000000  .29  (34) YMSB PRSB|"
              " 0   0   1500000   1   12   .2   0   3   " LABEL35 " 0   1   0   (36) BARNO|");
}

TEST_F(SlabRoad, FourSlabsOnALayeredFoundationWithPartialContact) {
    general("Four slabs", {{"txtNfound", "2"}, {"txtNslab", "4"}, {"txtNjoint", "4"}, {"txtNunit", "1"}},
            {"optWTC"});
    curling({{"txtNwt", "1"}, {"txtNcycle", "10"}});
    slabs({"2", "2", "0", "1", "0", "2", "2", "2", "1", "0", "0", "3",
           "2", "2", "0", "4", "2", "0", "2", "2", "4", "0", "3", "0"},
          {{"0", "150"}, {"0", "150"}, {"0", "150"}, {"0", "150"}},
          {{"0", "200"}, {"0", "200"}, {"0", "200"}, {"0", "200"}}, {"20", ".15", "2.76E7", "23.6"});
    uniform({{"1", {"1", "100", "130", "0", "30", "550"}}});
    click("frmPANFORM", "mnuFoundation");
    enter("frmSpreada", {"30", "2"});
    enter("frmSpread2", {"15", "100000", ".4", "50000", ".45"});
    picture("frmSpread2", "slab_layers");
    click("frmSpread2", "BtnRun");
    picture("frmSpreada", "slab_layered");
    click("frmSpreada", "BtnRun");
    click("frmPANFORM", "mnuJoint");
    for (int joint = 1; joint <= 4; ++joint) enter("frmSpread1", {"7", "0", "0", "0", "0", "0", "0", "0"});
    click("frmSpread1", "BtnRun");
    EXPECT_EQ(word("frmPANFORM", "lblJoint"), "done");
    EXPECT_EQ(saved(),
              " 1  (1) NPROB|Four slabs|"
              " 2  0  1  1  (3) NFOUND NDAMA NPY NLG| 4  4  (4) NSLAB NJOINT|"
              " 2   2   0   1   0   2   " LABEL5 " 2   2   1   0   0   3   " LABEL5
              " 2   2   0   4   2   0   " LABEL5 " 2   2   4   0   3   0   " LABEL5
              " 1  1  0  0  0  0  0  0  1  10  0  0  0  0  0  1  1  1  2 " LABEL6
              " 0  23.6   0   3450   0   .000009  .001  2.54  " LABEL7 " 0   0   0   0   " LABEL8
              " 0   150   0   200   (9) X's and then Y's|"
              " 0   150   0   200   (9) X's and then Y's|"
              " 0   150   0   200   (9) X's and then Y's|"
              " 0   150   0   200   (9) X's and then Y's|"
              " 20   .15   2.76E+07   (10) T PR YM|"
              " 1   (12) NUDL| 0   (13) NCNF| 0   0   (14) NNMX NNMY|"
              " 1   100   130   0   30   550   " LABEL15
              " 1   (22) FSAF| 2   30   (30) NL MAXIC|"
              " 15   (31) TH| 100000   50000   (32) E| .4   .45   (33) PRBF|"
              " 200000000  .3  (34) YMSB PRSB|"
              " 7   0   0   0   0   0   0   0   " LABEL35 " 7   0   0   0   0   0   0   0   " LABEL35
              " 7   0   0   0   0   0   0   0   " LABEL35 " 7   0   0   0   0   0   0   0   " LABEL35);
}

TEST_F(SlabRoad, ATwoLayerSlabWithCurlingAndTwoDataSets) {
    general("Curling and load", {{"txtNlayer", "2"}, {"txtNbond", "1"}}, {"optWTC"});
    curling({{"txtNtemp", "1"}, {"txtNwt", "1"}, {"txtNcycle", "10"}, {"txtTemp", "-20"}});
    slabs({"2", "2"}, {{"0", "72"}}, {{"0", "90"}}, {"6", ".15", "4E6", "150", "4", ".2", "2E6", "140"});
    liquid("200");
    click("frmPANFORM", "optDataSet2");
    EXPECT_EQ(word("frmPANFORM", "Label2"), "Yes");
    curling({{"txtInput", "1"}, {"txtNwt", "0"}});
    uniform({{"1", {"1", "0", "10", "0", "10", "90"}}});
    EXPECT_EQ(
        saved(),
        " 2  (1) NPROB|"
        "Curling and load|"
        " 0  0  1  1  (3) NFOUND NDAMA NPY NLG| 1  0  (4) NSLAB NJOINT|"
        " 2   2   0   0   0   0   " LABEL5 " 2  1  0  0  0  0  1  1  1  10  0  0  0  0  0  0  1  1  2 " LABEL6
        "-20  150   140   500   0   .000005  .001  1  " LABEL7 " 0   0   0   0   " LABEL8
        " 0   72   0   90   (9) X's and then Y's|"
        " 6   .15   4000000   4   .2   2000000   (10) T PR YM|"
        " 0   (12) NUDL|"
        " 0   (13) NCNF| 0   0   (14) NNMX NNMY|"
        " 1   (22) FSAF| 0   200   (24) NAS SUBMOD|"
        "Curling and load|"
        " 0  0  1  1  (3) NFOUND NDAMA NPY NLG| 1  0  (4) NSLAB NJOINT|"
        " 2   2   0   0   0   0   " LABEL5 " 2  1  0  0  0  1  1  1  0  10  0  0  0  0  0  0  0  0  0 " LABEL6
        "-20  150   140   500   0   .000005  .001  1  " LABEL7 " 0   0   0   0   " LABEL8
        " 0   72   0   90   (9) X's and then Y's|"
        " 6   .15   4000000   4   .2   2000000   (10) T PR YM|"
        " 1   (12) NUDL|"
        " 0   (13) NCNF| 0   0   (14) NNMX NNMY|"
        " 1   0   10   0   10   90   " LABEL15 " 1   (22) FSAF| 0   200   (24) NAS SUBMOD|");
}

TEST_F(SlabRoad, ARaftWithNodalMoments) {
    general("Raft", {}, {"optNUL", "optWCL"});
    EXPECT_EQ(word("frmPANFORM", "lblUniform"), "default");
    EXPECT_EQ(word("frmPANFORM", "lblRaft"), "input");
    slabs({"2", "2"}, {{"0", "72"}}, {{"0", "90"}}, {"24", ".15", "4E6"});
    click("frmPANFORM", "mnuRaft");
    enter("frmSpreada", {"2"});
    enter("frmspreadb", {"1", "50000", "4", "-2500.5"});
    picture("frmspreadb", "slab_forces");
    click("frmspreadb", "BtnRun");
    enter("frmSpreada", {"1"});
    enter("frmspreadb", {"2", "1.2E6"});
    picture("frmspreadb", "slab_moments");
    click("frmspreadb", "BtnRun");
    enter("frmSpreada", {"1"});
    enter("frmspreadb", {"3", "-600000"});
    click("frmspreadb", "BtnRun");
    picture("frmSpreada", "slab_raft");
    click("frmSpreada", "BtnRun");
    EXPECT_EQ(word("frmPANFORM", "lblRaft"), "done");
    liquid("150");
    EXPECT_EQ(saved(),
              " 1  (1) NPROB|Raft|"
              " 0  0  1  1  (3) NFOUND NDAMA NPY NLG| 1  0  (4) NSLAB NJOINT|"
              " 2   2   0   0   0   0   " LABEL5
              " 1  1  0  0  0  0  0  0  0  1  0  0  0  0  0  0  2  2  1 " LABEL6
              " 0  150   0   500   0   .000005  .001  10  " LABEL7 " 0   0   0   0   " LABEL8
              " 0   72   0   90   (9) X's and then Y's|"
              " 24   .15   4000000   (10) T PR YM|"
              " 0   (12) NUDL| 2   (13) NCNF| 1   1   (14) NNMX NNMY|"
              " 1   50000   4  -2500.5   (16) NN FF|"
              " 2   1200000   (16) NNX FMX| 3  -600000   (16) NNY FMY|"
              " 1   (22) FSAF| 0   150   (24) NAS SUBMOD|");
}

TEST_F(SlabRoad, ADamageCase) {
    general("Damage", {{"txtNdama", "2"}, {"txtNpy", "2"}, {"txtNprint", "3"}, {"txtNsy", "3"}});
    slabs({"2", "3"}, {{"0", "72"}}, {{"0", "40", "80"}}, {"8", ".15", "4E6"});
    uniform({{"1", {"1", "0", "10", "0", "10", "90"}}});
    optionalList("mnuNsy", {"1", "2", "3"});
    liquid("100");
    click("frmPANFORM", "mnuAdjust");
    enter("frmspreadb", {"1", ".7"});
    picture("frmspreadb", "slab_adjust");
    click("frmspreadb", "BtnRun");
    click("frmPANFORM", "mnuDamage");
    click("frmDamage", "mnuFatigue");
    enter("frmSpread3", {"650", "16.61", "17.61"});
    picture("frmSpread3", "slab_fatigue");
    click("frmSpread3", "cmdOK");
    click("frmDamage", "mnuVolume");
    for (const char* button : {"cmdPeriod1", "cmdPeriod2"}) {
        click("frmPeriod", button);
        enter("frmspreadb", {"12000"});
        picture("frmspreadb", "slab_volume");
        click("frmspreadb", "BtnRun");
    }
    click("frmPeriod", "cmdOk");
    picture("frmDamage", "slab_damage");
    click("frmDamage", "cmdOk");
    EXPECT_EQ(saved(),
              " 1  (1) NPROB|Damage|"
              " 0  2  2  1  (3) NFOUND NDAMA NPY NLG| 1  0  (4) NSLAB NJOINT|"
              " 2   3   0   0   0   0   " LABEL5
              " 1  1  0  0  3  0  0  0  0  1  0  0  0  3  0  0  1  2  2 " LABEL6
              " 0  150   0   650   0   .000005  .001  1  " LABEL7 " 16.61   0   17.61   0   " LABEL8
              " 0   72   0   40   80   (9) X's and then Y's|"
              " 8   .15   4000000   (10) T PR YM|"
              " 1   (12) NUDL| 0   (13) NCNF| 0   0   (14) NNMX NNMY|"
              " 1   0   10   0   10   90   " LABEL15
              " 1   7   13   (18) NP| 1   2   3   (20) NODSY|"
              " 1   .7   (22) FSAF| 0   100   (24) NAS SUBMOD|"
              " 12000   (37) TNLR| 12000   (37) TNLR|");
}

}  // namespace
