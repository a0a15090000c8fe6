// A form stated as rows, with every type of field.
#include <gtest/gtest.h>

#include <QtTest>

#include "platform/qt/value_form.h"
#include "support/recording_printer.h"
#include "support/scripted_dialogs.h"

namespace {

struct Values {
    std::string text = "as it stands";
    Integer whole = -3;
    Single single = 0.1F;
    Double precise = 1234567.25;
    Variant cell = "7.50";
};

class Trial : public ValueForm {
  public:
    Trial(Values& values, Dialogs& dialogs, Printer& printer) : ValueForm("frmTrial", dialogs, printer) {
        build({{"txtText", "A text", &values.text},
               {"txtWhole", "A whole number (N)", &values.whole},
               {"txtSingle", "A number (X)", &values.single},
               {"txtPrecise", "A precise number (D)", &values.precise},
               {"txtCell", "A cell (C)", &values.cell}});
    }
    void Form_Load() override {
        showFields();
        present();
    }
    using ValueForm::showFields;
    int stored = 0;

  private:
    void cmdOk_Click() override { stored += storeFields(); }
};

class InputForms : public ::testing::Test {
  protected:
    InputForms() {
        setDispatchDialogs(&dialogs);
        trial.Form_Load();
    }
    ~InputForms() override { setDispatchDialogs(nullptr); }
    static void click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }
    static std::string text(Form& form, const char* box) { return form.control<TextBox>(box).textValue(); }
    void enter(const char* box, const char* value) { trial.control<TextBox>(box).setTextValue(value); }
    void ok() { click(trial.control<Button>("cmdOk")); }

    ScriptedDialogs dialogs;
    RecordingPrinter printer;
    Values values;
    Trial trial{values, dialogs, printer};
};

TEST_F(InputForms, ShowAndStoreEachTypeOfField) {
    EXPECT_EQ(text(trial, "txtText"), "as it stands");
    EXPECT_EQ(text(trial, "txtWhole"), "-3");
    EXPECT_EQ(text(trial, "txtSingle"), ".1");
    EXPECT_EQ(text(trial, "txtPrecise"), "1234567.25");
    EXPECT_EQ(text(trial, "txtCell"), "7.50");
    enter("txtText", " 1, 2 ");
    enter("txtWhole", "2.5");
    enter("txtSingle", "1E-3x");
    enter("txtPrecise", "1D2");
    enter("txtCell", "");
    ok();
    EXPECT_EQ(trial.stored, 1);
    EXPECT_EQ(values.text, " 1, 2 ");
    EXPECT_EQ(values.whole, 2) << "half to even";
    EXPECT_EQ(values.single, 0.001F);
    EXPECT_EQ(values.precise, 100);
    EXPECT_FALSE(values.cell.isText());
    EXPECT_EQ(values.cell, Variant(0));
}

TEST_F(InputForms, ANumberThatDoesNotFitIsToldAndNotStored) {
    for (const auto& [box, beyond] : {std::pair{"txtWhole", "32767.5"}, {"txtSingle", "-4E38"}}) {
        trial.showFields();
        enter(box, beyond);
        dialogs.expectBox("Overflow");
        ok();
        EXPECT_TRUE(dialogs.finished()) << box;
    }
    EXPECT_EQ(values.whole, -3);
    EXPECT_EQ(values.single, 0.1F);
}

}  // namespace
