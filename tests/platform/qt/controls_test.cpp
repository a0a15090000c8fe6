// The controls under a user's hands: which typing, clicking and setting runs a
// handler, and what a list operation leaves alone.
#include "platform/qt/controls.h"

#include <gtest/gtest.h>

#include <QtTest>

#include "platform/run_time_error.h"

namespace {

using Texts = std::vector<std::string>;

/// A window with one combo box, and what its handlers saw.
struct ComboWindow {
    QWidget window;
    ComboBox combo{"cmb", &window};
    TextBox other{"txt", "", &window};
    Texts changes, clicks;

    ComboWindow() {
        combo.onChange = [this] { changes.push_back(combo.textValue()); };
        combo.onClick = [this] { clicks.push_back(combo.textValue()); };
        other.move(0, 60);
        window.show();
        window.activateWindow();
        combo.setFocus();
    }
};

TEST(ComboBox, ListOperationsNeverTouchTheTypedText) {
    ComboWindow w;
    w.combo.addListItem("/first/");
    EXPECT_EQ(w.combo.textValue(), "");
    for (int time = 0; time < 2; ++time) w.combo.setTextValue("/typed/");
    w.combo.insertListItem("/zero/", 0);
    w.combo.addListItem("/last/");
    Texts list;
    for (int i = 0; i < w.combo.listCount(); ++i) list.push_back(w.combo.listText(i));
    EXPECT_EQ(list, (Texts{"/zero/", "/first/", "/last/"}));
    w.combo.setListIndex(1);
    w.combo.removeListItem(1);
    w.combo.clearList();
    EXPECT_EQ(w.combo.textValue(), "/first/");
    EXPECT_EQ(w.combo.listCount(), 0);
    EXPECT_EQ(w.changes, (Texts{"/typed/", "/first/"}));
    EXPECT_EQ(w.clicks, Texts{});
    EXPECT_THROW(w.combo.setListIndex(0), RunTimeError);
}

TEST(ComboBox, AChoiceFromTheListRunsClickAlsoForTheEntryThatStandsThere) {
    ComboWindow w;
    w.combo.addListItem("one.dat");
    w.combo.addListItem("two.dat");
    for (int round = 0; round < 2; ++round) {
        w.combo.showPopup();
        QTest::keyClick(w.combo.view(), Qt::Key_End);
        QTest::keyClick(w.combo.view(), Qt::Key_Return);
    }
    EXPECT_EQ(w.changes, Texts{});
    w.combo.lineEdit()->selectAll();
    QTest::keyClicks(w.combo.lineEdit(), "one.dat");
    EXPECT_EQ(w.changes.back(), "one.dat");
    QTest::keyClick(w.combo.lineEdit(), Qt::Key_Return);
    QTest::keyClick(w.combo.lineEdit(), Qt::Key_Tab);
    EXPECT_EQ(w.clicks, (Texts{"two.dat", "two.dat"})) << "leaving the box with a typed entry is no choice";
}

TEST(OptionButton, RunsClickWhenSetToTrueAndAtEveryClickOfTheUser) {
    QWidget window;
    OptionButton first("opt1", "Data Set 1", &window), second("opt2", "Data Set 2", &window);
    int clicks = 0;
    first.onClick = [&] { ++clicks; };
    for (int time = 0; time < 2; ++time) first.setValue(true);
    EXPECT_EQ(clicks, 1);
    QTest::mouseClick(&first, Qt::LeftButton);
    EXPECT_EQ(clicks, 2);
    second.setValue(true);
    EXPECT_FALSE(first.value());
    second.setValue(false);
    EXPECT_FALSE(second.value());
    EXPECT_EQ(clicks, 2);
}

TEST(TextBox, ClickIsTheLeftMouseButtonAndNeverTab) {
    QWidget window;
    TextBox first("txtNl", "3", &window), second("txtNz", "4", &window);
    second.move(0, 60);
    second.onClick = [&] { second.setTextValue(""); };
    window.show();
    first.setFocus();
    QTest::keyClick(&first, Qt::Key_Tab);
    QTest::mouseClick(&second, Qt::MiddleButton);
    EXPECT_EQ(second.textValue(), "4");
    QTest::mouseClick(&second, Qt::LeftButton);
    EXPECT_EQ(second.textValue(), "");
}

TEST(StatusLabel, KeepsWordAndColourApart) {
    StatusLabel label("lblNz", "default", nullptr);
    const auto colour = [&] { return label.palette().color(QPalette::WindowText); };
    label.input();
    label.done();
    EXPECT_EQ(label.caption(), "done");
    EXPECT_EQ(colour(), QColor(255, 0, 0));
    label.blueDefault();
    EXPECT_EQ(colour(), QColor(0, 0, 255));
}

TEST(HelpBox, KeepsTheTextAsSetAndLetsTabThrough) {
    QWidget window;
    HelpBox help("Text1", &window);
    TextBox next("txt", "", &window);
    help.setTextValue("1. one\r\n2. two\n");
    EXPECT_EQ(help.textValue(), "1. one\r\n2. two\n");
    EXPECT_TRUE(QFontInfo(help.font()).fixedPitch());
    window.show();
    window.activateWindow();
    help.setFocus();
    QTest::keyClicks(&help, "x");
    QTest::keyClick(&help, Qt::Key_Tab);
    EXPECT_EQ(help.toPlainText(), "1. one\n2. two\n");
    EXPECT_EQ(window.focusWidget(), &next);
}

}  // namespace
