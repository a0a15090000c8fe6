// The forms behind the main menu of slab input: values, menus of the second level,
// and the board of slabs. What else they lead to is seen by the journeys.
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
        }
    }
}

TEST_F(SlabForms, SolidFoundationNeedsBothValues) {
    Form& form = load("frmSolid");
    EXPECT_EQ(lbl("lblFoundation"), "done!");
    type(form, "txtYms", "7500");
    dialogs.expectBox("None of the entries should be 0");
    click(form, "cmdOk");
    EXPECT_TRUE(dialogs.finished());
    EXPECT_EQ(set.YMS, Variant(7500));
}

TEST_F(SlabForms, TheModulusOfDowelsIsNotEmptiedByAClick) {
    Form& form = load("frmDowel");
    auto& modulus = form.control<TextBox>("txtYmsb");
    click(modulus);
    QTest::keyClick(&modulus, Qt::Key_End);
    QTest::keyClicks(&modulus, "0");
    click(form, "cmdOk");
    EXPECT_EQ(set.YMSB, Variant(2.9e8));
}

TEST_F(SlabForms, OptionalMenusOpenTheListsThatHaveACount) {
    const struct {
        const char *label, *count, *selected;
        void (*setCount)(SlabSet& s);
    } rows[] = {
        {"lblNat1", "NAT1", "212: 4 x 3", [](SlabSet& s) { s.NAT1 = 4; }},
        {"lblNat2", "NAT2", "213: 4 x 3", [](SlabSet& s) { s.NAT2 = 4; }},
        {"lblNotcon", "NOTCON", "214: 4 x 2", [](SlabSet& s) { s.NOTCON = 4.0; }},
        {"lblNprint", "NPRINT", "215: 4 x 2", [](SlabSet& s) { s.NPRINT = 4; }},
        {"lblNsx", "NSX", "216: 4 x 2", [](SlabSet& s) { s.NSX = 4; }},
        {"lblNsy", "NSY", "217: 4 x 2", [](SlabSet& s) { s.NSY = 4; }},
        {"lblNgap", "NGAP", "218: 4 x 3", [](SlabSet& s) { s.NGAP = 4.0; }},
        {"lblDowel", "NJOINT", nullptr, [](SlabSet& s) { s.NJOINT = 4; }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.count);
        Form& without = load("frmOptional");
        EXPECT_EQ(word("frmOptional", row.label), "default");
        dialogs.expectBox("You don't have to click this menu because " + std::string(row.count) + " = 0");
        click(without, row.label);
        EXPECT_TRUE(dialogs.finished());

        row.setCount(set);
        Form& form = load("frmOptional");
        EXPECT_EQ(word("frmOptional", row.label), row.selected ? "input!" : "default");
        store.CurSlabDS = 2;  // chosen on the main menu meanwhile: this form stays with its own
        click(form, row.label);
        EXPECT_EQ(store.CurSlabDS, 1);
        if (row.selected)
            EXPECT_EQ(opened("frmspreadb"), row.selected);
        else
            EXPECT_TRUE(isOpen("frmDowel"));
    }
}

TEST_F(SlabForms, TheBoardHasAButtonPerSlab) {
    set.NSLAB = 2;
    set.SLAB[2].NX = 4;
    set.SLAB[2].NY = 5;
    Form& data = load("frmSlabData");
    EXPECT_EQ(data.caption(), "Slab Information for Data Set No 1");
    for (const auto& [label, caption, table] :
         {std::tuple("lblXcoord", "X Coordinates of Each Slab for Data Set No.  1", "206: 4 x 2"),
          {"lblYcoord", "Y Coordinates of Each Slab for Data Set No.  1", "207: 5 x 2"}}) {
        click(data, label);
        Form& board = *screens.loaded("frmSlabs");
        EXPECT_EQ(board.caption(), caption);
        EXPECT_EQ(board.control<Button>("cmdSlab2").caption(), "Slab&2");
        EXPECT_EQ(board.control<Button>("cmdSlab3").caption(), "");
        EXPECT_EQ(word("frmSlabs", "lblSlab2"), "Input!") << "anew at every opening";
        click(board, "cmdSlab2");
        EXPECT_EQ(opened("frmspreadb"), table);
        screens.done("frmSlabs", "lblSlab2");
    }
    set.SLAB[3].NY = 4;
    dialogs.expectBox("NX or NY for slab 3 in the 'Arrange' menu is 0");
    click(*screens.loaded("frmSlabs"), "cmdSlab3");
    click(data, "cmdOK");
    EXPECT_EQ(lbl("lblSlab"), "done!");
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
