// Which file the editor reads, and what it has printed when a printer fails.
#include "text/text_file.h"

#include <gtest/gtest.h>

#include "support/recording_printer.h"
#include "support/temporary_directory.h"

namespace {

TEST(NameToRead, FollowsTheFilterAndNotTheChosenExtension) {
    const TemporaryDirectory folder;
    folder.write("Road.TXT", "");
    folder.write("Road.DAT", "");
    folder.write("notes", "");
    const std::tuple<const char*, int, const char*> cases[] = {
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
