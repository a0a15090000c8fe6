// The three plot screens: pages, questions between them, and what is told of bad files.
#include "plots/bed_samples.h"
#include "plots/frm_bedplot.h"
#include "plots/frm_contour.h"
#include "plots/frm_panplot.h"
#include "plots/pan_samples.h"
#include "support/desk_screens.h"
#include "support/page_reading.h"
#include "support/text_change.h"

namespace {

struct FailingPrinter : RecordingPrinter {
    void PrintForm(const Page&) override { throw RunTimeError(Fault::DiskFull, "paper"); }
};

class PlotScreens : public DeskScreens {
  protected:
    PlotScreens() : DeskScreens({}) {
        store.FileName = directory.path() + "road.DAT";
        addScreens(program);
        dialogs.onQuestion = [this] {
            for (const char* name : {"frmBEDPLOT", "frmPANPLOT", "frmCONTOUR"}) {
                const auto* form = dynamic_cast<PlotScreen*>(screens.loaded(name));
                if (form && form->isVisible()) seen.push_back({form->caption(), form->page()});
            }
        };
    }
    void addScreens(Program& of) {
        screens.add("frmBEDPLOT", [&of] { return std::make_unique<frmBEDPLOT>(of); });
        screens.add("frmPANPLOT", [&of] { return std::make_unique<frmPANPLOT>(of); });
        screens.add("frmCONTOUR", [&of] { return std::make_unique<frmCONTOUR>(of); });
    }
    void expectQuestions(const std::vector<Answer>& answers) {
        for (const Answer answer : answers)
            dialogs.expectBox("Want to print on the printer?", Buttons::YesNo, answer);
    }
    /// The screen as it opens and shows all its pages; blank afterwards.
    void showAll(const std::string& name) {
        seen.clear();
        const auto* form = dynamic_cast<PlotScreen*>(screens.load(name));
        ASSERT_TRUE(form) << name;
        EXPECT_TRUE(form->isVisible() && form->page().ops.empty()) << name;
        EXPECT_TRUE(dialogs.finished()) << name;
        screens.unload(name);
    }

    struct Seen {
        std::string caption;
        Page page;
    };
    std::vector<Seen> seen;  ///< the screen behind each question
};

TEST_F(PlotScreens, AskAfterEachPageAndPrintThoseWanted) {
    directory.write("road.bed", damage);  // as another system may have named it
    directory.write("road.PAN", twoSlabsDamage);
    store.NL = "\n";
    for (const char* name : {"frmBEDPLOT", "frmPANPLOT"}) {
        printer.pages.clear();
        expectQuestions({Answer::Yes, Answer::No, Answer::No, Answer::Yes});
        showAll(name);
        ASSERT_EQ(seen.size(), 4U);
        ASSERT_EQ(printer.pages.size(), 2U);
        const std::string heading = "Problem No. 1  Period No. 2  Load Group No. 2 ";
        EXPECT_EQ(textAt(printer.pages[1], 1700, 1500).substr(0, 46), heading);
        EXPECT_EQ(textAt(seen[3].page, 1700, 1500).substr(0, 46), heading) << "what is seen is printed";
        EXPECT_EQ(store.NL, "\r\n");
    }
}

TEST_F(PlotScreens, TellFaultsOnABlankScreen) {
    const struct {
        const char *deck, *screen, *file;
        std::string text;
        const char* message;
    } faults[] = {
        {"road.DAT", "frmBEDPLOT", "road.txt", "", "File not found"},
        {"road.DAT", "frmPANPLOT", "road.txt", "", "File not found"},
        {"road.DAT", "frmCONTOUR", "road.txt", "", "File not found"},
        {"road.Dat", "frmBEDPLOT", "road.BED", linearTandem, "File not found"},  // only ".BED" would do
        {"road.DAT", "frmBEDPLOT", "road.BED", std::string(linearTandem).substr(0, 60), "Data error"},
        {"road.DAT", "frmPANPLOT", "road.PAN", std::string(oneSlab).substr(0, 150), "Data error"},
        {"road.DAT", "frmCONTOUR", "road.PAN", std::string(oneSlab).substr(0, 150), "Data error"},
        {"road.DAT", "frmCONTOUR", "road.PAN", twoSlabsDamage,
         "Contours cannot be plotted because at least one of the following conditions was not met: NPY = 1, "
         "NLG = 1, NDAMA = 0, and NPRINT = 0"},
    };
    for (const auto& fault : faults) {
        store.FileName = fault.deck;  // a bare name is one of the data directory
        directory.write(fault.file, fault.text);
        dialogs.expectBox(fault.message);
        showAll(fault.screen);
    }
    // The design life of the last page cannot be shown: the pages before have gone.
    directory.write("road.BED", replaced(damage, "1.465201", "0"));
    expectQuestions({Answer::No, Answer::No, Answer::No});
    dialogs.expectBox("Data error");
    showAll("frmBEDPLOT");
    ASSERT_EQ(seen.size(), 4U);
    EXPECT_TRUE(seen.back().page.ops.empty()) << "the message is the only thing shown";
}

TEST_F(PlotScreens, APrinterThatFailsTakesNoPageWithIt) {
    directory.write("road.BED", combined);
    FailingPrinter failing;
    Program other{store, screens, dialogs, failing, desktop};
    addScreens(other);
    expectQuestions({Answer::Yes});
    dialogs.expectBox("The file could not be written: paper");
    expectQuestions({Answer::No});
    showAll("frmBEDPLOT");
}

TEST_F(PlotScreens, ThePageFillsTheWindowAndItsLinesAreSharp) {
    directory.write("road.BED", linearTandem);
    expectQuestions({Answer::No});
    dialogs.onQuestion = [&] {
        Form* form = screens.loaded("frmBEDPLOT");
        EXPECT_EQ(form->size(), QSize(1082, 765));
        form->resize(1623, 1147);
        const QImage picture = form->grab().toImage();
        int black = 0, grey = 0;
        for (int y = 592; y < 615; ++y) {
            const int lightness = picture.pixelColor(900, y).lightness();
            black += lightness == 0;
            grey += lightness > 0 && lightness < 255;
        }
        EXPECT_TRUE(black >= 1 && black <= 2 && grey == 0) << "the surface: " << black << " " << grey;
    };
    showAll("frmBEDPLOT");
}

TEST_F(PlotScreens, StandAboveTheMiddleOrWithTheirMarginOffTheScreen) {
    const struct {
        int width, height, left, top;
    } cases[] = {{19200, 10800, 4193, 1375}, {10240, 10800, -1200, 1375}, {19200, 7680, 4193, -1200}};
    for (const auto& c : cases) {
        const auto [left, top] = PlotScreen::cornerOn(c.width, c.height);
        EXPECT_EQ(std::pair(left, top), std::pair(c.left, c.top));
    }
}

TEST_F(PlotScreens, ContoursProposeAnIntervalForEachPage) {
    directory.write("road.PAN", oneSlab);
    for (const std::string unit : {"100", "100", "10", "1"}) {
        dialogs.expectInput("Contour Interval in  " + unit + " psi", "7");
        expectQuestions({Answer::No});
    }
    showAll("frmCONTOUR");
    EXPECT_EQ(store.DIRN, 3);
    ASSERT_EQ(seen.size(), 8U);
    EXPECT_EQ(seen[0].caption, "PROBLEM  1, SLAB LAYER  1, STRESSES IN X DIRECTION");
    EXPECT_LT(seen[0].page.ops.size(), seen[1].page.ops.size()) << "asked before the contours";
    EXPECT_EQ(seen[7].caption, "PROBLEM  1, SLAB LAYER  2, STRESSES IN Y DIRECTION");
}

TEST_F(PlotScreens, AnEmptyOrCancelledIntervalClosesTheContours) {
    directory.write("road.PAN", oneSlab);
    for (const std::optional<std::string>& answer : {std::optional<std::string>(""), {}}) {
        dialogs.expectInput("Contour Interval in  100 psi", answer);
        EXPECT_FALSE(screens.load("frmCONTOUR"));
        EXPECT_FALSE(screens.loaded("frmCONTOUR"));
    }
}

}  // namespace
