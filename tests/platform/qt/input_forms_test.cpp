// Boxes of numbers in single and double precision; texts, whole numbers and cells
// are seen on the forms that have them.
#include <gtest/gtest.h>

#include <QtTest>

#include "platform/qt/value_form.h"
#include "support/recording_printer.h"
#include "support/scripted_dialogs.h"

namespace {

class Trial : public ValueForm {
  public:
    Trial(Dialogs& dialogs, Printer& printer) : ValueForm("frmTrial", dialogs, printer) {
        build({{"txtSingle", "A number (X)", &single}, {"txtPrecise", "A precise number (D)", &precise}});
        showFields();
    }
    void Form_Load() override {}
    std::string text(const char* box) { return control<TextBox>(box).textValue(); }
    void enterAndOk(const char* singleText, const char* preciseText) {
        control<TextBox>("txtSingle").setTextValue(singleText);
        control<TextBox>("txtPrecise").setTextValue(preciseText);
        QTest::mouseClick(&control<Button>("cmdOk"), Qt::LeftButton);
    }
    Single single = 0.1F;
    Double precise = 1234567.25;

  private:
    void cmdOk_Click() override { storeFields(); }
};

TEST(InputForms, KeepThePrecisionOfTheirFieldsAndRefuseWhatDoesNotFit) {
    ScriptedDialogs dialogs;
    RecordingPrinter printer;
    Trial trial(dialogs, printer);
    setDispatchDialogs(&dialogs);
    EXPECT_EQ(trial.text("txtSingle") + " " + trial.text("txtPrecise"), ".1 1234567.25");
    trial.enterAndOk("1E-3x", "1D2");
    EXPECT_EQ(trial.single, 0.001F);
    EXPECT_EQ(trial.precise, 100);
    dialogs.expectBox("Overflow");
    trial.enterAndOk("-4E38", "5");
    EXPECT_EQ(trial.single, 0.001F);
    EXPECT_EQ(trial.precise, 100) << "nor what stands behind it";
    setDispatchDialogs(nullptr);
}

}  // namespace
