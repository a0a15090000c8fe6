#include "plots/frm_bedplot.h"

#include "plots/bed_samples.h"
#include "store/store.h"
#include "support/page_reading.h"
#include "support/quiet_desktop.h"
#include "support/recording_printer.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_directory.h"

namespace {

constexpr const char* question = "Want to print on the printer?";

/// Looks at the screen while each question stands.
class WatchingDialogs : public ScriptedDialogs {
  public:
    std::function<void()> look;
    Answer MsgBox(const std::string& text, Buttons buttons, const std::string& title) override {
        if (look) look();
        return ScriptedDialogs::MsgBox(text, buttons, title);
    }
};

struct FailingPrinter : RecordingPrinter {
    void PrintForm(const Page&) override { throw RunTimeError(Fault::DiskFull, "paper"); }
};

class BedplotTest : public testing::Test {
  protected:
    BedplotTest() {
        setDispatchDialogs(&dialogs);
        store.cmbDirectory = directory.path();
        store.FileName = directory.path() + "road.DAT";
        screens.add("frmBEDPLOT", [this] { return std::make_unique<frmBEDPLOT>(program); });
        dialogs.look = [this] {
            const auto* form = dynamic_cast<frmBEDPLOT*>(screens.loaded("frmBEDPLOT"));
            ASSERT_TRUE(form);
            EXPECT_TRUE(form->isVisible());
            seen.push_back(form->page());
        };
    }
    ~BedplotTest() override { setDispatchDialogs(nullptr); }

    frmBEDPLOT* load() { return dynamic_cast<frmBEDPLOT*>(screens.load("frmBEDPLOT")); }

    TemporaryDirectory directory;
    Store store;
    WatchingDialogs dialogs;
    RecordingPrinter printer;
    QuietDesktop desktop{directory.path()};
    Screens screens{dialogs};
    Program program{store, screens, dialogs, printer, desktop};
    std::vector<Page> seen;  ///< the page behind each question
};

TEST_F(BedplotTest, AsksAfterEachPageAndPrintsThoseWanted) {
    directory.write("road.bed", damage);  // as another system may have named it
    store.NL = "\n";
    for (const Answer answer : {Answer::Yes, Answer::No, Answer::No, Answer::Yes})
        dialogs.expectBox(question, Buttons::YesNo, answer);
    const frmBEDPLOT* form = load();

    ASSERT_TRUE(form);
    EXPECT_TRUE(dialogs.finished());
    ASSERT_EQ(seen.size(), 4U);
    ASSERT_EQ(printer.pages.size(), 2U);
    EXPECT_EQ(textsOf(printer.pages[1])[1].text, textsOf(seen[3])[1].text) << "what is seen is printed";
    EXPECT_TRUE(form->page().ops.empty()) << "cleared";
    EXPECT_TRUE(form->isVisible()) << "the blank screen stays";
    EXPECT_EQ(store.NL, "\r\n");
    screens.unload("frmBEDPLOT");
    EXPECT_FALSE(screens.loaded("frmBEDPLOT"));
}

TEST_F(BedplotTest, MissingAndBadFilesLeaveABlankScreen) {
    store.FileName = directory.path() + "road.Dat";  // no stem: only ".BED" would do
    directory.write("road.BED", linearTandem);
    dialogs.expectBox("File not found");
    ASSERT_TRUE(load());
    EXPECT_TRUE(load()->page().ops.empty());
    screens.unload("frmBEDPLOT");

    store.FileName = "road.DAT";  // a bare name is one of the data directory
    directory.write("road.BED", std::string(linearTandem).substr(0, 60));
    dialogs.expectBox("Data error");
    ASSERT_TRUE(load());
    EXPECT_TRUE(load()->isVisible());
    screens.unload("frmBEDPLOT");

    // The design life of the last page cannot be shown: the pages before have gone.
    std::string lifeless = damage;
    lifeless.replace(lifeless.find("1.465201"), 8, "0");
    directory.write("road.BED", lifeless);
    seen.clear();
    for (int page = 1; page <= 3; ++page) dialogs.expectBox(question, Buttons::YesNo, Answer::No);
    dialogs.expectBox("Data error");
    ASSERT_TRUE(load());
    ASSERT_EQ(seen.size(), 4U);
    EXPECT_TRUE(seen.back().ops.empty()) << "the message is the only thing shown";
}

TEST_F(BedplotTest, APrinterThatFailsTakesNoPageWithIt) {
    directory.write("road.BED", combined);
    FailingPrinter failing;
    Program other{store, screens, dialogs, failing, desktop};
    screens.add("frmBEDPLOT", [&] { return std::make_unique<frmBEDPLOT>(other); });
    dialogs.expectBox(question, Buttons::YesNo, Answer::Yes);
    dialogs.expectBox("The file could not be written: paper");
    dialogs.expectBox(question, Buttons::YesNo, Answer::No);
    ASSERT_TRUE(load());
}

TEST_F(BedplotTest, ThePageFillsTheWindowAndItsLinesAreSharp) {
    directory.write("road.BED", linearTandem);
    dialogs.expectBox(question, Buttons::YesNo, Answer::No);
    dialogs.look = [&] {
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
    ASSERT_TRUE(load());
}

TEST(PlotScreen, StandsAboveTheMiddleOrWithItsMarginOffTheScreen) {
    const struct {
        int width, height, left, top;
    } cases[] = {{19200, 10800, 4193, 1375}, {10240, 10800, -1200, 1375}, {19200, 7680, 4193, -1200}};
    for (const auto& c : cases) {
        const auto corner = PlotScreen::cornerOn(c.width, c.height);
        EXPECT_EQ(corner.left, c.left) << c.width;
        EXPECT_EQ(corner.top, c.top) << c.height;
    }
}

}  // namespace
