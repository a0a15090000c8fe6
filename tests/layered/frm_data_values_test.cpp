// The forms of single values behind the menus of nonlinear and viscoelastic data,
// driven by clicks and keys.
#include <gmock/gmock.h>

#include "layered/layered_rules.h"
#include "support/layered_screens.h"

namespace {

constexpr int line = 3;

struct Box {
    const char *form, *name;
    Variant& (*field)(LayeredSet& set);
    const char *newFile, *typed;  ///< text of a new file, and another one
    Double stored;
    const char *label, *labelSI;  ///< without their blanks
};

const Box boxes[] = {
    {"frmGenNon", "txtNolay", [](LayeredSet& s) -> Variant& { return s.NOLAY; }, "1", "12", 12,
     "Number of nonlinear layers (NOLAY)", nullptr},
    {"frmGenNon", "txtItenol", [](LayeredSet& s) -> Variant& { return s.ITENOL; }, "15", "30 times", 30,
     "Maximum number of iterations (ITENOL)", nullptr},
    {"frmGenNon", "txtRcnol", [](LayeredSet& s) -> Variant& { return s.RCNOL; }, "0", "4.5", 4.5,
     "Radial coordinate for nonlinear analysis in in. (RCNOL)",
     "Radial coordinate for nonlinear analysis in cm (RCNOL)"},
    {"frmGenNon", "txtXcnol", [](LayeredSet& s) -> Variant& { return s.XCNOL; }, "0", "-1", -1,
     "X coordinate for nonlinear analysis in in. (XPTNOL)",
     "X coordinate for nonlinear analysis in cm (XPTNOL)"},
    {"frmGenNon", "txtYcnol", [](LayeredSet& s) -> Variant& { return s.YCNOL; }, "0", "6.75", 6.75,
     "Y coordinate for nonlinear analysis in in. (YPTNOL)",
     "Y coordinate for nonlinear analysis in cm (YPTNOL)"},
    {"frmGenNon", "txtSld", [](LayeredSet& s) -> Variant& { return s.SLD; }, "0", ".5", .5,
     "Slope of load distribution (SLD)", nullptr},
    {"frmGenNon", "txtDelnol", [](LayeredSet& s) -> Variant& { return s.DELNOL; }, ".01", "1D-3", 1e-3,
     "Tolerance for nonlinear analysis (DELNOL)", nullptr},
    {"frmGenvis", "txtDur", [](LayeredSet& s) -> Variant& { return s.DUR; }, ".1", "none", 0,
     "Load duration (0 for stationary load, 0.1 sec for moving load at 40 mph) (DUR)", nullptr},
    {"frmGenvis", "txtNvl", [](LayeredSet& s) -> Variant& { return s.NVL; }, "1", "12", 12,
     "Number of viscoelastic layers (NVL)", nullptr},
    {"frmGenvis", "txtNtyme", [](LayeredSet& s) -> Variant& { return s.NTYME; }, "11", "8", 8,
     "Number of time durations for creep compliances (NTYME)", nullptr},
    {"frmGranular", "txtK2", [](LayeredSet& s) -> Variant& { return s.KGRAN[line].K2; }, ".5", ".33", .33,
     "Nonlinear exponent for granular materials (K2)", nullptr},
    {"frmGranular", "txtK0", [](LayeredSet& s) -> Variant& { return s.KGRAN[line].K0; }, ".6", "", 0,
     "Coefficient of earth pressure at rest (K0)", nullptr},
    {"frmClay", "txtK2", [](LayeredSet& s) -> Variant& { return s.KCLAY[line].K2; }, "6.2", "7", 7,
     "Deviator stress at break point for clay in psi (K2)",
     "Deviator stress at break point for clay in kPa (K2)"},
    {"frmClay", "txtK3", [](LayeredSet& s) -> Variant& { return s.KCLAY[line].K3; }, "1110", "1.2E3", 1200,
     "Slope when deviator stress smaller than K2 (K3)", nullptr},
    {"frmClay", "txtK4", [](LayeredSet& s) -> Variant& { return s.KCLAY[line].K4; }, "178", "180", 180,
     "Slope when deviator stress greater than K2 (K4)", nullptr},
    {"frmClay", "txtK0", [](LayeredSet& s) -> Variant& { return s.KCLAY[line].K0; }, ".8", ".7", .7,
     "Coefficient of earth pressure at rest (K0)", nullptr},
};

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

const char* const forms[] = {"frmGenNon", "frmGenvis", "frmGranular", "frmClay"};

TEST_F(DataValues, EveryBoxShowsItsFieldAndStoresItAndAClickEmptiesIt) {
    set.NOLAY = 1;
    for (const char* name : forms) {
        SCOPED_TRACE(name);
        Form& form = open(name);
        for (const Box& box : boxes) {
            if (box.form != std::string(name)) continue;
            EXPECT_EQ(form.control<TextBox>(box.name).textValue(), box.newFile) << box.name;
            click(form, box.name);
            EXPECT_EQ(form.control<TextBox>(box.name).textValue(), "") << box.name;
            type(form, box.name, box.typed);
        }
        click(form, "cmdPrint");
        EXPECT_EQ(printer.jobs.back().size, 9);
        store.CurLayDS = 1;  // another screen has changed it meanwhile
        click(form, "cmdOK");
        EXPECT_EQ(screens.loaded(name), nullptr);
        for (const Box& box : boxes) {
            const bool granular = name == std::string("frmGranular");
            if (box.form != std::string(name) || (granular && box.name == std::string("txtNolay"))) continue;
            EXPECT_EQ(box.field(set), Variant(box.stored)) << box.name;
        }
    }
}

TEST_F(DataValues, LabelsGoByTheUnitsOfTheDataSet) {
    for (const Single NUNIT : {0.F, 1.F, 2.F}) {
        set.NUNIT = NUNIT;
        for (const Box& box : boxes) {
            Form& form = open(box.form);
            const std::string name = "lbl" + std::string(box.name).substr(3);
            const QString caption = QString::fromStdString(form.control<Label>(name).caption());
            EXPECT_EQ(caption.simplified().toStdString(),
                      NUNIT != 0 && box.labelSI ? box.labelSI : box.label);
            screens.unload(box.form);
        }
    }
}

TEST_F(DataValues, CaptionsTellTheLayerAndTheDataSet) {
    const std::pair<const char*, const char*> captions[] = {
        {"frmGenNon", "Nonlinear General Information for Data Set No.  2"},
        {"frmGenvis", "Viscoelastic General Information for Data Set No.  2"},
        {"frmGranular", "Nonseasonal Input Parameters for Layer No. 4 (Granular) and Data Set No. 2"},
        {"frmClay", "Nonseasonal Input Parameters for Layer No. 4 (Clay) and Data Set No. 2"},
    };
    for (const auto& [form, caption] : captions) EXPECT_EQ(open(form).caption(), caption);
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
