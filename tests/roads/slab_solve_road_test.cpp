// From a saved slab deck to plotted results: both solvers, the slab plot and the contours from the
// main screen, and the same pages by batch.
#include <QProcess>
#include <filesystem>

#include "plots/slab_plot.h"
#include "roads/road.h"
#include "support/page_reading.h"

namespace {

/// A wheel at the corner beside a joint with three dowels.
constexpr const char* deck =
    " 1  (1) NPROB\r\n"
    "Wheel at the joint\r\n"
    " 0  0  1  1  (3) NFOUND NDAMA NPY NLG\r\n"
    " 2  1  (4) NSLAB NJOINT\r\n"
    " 5   5   0   1   0   0   (5) NX NY JONO1 JONO2 JONO3 JONO4\r\n"
    " 5   5   1   0   0   0   (5) NX NY JONO1 JONO2 JONO3 JONO4\r\n"
    " 1  1  0  0  0  0  0  0  0  1  0  0  0  0  0  0  1  2  2 "
    "(6) NLAYER NNCK NOTCON NGAP NPRINT INPUT NBOND NTEMP NWT NCYCLE NAT1 NAT2 NSX NSY MDPO NUNIT UL TC "
    "CL\r\n"
    " 0  150   0   650   0   .000005  .001  1  (7) TEMP GAMA(1) GAMA(2) PMR(1) PMR(2) CT DEL FMAX\r\n"
    " 0   0   0   0   (8) F1(1) F1(2) F2(1) F2(2)\r\n"
    " 0   40   80   110   120   0   12   24   48   72   (9) X's and then Y's\r\n"
    " 0   10   40   80   120   0   12   24   48   72   (9) X's and then Y's\r\n"
    " 8   .15   4000000   (10) T PR YM\r\n"
    " 1   (12) NUDL\r\n"
    " 0   (13) NCNF\r\n"
    " 0   0   (14) NNMX NNMY\r\n"
    " 1   110   120   0   12   90   (15) LS XL1 XL2 YL1 YL2 QQ\r\n"
    " 1   (22) FSAF\r\n"
    " 0   100   (24) NAS SUBMOD\r\n"
    " 29000000  .3  (34) YMSB PRSB\r\n"
    " 0   0   1500000   1   12   .25   0   5   (35) SPCON1 SPCON2 SCKV BD BS WJ GDC NNAJ\r\n"
    " 0   1   1   1   0   (36) BARNO\r\n";

class SlabSolveRoad : public Road {
  protected:
    SlabSolveRoad() { directory.write("joint.DAT", deck); }

    /// Names the deck on the main screen, opens it in the slab input and saves it as it is.
    void openAndSave() {
        front("frmTOLMARK").control<ComboBox>("cmbDataPath").setTextValue(directory.path());
        front("frmTOLMARK").control<ComboBox>("cmbFileName").setTextValue("joint.DAT");
        click("frmTOLMARK", "cmdPanform");
        dialogs.expectFile(FileAnswer{directory.path() + "joint.DAT", 1});
        choose("frmPANFORM", "mnuOpen");
        dialogs.expectBox("You have not save the file.  Do you want to save the file?", Buttons::YesNoCancel,
                          Answer::Yes);
        dialogs.expectBox("File with a filename of " + directory.path() + "joint.DAT has been saved");
        click("frmPANFORM", "cmdExit");
        EXPECT_TRUE(dialogs.finished());
    }

    /// The plot file that one of the solvers writes, and in `text` its results.
    std::string solvedBy(const char* button, std::string& text) {
        std::filesystem::remove(plotFile);
        click("frmTOLMARK", button);
        EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(plotFile); }, 20000));
        text = directory.read("joint.TXT");
        return directory.read("joint.PAN");
    }

    /// Runs the program as a command: status, and what it says.
    std::pair<int, std::string> batch(const QStringList& arguments) {
        QProcess program;
        program.setProcessChannelMode(QProcess::MergedChannels);
        program.setWorkingDirectory(QString::fromStdString(directory.path()));
        program.start(TOLMARK_BIN_DIR "/tolmark", arguments);
        EXPECT_TRUE(program.waitForFinished(30000));
        return {program.exitCode(), program.readAll().toStdString()};
    }

    static std::string linesOf(const Page& page) {
        std::string lines;
        for (const Written& written : textsOf(page)) lines += written.text + "\n";
        return lines;
    }

    const std::string plotFile = directory.path() + "joint.PAN";
};

void expectLines(const std::string& text, const std::vector<const char*>& expected) {
    for (const char* line : expected) EXPECT_NE(text.find(line), std::string::npos) << line << "\n" << text;
}

TEST_F(SlabSolveRoad, ASavedDeckIsSolvedPlottedAndContoured) {
    openAndSave();
    std::string text, giantText;
    const std::string results = solvedBy("cmdTolplate", text);
    EXPECT_EQ(text.substr(0, 8), "TOLPLATE");
    expectLines(text, {"Wheel at the joint", "Loads 10800 lb, reactions 10800 lb", "at node 23"});
    EXPECT_EQ(solvedBy("cmdLarge", giantText), results);
    EXPECT_EQ(giantText.substr(0, 8), "TOLGIANT");
    EXPECT_EQ(giantText.substr(8), text.substr(8));

    SlabPlot slabs(plotFile);
    const auto page = slabs.next();
    ASSERT_TRUE(page);
    EXPECT_FALSE(slabs.next());
    expectLines(linesOf(*page), {"Wheel at the joint", "Problem No. 1  Period No. 1  Load Group No. 1 ",
                                 "Max. Stress = 204.444 psi", "YM = 4000000 psi PR = .15"});
    dialogs.expectBox("Want to print on the printer?", Buttons::YesNo, Answer::Yes);
    click("frmTOLMARK", "cmdPanplot");
    EXPECT_TRUE(dialogs.finished());
    EXPECT_EQ(notes.size(), 1U);
    EXPECT_EQ(directory.read("print/print-001.pdf").substr(0, 5), "%PDF-");

    // The largest magnitudes: 146.564 psi in x at node 11, 189.34 psi in y at node 23.
    for (const Answer answer : {Answer::No, Answer::Yes}) {
        dialogs.expectInput("Contour Interval in  100 psi", ".4");
        dialogs.expectBox("Want to print on the printer?", Buttons::YesNo, answer);
    }
    click("frmTOLMARK", "cmdContour");
    EXPECT_TRUE(dialogs.finished());
    EXPECT_EQ(directory.read("print/print-002.pdf").substr(0, 5), "%PDF-");
    EXPECT_FALSE(screens.loaded("frmCONTOUR"));
}

TEST_F(SlabSolveRoad, TheSameByBatch) {
    EXPECT_NE(batch({"plot", "joint", "--contour", "--svg", "lines.svg"}).second.find("solve the deck first"),
              std::string::npos);
    EXPECT_EQ(batch({"solve", "joint.DAT"}).first, 0);
    const auto [status, said] = batch({"plot", "joint", "--contour", "--svg", "lines.svg"});
    EXPECT_EQ(status, 0) << said;
    expectLines(directory.read("lines-1.svg"),
                {">Max. '-' Stress in X Dir.=<", "> 146.6 <", ">Contours in  100 psi<"});
    expectLines(directory.read("lines-2.svg"), {">Max. '+' Stress in Y Dir.=<", "> 189.3 <"});
    EXPECT_EQ(batch({"plot", "joint", "--contour", "--page", "2", "--pdf", "lines.pdf"}).first, 0);
    EXPECT_EQ(directory.read("lines.pdf").substr(0, 5), "%PDF-");
    EXPECT_NE(batch({"plot", "joint", "--contour", "--page", "3", "--pdf", "none.pdf"}).first, 0);
    EXPECT_EQ(batch({"plot", "joint", "--svg", "slabs.svg"}).first, 0);
    expectLines(directory.read("slabs.svg"), {">Max. Stress =<", "> 204.444 <", ">Wheel at the joint<"});
}

}  // namespace
