// General information, driven by keys and clicks.
#include <gmock/gmock.h>

#include "layered/layered_rules.h"
#include "support/layered_screens.h"

namespace {

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
    std::string shown;
    for (const char* box : {"txtMatl", "txtNdama", "txtNpy", "txtNlg", "txtDel", "txtNl", "txtNz", "txtIcl",
                            "txtNstd", "txtNbond", "txtNlbt", "txtNltc", "txtNunit"}) {
        shown += text(box) + " ";
        click(general(), box);
        EXPECT_EQ(text(box), "") << box;
    }
    EXPECT_EQ(shown, "1 0 1 1 .001 3 0 80 9 1 1 1 0 ");
    type(general(), "txtTitle1", "Kept");
    type(general(), "txtTitle1", std::string(100, 'x'));
    EXPECT_EQ(text("txtTitle1"), "Kept" + std::string(64, 'x'));
}

TEST_F(General1, ARefusalLeavesTheBoxesUpToItStoredAndTheFormOpen) {
    const struct {
        const char* box;
        Single LayeredSet::*field;
        const char *limit, *beyond, *message;
    } refusals[] = {
        {"txtNpy", &LayeredSet::NPY, "12", "13", "NPY should not be greater than 12."},
        {"txtNlg", &LayeredSet::NLG, "12 groups", "12.5", "NLG should not be greater than 12."},
        {"txtNl", &LayeredSet::NL, "19", "20", "NL should not be greater than 19."},
        {"txtNl", &LayeredSet::NL, "-1", "abc", "NL cannot be zero and should be specified."},
        {"txtNz", &LayeredSet::NZ, "26", "0", "If NDAMA = 0, NZ should not be zero."},
        {"txtNstd", &LayeredSet::NSTD, "5", "8", "NSTD should be equal to 1, 5, or 9"},
    };
    for (const auto& refusal : refusals) {
        SCOPED_TRACE(refusal.message);
        choose(*menu, "mnuNew");
        fillWhatIsAsked();
        type(general(), "txtMatl", "4");
        type(general(), refusal.box, refusal.beyond);
        type(general(), "txtNunit", "1");
        dialogs.expectBox(refusal.message);
        click(general(), "cmdOk");
        EXPECT_TRUE(dialogs.finished());
        EXPECT_TRUE(isOpen());
        EXPECT_EQ(set.MATL, 4);
        EXPECT_EQ(set.*refusal.field, static_cast<Single>(Val(refusal.beyond)));
        EXPECT_EQ(set.NUNIT, 0);
        EXPECT_EQ(label("lblNonlinear").caption(), "default") << "no word changes before all has passed";
        type(general(), refusal.box, refusal.limit);
        click(general(), "cmdOk");
        EXPECT_FALSE(isOpen());
        EXPECT_EQ(set.*refusal.field, static_cast<Single>(Val(refusal.limit)));
        EXPECT_EQ(set.NUNIT, 1);
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
    EXPECT_EQ(store.GeneralVisits, 1);
}

TEST_F(General1, TheWordsOfTheMenuFollowAndADoneStays) {
    screens.done("frmBEDFORM", "lblInterface");
    fillWhatIsAsked();
    for (const auto& [box, text] : {std::pair("txtMatl", "2"), {"txtNbond", "0"}, {"txtNlbt", "4"}})
        type(general(), box, text);
    click(general(), "cmdOk");
    EXPECT_EQ(label("lblNonlinear").caption(), "input");
    EXPECT_EQ(label("lblZcoord").caption(), "input");
    EXPECT_EQ(label("lblInterface").caption(), "done");
    EXPECT_EQ(label("lblInterface").foreColor(), StatusLabel::red);
    EXPECT_EQ(label("lblDamage").foreColor(), StatusLabel::blue);
    EXPECT_EQ(set.NLBT, 4);
    EXPECT_EQ(set.NLTC, 1);
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
