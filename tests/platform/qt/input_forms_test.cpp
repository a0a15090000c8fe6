// A form stated as rows, with every type of field.
#include <gtest/gtest.h>

#include <QtTest>
#include <array>

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
    static constexpr std::array boxes = {"txtText", "txtWhole", "txtSingle", "txtPrecise", "txtCell"};
    void enterAndOk(const std::array<const char*, 5>& texts) {
        for (std::size_t i = 0; i < boxes.size(); ++i)
            trial.control<TextBox>(boxes[i]).setTextValue(texts[i]);
        QTest::mouseClick(&trial.control<Button>("cmdOk"), Qt::LeftButton);
    }

    ScriptedDialogs dialogs;
    RecordingPrinter printer;
    Values values;
    Trial trial{values, dialogs, printer};
};

TEST_F(InputForms, ShowAndStoreEachTypeOfField) {
    std::vector<std::string> shown;
    for (const char* box : boxes) shown.push_back(trial.control<TextBox>(box).textValue());
    EXPECT_EQ(shown, (std::vector<std::string>{"as it stands", "-3", ".1", "1234567.25", "7.50"}));
    enterAndOk({" 1, 2 ", "2.5", "1E-3x", "1D2", ""});
    EXPECT_EQ(trial.stored, 1);
    EXPECT_EQ(values.text, " 1, 2 ");
    EXPECT_EQ(values.whole, 2) << "half to even";
    EXPECT_EQ(values.single, 0.001F);
    EXPECT_EQ(values.precise, 100);
    EXPECT_FALSE(values.cell.isText());
    EXPECT_EQ(values.cell, Variant(0));
}

TEST_F(InputForms, ANumberThatDoesNotFitIsToldAndNotStored) {
    for (int time = 0; time < 2; ++time) dialogs.expectBox("Overflow");
    enterAndOk({"", "32767.5", "0", "0", "0"});
    enterAndOk({"", "-3", "-4E38", "0", "0"});
    EXPECT_EQ(values.whole, -3);
    EXPECT_EQ(values.single, 0.1F);
}

}  // namespace
