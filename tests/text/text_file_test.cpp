// What the editor has printed when a text cannot be printed whole.
#include "text/text_file.h"

#include <gtest/gtest.h>

#include "support/recording_printer.h"

namespace {

TEST(PrintText, KeepsThePagesThatWentOutBeforeAFailure) {
    RecordingPrinter printer;
    EXPECT_FALSE(printText(printer, "1\r\n2\r\n3\r\n\n", 2)) << "a line of negative length";
    EXPECT_EQ(printer.jobs.size(), 1U);
    EXPECT_FALSE(printer.jobOpen());

    std::string lines;
    for (int i = 0; i < 32768; ++i) lines += "x\r\n";
    EXPECT_FALSE(printText(printer, lines, 1)) << "page numbers end at 32767";
    EXPECT_EQ(printer.jobs.size(), 1U + 32767U);
}

}  // namespace
