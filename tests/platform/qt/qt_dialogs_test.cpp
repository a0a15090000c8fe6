// The real boxes, answered by keys and clicks as soon as they stand there.
#include "platform/qt/qt_dialogs.h"

#include <gtest/gtest.h>

#include <QtTest>
#include <map>

#include "support/temporary_directory.h"

namespace {

/// Runs `act` on the box that comes next.
void onNextBox(const std::function<void(QDialog&)>& act) {
    QTimer::singleShot(0, qApp, [act] {
        auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        act(*box);
    });
}

void press(QDialog& box, QMessageBox::StandardButton button) {
    auto* found = dynamic_cast<QMessageBox&>(box).button(button);
    ASSERT_NE(found, nullptr);
    QTest::mouseClick(found, Qt::LeftButton);
}

TEST(MsgBox, GivesTheAnswerAndTakesClosingForTheMildestOne) {
    const struct {
        Buttons buttons;
        std::map<QMessageBox::StandardButton, Answer> answers;
        Answer closed;
    } boxes[] = {
        {Buttons::Ok, {{QMessageBox::Ok, Answer::Ok}}, Answer::Ok},
        {Buttons::YesNo, {{QMessageBox::Yes, Answer::Yes}, {QMessageBox::No, Answer::No}}, Answer::No},
        {Buttons::YesNoCancel,
         {{QMessageBox::Yes, Answer::Yes},
          {QMessageBox::No, Answer::No},
          {QMessageBox::Cancel, Answer::Cancel}},
         Answer::Cancel}};
    QtDialogs dialogs;
    for (const auto& [buttons, answers, closed] : boxes) {
        for (const auto& [button, answer] : answers) {
            onNextBox([&](QDialog& box) { press(box, button); });
            EXPECT_EQ(dialogs.MsgBox("Go on?", buttons, ""), answer) << button;
        }
        onNextBox([](QDialog& box) {
            EXPECT_EQ(box.windowTitle(), "Filename");
            EXPECT_EQ(dynamic_cast<QMessageBox&>(box).textFormat(), Qt::PlainText);
            box.close();
        });
        EXPECT_EQ(dialogs.MsgBox("NL <b>1</b>\nor less", buttons, "Filename"), closed);
    }
}

TEST(InputBox, GivesTheTextOrNothing) {
    QtDialogs dialogs;
    onNextBox([](QDialog& box) {
        QTest::keyClicks(box.findChild<QLineEdit*>(), "60");
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_EQ(dialogs.InputBox("Number of lines per page", "PRINT", " 57"), "60");
    onNextBox([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_EQ(dialogs.InputBox("Number of lines per page", "PRINT", " 57"), std::nullopt);
}

TEST(FileDialog, FiltersComeFromOneText) {
    EXPECT_EQ(qtNameFilters("Data Files (*.DAT)|*.DAT|"), QStringList{"Data Files (*.DAT)"});
    EXPECT_EQ(qtNameFilters("All Files (*.*)|*.*|Plain|*.TXT;*.LST"),
              (QStringList{"All Files (*)", "Plain (*.TXT *.LST)"}));
}

class FileDialogTest : public ::testing::Test {
  protected:
    FileQuestion question(FileQuestion::Action action, const std::string& name) const {
        return {action, "Data Files (*.DAT)|*.DAT|Text Files|*.TXT|", 1, name, directory.path()};
    }
    static void type(QDialog& box, const QString& name) {
        auto* edit = box.findChild<QLineEdit*>("fileNameEdit");
        edit->setText(name);
        box.findChild<QDialogButtonBox*>()->buttons().first()->click();
    }
    static void expectListed(QDialog& box, const QStringList& names) {
        const auto* list = box.findChild<QListView*>("listView");
        QStringList listed;
        EXPECT_TRUE(QTest::qWaitFor([&] {
            listed.clear();
            for (int row = 0; row < list->model()->rowCount(list->rootIndex()); ++row)
                listed << list->model()->index(row, 0, list->rootIndex()).data().toString();
            listed.sort();
            return listed == names;
        })) << listed.join(" ").toStdString();
    }

    TemporaryDirectory directory;
    QtDialogs dialogs;
};

TEST_F(FileDialogTest, ListsFilesOfEitherCaseAndStartsInTheFolderOfABareName) {
    for (const char* name : {"lower.dat", "UPPER.DAT", "other.txt"}) directory.write(name, "");
    onNextBox([this](QDialog& box) {
        EXPECT_EQ(dynamic_cast<QFileDialog&>(box).selectedNameFilter(), "Data Files (*.DAT)");
        expectListed(box, {"UPPER.DAT", "lower.dat"});
        type(box, "lower.dat");
    });
    const auto answer = dialogs.fileDialog(question(FileQuestion::Action::Open, ""));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->name, directory.path() + "lower.dat");
    EXPECT_EQ(answer->filterNumber, 1);

    onNextBox([](QDialog& box) {
        EXPECT_EQ(box.findChild<QLineEdit*>("fileNameEdit")->text(), "UPPER.DAT") << "proposed";
        box.reject();
    });
    EXPECT_FALSE(dialogs.fileDialog(question(FileQuestion::Action::Open, "upper.dat")));
}

/// Saving lists the pattern first, completes a name without extension, and asks before it takes the place of
/// a file, also of one that differs in case.
TEST_F(FileDialogTest, SavingListsAPatternAndAsksBeforeItReplaces) {
    directory.write("road.dat", "deck");
    directory.write("road.txt", "");
    FileQuestion asked = question(FileQuestion::Action::Save, "");
    asked.filterNumber = 2;
    asked.pattern = "*.dat";
    asked.defaultExtension = ".DAT";
    for (const char* chosen : {"ROAD", "ROAD.DAT"}) {
        QString told;
        onNextBox([&](QDialog& box) {
            EXPECT_EQ(dynamic_cast<QFileDialog&>(box).selectedNameFilter(), "Text Files (*.TXT)");
            expectListed(box, {"road.dat"});
            onNextBox([&](QDialog& replace) {
                told = dynamic_cast<QMessageBox&>(replace).text();
                onNextBox([](QDialog& again) { type(again, "new"); });
                press(replace, QMessageBox::No);
            });
            type(box, chosen);
        });
        const auto answer = dialogs.fileDialog(asked);
        ASSERT_TRUE(answer);
        EXPECT_EQ(answer->name, directory.path() + "new.DAT");
        EXPECT_EQ(answer->filterNumber, 2);
        EXPECT_TRUE(told.contains("road.dat")) << told.toStdString();
    }
}

}  // namespace
