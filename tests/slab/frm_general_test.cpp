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
    void open() {
        screens.unload("frmGeneral");
        form = screens.load("frmGeneral");
    }
    /// OK, which closes the form unless it refuses with a message.
    void ok(const std::string& message = "") {
        if (!message.empty()) dialogs.expectBox(message);
        click(*form, "cmdOk");
        EXPECT_TRUE(dialogs.finished()) << message;
        EXPECT_EQ(isOpen("frmGeneral"), !message.empty()) << message;
    }
    void typeAll(const std::vector<std::pair<const char*, const char*>>& boxes) {
        for (const auto& [box, text] : boxes) type(*form, box, text);
    }
    std::string lbl(const std::string& label) { return word("frmPANFORM", label); }

    Form* form;
};

TEST_F(SlabGeneral, AVisitSaysDoneAndAClickEmptiesANumber) {
    EXPECT_EQ(form->caption(), "General Information of PANFORM for Set No.  1");
    EXPECT_EQ(lbl("lblGeneral"), "done!") << "in its old colour";
    EXPECT_EQ(form->control<TextBox>("txtTitle").maxLength(), 68);
    for (const auto& [box, text] : {std::pair("TxtNat1", ""), {"txtTitle", "Single slab"}}) {
        click(*form, box);
        EXPECT_EQ(form->control<TextBox>(box).textValue(), text);
    }
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
    constexpr int first = -6;  // so NPRINT is the 3 that damage asks for
    for (int value = first; const auto& [box, field] : boxes) type(*form, box, std::to_string(value++));
    ok();
    for (int value = first; const auto& [box, field] : boxes) EXPECT_EQ(set.*field, value++) << box;
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
        {{{"txtNpy", "12"}, {"txtNlg", "12"}, {"txtNslab", "6"}, {"txtNbond", "1"}, {"txtNlayer", "2"}}, ""},
        {{{"txtNjoint", "8"}, {"txtNat2", "3"}}, "NLG should not be greater than 7"},
    };
    for (const auto& row : rows) {
        set = singleSlabStore()->slab[1];
        open();
        typeAll(row.typed);
        ok(row.message);
    }
    EXPECT_EQ(set.NJOINT, 8);
    EXPECT_EQ(set.NAT2, 3) << "all boxes are stored before a limit is tested";

    type(*form, "txtNjoint", "7");
    form->control<TextBox>("txtTitle").setTextValue("");
    ok("TITLE should not be left blank.");
    EXPECT_EQ(set.NJOINT, 8) << "no box is read after a refused title";
}

TEST_F(SlabGeneral, NumbersAreRoundedToSixteenBits) {
    typeAll({{"txtNfound", "2.5"}, {"txtNpy", "3.5"}, {"txtNlg", "32767.5"}, {"txtNlayer", "2"}});
    ok("Overflow");
    EXPECT_EQ(set.NFOUND, 2) << "half to even";
    EXPECT_EQ(set.NPY, 4);
    EXPECT_EQ(set.NLG, 1);
    EXPECT_EQ(set.NLAYER, 1) << "behind the overflow nothing is stored";
}

TEST_F(SlabGeneral, WordsChangeBeforeTheDamageTestRefuses) {
    for (const char* label : {"lblJoint", "lblDamage", "lblUniform"}) screens.done("frmPANFORM", label);
    typeAll({{"txtNdama", "1"}, {"txtNjoint", "2"}, {"txtNpy", "4"}, {"txtNsx", "3"}});
    ok("Damage analysis is limited to edge loading involving only one slab symmetry with respect to y axis, "
       "as shown in Example PAN4.  NPRINT must be equal to 3 and NSY to the number of nodes on the y axis of "
       "symmetry");
    EXPECT_EQ(lbl("lblJoint") + lbl("lblAdjust") + lbl("lblOptional") + lbl("lblDamage"),
              "done!input!input!done");
    EXPECT_EQ(lbl("lblUniform"), "input!") << "a done is overwritten there";
    typeAll({{"txtNprint", "3"}, {"txtNsy", "9"}});
    ok();
    EXPECT_EQ(lbl("lblDamage"), "done!");
}

TEST_F(SlabGeneral, RoundButtonsStoreAtOnce) {
    store.CurSlabDS = 2;  // a copy whose status nobody has decided: opening the form decides it
    open();
    SlabSet& copy = store.slab[2];
    EXPECT_EQ(copy.UL.text() + numberText(copy.TC) + copy.CL.text(), "111");
    for (const char* option : {"optNUL", "optNTC", "optNCL"}) click(*form, option);
    EXPECT_EQ(copy.UL.text() + numberText(copy.TC) + copy.CL.text(), "222");
    open();
    EXPECT_TRUE(form->control<OptionButton>("optNTC").value());
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
