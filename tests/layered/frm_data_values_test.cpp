// The forms of single values behind the menus of nonlinear and viscoelastic data,
// driven by clicks and keys. What each box stores is seen by the journeys.
#include <gmock/gmock.h>

#include "layered/layered_rules.h"
#include "support/layered_screens.h"

namespace {

constexpr int line = 3;

class DataValues : public LayeredScreens {
  protected:
    DataValues() {
        setNewFileDefaults(set);
        set.NOLLAY[line].LAYNO = 4;
        set.NOLAY = 5;
        store.CurLayDS = 1;
        screens.load("frmBEDFORM");
        store.CurLayDS = 2;
        screens.load("frmNonlin");
        screens.load("frmVisco");
        select();
    }
    void select() {
        store.TableKind = 111;
        store.CurLayDS = 2;
        store.CurGroup = line;
        store.CurTopRow = 2;
        store.MainLines = 5;
    }
    Form& open(const std::string& form) {
        select();
        return *screens.load(form);
    }
    std::string word(const std::string& form, const std::string& label) {
        return screens.loaded(form)->control<StatusLabel>(label).caption();
    }
    LayeredSet& set = store.layered[2];
};

TEST_F(DataValues, ValuesGoToTheDataSetOfTheLoad) {
    set.YCNOL = .25;
    Form& form = open("frmGenNon");
    EXPECT_EQ(form.control<TextBox>("txtYcnol").textValue(), ".25");
    type(form, "txtYcnol", "5D0 times");
    store.CurLayDS = 1;  // another screen has changed it meanwhile
    click(form, "cmdOK");
    EXPECT_EQ(screens.loaded("frmGenNon"), nullptr);
    EXPECT_EQ(set.YCNOL, Variant(5));
}

TEST_F(DataValues, LabelsGoByTheUnitsOfTheDataSet) {
    const auto caption = [&](const char* form, const char* label) {
        const std::string all = open(form).control<Label>(label).caption();
        screens.unload(form);
        return QString::fromStdString(all).simplified().toStdString();
    };
    for (const Single NUNIT : {0.F, 1.F, 2.F}) {
        set.NUNIT = NUNIT;
        const std::string in = NUNIT == 0 ? "in." : "cm", psi = NUNIT == 0 ? "psi" : "kPa";
        EXPECT_EQ(caption("frmGenNon", "lblYcnol"),
                  "Y coordinate for nonlinear analysis in " + in + " (YPTNOL)");
        EXPECT_EQ(caption("frmClay", "lblK2"), "Deviator stress at break point for clay in " + psi + " (K2)");
    }
    EXPECT_EQ(open("frmClay").caption(),
              "Nonseasonal Input Parameters for Layer No. 4 (Clay) and Data Set No. 2");
}

TEST_F(DataValues, TooManyLayersAreRefusedWithWhatCameBeforeThemStored) {
    const struct {
        const char *form, *box, *message, *before, *behind;
    } cases[] = {{"frmGenNon", "txtNolay", "NOLAY should not be greater than 12.", nullptr, "txtItenol"},
                 {"frmGenvis", "txtNvl", "NVL should not be greater than 12.", "txtDur", "txtNtyme"}};
    for (const auto& c : cases) {
        Form& form = open(c.form);
        if (c.before) type(form, c.before, "7");
        type(form, c.box, "13");
        type(form, c.behind, "5");
        dialogs.expectBox(c.message);
        click(form, "cmdOK");
        EXPECT_TRUE(dialogs.finished());
        EXPECT_NE(screens.loaded(c.form), nullptr);
        type(form, c.box, "12");
        form.close();
    }
    EXPECT_EQ(set.NOLAY, Variant(13));
    EXPECT_EQ(set.NVL, Variant(13));
    EXPECT_EQ(set.DUR, Variant(7));
    EXPECT_EQ(set.ITENOL, Variant(15));
    EXPECT_EQ(set.NTYME, Variant(11));
    EXPECT_EQ(word("frmVisco", "lblGeneral"), "input");
}

TEST_F(DataValues, GeneralFormsTellTheirMenus) {
    store.TableKind = 109;
    screens.load("frmGenNon")->close();
    EXPECT_EQ(store.TableKind, 102);
    EXPECT_EQ(word("frmNonlin", "lblGeneral"), "done") << "on entering";
    EXPECT_EQ(word("frmBEDFORM", "lblNonlinear"), "default");
    click(open("frmGenNon"), "cmdOK");
    EXPECT_EQ(word("frmBEDFORM", "lblNonlinear"), "done");

    for (const auto& [NTYME, expected] : {std::pair("8", "input"), std::pair("11", "default")}) {
        type(open("frmGenvis"), "txtNtyme", NTYME);
        screens.done("frmVisco", "lblDuration");
        click(*screens.loaded("frmGenvis"), "cmdOK");
        EXPECT_EQ(word("frmVisco", "lblDuration"), expected);
        EXPECT_EQ(word("frmVisco", "lblGeneral"), "done");
    }
}

TEST_F(DataValues, ConstantsLeadBackToTheirTable) {
    for (const char* name : {"frmGranular", "frmClay"}) {
        SCOPED_TRACE(name);
        Form& form = open(name);
        set.NOLAY = 3;  // meanwhile, by another form
        store.TableKind = store.CurLayDS = 1;
        store.CurGroup = store.CurTopRow = store.MainLines = store.MainCols = 0;
        click(form, "cmdOK");
        ASSERT_NE(screens.loaded("frmSpread1"), nullptr);
        screens.unload("frmSpread1");
        EXPECT_EQ(store.TableKind, 111);
        EXPECT_EQ(store.CurLayDS, 2);
        EXPECT_EQ(store.CurGroup, line);
        EXPECT_EQ(store.CurTopRow, 2);
        EXPECT_EQ(store.MainCols, 4);
        // The lines of the table rule after a granular layer, those of the store after a clay.
        const int lines = name == std::string("frmGranular") ? 5 : 3;
        EXPECT_EQ(store.MainLines, lines);
        EXPECT_EQ(set.NOLAY, Variant(lines));
    }
}

TEST_F(DataValues, AClayOfANewFileGetsItsBreakPointBackAtEveryVisit) {
    const struct {
        int NewFile;
        Single NUNIT;
        const char* shown;
    } cases[] = {{1, 0, "6.2"}, {1, 1, "42.75"}, {0, 1, "5"}};
    for (const auto& c : cases) {
        store.NewFile = static_cast<Integer>(c.NewFile);
        set.NUNIT = c.NUNIT;
        set.KCLAY[line].K2 = 5;
        Form& form = open("frmClay");
        EXPECT_EQ(form.control<TextBox>("txtK2").textValue(), c.shown);
        EXPECT_EQ(set.KCLAY[line].K2, Variant(Val(c.shown))) << "at load, not at OK";
        form.close();
    }
}

TEST_F(DataValues, ALineBeyondTheStoreIsShownAsZerosAndDropped) {
    const LayeredSet before = set;
    for (const char* name : {"frmGranular", "frmClay"}) {
        select();
        store.CurGroup = 13;
        store.MainLines = 13;
        Form& form = *screens.load(name);
        EXPECT_EQ(form.control<TextBox>("txtK0").textValue(), "0");
        type(form, "txtK0", "3");
        click(form, "cmdOK");
        screens.unload("frmSpread1");
    }
    for (int n = 0; n <= 12; ++n) {
        EXPECT_EQ(set.KGRAN[n].K0, before.KGRAN[n].K0);
        EXPECT_EQ(set.KCLAY[n].K0, before.KCLAY[n].K0);
    }
}

}  // namespace
