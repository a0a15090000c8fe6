#include "roads/road.h"

#include <QAction>
#include <filesystem>

#include "plots/layered_plot.h"
#include "support/page_reading.h"
#include "support/pictures.h"

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

void Road::picture(const std::string& form, const std::string& name) { savePicture(front(form), name); }

std::string Road::solve(const std::string& name) {
    const std::string stem = directory.path() + name;
    click("frmTOLMARK", "cmdTolstrat");
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(stem + ".BED"); }, 20000));
    return directory.read(name + ".TXT");
}

std::vector<std::string> Road::plot(const std::string& name) {
    LayeredPlot plot(directory.path() + name + ".BED");
    std::vector<std::string> pages;
    while (const auto page = plot.next()) {
        pages.emplace_back();
        for (const Written& written : textsOf(*page)) pages.back() += written.text + "\n";
    }
    for (std::size_t page = 1; page <= pages.size(); ++page) {
        dialogs.expectBox("Want to print on the printer?", Buttons::YesNo,
                          page == pages.size() ? Answer::Yes : Answer::No);
    }
    click("frmTOLMARK", "cmdBedplot");
    EXPECT_TRUE(dialogs.finished());
    EXPECT_EQ(notes.size(), 1U);
    EXPECT_EQ(directory.read("print/print-001.pdf").substr(0, 5), "%PDF-");
    return pages;
}
