// A deck changed, solved and read as text, without leaving the program.
#include <filesystem>

#include "roads/road.h"
#include "text/frm_help1.h"
#include "text/frm_sheet.h"
#include "text/pages.h"
#include "text/sheets.h"

namespace {

class TextRoad : public Road {
  protected:
    TextRoad() {
        directory.write("BED1.DAT", textPage("BED1", "\r\n"));
        front("frmTOLMARK").control<ComboBox>("cmbDataPath").setTextValue(directory.path());
        front("frmTOLMARK").control<ComboBox>("cmbFileName").setTextValue("BED1.DAT");
    }
    std::string shown() {
        return front("frmEditor").control<QPlainTextEdit>("txtEditor").toPlainText().toStdString();
    }
    void open(const std::string& name, int filter) {
        dialogs.expectFile(FileAnswer{directory.path() + name, filter});
        choose("frmEditor", "mnuOpen");
    }
};

TEST_F(TextRoad, ChangesADeckAndReadsItsResults) {
    click("frmTOLMARK", "cmdEdit");
    open("BED1.DAT", 2);
    auto& text = front("frmEditor").control<QPlainTextEdit>("txtEditor");
    ASSERT_TRUE(text.find("400000"));
    QTest::keyClicks(&text, "500000");
    picture("frmEditor", "editor");
    choose("frmEditor", "mnuSave");

    std::string results = solve("BED1");
    std::erase(results, '\r');
    open("BED1.TXT", 1);
    EXPECT_NE(results.find("500000 30000 8000"), std::string::npos);
    EXPECT_EQ(shown(), results);
    EXPECT_EQ(front("frmTOLMARK").control<ComboBox>("cmbFileName").textValue(), "BED1.DAT");
    choose("frmEditor", "mnuExit");
    EXPECT_EQ(screens.loaded("frmEditor"), nullptr);
}

/// With TOLMARK_PICTURES set, the first job of each is left there for a look.
TEST_F(TextRoad, EverySheetAndSectionGoesToPaper) {
    const char* const pictures = std::getenv("TOLMARK_PICTURES");
    const auto print = [&](const std::string& form, const std::string& entry, const std::string& name) {
        notes.clear();
        choose(form, entry);
        ASSERT_FALSE(notes.empty()) << name;
        const std::filesystem::path job = notes[0].substr(notes[0].find('/'));
        EXPECT_GT(std::filesystem::file_size(job), 1000U) << notes[0];
        if (pictures) std::filesystem::copy(job, pictures + ("/" + name + ".pdf"));
    };
    for (const Sheet& sheet : sheets()) {
        showSheet(program, sheet.form);
        print(sheet.form, "mnuPrintForm", sheet.form + "_figure");
        print(sheet.form, sheet.mnuPrintText, sheet.form + "_text");
        choose(sheet.form, "mnuExit");
    }
    for (int number = 1; number <= 10; ++number) {
        showManual(program, number);
        print("frmHelp1", "mnuPrint", "section" + std::to_string(number));
    }
}

TEST_F(TextRoad, TheManualOpensFromEverywhere) {
    click("frmTOLMARK", "cmdHelp");
    EXPECT_EQ(front("frmHelp1").control<Label>("Label1").caption(), "Use of Main Screen");
    picture("frmHelp1", "manual");
    click("frmTOLMARK", "cmdEdit");
    choose("frmEditor", "mnuTS");
    EXPECT_EQ(front("frmHelp1").control<Label>("Label1").caption(), "Data File for TOLSTRAT");
    choose("frmEditor", "mnuBed4");
    picture("frmBed4", "sheet");
    choose("frmBed4", "mnuPrintForm");
    EXPECT_EQ(notes.back(), "No printer: printed to " + directory.path() + "print/print-001.pdf");
}

}  // namespace
