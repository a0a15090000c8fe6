// The history of data directories without a screen.
#include "store/data_paths.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/temporary_directory.h"

namespace {

using Lines = std::vector<std::string>;

Lines used(const DataPathHistory& history, int count) {
    Lines lines;
    for (int i = 1; i <= count; ++i) lines.push_back(history[i]);
    return lines;
}

TEST(DataPaths, EightAreReadAndRepetitionsOfTheFirstDropped) {
    struct Case {
        const char* file;
        Lines read;
    };
    const std::vector<Case> cases = {
        {"", {}},
        {"/a/\r\n/b/", {"/a/", "/b/"}},
        {"/a/\n/b/\n/A/\n/b/\n/a/\n/c, d/\n", {"/a/", "/b/", "/b/", "/c, d/"}},
        {"/1/\n/2/\n/3/\n/1/\n/4/\n/5/\n/6/\n/7/\n/8/\n/9/\n",
         {"/1/", "/2/", "/3/", "/4/", "/5/", "/6/", "/7/", "/8/"}},
    };
    const TemporaryDirectory directory;
    for (const Case& c : cases) {
        directory.write("DataPath", c.file);
        DataPathHistory history;
        int count = -1;
        readDataPaths(directory.path() + "DataPath", history, count);
        EXPECT_EQ(used(history, count), c.read) << c.file;
    }
}

TEST(DataPaths, AnEarlierEntryMovesToTheFrontComparedExactly) {
    DataPathHistory history;
    int count = 0;
    EXPECT_EQ(putDataPathFirst("/a/", history, count), std::nullopt);
    EXPECT_EQ(putDataPathFirst("/b/", history, count), std::nullopt);
    EXPECT_EQ(putDataPathFirst("/A/", history, count), std::nullopt);
    EXPECT_EQ(putDataPathFirst("/a/", history, count), 3);
    EXPECT_EQ(used(history, count), (Lines{"/a/", "/A/", "/b/"}));
}

TEST(DataPaths, TheOldestLeavesWhenAllPlacesAreTaken) {
    DataPathHistory history;
    int count = 0;
    for (int i = 1; i <= 20; ++i) {
        EXPECT_EQ(putDataPathFirst("/" + std::to_string(i) + "/", history, count), std::nullopt);
    }
    EXPECT_EQ(putDataPathFirst("/5/", history, count), 16);
    EXPECT_EQ(history[20], "/1/");
    EXPECT_EQ(putDataPathFirst("/21/", history, count), 20);
    EXPECT_EQ(count, 20);
    EXPECT_EQ(history[1], "/21/");
    EXPECT_EQ(history[2], "/5/");
    EXPECT_EQ(history[20], "/2/");
}

}  // namespace
