// Screens on a desk of their own: store, script of answers, printer, a data
// directory, the two boxes of the main screen, and stand-ins for other screens.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QtTest>
#include <string>
#include <vector>

#include "platform/qt/form.h"
#include "platform/qt/menu_form.h"
#include "store/frm_file_list.h"
#include "store/program.h"
#include "store/store.h"
#include "support/quiet_desktop.h"
#include "support/recording_printer.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_directory.h"

/// The two boxes of the main screen that the input menus write.
class MainScreenStandIn : public Form {
  public:
    explicit MainScreenStandIn(Store& store) : Form("frmTOLMARK"), store_(store) {}
    void Form_Load() override {
        path_.onChange = [this] {
            name_.setTextValue("");
            store_.cmbDirectory = path_.textValue();
            FillFileList(store_.cmbDirectory, "*.dat", name_);
        };
        path_.setTextValue(store_.cmbDirectory);
    }

  private:
    Store& store_;
    ComboBox path_{"cmbDataPath", this}, name_{"cmbFileName", this};
};

/// A screen that only has a name.
class BlankForm : public Form {
  public:
    using Form::Form;
    void Form_Load() override {}
};

class DeskScreens : public ::testing::Test {
  protected:
    /// `blanks` are screens that only have a name.
    explicit DeskScreens(const std::vector<const char*>& blanks) {
        setDispatchDialogs(&dialogs);
        store.cmbDirectory = directory.path();
        store.FileName = "road";
        screens.add("frmTOLMARK", [this] { return std::make_unique<MainScreenStandIn>(store); });
        for (const char* name : blanks) {
            screens.add(name, [name] { return std::make_unique<BlankForm>(name); });
        }
        main = screens.load("frmTOLMARK");
    }
    ~DeskScreens() override { setDispatchDialogs(nullptr); }

    std::string mainBox(const std::string& name) { return main->control<ComboBox>(name).textValue(); }

    Store store;
    ScriptedDialogs dialogs;
    RecordingPrinter printer;
    TemporaryDirectory directory;
    QuietDesktop desktop{directory.path()};
    Screens screens{dialogs};
    Program program{store, screens, dialogs, printer, desktop};
    Form* main = nullptr;
};

inline void click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }
inline void click(Form& form, const std::string& name) { click(form.control<QWidget>(name)); }
inline void choose(Form& form, const char* menuEntry) { form.findChild<QAction*>(menuEntry)->trigger(); }

/// Into a box as a user does: a click, which may empty it, and the keys.
inline void type(Form& form, const std::string& box, const std::string& text) {
    auto& widget = form.control<TextBox>(box);
    click(widget);
    QTest::keyClicks(&widget, QString::fromStdString(text));
}
