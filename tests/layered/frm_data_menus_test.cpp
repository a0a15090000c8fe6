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

struct EntryCase {
    const char *form, *menu, *label, *word;
    const char* opens;
    int TableKind, cols, lines;  ///< shared selectors then; 0: not looked at
};

const EntryCase entryCases[] = {
    {"frmNonlin", "mnuGeneral", "lblGeneral", "input", "frmGenNon", 102, 0, 0},
    {"frmNonlin", "mnuRelaxation", "lblRelaxation", "default", "frmspreadb", 110, 2, 4},
    {"frmNonlin", "mnuNonseasonal", "lblNonseasonal", "input", "frmSpread1", 111, 4, 2},
    {"frmNonlin", "mnuSeasonal", "lblSeasonal", "input", "frmLayer", 112, 0, 0},
    {"frmVisco", "mnuGeneral", "lblGeneral", "input", "frmGenvis", 0, 0, 0},
    {"frmVisco", "mnuDuration", "lblDuration", "input", "frmspreadb", 116, 2, 8},
    {"frmVisco", "mnuLayer", "lblLayer", "input", "frmSpread2", 117, 4, 3},
    {"frmVisco", "mnuCreep", "lblCreep", "input", "frmLayer", 118, 0, 0},
    {"frmVisco", "mnuTemperature", "lbltemperature", "default", "frmPeriod", 119, 0, 0},
    {"frmDamage1", "mnuBottom", "lblBottom", "input", "frmSpread2", 121, 5, 5},
    {"frmDamage1", "mnuTop", "lblTop", "input", "frmSpread2", 122, 4, 6},
    {"frmDamage1", "mnuVolume", "lblVolume", "input", "frmPeriod", 123, 0, 0},
};

TEST_F(DataMenus, EntriesAndTheirWordsOpenWhatTheyStandFor) {
    for (const EntryCase& c : entryCases) {
        for (const char* control : {c.menu, c.label}) {
            SCOPED_TRACE(std::string(c.form) + " " + control);
            store.CurLayDS = 2;
            Form& form = *screens.load(c.form);
            EXPECT_EQ(label(c.form, c.label).caption(), c.word);
            EXPECT_EQ(label(c.form, c.label).foreColor(),
                      c.word == std::string("input") ? StatusLabel::red : StatusLabel::blue);
            store.CurLayDS = 1;  // another screen has changed it meanwhile
            store.CurGroup = 3;
            store.CurTopRow = 9;
            click(form, control);
            EXPECT_NE(screens.loaded(c.opens), nullptr);
            EXPECT_EQ(store.CurLayDS, 2);
            if (c.TableKind) {
                EXPECT_EQ(store.TableKind, c.TableKind);
            }
            const bool main = c.opens == std::string("frmSpread1");
            if (c.lines) {
                EXPECT_EQ(main ? store.MainCols : store.GridCols, c.cols);
                EXPECT_EQ(main ? store.MainLines : store.TblLines, c.lines);
            }
            if (main) {
                EXPECT_EQ(store.CurGroup, 0) << "starts at its first line";
                EXPECT_EQ(store.CurTopRow, 1);
            }
            screens.unload(c.opens);
            screens.unload(c.form);
        }
    }
}

TEST_F(DataMenus, OKTellsTheMainMenuAndTestsNothing) {
    const struct {
        const char *form, *caption, *label;
    } menus[] = {{"frmNonlin", "Nonlinear Layers Menu for Data Set No.  2", "lblNonlinear"},
                 {"frmVisco", "Viscoelastic Layers for Data Set No.  2", "lblViscoelastic"},
                 {"frmDamage1", "Damage Analysis for Data Set N0. 2", "lblDamage"}};
    for (const auto& [name, caption, word] : menus) {
        Form& form = *screens.load(name);
        EXPECT_EQ(form.caption(), caption);
        click(form, "cmdPrint");
        EXPECT_EQ(printer.jobs.back().size, 9);
        click(form, "cmdOK");
        EXPECT_EQ(screens.loaded(name), nullptr);
        EXPECT_EQ(label("frmBEDFORM", word).caption(), "done");
    }
}

TEST_F(DataMenus, DamageWithoutLocationsNeedsNoTable) {
    set.NLBT = set.NLTC = 0;
    Form& form = *screens.load("frmDamage1");
    store.TableKind = 7;
    for (const char* control : {"mnuBottom", "lblBottom", "mnuTop", "lblTop"}) {
        const bool bottom = std::string(control).ends_with("Bottom");
        dialogs.expectBox(std::string("No input is required because ") + (bottom ? "NLBT" : "NLTC") + " = 0");
        click(form, control);
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
            {11, 70, "default", "default"},  {11., 21.1, "default", "default"},
            {8, "21.1", "input", "default"}, {12, " 70 ", "input", "default"},
            {11, 21.1F, "default", "input"},  // a Single beside 21.1 is another number
            {11, "", "default", "input"},    {11, "warm", "default", "input"},
            {11, 20, "default", "input"},
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
