#include "roads/road.h"

#include <QAction>
#include <filesystem>

#include "plots/layered_plot.h"
#include "support/page_reading.h"
#include "support/pictures.h"

Cells cellsOf(const Line& values) {
    Cells cells;
    for (const Variant& value : values) cells.push_back(value.text());
    return cells;
}

std::string textOf(const Page& page) {
    std::string lines;
    for (const Written& written : textsOf(page)) lines += written.text + "\n";
    return lines;
}

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

void Road::name(const std::string& file) {
    front("frmTOLMARK").control<ComboBox>("cmbDataPath").setTextValue(directory.path());
    front("frmTOLMARK").control<ComboBox>("cmbFileName").setTextValue(file);
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

void Road::enter(const std::string& form, const Cells& cells) {
    front(form);
    for (const std::string& cell : cells) {
        for (const char letter : cell) QTest::keyClick(QApplication::focusWidget(), letter);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }
}

void Road::fill(const std::string& form, const Boxes& boxes) {
    for (const auto& [box, value] : boxes) type(form, box, value.text());
    picture(form, form);
}

void Road::fillTable(const std::string& form, const Cells& cells, const std::string& okButton) {
    enter(form, cells);
    picture(form, form + "_" + std::to_string(store.TableKind));
    click(form, okButton);
}

void Road::saveAs(const std::string& menu, const std::string& file) {
    dialogs.expectFile(FileAnswer{directory.path() + file, 1});
    dialogs.expectBox("File with a filename of " + file + " has been saved");
    picture(menu, menu);
    click(menu, "cmdSaveAs");
    click(menu, "cmdExit");
    EXPECT_TRUE(dialogs.finished());
}

void Road::exitAndSave(const std::string& menu, const std::string& file) {
    dialogs.expectBox("You have not save the file.  Do you want to save the file?", Buttons::YesNoCancel,
                      Answer::Yes);
    dialogs.expectBox("File with a filename of " + directory.path() + file + " has been saved");
    click(menu, "cmdExit");
    EXPECT_TRUE(dialogs.finished());
}

std::string Road::word(const std::string& form, const std::string& label) {
    return front(form).control<StatusLabel>(label).caption();
}

void Road::expectDone(const std::string& form, const Cells& labels) {
    for (const std::string& label : labels) EXPECT_EQ(word(form, label), "done") << label;
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
    while (const auto page = plot.next()) pages.push_back(textOf(*page));
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
