#include "plots/frm_panplot.h"

#include "plots/frm_contour.h"
#include "plots/pan_samples.h"
#include "store/store.h"
#include "support/page_reading.h"
#include "support/quiet_desktop.h"
#include "support/recording_printer.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_directory.h"

namespace {

constexpr const char* question = "Want to print on the printer?";

/// Keeps what stood on the screen at each question.
class WatchingDialogs : public ScriptedDialogs {
  public:
    Screens* screens = nullptr;
    struct Seen {
        std::string caption;
        Page page;
    };
    std::vector<Seen> seen;

    Answer MsgBox(const std::string& text, Buttons buttons, const std::string& title) override {
        look();
        return ScriptedDialogs::MsgBox(text, buttons, title);
    }
    std::optional<std::string> InputBox(const std::string& prompt, const std::string& title,
                                        const std::string& proposal) override {
        look();
        return ScriptedDialogs::InputBox(prompt, title, proposal);
    }

  private:
    void look() {
        for (const char* name : {"frmPANPLOT", "frmCONTOUR"})
            if (const auto* form = dynamic_cast<PlotScreen*>(screens->loaded(name))) {
                EXPECT_TRUE(form->isVisible());
                seen.push_back({form->caption(), form->page()});
            }
    }
};

class PanScreens : public testing::Test {
  protected:
    PanScreens() {
        setDispatchDialogs(&dialogs);
        dialogs.screens = &screens;
        store.cmbDirectory = directory.path();
        store.FileName = directory.path() + "slab.DAT";
        screens.add("frmPANPLOT", [this] { return std::make_unique<frmPANPLOT>(program); });
        screens.add("frmCONTOUR", [this] { return std::make_unique<frmCONTOUR>(program); });
    }
    ~PanScreens() override { setDispatchDialogs(nullptr); }

    PlotScreen* load(const char* name) { return dynamic_cast<PlotScreen*>(screens.load(name)); }

    TemporaryDirectory directory;
    Store store;
    WatchingDialogs dialogs;
    RecordingPrinter printer;
    QuietDesktop desktop{directory.path()};
    Screens screens{dialogs};
    Program program{store, screens, dialogs, printer, desktop};
};

TEST_F(PanScreens, EachSlabPageIsAskedAboutAndTheBlankScreenStays) {
    directory.write("slab.PAN", twoSlabsDamage);
    for (const Answer answer : {Answer::No, Answer::Yes, Answer::No, Answer::No})
        dialogs.expectBox(question, Buttons::YesNo, answer);
    const PlotScreen* form = load("frmPANPLOT");
    ASSERT_TRUE(form);
    EXPECT_TRUE(form->page().ops.empty() && form->isVisible());
    ASSERT_EQ(printer.pages.size(), 1U);
    EXPECT_EQ(textAt(printer.pages[0], 1700, 1500).substr(0, 46),
              "Problem No. 1  Period No. 1  Load Group No. 2 ");
}

TEST_F(PanScreens, FaultsAreToldOnABlankScreen) {
    for (const char* name : {"frmPANPLOT", "frmCONTOUR"}) {
        screens.unload(name);
        dialogs.expectBox("File not found");
        ASSERT_TRUE(load(name));
        screens.unload(name);
    }
    directory.write("slab.PAN", std::string(oneSlab).substr(0, 150));
    for (const char* name : {"frmPANPLOT", "frmCONTOUR"}) {
        dialogs.expectBox("Data error");
        ASSERT_TRUE(load(name));
        EXPECT_TRUE(load(name)->page().ops.empty());
        screens.unload(name);
    }
    directory.write("slab.PAN", twoSlabsDamage);
    dialogs.expectBox(
        "Contours cannot be plotted because at least one of the following conditions was not met: NPY = 1, "
        "NLG = 1, NDAMA = 0, and NPRINT = 0");
    ASSERT_TRUE(load("frmCONTOUR"));
    EXPECT_TRUE(dialogs.finished());
}

TEST_F(PanScreens, ContoursProposeAnIntervalForEachPage) {
    directory.write("slab.PAN", oneSlab);
    for (const char* unit : {"100", "100", "10", "1"}) {
        dialogs.expectInput(std::string("Contour Interval in  ") + unit + " psi", "7");
        dialogs.expectBox(question, Buttons::YesNo, Answer::No);
    }
    ASSERT_TRUE(load("frmCONTOUR"));
    EXPECT_EQ(store.DIRN, 3);
    ASSERT_EQ(dialogs.seen.size(), 8U);
    EXPECT_EQ(dialogs.seen[0].caption, "PROBLEM  1, SLAB LAYER  1, STRESSES IN X DIRECTION");
    EXPECT_LT(dialogs.seen[0].page.ops.size(), dialogs.seen[1].page.ops.size())
        << "asked before the contours";
    EXPECT_EQ(dialogs.seen[7].caption, "PROBLEM  1, SLAB LAYER  2, STRESSES IN Y DIRECTION");
}

TEST_F(PanScreens, AnEmptyOrCancelledIntervalClosesTheContours) {
    directory.write("slab.PAN", oneSlab);
    for (const std::optional<std::string>& answer : {std::optional<std::string>(""), {}}) {
        dialogs.expectInput("Contour Interval in  100 psi", answer);
        EXPECT_FALSE(load("frmCONTOUR"));
        EXPECT_FALSE(screens.loaded("frmCONTOUR"));
    }
}

}  // namespace
