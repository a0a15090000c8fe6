#include "platform/print_text_box.h"

#include <gmock/gmock.h>

#include "support/recording_printer.h"

namespace {

std::string lines(int count) {
    std::string text;
    for (int i = 1; i <= count; ++i) text += "line " + std::to_string(i) + "\r\n";
    return text;
}

const std::string margin(11, ' ');

TEST(PrintTextBox, PrintsLinesInBoldAtTheTextColumn) {
    RecordingPrinter printer;
    printer.FontSize = 9;
    PrintTextBox(printer, "one\r\n\r\ntwo\r\nlost without an end");
    ASSERT_EQ(printer.jobs.size(), 1U);
    EXPECT_EQ(printer.jobs[0].face, "Courier New");
    EXPECT_EQ(printer.jobs[0].size, 9);
    EXPECT_TRUE(printer.jobs[0].bold);
    EXPECT_THAT(printer.jobs[0].lines,
                ::testing::ElementsAre("", "", "", "", "", margin + "one", margin, margin + "two"));
}

TEST(PrintTextBox, SendsEveryPageAsAJobAndHeadsTheNextOne) {
    RecordingPrinter printer;
    PrintTextBox(printer, lines(58));
    ASSERT_EQ(printer.jobs.size(), 2U);
    EXPECT_EQ(printer.jobs[0].lines.size(), 63U);
    EXPECT_THAT(printer.jobs[1].lines, ::testing::ElementsAre("", "", margin + " page  2", ""));
    PrintTextBox(printer, lines(59));
    ASSERT_EQ(printer.jobs.size(), 4U);
    EXPECT_EQ(printer.jobs[3].lines.back(), margin + "line 59");
}

TEST(PrintTextBox, EndsInSilenceAtALineOfNegativeLength) {
    RecordingPrinter printer;
    PrintTextBox(printer, lines(60) + "\n" + lines(60));
    EXPECT_EQ(printer.jobs.size(), 1U) << "the full page has gone, the unfinished one is dropped";
    EXPECT_FALSE(printer.jobOpen());
}

}  // namespace
