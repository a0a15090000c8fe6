// The menus of nonlinear, viscoelastic and damage data and the forms of single values behind them, driven by
// clicks and keys. What opens and what each box stores is seen by the journeys.
#include <gmock/gmock.h>

#include "layered/layered_rules.h"
#include "support/layered_screens.h"

namespace {

constexpr int line = 3;

class LayeredData : public LayeredScreens {
  protected:
    LayeredData() {
        setNewFileDefaults(set);
        set.NOLLAY[line].LAYNO = 4;
        set.NOLAY = 5;
        store.CurLayDS = 1;
        screens.load("frmBEDFORM");
        for (const char* menu : {"frmNonlin", "frmVisco", "frmDamage1"}) open(menu);
    }
    /// As from the table of nonlinear layers of data set 2.
    Form& open(const std::string& form) {
        store.TableKind = 111;
        store.CurLayDS = 2;
        store.CurGroup = line;
        store.CurTopRow = 2;
        store.MainLines = 5;
        return *screens.load(form);
    }
    /// Another screen has used the shared selectors meanwhile.
    void disturb() {
        store.TableKind = store.CurLayDS = 1;
        store.CurGroup = store.CurTopRow = store.MainLines = store.MainCols = 7;
    }
    /// "kind of set: lines x columns, line, first visible line"
    std::string mainTable() const {
        std::ostringstream text;
        text << store.TableKind << " of " << store.CurLayDS << ": " << store.MainLines << "x"
             << store.MainCols << ", " << store.CurGroup << ", " << store.CurTopRow;
        return text.str();
    }
    std::string word(const std::string& form, const std::string& label) {
        return screens.loaded(form)->control<StatusLabel>(label).caption();
    }
    LayeredSet& set = store.layered[2];
};

TEST_F(LayeredData, EntriesStandForTheDataSetOfTheirMenu) {
    for (const auto& [name, menu] :
         {std::pair("frmVisco", "mnuLayer"), {"frmDamage1", "mnuVolume"}, {"frmNonlin", "mnuNonseasonal"}}) {
        disturb();
        click(*screens.loaded(name), menu);
        EXPECT_EQ(store.CurLayDS, 2) << menu;
    }
    EXPECT_EQ(mainTable(), "111 of 2: 5x4, 0, 1") << "starts at its first line";
    EXPECT_EQ(screens.loaded("frmDamage1")->caption(), "Damage Analysis for Data Set N0. 2");
    store.CurLayDS = 1;
    EXPECT_EQ(screens.load("frmDamage1")->caption(), "Damage Analysis for Data Set N0. 1");
}

TEST_F(LayeredData, DamageWithoutLocationsNeedsNoTable) {
    const struct {
        const char* menu;
        Single LayeredSet::*count;
        const char* name;
    } cases[] = {{"mnuBottom", &LayeredSet::NLBT, "NLBT"}, {"lblTop", &LayeredSet::NLTC, "NLTC"}};
    for (const auto& c : cases) {
        set.NLBT = set.NLTC = 1;
        set.*c.count = 0;
        dialogs.expectBox(std::string("No input is required because ") + c.name + " = 0");
        click(*screens.loaded("frmDamage1"), c.menu);
        EXPECT_TRUE(dialogs.finished());
        EXPECT_EQ(screens.loaded("frmSpread2"), nullptr);
    }
}

TEST_F(LayeredData, TheWordsOfViscoelasticDataFollowTheirRules) {
    const struct {
        Variant NTYME, TEMPREF;
        const char* words;
    } cases[] = {{11, 70, "default default"},   {11., 21.1, "default default"},
                 {8, "21.1", "input default"},  {12, " 70 ", "input default"},
                 {11, "warm", "default input"}, {11, 21.1F, "default input"}};  // a Single is not 21.1
    for (const auto& c : cases) {
        set.NTYME = c.NTYME;
        set.VISLAY[1].TEMPREF = c.TEMPREF;
        open("frmVisco");
        EXPECT_EQ(word("frmVisco", "lblDuration") + " " + word("frmVisco", "lbltemperature"), c.words)
            << c.NTYME.text() << ", " << c.TEMPREF.text();
    }
}

TEST_F(LayeredData, CaptionsGoByTheUnitsOfTheDataSet) {
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

TEST_F(LayeredData, TooManyLayersAreRefusedWithWhatCameBeforeThemStored) {
    const struct {
        const char *form, *box, *message, *before, *behind;
    } cases[] = {{"frmGenNon", "txtNolay", "NOLAY should not be greater than 12.", nullptr, "txtItenol"},
                 {"frmGenvis", "txtNvl", "NVL should not be greater than 12.", "txtDur", "txtNtyme"}};
    for (const auto& c : cases) {
        Form& form = open(c.form);
        if (c.before) type(form, c.before, "7");
        type(form, c.box, "13");
        type(form, c.behind, "5");
        disturb();
        dialogs.expectBox(c.message);
        click(form, "cmdOK");
        EXPECT_EQ(screens.loaded(c.form), &form);
        form.close();
    }
    EXPECT_THAT((std::vector{set.NOLAY, set.NVL, set.DUR}), testing::ElementsAre(13, 13, 7));
    EXPECT_THAT((std::vector{set.ITENOL, set.NTYME}), testing::ElementsAre(15, 11)) << "defaults";
    EXPECT_EQ(word("frmVisco", "lblGeneral"), "input");
}

TEST_F(LayeredData, GeneralFormsTellTheirMenus) {
    open("frmGenNon");
    EXPECT_EQ(store.TableKind, 102);
    EXPECT_EQ(word("frmNonlin", "lblGeneral"), "done") << "on entering";
    EXPECT_EQ(word("frmBEDFORM", "lblNonlinear"), "default");
    click(*screens.loaded("frmGenNon"), "cmdOK");
    EXPECT_EQ(word("frmBEDFORM", "lblNonlinear"), "done");

    for (const auto& [NTYME, expected] : {std::pair("8", "input"), std::pair("11", "default")}) {
        type(open("frmGenvis"), "txtNtyme", NTYME);
        screens.done("frmVisco", "lblDuration");
        click(*screens.loaded("frmGenvis"), "cmdOK");
        EXPECT_EQ(word("frmVisco", "lblDuration"), expected);
    }
}

TEST_F(LayeredData, ConstantsLeadBackToTheirTable) {
    // The lines of the table rule after a granular layer, those of the store after a clay.
    for (const auto& [name, lines] : {std::pair("frmGranular", 5), {"frmClay", 3}}) {
        Form& form = open(name);
        set.NOLAY = 3;  // meanwhile, by another form
        disturb();
        click(form, "cmdOK");
        EXPECT_NE(screens.loaded("frmSpread1"), nullptr) << name;
        screens.unload("frmSpread1");
        EXPECT_EQ(mainTable(), "111 of 2: " + std::to_string(lines) + "x4, 3, 2");
        EXPECT_EQ(set.NOLAY, Variant(lines));
    }
}

TEST_F(LayeredData, AClayOfANewFileGetsItsBreakPointBackAtEveryVisit) {
    const struct {
        Integer NewFile;
        Single NUNIT;
        const char* shown;
    } cases[] = {{1, 0, "6.2"}, {1, 1, "42.75"}, {0, 1, "5"}};
    for (const auto& c : cases) {
        store.NewFile = c.NewFile;
        set.NUNIT = c.NUNIT;
        set.KCLAY[line].K2 = 5;
        EXPECT_EQ(open("frmClay").control<TextBox>("txtK2").textValue(), c.shown);
        EXPECT_EQ(set.KCLAY[line].K2, Variant(Val(c.shown))) << "at load, not at OK";
    }
}

TEST_F(LayeredData, ALineBeyondTheStoreIsShownAsZerosAndDropped) {
    for (const char* name : {"frmGranular", "frmClay"}) {
        store.CurGroup = store.MainLines = 13;
        Form& form = *screens.load(name);
        EXPECT_EQ(form.control<TextBox>("txtK0").textValue(), "0");
        type(form, "txtK0", "3");
        click(form, "cmdOK");
        screens.unload("frmSpread1");
    }
    EXPECT_EQ(set.KGRAN[12].K0, Variant(.6));
    EXPECT_EQ(set.KCLAY[12].K0, Variant(.8));
}

}  // namespace
