// From an empty machine to a plotted pavement: three layers under a tandem axle.
#include "layered/layered_deck.h"
#include "plots/bed_file.h"
#include "roads/road.h"

namespace {

class LayeredRoad : public Road {
  protected:
    /// The road of the README, up to the saved deck.
    void enterThreeLayers() {
        type("frmTOLMARK", "cmbDataPath", "");
        front("frmTOLMARK").control<ComboBox>("cmbDataPath").setTextValue(directory.path());
        front("frmTOLMARK").control<ComboBox>("cmbFileName").setTextValue("tandem");
        click("frmTOLMARK", "cmdBedform");
        choose("frmBEDFORM", "mnuNew");

        click("frmBEDFORM", "mnuGeneral");
        type("frmGeneral1", "txtTitle1", "Tandem axle on three layers");
        type("frmGeneral1", "txtNz", "4");
        picture("frmGeneral1", "general");
        click("frmGeneral1", "cmdOk");
        picture("frmBEDFORM", "bedform");

        click("frmBEDFORM", "mnuZcoord");
        enter("frmspreadb", {"0", "6", "6.001", "14.001"});
        click("frmspreadb", "BtnRun");

        click("frmBEDFORM", "mnuLayer");
        enter("frmSpread2", {"6", ".35", "8", ".3", ".45"});
        picture("frmSpread2", "layers");
        click("frmSpread2", "BtnRun");

        click("frmBEDFORM", "mnuModuli");
        click("frmPeriod", "cmdPeriod1");
        enter("frmspreadb", {"400000", "30000", "8000"});
        click("frmspreadb", "BtnRun");
        EXPECT_EQ(word("frmPeriod", "lblPeriod1"), "done");
        click("frmPeriod", "cmdOk");

        click("frmBEDFORM", "mnuLoad");
        enter("frmSpread1", {"2", "4.5", "80", "13.5", "54", "3"});
        enter("frmspreadb", {"0", "0", "0", "6.75", "27", "6.75"});
        picture("frmspreadb", "points");
        click("frmspreadb", "BtnRun");
        click("frmSpread1", "BtnRun");
    }

    void saveAs(const std::string& name) {
        dialogs.expectFile(FileAnswer{directory.path() + name, 1});
        dialogs.expectBox("File with a filename of " + name + " has been saved");
        click("frmBEDFORM", "cmdSaveAs");
        click("frmBEDFORM", "cmdExit");
        EXPECT_TRUE(dialogs.finished());
    }
};

TEST_F(LayeredRoad, FromAnEmptyMachineToAPlottedPavement) {
    enterThreeLayers();
    for (const char* label : {"lblGeneral", "lblZcoord", "lblLayer", "lblModuli", "lblLoad1"}) {
        EXPECT_EQ(word("frmBEDFORM", label), "done") << label;
    }
    saveAs("tandem.DAT");
    EXPECT_EQ(directory.read("tandem.DAT"),
              " 1  (1) NPROB\r\n"
              "Tandem axle on three layers\r\n"
              " 1  0  1  1  (3) MATL NDAMA NPY NLG\r\n"
              " .001  (4) DEL\r\n"
              " 3  4  80  9  0  (5) NL NZ ICL NSTD NUNIT\r\n"
              "6 8  (6) TH\r\n"
              ".35 .3 .45  (7) PR\r\n"
              "0 6 6.001 14.001  (8) ZC\r\n"
              " 1  (9) NBOND\r\n"
              "400000 30000 8000  (11) E\r\n"
              " 2   (13) LOAD\r\n"
              " 4.5   80   (14) CR CP\r\n"
              " 3   (19) NPT\r\n"
              " 54   13.5  0 0 0 6.75 27 6.75  (20) XW YW XPT\r\n");

    picture("frmTOLMARK", "main_screen");
    const std::string text = solve("tandem");
    EXPECT_NE(text.find("Period 1, load group 1"), std::string::npos);
    BedReader results(directory.path() + "tandem.BED");
    const auto bed = results.next();
    ASSERT_TRUE(bed);
    EXPECT_EQ(bed->TITLE, "Tandem axle on three layers");
    EXPECT_EQ(bed->E[1][2], 30000);
    EXPECT_EQ(bed->XPT[1][3], 27.F);

    const auto pages = plot("tandem");
    ASSERT_EQ(pages.size(), 1U);
    for (const char* expected : {"Tandem axle on three layers", "Contact Radius = 4.5 in.", "SUBGRADE",
                                 "Tandem Spacing = 54 in.", "Problem No. 1  Period No. 1"}) {
        EXPECT_NE(pages[0].find(expected), std::string::npos) << expected << "\n" << pages[0];
    }
}

TEST_F(LayeredRoad, AnOldDeckIsOpenedChangedAndSavedUnderItsName) {
    enterThreeLayers();
    saveAs("tandem.DAT");
    const std::string before = directory.read("tandem.DAT");

    click("frmTOLMARK", "cmdBedform");
    dialogs.expectFile(FileAnswer{directory.path() + "tandem.DAT", 1});
    choose("frmBEDFORM", "mnuOpen");
    click("frmBEDFORM", "mnuModuli");
    click("frmPeriod", "cmdPeriod1");
    enter("frmspreadb", {"500000"});
    click("frmspreadb", "BtnRun");
    click("frmPeriod", "cmdOk");
    dialogs.expectBox("You have not save the file.  Do you want to save the file?", Buttons::YesNoCancel,
                      Answer::Yes);
    dialogs.expectBox("File with a filename of " + directory.path() + "tandem.DAT has been saved");
    click("frmBEDFORM", "cmdExit");

    Store read;
    ASSERT_EQ(readLayeredDeck(directory.path() + "tandem.DAT", read).outcome,
              DeckReadResult::Outcome::Complete);
    EXPECT_EQ(read.layered[1].EMOD[1][1].number(), 500000);
    EXPECT_EQ(read.layered[1].EMOD[1][2].number(), 30000);
    EXPECT_NE(directory.read("tandem.DAT"), before);
}

}  // namespace
