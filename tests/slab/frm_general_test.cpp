// General information of slabs: what is stored in which order, and which words
// follow.
#include "support/slab_screens.h"

namespace {

class SlabGeneral : public SlabScreens {
  protected:
    SlabGeneral() {
        screens.load("frmPANFORM");
        open();
    }
    void open() { form = screens.load("frmGeneral"); }
    void ok() { click(*form, "cmdOk"); }
    void refused(const char* message) {
        dialogs.expectBox(message);
        ok();
        EXPECT_TRUE(dialogs.finished() && isOpen("frmGeneral")) << message;
    }
    void accepted() {
        ok();
        EXPECT_FALSE(isOpen("frmGeneral"));
    }
    std::string lbl(const std::string& label) { return word("frmPANFORM", label); }

    Form* form;
};

TEST_F(SlabGeneral, ShowsTheStoreAndSaysDoneOnEntering) {
    EXPECT_EQ(form->caption(), "General Information of PANFORM for Set No.  1");
    EXPECT_EQ(lbl("lblGeneral"), "done!") << "in its old colour";
    EXPECT_EQ(store.GeneralOpens, 1);
    EXPECT_EQ(store.TableKind, 2);
    EXPECT_EQ(form->control<TextBox>("txtNnck").textValue(), "1");
    EXPECT_EQ(form->control<TextBox>("txtTitle").maxLength(), 68);
    click(*form, "TxtNat1");
    EXPECT_EQ(form->control<TextBox>("TxtNat1").textValue(), "");
    click(*form, "txtTitle");
    EXPECT_EQ(form->control<TextBox>("txtTitle").textValue(), "Single slab");
    form->close();
    EXPECT_EQ(set.NAT1, 0);
}

TEST_F(SlabGeneral, EveryBoxGoesToItsField) {
    const std::pair<const char*, Integer SlabSet::*> boxes[] = {
        {"txtNfound", &SlabSet::NFOUND}, {"txtNdama", &SlabSet::NDAMA},   {"txtNpy", &SlabSet::NPY},
        {"txtNlg", &SlabSet::NLG},       {"txtNlayer", &SlabSet::NLAYER}, {"txtNbond", &SlabSet::NBOND},
        {"txtNslab", &SlabSet::NSLAB},   {"txtNjoint", &SlabSet::NJOINT}, {"txtNnck", &SlabSet::NNCK},
        {"txtNprint", &SlabSet::NPRINT}, {"txtNsx", &SlabSet::NSX},       {"txtNsy", &SlabSet::NSY},
        {"txtMdpo", &SlabSet::MDPO},     {"txtNunit", &SlabSet::NUNIT},   {"TxtNat1", &SlabSet::NAT1},
        {"txtNat2", &SlabSet::NAT2},
    };
    int value = -2;
    for (const auto& [box, field] : boxes) type(*form, box, std::to_string(value--));
    type(*form, "txtNdama", "0");
    accepted();
    EXPECT_EQ(set.NDAMA, 0);
    set.NDAMA = -3;
    value = -2;
    for (const auto& [box, field] : boxes) EXPECT_EQ(set.*field, value--) << box;
}

TEST_F(SlabGeneral, RefusalsStayWithWhatIsStored) {
    const struct {
        std::vector<std::pair<const char*, const char*>> typed;
        const char* message;
    } rows[] = {
        {{{"txtTitle", ", wet"}, {"txtNpy", "2"}}, "No comma should be used in TITLE"},
        {{{"txtNpy", "13"}, {"txtNlg", "14"}}, "NPY should not be greater than 12"},
        {{{"txtNlg", "13"}, {"txtNslab", "8"}}, "NLG should not be greater than 12"},
        {{{"txtNbond", "1"}, {"txtNlayer", "1"}}, "When NLAYER = 1, NBOND should always be 0"},
        {{{"txtNslab", "7"}, {"txtNjoint", "8"}}, "NSLAB should not be greater than 6"},
        {{{"txtNjoint", "8"}, {"txtNat2", "3"}}, "NLG should not be greater than 7"},
    };
    for (const auto& row : rows) {
        screens.unload("frmGeneral");
        set = singleSlabStore()->slab[1];
        open();
        for (const auto& [box, text] : row.typed) type(*form, box, text);
        refused(row.message);
    }
    EXPECT_EQ(set.NJOINT, 8);
    EXPECT_EQ(set.NAT2, 3) << "all boxes are stored before a limit is tested";

    type(*form, "txtNjoint", "7");
    form->control<TextBox>("txtTitle").setTextValue("");
    refused("TITLE should not be left blank.");
    EXPECT_EQ(set.NJOINT, 8) << "no box is read after a refused title";
    form->control<TextBox>("txtTitle").setTextValue(std::string(67, 'x') + ";");
    for (const auto& [box, most] : {std::pair("txtNpy", "12"),
                                    {"txtNlg", "12"},
                                    {"txtNslab", "6"},
                                    {"txtNbond", "1"},
                                    {"txtNlayer", "2"}})
        type(*form, box, most);
    accepted();
}

TEST_F(SlabGeneral, NumbersAreRoundedToSixteenBits) {
    type(*form, "txtNfound", "2.5");
    type(*form, "txtNpy", "3.5");
    type(*form, "txtNlg", "32767.5");
    type(*form, "txtNlayer", "2");
    refused("Overflow");
    EXPECT_EQ(set.NFOUND, 2);
    EXPECT_EQ(set.NPY, 4);
    EXPECT_EQ(set.NLG, 1);
    EXPECT_EQ(set.NLAYER, 1) << "behind the overflow nothing is stored";
}

TEST_F(SlabGeneral, WordsChangeBeforeTheDamageTestRefuses) {
    for (const char* label : {"lblJoint", "lblDamage", "lblUniform"}) screens.done("frmPANFORM", label);
    for (const auto& [box, text] :
         {std::pair("txtNdama", "1"), {"txtNjoint", "2"}, {"txtNpy", "4"}, {"txtNsx", "3"}})
        type(*form, box, text);
    refused(
        "Damage analysis is limited to edge loading involving only one slab symmetry with respect to y axis, "
        "as shown in Example PAN4.  NPRINT must be equal to 3 and NSY to the number of nodes on the y axis "
        "of "
        "symmetry");
    EXPECT_EQ(lbl("lblJoint") + lbl("lblAdjust") + lbl("lblOptional") + lbl("lblDamage"),
              "done!input!input!done");
    EXPECT_EQ(lbl("lblUniform"), "input!") << "a done is overwritten there";
    type(*form, "txtNprint", "3");
    type(*form, "txtNsy", "9");
    accepted();
    EXPECT_EQ(lbl("lblDamage"), "done!");
}

TEST_F(SlabGeneral, RoundButtonsStoreAtOnce) {
    screens.unload("frmGeneral");
    store.CurSlabDS = 2;  // a copy whose status nobody has decided: opening the form decides it
    open();
    SlabSet& copy = store.slab[2];
    EXPECT_EQ(copy.UL.text() + numberText(copy.TC) + copy.CL.text(), "111");
    for (const char* option : {"optNUL", "optNTC", "optNCL"}) click(*form, option);
    EXPECT_EQ(copy.UL.text() + numberText(copy.TC) + copy.CL.text(), "222");
    form->close();
    open();
    EXPECT_TRUE(form->control<OptionButton>("optNTC").value());
    EXPECT_FALSE(form->control<OptionButton>("optWTC").value());
    click(*form, "optWTC");
    form->control<TextBox>("txtTitle").setTextValue("Second");
    ok();
    EXPECT_EQ(lbl("lblUniform") + " " + lbl("lblCurling") + " " + lbl("lblRaft"), "default input! default");
}

TEST_F(SlabGeneral, UnitDefaultsComeOnceAndOnlyInANewFile) {
    const struct {
        int NewFile;
        Integer opens;
        const char* CT;
    } rows[] = {{1, 0, ".000009"}, {1, 1, "7"}, {0, 0, "7"}};
    for (const auto& row : rows) {
        screens.unload("frmGeneral");
        store.NewFile = row.NewFile;
        store.GeneralOpens = row.opens;
        set.CT = 7;
        open();
        type(*form, "txtNunit", "1");
        ok();
        EXPECT_EQ(set.CT.text(), row.CT);
    }
}

}  // namespace
