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

const struct {
    const char *form, *menu, *opens;
    int cols, lines;  ///< shared selectors of the table; 0: none
} entries[] = {
    {"frmNonlin", "mnuGeneral", "frmGenNon", 0, 0},      {"frmNonlin", "mnuRelaxation", "frmspreadb", 2, 4},
    {"frmNonlin", "mnuNonseasonal", "frmSpread1", 4, 2}, {"frmNonlin", "mnuSeasonal", "frmLayer", 0, 0},
    {"frmVisco", "mnuGeneral", "frmGenvis", 0, 0},       {"frmVisco", "mnuDuration", "frmspreadb", 2, 8},
    {"frmVisco", "mnuLayer", "frmSpread2", 4, 3},        {"frmVisco", "mnuCreep", "frmLayer", 0, 0},
    {"frmVisco", "mnuTemperature", "frmPeriod", 0, 0},   {"frmDamage1", "mnuBottom", "frmSpread2", 5, 5},
    {"frmDamage1", "mnuTop", "frmSpread2", 4, 6},        {"frmDamage1", "mnuVolume", "frmPeriod", 0, 0},
};

TEST_F(DataMenus, EntriesOpenWhatTheyStandForInTheDataSetOfTheirMenu) {
    for (const auto& [name, menu, opens, cols, lines] : entries) {
        SCOPED_TRACE(std::string(name) + " " + menu);
        Form& form = *screens.load(name);
        store.CurLayDS = 1;  // another screen has changed it meanwhile
        store.CurGroup = 3;
        store.CurTopRow = 9;
        click(form, menu);
        EXPECT_NE(screens.loaded(opens), nullptr);
        EXPECT_EQ(store.CurLayDS, 2);
        const bool main = opens == std::string("frmSpread1");
        if (lines) {
            EXPECT_EQ(main ? store.MainCols : store.GridCols, cols);
            EXPECT_EQ(main ? store.MainLines : store.TblLines, lines);
        }
        if (main) {
            EXPECT_EQ(store.CurGroup, 0) << "starts at its first line";
            EXPECT_EQ(store.CurTopRow, 1);
        }
        screens.unload(opens);
        screens.unload(name);
    }
    screens.load("frmNonlin");
    EXPECT_EQ(label("frmNonlin", "lblRelaxation").caption(), "default");
    EXPECT_EQ(label("frmNonlin", "lblSeasonal").caption(), "input");
    EXPECT_EQ(screens.load("frmDamage1")->caption(), "Damage Analysis for Data Set N0. 2");
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
