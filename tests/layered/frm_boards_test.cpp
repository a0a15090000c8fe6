// The boards of periods and layers.
#include <gmock/gmock.h>

#include "support/layered_screens.h"

namespace {

class Boards : public LayeredScreens {
  protected:
    Boards() {
        store.CurLayDS = 2;
        store.CurSlabDS = 1;
        set.NPY = 3;
        set.NL = 4;
        set.NLG = 5;
        set.NOLAY = 2;
        set.NVL = 2;
        set.NTYME = 11;
        set.NOLLAY[1] = {.LAYNO = 4, .ZCNOL = 0, .NCLAY = 0};
        set.NOLLAY[2] = {.LAYNO = "12", .ZCNOL = 0, .NCLAY = "1"};
        set.VISLAY[2].LNV = 3;
        store.slab[1].NPY = 2;
        store.slab[1].NLG = 7;
    }
    Form& board(int TableKind, const std::string& name) {
        store.TableKind = TableKind;
        screens.load(name);
        return *screens.loaded(name);
    }
    /// Another screen has used the shared selectors meanwhile.
    void disturb() {
        store.TableKind = 1;
        store.CurLayDS = store.CurSlabDS = 0;
        store.TblLines = store.GridCols = 0;
    }
    LayeredSet& set = store.layered[2];
};

const struct {
    int TableKind;
    const char* form;
    int live;
    const char* word;
    int lines, cols;
} boardCases[] = {
    {106, "frmPeriod", 3, "input", 4, 2}, {119, "frmPeriod", 3, "default", 2, 2},
    {123, "frmPeriod", 3, "input", 5, 2}, {225, "frmPeriod", 2, "input", 7, 2},
    {118, "frmLayer", 2, "input", 11, 2}, {112, "frmLayer", 2, "input", 3, 3},
};

TEST_F(Boards, ServeTheirKindsByWhatTheyKnewAtTheirLoad) {
    for (const auto& c : boardCases) {
        SCOPED_TRACE(c.TableKind);
        const std::string thing = std::string(c.form).substr(3);
        store.CurLayDS = 2;
        store.CurSlabDS = 1;
        Form& form = board(c.TableKind, c.form);
        for (int n = 1; n <= 12; ++n) {
            const std::string number = std::to_string(n);
            EXPECT_EQ(form.control<Label>("lbl" + thing + number).caption(), n <= c.live ? c.word : "") << n;
            EXPECT_EQ(form.control<Button>("cmd" + thing + number).caption().empty(), n > c.live) << n;
        }
        disturb();
        const int last = c.TableKind == 112 ? 1 : c.live;  // the second layer is a clay
        click(form, "cmd" + thing + std::to_string(last));
        EXPECT_EQ(store.TableKind, c.TableKind);
        EXPECT_EQ(store.TblLines, c.lines);
        EXPECT_EQ(store.GridCols, c.cols);
        EXPECT_EQ(c.TableKind == 225 ? store.CurSlabDS : store.CurLayDS, c.TableKind == 225 ? 1 : 2);
        EXPECT_EQ(thing == "Period" ? store.CurPeriod : store.CurLayer, last);
        EXPECT_NE(screens.loaded("frmspreadb"), nullptr);
        screens.unload("frmspreadb");
        click(form, "cmdOk");
        EXPECT_EQ(screens.loaded(c.form), nullptr);
    }
}

TEST_F(Boards, CaptionsTellPeriodsAndLayers) {
    set.NPY = 13;  // a refused count may still be in the store
    Form& periods = board(106, "frmPeriod");
    EXPECT_EQ(periods.control<Button>("cmdPeriod1").caption(), "Period&1");
    EXPECT_EQ(periods.control<Button>("cmdPeriod12").caption(), "Perio&d12");
    Form& layers = board(112, "frmLayer");
    EXPECT_EQ(layers.control<Button>("cmdLayer1").caption(), "&1  Layer 4");
    EXPECT_EQ(layers.control<Button>("cmdLayer2").caption(), "&2  Layer 12");
    EXPECT_EQ(board(118, "frmLayer").control<Button>("cmdLayer2").caption(), "&2  Layer 3");
}

TEST_F(Boards, ALineInsertedInOneTableIsThereInTheNext) {
    Form& form = board(106, "frmPeriod");
    set.NL = 5;  // stored by the table of a period
    click(form, "cmdPeriod2");
    EXPECT_EQ(store.TblLines, 5);
}

TEST_F(Boards, ANewVisitForgetsTheWordsAndMayBeForAnotherKind) {
    board(106, "frmPeriod").control<StatusLabel>("lblPeriod1").done();
    EXPECT_EQ(board(106, "frmPeriod").control<Label>("lblPeriod1").caption(), "input");
    EXPECT_EQ(board(119, "frmPeriod").control<Label>("lblPeriod1").caption(), "default");
}

TEST_F(Boards, SeasonalTablesDependOnTheLayerAndTheFile) {
    Form& form = board(112, "frmLayer");
    store.NewFile = 1;
    click(form, "cmdLayer2");
    EXPECT_EQ(store.GridCols, 2);
    store.NewFile = 0;  // the types of clay of an old file are known
    click(form, "cmdLayer2");
    EXPECT_EQ(store.GridCols, 4);
    EXPECT_NE(screens.loaded("frmSpread2"), nullptr);
    set.NOLLAY[2].NCLAY = "";  // the nonseasonal table was never confirmed
    dialogs.expectBox("Type mismatch");
    click(form, "cmdLayer2");
}

}  // namespace
