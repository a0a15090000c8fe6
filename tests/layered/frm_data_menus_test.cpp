// The menus of nonlinear, viscoelastic and damage data, driven by clicks.
#include <gmock/gmock.h>

#include "layered/layered_rules.h"
#include "support/layered_screens.h"

namespace {

class DataMenus : public LayeredScreens {
  protected:
    DataMenus() {
        for (int n : {1, 2}) setNewFileDefaults(store.layered[n]);
        store.CurLayDS = 2;
        set.NPY = 4;
        set.NOLAY = 2;
        set.NVL = 3;
        set.NTYME = 8;
        set.NLBT = 5;
        set.NLTC = 6;
        set.VISLAY[1].TEMPREF = 70;
        screens.load("frmBEDFORM");
        store.CurLayDS = 2;
    }
    StatusLabel& label(const std::string& form, const std::string& name) {
        return screens.loaded(form)->control<StatusLabel>(name);
    }
    LayeredSet& set = store.layered[2];
};

/// What opens is seen by the journeys.
TEST_F(DataMenus, EntriesStandForTheDataSetOfTheirMenu) {
    for (const auto& [name, menu] :
         {std::pair("frmNonlin", "mnuNonseasonal"), {"frmVisco", "mnuLayer"}, {"frmDamage1", "mnuVolume"}}) {
        Form& form = *screens.load(name);
        store.CurLayDS = 1;  // another screen has changed it meanwhile
        store.CurGroup = 3;
        store.CurTopRow = 9;
        click(form, menu);
        EXPECT_EQ(store.CurLayDS, 2) << menu;
    }
    EXPECT_EQ(store.CurGroup, 3) << "other tables leave it";
    click(*screens.loaded("frmNonlin"), "mnuNonseasonal");
    EXPECT_EQ(store.CurGroup, 0) << "starts at its first line";
    EXPECT_EQ(store.CurTopRow, 1);
    EXPECT_EQ(store.MainLines, 2);
    EXPECT_EQ(label("frmNonlin", "lblRelaxation").caption(), "default");
    EXPECT_EQ(label("frmNonlin", "lblSeasonal").caption(), "input");
    EXPECT_EQ(screens.loaded("frmDamage1")->caption(), "Damage Analysis for Data Set N0. 2");
}

TEST_F(DataMenus, DamageWithoutLocationsNeedsNoTable) {
    set.NLBT = set.NLTC = 0;
    Form& form = *screens.load("frmDamage1");
    store.TableKind = 7;
    for (const auto& [menu, count] : {std::pair("mnuBottom", "NLBT"), {"lblTop", "NLTC"}}) {
        dialogs.expectBox(std::string("No input is required because ") + count + " = 0");
        click(form, menu);
        EXPECT_TRUE(dialogs.finished());
    }
    EXPECT_EQ(screens.loaded("frmSpread2"), nullptr);
    EXPECT_EQ(store.TableKind, 7);
}

TEST_F(DataMenus, TheWordsOfViscoelasticDataFollowTheirRules) {
    const struct {
        Variant NTYME, TEMPREF;
        const char *times, *temperatures;
    } cases[] =
        {
            {11, 70, "default", "default"},   {11., 21.1, "default", "default"},
            {8, "21.1", "input", "default"},  {12, " 70 ", "input", "default"},
            {11, 21.1F, "default", "input"},  // a Single beside 21.1 is another number
            {11, "warm", "default", "input"},
        };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.NTYME.text() + ", " + c.TEMPREF.text());
        set.NTYME = c.NTYME;
        set.VISLAY[1].TEMPREF = c.TEMPREF;
        screens.load("frmVisco");
        EXPECT_EQ(label("frmVisco", "lblDuration").caption(), c.times);
        EXPECT_EQ(label("frmVisco", "lbltemperature").caption(), c.temperatures);
    }
}

TEST_F(DataMenus, AnotherDataSetBringsTheMenuUpAnew) {
    Form* menu = screens.loaded("frmBEDFORM");
    store.DataLoaded = 1;
    store.NPROB = 2;
    store.layered[1].MATL = set.MATL = 2;
    for (int n : {2, 1}) {
        click(*menu, "optDataSet" + std::to_string(n));
        click(*menu, "mnuNonlinear");
        EXPECT_EQ(screens.loaded("frmNonlin")->caption(),
                  "Nonlinear Layers Menu for Data Set No.  " + std::to_string(n));
    }
}

}  // namespace
