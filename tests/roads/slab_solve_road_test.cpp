// From a saved slab deck to plotted results: both solvers, the slab plot and the contours from the
// main screen, and the same pages by batch.
#include <QProcess>
#include <filesystem>

#include "plots/slab_plot.h"
#include "roads/road.h"
#include "support/example_files.h"

namespace {

class SlabSolveRoad : public Road {
  protected:
    SlabSolveRoad() { directory.write("joint.DAT", example("PAN3.DAT")); }

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

    const std::string plotFile = directory.path() + "joint.PAN";
};

void expectLines(const std::string& text, const std::vector<const char*>& expected) {
    for (const char* line : expected) EXPECT_NE(text.find(line), std::string::npos) << line << "\n" << text;
}

TEST_F(SlabSolveRoad, ASavedDeckIsSolvedPlottedAndContoured) {
    name("joint.DAT");
    click("frmTOLMARK", "cmdPanform");
    dialogs.expectFile(FileAnswer{directory.path() + "joint.DAT", 1});
    choose("frmPANFORM", "mnuOpen");
    exitAndSave("frmPANFORM", "joint.DAT");
    EXPECT_EQ(directory.read("joint.DAT"), example("PAN3.DAT"));

    std::string text, giantText;
    const std::string results = solvedBy("cmdTolplate", text);
    EXPECT_EQ(text.substr(0, 8), "TOLPLATE");
    expectLines(text, {"Two slabs on solid foundation with full contact",
                       "Loads 21600 lb, reactions 21600 lb", "at node 69"});
    EXPECT_EQ(solvedBy("cmdLarge", giantText), results);
    EXPECT_EQ(giantText.substr(0, 8), "TOLGIANT");
    EXPECT_EQ(giantText.substr(8), text.substr(8));

    SlabPlot slabs(plotFile);
    const auto page = slabs.next();
    ASSERT_TRUE(page);
    EXPECT_FALSE(slabs.next());
    expectLines(textOf(*page), {"Two slabs on solid foundation with full contact",
                                "Problem No. 1  Period No. 1  Load Group No. 1 ", "Max. Stress =-150.52 psi",
                                "YM = 4000000 psi PR = .15"});
    dialogs.expectBox("Want to print on the printer?", Buttons::YesNo, Answer::Yes);
    click("frmTOLMARK", "cmdPanplot");
    EXPECT_TRUE(dialogs.finished());
    EXPECT_EQ(notes.size(), 1U);
    EXPECT_EQ(directory.read("print/print-001.pdf").substr(0, 5), "%PDF-");

    // The largest magnitudes: 92.5 psi in x, 150.1 psi in y.
    dialogs.expectInput("Contour Interval in  10 psi", "4");
    dialogs.expectBox("Want to print on the printer?", Buttons::YesNo, Answer::No);
    dialogs.expectInput("Contour Interval in  100 psi", ".4");
    dialogs.expectBox("Want to print on the printer?", Buttons::YesNo, Answer::Yes);
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
                {">Max. '-' Stress in X Dir.=<", ">-91.7 <", ">Contours in  10 psi<"});
    expectLines(directory.read("lines-2.svg"), {">Max. '-' Stress in Y Dir.=<", ">-150.1 <"});
    EXPECT_EQ(batch({"plot", "joint", "--contour", "--page", "2", "--pdf", "lines.pdf"}).first, 0);
    EXPECT_EQ(directory.read("lines.pdf").substr(0, 5), "%PDF-");
    expectLines(batch({"plot", "joint", "--contour", "--page", "3", "--pdf", "none.pdf"}).second,
                {"the plot has no page 3"});
    EXPECT_EQ(batch({"plot", "joint", "--svg", "slabs.svg"}).first, 0);
    expectLines(directory.read("slabs.svg"),
                {">Max. Stress =<", ">-150.52 <", ">Two slabs on solid foundation with full contact<"});
}

}  // namespace
