// The real boxes, answered by keys and clicks as soon as they stand there.
#include "platform/qt/qt_dialogs.h"

#include <gtest/gtest.h>

#include <QtTest>

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
    struct Case {
        Buttons buttons;
        QMessageBox::StandardButton pressed;  ///< NoButton: closed by its frame
        Answer answer;
    };
    const std::vector<Case> cases = {
        {Buttons::Ok, QMessageBox::Ok, Answer::Ok},
        {Buttons::Ok, QMessageBox::NoButton, Answer::Ok},
        {Buttons::YesNo, QMessageBox::Yes, Answer::Yes},
        {Buttons::YesNo, QMessageBox::No, Answer::No},
        {Buttons::YesNo, QMessageBox::NoButton, Answer::No},
        {Buttons::YesNoCancel, QMessageBox::Yes, Answer::Yes},
        {Buttons::YesNoCancel, QMessageBox::No, Answer::No},
        {Buttons::YesNoCancel, QMessageBox::Cancel, Answer::Cancel},
        {Buttons::YesNoCancel, QMessageBox::NoButton, Answer::Cancel},
    };
    QtDialogs dialogs;
    for (const Case& c : cases) {
        onNextBox([&](QDialog& box) {
            if (c.pressed == QMessageBox::NoButton) {
                box.close();
            } else {
                press(box, c.pressed);
            }
        });
        EXPECT_EQ(dialogs.MsgBox("Go on?", c.buttons, ""), c.answer) << static_cast<int>(c.pressed);
    }
}

TEST(MsgBox, ShowsTheTextAsItStandsUnderItsTitle) {
    QtDialogs dialogs;
    onNextBox([](QDialog& box) {
        EXPECT_EQ(box.windowTitle(), "Filename");
        EXPECT_EQ(dynamic_cast<QMessageBox&>(box).text(), "NL <b>1</b>\nor less");
        EXPECT_EQ(dynamic_cast<QMessageBox&>(box).textFormat(), Qt::PlainText);
        box.accept();
    });
    dialogs.MsgBox("NL <b>1</b>\nor less", Buttons::Ok, "Filename");
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

    TemporaryDirectory directory;
    QtDialogs dialogs;
};

TEST_F(FileDialogTest, ListsFilesOfEitherCaseAndStartsInTheFolderOfABareName) {
    directory.write("lower.dat", "");
    directory.write("UPPER.DAT", "");
    directory.write("other.txt", "");
    onNextBox([this](QDialog& box) {
        auto& files = dynamic_cast<QFileDialog&>(box);
        EXPECT_EQ(files.directory().absolutePath().toStdString() + "/", directory.path());
        EXPECT_EQ(files.selectedNameFilter(), "Data Files (*.DAT)");
        const auto* list = files.findChild<QListView*>("listView");
        EXPECT_TRUE(QTest::qWaitFor([&] { return list->model()->rowCount(list->rootIndex()) == 2; }));
        type(box, "lower.dat");
    });
    const auto answer = dialogs.fileDialog(question(FileQuestion::Action::Open, ""));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->name, directory.path() + "lower.dat");
    EXPECT_EQ(answer->filterNumber, 1);
}

TEST_F(FileDialogTest, ProposesTheNameAndGivesNothingWhenCancelled) {
    directory.write("road.DAT", "");
    onNextBox([](QDialog& box) {
        EXPECT_EQ(box.findChild<QLineEdit*>("fileNameEdit")->text(), "road.DAT");
        box.reject();
    });
    EXPECT_FALSE(dialogs.fileDialog(question(FileQuestion::Action::Open, "ROAD.DAT")));
}

TEST_F(FileDialogTest, ListsAPatternFirstAndCompletesANameWithoutExtension) {
    directory.write("road.dat", "deck");
    directory.write("road.txt", "");
    FileQuestion asked = question(FileQuestion::Action::Save, "");
    asked.filterNumber = 2;
    asked.pattern = "*.dat";
    asked.defaultExtension = ".DAT";
    onNextBox([](QDialog& box) {
        auto& files = dynamic_cast<QFileDialog&>(box);
        EXPECT_EQ(files.selectedNameFilter(), "Text Files (*.TXT)");
        const auto* list = files.findChild<QListView*>("listView");
        const auto only = [&] {
            return list->model()->rowCount(list->rootIndex()) == 1 &&
                   list->model()->index(0, 0, list->rootIndex()).data() == "road.dat";
        };
        EXPECT_TRUE(QTest::qWaitFor(only));
        onNextBox([&](QDialog& question) {
            onNextBox([](QDialog& again) { type(again, "new"); });
            press(question, QMessageBox::No);
        });
        type(box, "ROAD");
    });
    const auto answer = dialogs.fileDialog(asked);
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->name, directory.path() + "new.DAT");
    EXPECT_EQ(answer->filterNumber, 2);
}

TEST_F(FileDialogTest, SavingOverAFileThatDiffersInCaseIsAsked) {
    directory.write("road.dat", "deck");
    QStringList asked;
    onNextBox([&](QDialog& box) {
        onNextBox([&](QDialog& question) {
            asked << dynamic_cast<QMessageBox&>(question).text();
            onNextBox([](QDialog& again) { type(again, "new.dat"); });
            press(question, QMessageBox::No);
        });
        type(box, "ROAD.DAT");
    });
    const auto answer = dialogs.fileDialog(question(FileQuestion::Action::Save, ""));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->name, directory.path() + "new.dat");
    ASSERT_EQ(asked.size(), 1);
    EXPECT_TRUE(asked[0].contains("road.dat"));
}

}  // namespace
