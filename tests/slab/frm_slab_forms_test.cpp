// The forms behind the main menu of slab input: values, menus of the second level,
// and the board of slabs.
#include "support/slab_screens.h"

namespace {

class SlabForms : public SlabScreens {
  protected:
    SlabForms() { screens.load("frmPANFORM"); }

    /// What the shared selectors say of the table that came up, which is closed again.
    std::string opened(const std::string& table) {
        EXPECT_TRUE(isOpen(table));
        screens.unload(table);
        return std::to_string(store.TableKind) + ": " + std::to_string(store.TblLines) + " x " +
               std::to_string(store.GridCols);
    }
    std::string lbl(const std::string& label) { return word("frmPANFORM", label); }
};

TEST_F(SlabForms, CurlingStoresTenValuesAndAsksForListsAgain) {
    set.NFOUND = 2;
    set.NJOINT = 1;
    Form& form = load("frmCurling");
    EXPECT_EQ(lbl("lblCurling"), "done");
    screens.done("frmPANFORM", "lblJoint");
    screens.done("frmPANFORM", "lblOptional");
    const struct {
        const char *box, *text;
        Variant SlabSet::*field;
    } rows[] = {{"txtNotCon", "5", &SlabSet::NOTCON}, {"txtNgap", "0", &SlabSet::NGAP},
                {"txtInput", "2", &SlabSet::INPUT},   {"txtNtemp", "3", &SlabSet::NTEMP},
                {"txtNwt", "4", &SlabSet::NWT},       {"txtNcycle", "10", &SlabSet::NCYCLE},
                {"txtTemp", "-12.5", &SlabSet::TEMP}, {"txtCt", "5E-6", &SlabSet::CT},
                {"txtDel", ".01", &SlabSet::DEL},     {"txtFmax", "6", &SlabSet::FMAX}};
    for (const auto& row : rows) type(form, row.box, row.text);
    dialogs.expectBox("When NFOUND > 0 and NCYCLE > 1, NOTCON should always be 0.");
    click(form, "cmdOk");
    EXPECT_TRUE(isOpen("frmCurling"));
    EXPECT_EQ(lbl("lblJoint"), "done");
    for (const auto& row : rows)
        EXPECT_EQ((set.*row.field).number(), ToDouble(row.text)) << "stored all the same";

    set.NFOUND = 0;
    set.TC = 2;
    for (const auto& [NOTCON, NGAP] : {std::pair("5", "0"), {"0", "5"}}) {
        screens.done("frmPANFORM", "lblOptional");
        Form& again = load("frmCurling");
        type(again, "txtNotCon", NOTCON);
        type(again, "txtNgap", NGAP);
        click(again, "cmdOk");
        EXPECT_FALSE(isOpen("frmCurling"));
        EXPECT_EQ(lbl("lblJoint") + lbl("lblOptional"), "input!input!");
    }
    EXPECT_EQ(set.TC, 2) << "the status is not this form's";
}

TEST_F(SlabForms, CaptionsFollowTheUnits) {
    const struct {
        const char *form, *label, *english, *si;
    } rows[] = {{"frmCurling", "lblTemp", "bottom in F ", "bottom in C "},
                {"frmCurling", "lblCt", "per F ", "per C "},
                {"frmCurling", "lblFmax", "in in. ", "in cm "},
                {"frmSolid", "lblYms", "in psi ", "in kPa "},
                {"frmDowel", "lblYmsb", "in psi ", "in kPa "}};
    for (const auto& row : rows) {
        for (const bool si : {false, true}) {
            set.NUNIT = si ? 2 : 0;
            load(row.form);
            EXPECT_NE(caption(row.form, row.label).find(si ? row.si : row.english), std::string::npos);
            screens.unload(row.form);
        }
    }
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

TEST_F(SlabForms, MenusOfTheSecondLevelSelectTheirTables) {
    const struct {
        const char *form, *control, *table, *selected;
        void (*set)(SlabSet& s);
    } rows[] = {
        {"frmOptional", "lblNat1", "frmspreadb", "212: 4 x 3", [](SlabSet& s) { s.NAT1 = 4; }},
        {"frmOptional", "lblNat2", "frmspreadb", "213: 4 x 3", [](SlabSet& s) { s.NAT2 = 4; }},
        {"frmOptional", "lblNotcon", "frmspreadb", "214: 4 x 2", [](SlabSet& s) { s.NOTCON = 4.0; }},
        {"frmOptional", "lblNprint", "frmspreadb", "215: 4 x 2", [](SlabSet& s) { s.NPRINT = 4; }},
        {"frmOptional", "lblNsx", "frmspreadb", "216: 4 x 2", [](SlabSet& s) { s.NSX = 4; }},
        {"frmOptional", "lblNsy", "frmspreadb", "217: 4 x 2", [](SlabSet& s) { s.NSY = 4; }},
        {"frmOptional", "lblNgap", "frmspreadb", "218: 4 x 3", [](SlabSet& s) { s.NGAP = 4.0; }},
        {"frmSlabData", "mnuArrangement", "frmSpread2", "203: 1 x 3", [](SlabSet&) {}},
        {"frmSlabData", "lblArrange", "frmSpread2", "203: 2 x 7", [](SlabSet& s) { s.NSLAB = 2; }},
        {"frmSlabData", "mnuProperties", "frmSpread3", "208: 1 x 4", [](SlabSet&) {}},
        {"frmSlabData", "lblProperties", "frmSpread3", "208: 2 x 5",
         [](SlabSet& s) { s.NLAYER = 2, s.NWT = 1; }},
        {"frmDamage", "mnuFatigue", "frmSpread3", "205: 1 x 2", [](SlabSet& s) { s.NDAMA = 1; }},
        {"frmDamage", "lblFatigue", "frmSpread3", "205: 2 x 4", [](SlabSet& s) { s.NDAMA = s.NLAYER = 2; }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.selected);
        screens.unload(row.form);
        set = singleSlabStore()->slab[1];
        row.set(set);
        Form& form = load(row.form);
        const bool isList = form.name() == "frmOptional";
        EXPECT_EQ(isList ? word("frmOptional", row.control) : "input!", "input!");
        store.CurSlabDS = 2;  // chosen on the main menu meanwhile: this form stays with its own
        click(form, row.control);
        EXPECT_EQ(store.CurSlabDS, 1);
        EXPECT_EQ(opened(row.table), row.selected);
    }
}

TEST_F(SlabForms, OptionalMenusRefuseWhereTheirCountIsZero) {
    Form& form = load("frmOptional");
    EXPECT_EQ(form.caption(), "Other Optional Information for Data Set No.  1");
    for (const auto& [label, count] : {std::pair("lblNat1", "NAT1"),
                                       {"lblNat2", "NAT2"},
                                       {"lblNotcon", "NOTCON"},
                                       {"lblNprint", "NPRINT"},
                                       {"lblNsx", "NSX"},
                                       {"lblNsy", "NSY"},
                                       {"lblNgap", "NGAP"},
                                       {"lblDowel", "NJOINT"}}) {
        EXPECT_EQ(word("frmOptional", label), "default");
        dialogs.expectBox("You don't have to click this menu because " + std::string(count) + " = 0");
        click(form, label);
        EXPECT_TRUE(dialogs.finished());
    }
    set.NJOINT = 1;
    click(form, "mnuDowel");
    EXPECT_TRUE(isOpen("frmDowel"));
    click(form, "cmdOk");
    EXPECT_EQ(lbl("lblOptional"), "done");
}

TEST_F(SlabForms, TheBoardHasAButtonPerSlab) {
    set.NSLAB = 2;
    set.SLAB[2].NX = 4;
    set.SLAB[2].NY = 5;
    Form& data = load("frmSlabData");
    EXPECT_EQ(data.caption(), "Slab Information for Data Set No 1");
    click(data, "mnuXcoordinate");
    Form* board = screens.loaded("frmSlabs");
    ASSERT_NE(board, nullptr);
    EXPECT_EQ(board->caption(), "X Coordinates of Each Slab for Data Set No.  1");
    EXPECT_EQ(board->control<Button>("cmdSlab2").caption(), "Slab&2");
    EXPECT_EQ(word("frmSlabs", "lblSlab2"), "Input!");
    EXPECT_EQ(board->control<Button>("cmdSlab3").caption() + caption("frmSlabs", "lblSlab3"), "");
    set.SLAB[3].NX = 4;
    dialogs.expectBox("NX or NY for slab 3 in the 'Arrange' menu is 0");
    click(*board, "cmdSlab3");
    click(*board, "cmdSlab2");
    EXPECT_EQ(store.CurSlab, 2);
    EXPECT_EQ(opened("frmspreadb"), "206: 4 x 2");

    click(data, "lblYcoord");
    board = screens.loaded("frmSlabs");
    EXPECT_EQ(board->caption(), "Y Coordinates of Each Slab for Data Set No.  1");
    click(*board, "cmdSlab2");
    EXPECT_EQ(opened("frmspreadb"), "207: 5 x 2");
    screens.done("frmSlabs", "lblSlab2");
    click(*board, "cmdOk");
    EXPECT_EQ(word("frmSlabData", "lblYcoord") + word("frmSlabData", "lblXcoord"), "done!input!");
    click(data, "mnuXcoordinate");
    EXPECT_EQ(word("frmSlabs", "lblSlab2"), "Input!") << "anew at every opening";
    click(data, "cmdOK");
    EXPECT_EQ(lbl("lblSlab"), "done!");
}

TEST_F(SlabForms, DamageLeadsToTheTrafficOfEachPeriod) {
    set.NDAMA = 1;
    set.NPY = 3;
    Form& form = load("frmDamage");
    EXPECT_EQ(form.caption(), "Damage Analysis for Data Set N0. 1");
    click(form, "mnuVolume");
    Form& board = load("frmPeriod");
    click(board, "cmdPeriod3");
    EXPECT_EQ(opened("frmspreadb"), "225: 1 x 2");
    EXPECT_EQ(store.CurPeriod, 3);
    click(board, "cmdOk");
    EXPECT_EQ(word("frmDamage", "lblVolume"), "done!");
    click(form, "cmdOk");
    EXPECT_EQ(lbl("lblDamage"), "done");
}

TEST_F(SlabForms, AnotherDataSetBringsAFormUpAnew) {
    store.slab[2] = set;
    for (const char* name :
         {"frmCurling", "frmSlabData", "frmSolid", "frmOptional", "frmDowel", "frmDamage"}) {
        store.CurSlabDS = 1;
        load(name);
        store.CurSlabDS = 2;
        EXPECT_TRUE(load(name).caption().ends_with("2")) << name;
    }
}

}  // namespace
