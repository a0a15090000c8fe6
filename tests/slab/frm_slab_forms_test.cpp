// The forms behind the main menu of slab input: values, menus of the second level,
// and the board of slabs.
#include "support/slab_screens.h"
#include "text/pages.h"

namespace {

class SlabForms : public SlabScreens {
  protected:
    SlabForms() { screens.load("frmPANFORM"); }

    Form& load(const std::string& name) { return *screens.load(name); }
    bool isOpen(const std::string& name) { return screens.loaded(name) != nullptr; }
    std::string lbl(const std::string& label) { return word("frmPANFORM", label); }
};

TEST_F(SlabForms, CurlingStoresTenValuesAndAsksForListsAgain) {
    set.NFOUND = 2;
    set.NJOINT = 1;
    Form& form = load("frmCurling");
    EXPECT_EQ(lbl("lblCurling"), "done");
    EXPECT_EQ(caption("frmCurling", "lblFmax"),
              "Maximum allowable deflection in in.                                                        "
              "(FMAX)");
    screens.done("frmPANFORM", "lblJoint");
    screens.done("frmPANFORM", "lblOptional");
    const char* boxes[] = {"txtNotCon", "txtNgap", "txtInput", "txtNtemp", "txtNwt",
                           "txtNcycle", "txtTemp", "txtCt",    "txtDel",   "txtFmax"};
    const char* texts[] = {"5", "0", "1", "1", "1", "10", "-12.5", "5E-6", ".01", "2"};
    for (std::size_t i = 0; i < std::size(boxes); ++i) type(form, boxes[i], texts[i]);
    dialogs.expectBox("When NFOUND > 0 and NCYCLE > 1, NOTCON should always be 0.");
    click(form, "cmdOk");
    EXPECT_TRUE(isOpen("frmCurling"));
    EXPECT_EQ(lbl("lblJoint"), "done");
    EXPECT_EQ(set.FMAX, Variant(2)) << "stored all the same";
    EXPECT_EQ(set.TEMP, Variant(-12.5));
    EXPECT_EQ(set.CT, Variant(5e-6));

    set.NFOUND = 0;
    set.TC = 2;
    click(form, "cmdOk");
    EXPECT_FALSE(isOpen("frmCurling"));
    EXPECT_EQ(lbl("lblJoint") + lbl("lblOptional"), "input!input!");
    EXPECT_EQ(set.TC, 2) << "the status is not this form's";
}

TEST_F(SlabForms, CaptionsFollowTheUnits) {
    set.NUNIT = 2;
    load("frmCurling");
    load("frmSolid");
    load("frmDowel");
    EXPECT_NE(caption("frmCurling", "lblTemp").find("bottom in C "), std::string::npos);
    EXPECT_NE(caption("frmCurling", "lblCt").find("per C "), std::string::npos);
    EXPECT_NE(caption("frmCurling", "lblFmax").find("in cm "), std::string::npos);
    EXPECT_NE(caption("frmSolid", "lblYms").find("in kPa "), std::string::npos);
    EXPECT_NE(caption("frmDowel", "lblYmsb").find("in kPa "), std::string::npos);
}

TEST_F(SlabForms, SolidFoundationNeedsBothValues) {
    Form& form = load("frmSolid");
    EXPECT_EQ(lbl("lblFoundation"), "done!");
    type(form, "txtYms", "7500");
    dialogs.expectBox("None of the entries should be 0");
    click(form, "cmdOk");
    EXPECT_EQ(set.YMS, Variant(7500));
    type(form, "txtPrs", ".45");
    click(form, "cmdOk");
    EXPECT_FALSE(isOpen("frmSolid"));
    EXPECT_EQ(set.PRS, Variant(.45));
}

TEST_F(SlabForms, OnlyOneBoxOfTheDowelsIsEmptiedByAClick) {
    set.NJOINT = 1;
    load("frmOptional");
    Form& form = load("frmDowel");
    type(form, "txtPrsb", ".25");
    QTest::mouseClick(&form.control<TextBox>("txtYmsb"), Qt::LeftButton);
    QTest::keyClick(&form.control<TextBox>("txtYmsb"), Qt::Key_End);
    QTest::keyClicks(&form.control<TextBox>("txtYmsb"), "0");
    click(form, "cmdOk");
    EXPECT_EQ(set.PRSB, Variant(.25));
    EXPECT_EQ(set.YMSB, Variant(2.9e8));
    EXPECT_EQ(word("frmOptional", "lblDowel"), "done");
}

TEST_F(SlabForms, OptionalListsAskWhereTheirCountIsNotZero) {
    const struct {
        const char *menu, *label, *count;
        void (*set)(SlabSet& s);
        int TableKind, cols;
    } rows[] = {
        {"mnuNat1", "lblNat1", "NAT1", [](SlabSet& s) { s.NAT1 = 4; }, 212, 3},
        {"mnuNat2", "lblNat2", "NAT2", [](SlabSet& s) { s.NAT2 = 4; }, 213, 3},
        {"mnuNotcon", "lblNotcon", "NOTCON", [](SlabSet& s) { s.NOTCON = 4.0; }, 214, 2},
        {"mnuNprint", "lblNprint", "NPRINT", [](SlabSet& s) { s.NPRINT = 4; }, 215, 2},
        {"mnuNsx", "lblNsx", "NSX", [](SlabSet& s) { s.NSX = 4; }, 216, 2},
        {"mnuNsy", "lblNsy", "NSY", [](SlabSet& s) { s.NSY = 4; }, 217, 2},
        {"mnuNgap", "lblNgap", "NGAP", [](SlabSet& s) { s.NGAP = 4.0; }, 218, 3},
    };
    Form* form = &load("frmOptional");
    EXPECT_EQ(form->caption(), "Other Optional Information for Data Set No.  1");
    for (const auto& row : rows) {
        EXPECT_EQ(word("frmOptional", row.label), "default");
        dialogs.expectBox("You don't have to click this menu because " + std::string(row.count) + " = 0");
        click(*form, row.menu);
    }
    dialogs.expectBox("You don't have to click this menu because NJOINT = 0");
    click(*form, "lblDowel");
    EXPECT_TRUE(dialogs.finished());
    for (const auto& row : rows) {
        SCOPED_TRACE(row.menu);
        screens.unload("frmOptional");
        set = singleSlabStore()->slab[1];
        row.set(set);
        form = &load("frmOptional");
        EXPECT_EQ(word("frmOptional", row.label), "input!");
        store.CurSlabDS = 2;  // chosen on the main menu meanwhile: this form stays with its own
        click(*form, row.label);
        EXPECT_EQ(store.CurSlabDS, 1);
        EXPECT_EQ(store.TableKind, row.TableKind);
        EXPECT_EQ(store.TblLines, 4);
        EXPECT_EQ(store.GridCols, row.cols);
        EXPECT_TRUE(isOpen("frmspreadb"));
        screens.unload("frmspreadb");
    }
    set.NJOINT = 1;
    click(*form, "mnuDowel");
    EXPECT_TRUE(isOpen("frmDowel"));
    click(*form, "cmdOk");
    EXPECT_EQ(lbl("lblOptional"), "done");
}

TEST_F(SlabForms, SlabDataTakesItsTablesShapeFromTheLeft) {
    Form& form = load("frmSlabData");
    EXPECT_EQ(form.caption(), "Slab Information for Data Set No 1");
    const struct {
        Integer NSLAB, NLAYER;
        Variant NWT;
        const char *menu, *table;
        int TableKind, lines, cols;
    } rows[] = {
        {1, 1, 0, "mnuArrangement", "frmSpread2", 203, 1, 3},
        {2, 1, 0, "lblArrange", "frmSpread2", 203, 2, 7},
        {2, 1, 0, "mnuProperties", "frmSpread3", 208, 1, 4},
        {2, 2, 1.0, "lblProperties", "frmSpread3", 208, 2, 5},
    };
    for (const auto& row : rows) {
        set.NSLAB = row.NSLAB;
        set.NLAYER = row.NLAYER;
        set.NWT = row.NWT;
        click(form, row.menu);
        EXPECT_TRUE(isOpen(row.table));
        EXPECT_EQ(store.TableKind, row.TableKind);
        EXPECT_EQ(store.TblLines, row.lines);
        EXPECT_EQ(store.GridCols, row.cols);
        screens.unload(row.table);
    }
    click(form, "cmdOK");
    EXPECT_EQ(lbl("lblSlab"), "done!");
}

TEST_F(SlabForms, TheBoardHasAButtonPerSlab) {
    set.NSLAB = 2;
    set.SLAB[2].NX = 4;
    set.SLAB[2].NY = 5;
    Form& data = load("frmSlabData");
    click(data, "mnuXcoordinate");
    Form* board = screens.loaded("frmSlabs");
    ASSERT_NE(board, nullptr);
    EXPECT_EQ(board->caption(), "X Coordinates of Each Slab for Data Set No.  1");
    EXPECT_EQ(board->control<Button>("cmdSlab2").caption(), "Slab&2");
    EXPECT_EQ(word("frmSlabs", "lblSlab2"), "Input!");
    EXPECT_EQ(board->control<Button>("cmdSlab3").caption() + caption("frmSlabs", "lblSlab3"), "");
    dialogs.expectBox("NX or NY for slab 3 in the 'Arrange' menu is 0");
    click(*board, "cmdSlab3");
    click(*board, "cmdSlab2");
    EXPECT_EQ(store.CurSlab, 2);
    EXPECT_EQ(store.TblLines, 4);
    EXPECT_EQ(store.TableKind, 206);
    screens.unload("frmspreadb");

    click(data, "lblYcoord");
    board = screens.loaded("frmSlabs");
    EXPECT_EQ(board->caption(), "Y Coordinates of Each Slab for Data Set No.  1");
    click(*board, "cmdSlab2");
    EXPECT_EQ(store.TblLines, 5);
    EXPECT_EQ(store.TableKind, 207);
    screens.done("frmSlabs", "lblSlab2");
    click(*board, "cmdOk");
    EXPECT_EQ(word("frmSlabData", "lblYcoord") + word("frmSlabData", "lblXcoord"), "done!input!");
    click(data, "mnuXcoordinate");
    EXPECT_EQ(word("frmSlabs", "lblSlab2"), "Input!") << "anew at every opening";
}

TEST_F(SlabForms, DamageAsksForWhatItsCriterionNeeds) {
    set.NDAMA = 1;
    set.NPY = 3;
    Form& form = load("frmDamage");
    EXPECT_EQ(form.caption(), "Damage Analysis for Data Set N0. 1");
    click(form, "mnuFatigue");
    EXPECT_EQ(store.TableKind, 205);
    EXPECT_EQ(store.GridCols, 2);
    screens.unload("frmSpread3");
    set.NDAMA = set.NLAYER = 2;
    click(form, "lblFatigue");
    EXPECT_EQ(store.TblLines, 2);
    EXPECT_EQ(store.GridCols, 4);
    click(form, "mnuVolume");
    Form* board = screens.loaded("frmPeriod");
    ASSERT_NE(board, nullptr);
    click(*board, "cmdPeriod3");
    EXPECT_EQ(store.TableKind, 225);
    EXPECT_EQ(store.CurPeriod, 3);
    click(*board, "cmdOk");
    EXPECT_EQ(word("frmDamage", "lblVolume"), "done!");
    click(form, "cmdOk");
    EXPECT_EQ(lbl("lblDamage"), "done");
}

}  // namespace
