// Loading, unloading and closing of forms.
#include "platform/qt/form.h"

#include <gtest/gtest.h>

#include <QtTest>

#include "support/scripted_dialogs.h"

namespace {

/// A form that counts what happens to it; its behaviour is set from outside.
struct Behaviour {
    int loads = 0, deletions = 0, questions = 0;
    bool mayClose = true;
    std::function<void(Form&)> onLoad;
};

class TrialForm : public Form {
  public:
    TrialForm(const std::string& name, Behaviour& behaviour) : Form(name), behaviour_(behaviour) {}
    ~TrialForm() override { ++behaviour_.deletions; }
    void Form_Load() override {
        ++behaviour_.loads;
        place();
        if (behaviour_.onLoad) behaviour_.onLoad(*this);
    }
    bool queryUnload() override {
        ++behaviour_.questions;
        return behaviour_.mayClose;
    }

  private:
    Behaviour& behaviour_;
    Button button_{"cmdOk", "&OK", this};
};

class FormTest : public ::testing::Test {
  protected:
    FormTest() {
        setDispatchDialogs(&dialogs);
        screens.add("frmOne", [this] { return std::make_unique<TrialForm>("frmOne", one); });
        for (const char* name : {"frmTable", "frmOtherTable"}) {
            screens.add(
                name, [this, name] { return std::make_unique<TrialForm>(name, table); }, "table");
        }
    }
    ~FormTest() override { setDispatchDialogs(nullptr); }
    /// Forms of `behaviour` that have gone once all handlers returned.
    static int deletions(const Behaviour& behaviour) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return behaviour.deletions;
    }

    ScriptedDialogs dialogs;
    Behaviour one, table;
    Screens screens{dialogs};
};

TEST_F(FormTest, ALoadedFormStaysTheSameObject) {
    Form* form = screens.load("frmOne");
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(screens.load("frmOne"), form);
    EXPECT_EQ(one.loads, 1);
    for (int time = 0; time < 2; ++time) screens.unload("frmOne");
    EXPECT_EQ(screens.loaded("frmOne"), nullptr);
    EXPECT_EQ(deletions(one), 1);
    EXPECT_EQ(one.questions, 0);
}

TEST_F(FormTest, AFailedLoadLeavesNoForm) {
    one.onLoad = [](Form& form) {
        form.Show();
        throw RunTimeError(Fault::TypeMismatch);
    };
    dialogs.expectBox("Type mismatch");
    dispatch([this] { screens.load("frmOne"); });
    EXPECT_EQ(screens.loaded("frmOne"), nullptr);
    EXPECT_EQ(one.deletions, 1);
}

TEST_F(FormTest, AFormMayUnloadItselfInItsHandler) {
    Form* form = screens.load("frmOne");
    form->Show();
    auto& button = form->control<Button>("cmdOk");
    button.onClick = [&] {
        screens.unload("frmOne");
        EXPECT_FALSE(form->isVisible());
        screens.load("frmOne");
    };
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_NE(screens.loaded("frmOne"), form);
    EXPECT_EQ(deletions(one), 1);
    EXPECT_NE(screens.loaded("frmOne"), nullptr);
}

TEST_F(FormTest, AFormMayUnloadItselfWhileItLoads) {
    one.onLoad = [this](Form&) { screens.unload("frmOne"); };
    EXPECT_EQ(screens.load("frmOne"), nullptr);
    EXPECT_EQ(deletions(one), 1);
    one.onLoad = [this](Form&) {
        screens.unload("frmOne");
        throw RunTimeError(Fault::EndOfFile);
    };
    EXPECT_THROW(screens.load("frmOne"), RunTimeError);
    EXPECT_EQ(deletions(one), 2);
}

TEST_F(FormTest, ClosingByTheFrameAsksTheForm) {
    Form* form = screens.load("frmOne");
    form->Show();
    one.mayClose = false;
    EXPECT_FALSE(form->close());
    EXPECT_EQ(screens.loaded("frmOne"), form);
    one.mayClose = true;
    EXPECT_TRUE(form->close());
    EXPECT_EQ(screens.loaded("frmOne"), nullptr);
    EXPECT_EQ(one.questions, 2);
    EXPECT_EQ(deletions(one), 1);
}

TEST_F(FormTest, OneFormOfAGroupIsOpenAndRefusingToCloseKeepsIt) {
    screens.load("frmTable");
    Form* second = screens.load("frmOtherTable");
    EXPECT_EQ(screens.loaded("frmTable"), nullptr);
    Form* again = screens.load("frmOtherTable");
    EXPECT_NE(again, second);
    table.mayClose = false;
    EXPECT_EQ(screens.load("frmTable"), nullptr);
    EXPECT_EQ(screens.loaded("frmOtherTable"), again);
    EXPECT_EQ(table.questions, 3);
    EXPECT_EQ(deletions(table), 2);
}

TEST_F(FormTest, TheProgramEndsWithItsLastFormButNotWhileOneGivesWayToAnother) {
    const QObject here;  // timers do not outlive the test
    screens.load("frmOne")->Show();
    QTimer::singleShot(0, &here, [&] {
        screens.unload("frmOne");
        screens.load("frmTable")->Show();
    });
    QTimer::singleShot(50, &here, [&] { screens.unload("frmTable"); });
    QTimer::singleShot(5000, &here, [] { QCoreApplication::exit(1); });
    EXPECT_EQ(QApplication::exec(), 0);
    EXPECT_EQ(screens.loaded("frmTable"), nullptr) << "ended too early";
}

}  // namespace
