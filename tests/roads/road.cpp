#include "roads/road.h"

#include <QAction>
#include <filesystem>

Road::Road() {
    setDispatchDialogs(&dialogs);
    addScreens(screens, program);
    screens.load("frmTOLMARK");
}

Road::~Road() { setDispatchDialogs(nullptr); }

Form& Road::front(const std::string& form) {
    Form* loaded = screens.loaded(form);
    if (!loaded) throw std::logic_error(form + " is not open");
    loaded->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(loaded));
    return *loaded;
}

void Road::click(const std::string& form, const std::string& control) {
    QTest::mouseClick(&front(form).control<QWidget>(control), Qt::LeftButton);
}

void Road::choose(const std::string& form, const std::string& entry) {
    front(form).control<QAction>(entry).trigger();
}

void Road::type(const std::string& form, const std::string& box, const std::string& text) {
    auto& widget = front(form).control<QWidget>(box);
    QTest::mouseClick(&widget, Qt::LeftButton);
    QTest::keyClicks(&widget, QString::fromStdString(text));
}

void Road::enter(const std::string& form, const std::vector<std::string>& cells) {
    front(form);
    for (const std::string& cell : cells) {
        for (const char letter : cell) QTest::keyClick(QApplication::focusWidget(), letter);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
}

std::string Road::word(const std::string& form, const std::string& label) {
    return front(form).control<StatusLabel>(label).caption();
}

void Road::picture(const std::string& form, const std::string& name) {
    const QString folder = qEnvironmentVariable("TOLMARK_PICTURES");
    if (folder.isEmpty()) return;
    QCoreApplication::processEvents();
    EXPECT_TRUE(front(form).grab().save(folder + "/" + QString::fromStdString(name) + ".png"));
}

bool Road::appears(const std::string& path) {
    return QTest::qWaitFor([&] { return std::filesystem::exists(path); }, 10000);
}
