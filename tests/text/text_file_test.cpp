// Which file the editor reads, and how it prints.
#include "text/text_file.h"

#include <gmock/gmock.h>

#include "platform/run_time_error.h"
#include "support/recording_printer.h"
#include "support/temporary_directory.h"

namespace {

using ::testing::ElementsAre;

TEST(NameToRead, FollowsTheFilterAndNotTheChosenExtension) {
    const TemporaryDirectory folder;
    folder.write("Road.TXT", "");
    folder.write("Road.DAT", "");
    folder.write("notes", "");
    const struct {
        const char* chosen;
        int filter;
        const char* read;
    } cases[] = {
        {"Road.DAT", 0, "Road.TXT"}, {"Road.TXT", 0, "Road.TXT"}, {"road.txt", 0, "Road.TXT"},
        {"Road.TXT", 2, "Road.DAT"}, {"Road.DAT", 2, "Road.DAT"}, {"Road.DAT", 1, "Road.DAT"},
        {"notes", 1, "notes"},       {"notes", 0, "notxt"},       {"NOTES", 1, "notes"},
    };
    for (const auto& [chosen, filter, read] : cases)
        EXPECT_EQ(nameToRead(folder.path() + chosen, filter), folder.path() + read)
            << chosen << ", filter " << filter;
    EXPECT_EQ(nameToRead("Road.DAT", 1), std::nullopt) << "a bare name is not read";
    EXPECT_EQ(nameToRead("/a", 1), std::nullopt) << "no room for an extension";
}

TEST(ReadBytes, GivesTheFileOrAFault) {
    const TemporaryDirectory folder;
    const std::string bytes("a\r\n\0\xFF", 5);
    folder.write("bytes", bytes);
    EXPECT_EQ(readBytes(folder.path() + "bytes"), bytes);
    EXPECT_THROW(readBytes(folder.path() + "none"), RunTimeError);
    EXPECT_THROW(readBytes(folder.path()), RunTimeError);
}

TEST(PrintText, CutsPagesAtTheLinesAsked) {
    const std::string margin(11, ' ');
    RecordingPrinter printer;
    EXPECT_TRUE(printText(printer, "one\r\n\r\nthree\r\nno end", 2));
    EXPECT_EQ(printer.FontName, "Courier New");
    EXPECT_EQ(printer.FontSize, 10);
    EXPECT_TRUE(printer.FontBold);
    ASSERT_EQ(printer.jobs.size(), 2U);
    EXPECT_THAT(printer.jobs[0].lines, ElementsAre("", "", "", "", "", margin + "one", margin));
    EXPECT_THAT(printer.jobs[1].lines, ElementsAre("", "", "", margin + "page  2", "", margin + "three"));

    printer.jobs.clear();
    EXPECT_TRUE(printText(printer, "one\r\ntwo\r\n", 0));
    ASSERT_EQ(printer.jobs.size(), 1U) << "no page break";
    EXPECT_THAT(printer.jobs[0].lines, ElementsAre("", "", "", "", "", margin + "one", margin + "two"));
}

class BrokenPrinter : public RecordingPrinter {
  public:
    void EndDoc() override {
        if (jobs.size() == 2) throw RunTimeError(Fault::InvalidCall, "no paper");
        RecordingPrinter::EndDoc();
    }
};

TEST(PrintText, KeepsThePagesThatWentOutBeforeAFailure) {
    BrokenPrinter printer;
    EXPECT_FALSE(printText(printer, "1\r\n2\r\n3\r\n4\r\n", 1));
    EXPECT_EQ(printer.jobs.size(), 2U);
    EXPECT_FALSE(printer.jobOpen());

    RecordingPrinter endless;
    std::string lines;
    for (int i = 0; i < 32768; ++i) lines += "x\r\n";
    EXPECT_FALSE(printText(endless, lines, 1)) << "page numbers end at 32767";
    EXPECT_EQ(endless.jobs.size(), 32767U);
}

}  // namespace
