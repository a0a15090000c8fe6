// Forms stated as rows: values, menus and boards that no real screen has.
#include <gtest/gtest.h>

#include <QAction>
#include <QtTest>

#include "platform/qt/board_form.h"
#include "platform/qt/menu_form.h"
#include "platform/qt/value_form.h"
#include "support/recording_printer.h"
#include "support/scripted_dialogs.h"
#include "support/window_checks.h"

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
               {"txtSingle", "A number                       (X)", &values.single},
               {"txtPrecise", "Another with much more to say in its caption (1=yes, 0=no) (LONGNAME)",
                &values.precise},
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

class Menu : public MenuForm {
  public:
    Menu(Dialogs& dialogs, Printer& printer) : MenuForm("frmMenu", dialogs, printer) {
        layOut(menuBar({{.menu = "mnuFile",
                         .caption = "&File",
                         .label = "lblFile",
                         .word = "a file name that is much wider than its menu",
                         .hint = "click File",
                         .entries = {{"mnuNew", "&New", [this] { ++created; }}}},
                        {.menu = "mnuData",
                         .caption = "P&rint data",
                         .label = "lblData",
                         .word = "default",
                         .action = [this] { ++opened; }},
                        {.menu = "mnuOther", .caption = "&Properties", .action = [this] { ++opened; }}}),
               "Text1", {{"cmdExit", "&Exit", [] {}}});
    }
    void Form_Load() override { present(); }
    int created = 0, opened = 0;
};

class Board : public BoardForm {
  public:
    Board(Dialogs& dialogs, Printer& printer) : BoardForm("frmBoard", "Slab", 7, dialogs, printer) {}
    void Form_Load() override {
        button(1).setCaption("Slab&1");
        label(1).input();
        present();
    }
    int clicked = 0;

  private:
    void button_Click(int n) override { clicked = n; }
    void cmdOk_Click() override {}
};

class InputForms : public ::testing::Test {
  protected:
    InputForms() {
        setDispatchDialogs(&dialogs);
        for (Form* form : std::initializer_list<Form*>{&trial, &menu, &board}) form->Form_Load();
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
    Menu menu{dialogs, printer};
    Board board{dialogs, printer};
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

TEST_F(InputForms, AMenuAndItsWordDoTheSameAndTheWordStandsUnderIt) {
    click(menu.control<MenuButton>("mnuData"));
    click(menu.control<Label>("lblData"));
    EXPECT_EQ(menu.opened, 2);
    click(menu.control<Label>("lblFile"));
    EXPECT_EQ(menu.created, 0);
    menu.findChild<QAction*>("mnuNew")->trigger();
    EXPECT_EQ(menu.created, 1);
    for (const char* name : {"File", "Data"}) {
        const QRect word = menu.control<StatusLabel>(std::string("lbl") + name).geometry();
        const QRect entry = menu.control<MenuButton>(std::string("mnu") + name).geometry();
        EXPECT_NEAR(word.center().x(), entry.center().x(), 1) << name;
        EXPECT_GT(word.top(), entry.bottom()) << name;
    }
}

TEST_F(InputForms, AMenuWithEntriesDropsThemDown) {
    QTimer::singleShot(0, [] {
        QWidget* entries = QApplication::activePopupWidget();
        ASSERT_NE(entries, nullptr);
        QTest::keyClick(entries, Qt::Key_N);
    });
    click(menu.control<MenuButton>("mnuFile"));
    EXPECT_EQ(menu.created, 1);
}

TEST_F(InputForms, BlankButtonsOfABoardTellTheirNumber) {
    click(board.control<Button>("cmdSlab7"));
    EXPECT_EQ(board.clicked, 7);
    EXPECT_EQ(board.control<Button>("cmdSlab7").accessibleName(), "Slab 7");
}

TEST_F(InputForms, AreWellMade) {
    for (Form* form : std::initializer_list<Form*>{&trial, &menu, &board}) {
        SCOPED_TRACE(form->name());
        expectWellMade(*form);
    }
}

}  // namespace
