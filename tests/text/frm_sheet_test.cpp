// The manual and its sheets on the screen and on paper.
#include "text/frm_sheet.h"

#include "support/layered_screens.h"
#include "support/page_reading.h"
#include "support/pictures.h"
#include "support/window_checks.h"
#include "text/frm_help1.h"
#include "text/manual.h"
#include "text/pages.h"
#include "text/sheets.h"

namespace {

class Texts : public LayeredScreens {
  protected:
    Texts() {
        screens.add("frmHelp1", [this] { return std::make_unique<frmHelp1>(program); });
        addSheets(program);
    }
};

TEST_F(Texts, TheManualShowsOneSectionAtATimeAndPrintsIt) {
    for (int number = 1; const ManualSection& section : manualSections()) {
        showManual(program, number++);
        Form& help = *screens.loaded("frmHelp1");
        expectWellMade(help);
        EXPECT_EQ(help.control<Label>("Label1").caption(), section.title);
        EXPECT_EQ(help.control<HelpBox>("txtHelp1").textValue(), textPage(section.page, "\r\n"));
        EXPECT_EQ(store.HelpText, textPage(section.page, "\r\n"));
        choose(help, "mnuPrint");
        ASSERT_FALSE(printer.jobs.empty());
        EXPECT_EQ(printer.jobs.back().size, 10);
    }
    EXPECT_THROW(showManual(program, 11), RunTimeError);
    EXPECT_EQ(screens.loaded("frmHelp1"), nullptr);
}

TEST_F(Texts, EverySheetShowsAndPrintsItsFigureAndItsText) {
    for (const Sheet& sheet : sheets()) {
        SCOPED_TRACE(sheet.form);
        printer.jobs.clear();
        printer.pages.clear();
        showSheet(program, sheet.form);
        Form& form = *screens.loaded(sheet.form);
        expectWellMade(form);
        savePicture(form, sheet.form);
        const auto& text = form.control<HelpBox>("txtHelp");
        EXPECT_GT(text.height(), 6 * text.fontMetrics().lineSpacing());
        EXPECT_GT(form.control<PagePicture>("Image1").height(), form.height() / 3);
        EXPECT_EQ(text.textValue(), textPage(sheet.page, "\r\n"));

        choose(form, "mnuPrintForm");
        ASSERT_EQ(printer.pages.size(), 1U);
        EXPECT_EQ(printer.pages[0].height, static_cast<float>(sheet.printHeight));
        EXPECT_EQ(printer.pages[0].ops.size(), sheet.picture().ops.size());

        choose(form, sheet.mnuPrintText.c_str());
        ASSERT_FALSE(printer.jobs.empty());
        EXPECT_TRUE(printer.jobs[0].lines[5].ends_with(text.toPlainText().section('\n', 0, 0).toStdString()));
    }
}

TEST_F(Texts, TheInputMenuOpensTheFailureEnvelope) {
    click(*screens.load("frmBEDFORM"), "mnuMohr");
    Form* sheet = screens.loaded("frmMohr");
    ASSERT_NE(sheet, nullptr);
    const Page& page = sheet->control<PagePicture>("Image1").page();
    for (const char* label : {"= Angle of internal friction", "= Vertical stress", "= Horizontal stress"})
        EXPECT_EQ(textStarting(page, label).text, label);
}

}  // namespace
