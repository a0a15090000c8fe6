// General information, driven by keys and clicks.
#include <gmock/gmock.h>

#include "layered/layered_rules.h"
#include "support/layered_screens.h"

namespace {

struct Box {
    const char* name;
    Single LayeredSet::*field;
    const char* newFile;  ///< text of a new file
    const char* typed;    ///< another one, which passes the checks
    Single stored;
};

const Box boxes[] = {
    {"txtMatl", &LayeredSet::MATL, "1", "4", 4},         {"txtNdama", &LayeredSet::NDAMA, "0", "2", 2},
    {"txtNpy", &LayeredSet::NPY, "1", "12", 12},         {"txtNlg", &LayeredSet::NLG, "1", "12 groups", 12},
    {"txtDel", &LayeredSet::DEL, ".001", "5D-4", 5e-4F}, {"txtNl", &LayeredSet::NL, "3", "19", 19},
    {"txtNz", &LayeredSet::NZ, "0", "26", 26},           {"txtIcl", &LayeredSet::ICL, "80", "-1", -1},
    {"txtNstd", &LayeredSet::NSTD, "9", "5", 5},         {"txtNbond", &LayeredSet::NBOND, "1", "2", 2},
    {"txtNlbt", &LayeredSet::NLBT, "1", "abc", 0},       {"txtNltc", &LayeredSet::NLTC, "1", "3.5", 3.5F},
    {"txtNunit", &LayeredSet::NUNIT, "0", "1", 1},
};

class General1 : public LayeredScreens {
  protected:
    General1() {
        menu = screens.load("frmBEDFORM");
        choose(*menu, "mnuNew");
    }
    Form& general() {
        if (!screens.loaded("frmGeneral1")) click(*menu, "mnuGeneral");
        return *screens.loaded("frmGeneral1");
    }
    bool isOpen() const { return screens.loaded("frmGeneral1") != nullptr; }
    std::string text(const std::string& box) { return general().control<TextBox>(box).textValue(); }
    /// A form that passes: a title, and depths to compute.
    void fillWhatIsAsked() {
        type(general(), "txtTitle1", "Road 7");
        type(general(), "txtNz", "2");
    }
    const StatusLabel& label(const std::string& name) { return menu->control<StatusLabel>(name); }

    Form* menu;
    LayeredSet& set = store.layered[1];
};

TEST_F(General1, EveryBoxShowsItsFieldAndAClickEmptiesANumber) {
    for (const Box& box : boxes) {
        EXPECT_EQ(text(box.name), box.newFile) << box.name;
        click(general(), box.name);
        EXPECT_EQ(text(box.name), "") << box.name;
    }
    type(general(), "txtTitle1", "Kept");
    click(general(), "txtTitle1");
    EXPECT_EQ(text("txtTitle1"), "Kept");
    QTest::keyClicks(&general().control<TextBox>("txtTitle1"), QString(100, 'x'));
    EXPECT_EQ(text("txtTitle1").size(), 68U);
}

TEST_F(General1, ARefusalLeavesTheBoxesUpToItStoredAndTheFormOpen) {
    const struct {
        const char *box, *limit, *beyond, *message;
    } refusals[] = {
        {"txtNpy", "12", "13", "NPY should not be greater than 12."},
        {"txtNlg", "12", "12.5", "NLG should not be greater than 12."},
        {"txtNl", "19", "20", "NL should not be greater than 19."},
        {"txtNl", "-1", "0", "NL cannot be zero and should be specified."},
        {"txtNz", "-1", "0", "If NDAMA = 0, NZ should not be zero."},
        {"txtNstd", "1", "8", "NSTD should be equal to 1, 5, or 9"},
    };
    for (const auto& refusal : refusals) {
        SCOPED_TRACE(refusal.message);
        choose(*menu, "mnuNew");
        type(general(), "txtTitle1", "Road 7");
        for (const Box& box : boxes) type(general(), box.name, box.typed);
        type(general(), "txtNdama", "0");
        type(general(), refusal.box, refusal.beyond);
        dialogs.expectBox(refusal.message);
        click(general(), "cmdOk");
        EXPECT_TRUE(dialogs.finished());
        EXPECT_TRUE(isOpen());
        bool reached = true;
        for (const Box& box : boxes) {
            const std::string name = box.name;
            const Double stored = name == "txtNdama"    ? 0
                                  : name == refusal.box ? Val(refusal.beyond)
                                                        : Double{box.stored};
            EXPECT_EQ(set.*box.field, static_cast<Single>(reached ? stored : Val(box.newFile))) << name;
            if (name == refusal.box) reached = false;
        }
        EXPECT_EQ(label("lblZcoord").caption(), "default") << "no word changes before all has passed";
        type(general(), "txtNdama", "2");
        type(general(), refusal.box, refusal.limit);
        click(general(), "cmdOk");
        EXPECT_FALSE(isOpen());
        for (const Box& box : boxes)
            EXPECT_TRUE(set.*box.field == box.stored || box.name == std::string(refusal.box)) << box.name;
    }
}

TEST_F(General1, ATitleNeedsTextWithoutACommaAndIsStoredAllTheSame) {
    dialogs.expectBox("No comma should be used in TITLE");
    type(general(), "txtTitle1", "wet, cold");
    click(general(), "cmdOk");
    EXPECT_EQ(set.TITLE, "wet, cold");
    general().control<TextBox>("txtTitle1").setTextValue("");
    dialogs.expectBox("TITLE should not be left blank");
    click(general(), "cmdOk");
    EXPECT_EQ(set.TITLE, "");
    EXPECT_TRUE(isOpen());
}

TEST_F(General1, ClosedByItsFrameItStoresNothingButHasBeenVisited) {
    type(general(), "txtTitle1", "gone");
    general().close();
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(set.TITLE, "");
    EXPECT_EQ(label("lblGeneral").caption(), "done");
    EXPECT_EQ(store.TableKind, 102);
    EXPECT_EQ(store.GeneralVisits, 1);
}

TEST_F(General1, TheWordsOfTheMenuFollowAndADoneStays) {
    screens.done("frmBEDFORM", "lblInterface");
    fillWhatIsAsked();
    type(general(), "txtMatl", "2");
    type(general(), "txtNbond", "0");
    click(general(), "cmdOk");
    EXPECT_EQ(label("lblNonlinear").caption(), "input");
    EXPECT_EQ(label("lblInterface").caption(), "done");
    EXPECT_EQ(label("lblInterface").foreColor(), StatusLabel::red);
    EXPECT_EQ(label("lblDamage").foreColor(), StatusLabel::blue);
}

TEST_F(General1, UnitDefaultsComeOnceForANewFileOnly) {
    fillWhatIsAsked();
    type(general(), "txtNunit", "1");
    click(general(), "cmdOk");
    EXPECT_EQ(set.VISLAY[1].TEMPREF, Variant(21.1));
    type(general(), "txtNunit", "0");
    click(general(), "cmdOk");
    EXPECT_EQ(set.VISLAY[1].TEMPREF, Variant(21.1)) << "second visit";

    choose(*menu, "mnuNew");
    store.NewFile = 0;
    set.VISLAY[1].TEMPREF = 50;
    fillWhatIsAsked();
    click(general(), "cmdOk");
    EXPECT_EQ(set.VISLAY[1].TEMPREF, Variant(50)) << "an old file";
}

TEST_F(General1, KeepsTheDataSetOfItsLoad) {
    click(*menu, "optDataSet2");
    fillWhatIsAsked();
    dialogs.expectBox("You forgot to enter the layer thickness by clicking the Layer menu.");
    click(*menu, "cmdSave");  // makes data set 1 the current one
    ASSERT_EQ(store.CurLayDS, 1);
    click(general(), "cmdOk");
    EXPECT_EQ(store.layered[2].TITLE, "Road 7");
    EXPECT_EQ(set.TITLE, "");
    click(*menu, "optDataSet2");
    EXPECT_EQ(store.CurLayDS, 2) << "a click leads back";
}

}  // namespace
