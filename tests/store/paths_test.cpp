// Paths without a screen: the history of data directories, and names of decks.
#include "store/data_paths.h"

#include <gtest/gtest.h>

#include <vector>

#include "store/deck_path.h"
#include "support/temporary_directory.h"

namespace {

using Lines = std::vector<std::string>;

Lines used(const DataPathHistory& history, int count) {
    Lines lines;
    for (int i = 1; i <= count; ++i) lines.push_back(history[i]);
    return lines;
}

TEST(DataPaths, EightAreReadAndRepetitionsOfTheFirstDropped) {
    const std::pair<const char*, Lines> cases[] = {
        {"", {}},
        {"/a/\r\n/b/", {"/a/", "/b/"}},
        {"/a/\n/b/\n/A/\n/b/\n/a/\n/c, d/\n", {"/a/", "/b/", "/b/", "/c, d/"}},
        {"/1/\n/2/\n/3/\n/1/\n/4/\n/5/\n/6/\n/7/\n/8/\n/9/\n",
         {"/1/", "/2/", "/3/", "/4/", "/5/", "/6/", "/7/", "/8/"}},
    };
    const TemporaryDirectory directory;
    for (const auto& [file, read] : cases) {
        directory.write("DataPath", file);
        DataPathHistory history;
        int count = -1;
        readDataPaths(directory.path() + "DataPath", history, count);
        EXPECT_EQ(used(history, count), read) << file;
    }
}

TEST(DataPaths, AnEarlierEntryMovesToTheFrontComparedExactlyAndTheOldestLeaves) {
    DataPathHistory history;
    int count = 0;
    const auto put = [&](const std::string& path) { return putDataPathFirst(path, history, count); };
    for (const char* path : {"/a/", "/b/", "/A/"}) EXPECT_EQ(put(path), std::nullopt);
    EXPECT_EQ(put("/a/"), 3);
    EXPECT_EQ(used(history, count), (Lines{"/a/", "/A/", "/b/"}));
    for (int i = 4; i <= 20; ++i) EXPECT_EQ(put("/" + std::to_string(i) + "/"), std::nullopt);
    EXPECT_EQ(put("/21/"), 20);
    EXPECT_EQ(count, 20);
    EXPECT_EQ(history[1] + history[2] + history[20], "/21//20//A/");
}

TEST(DeckPath, IsCutOnlyWhereItBeginsWithTheDirectory) {
    struct {
        const char *directory, *path, *name;
    } const cases[] = {
        {"/home/u/a/", "/home/u/a/road.DAT", "road.DAT"}, {"/tmp/", "/home/u/a/road.DAT", "road.DAT"},
        {"", "/home/u/a/road.DAT", "road.DAT"},           {"/home/u/a/", "road.DAT", "road.DAT"},
        {"/a/b/", "/a/b/c/road.DAT", "c/road.DAT"},  // behind the tenth level of a deep path
    };
    for (const auto& c : cases) EXPECT_EQ(nameBehind(c.directory, c.path), c.name) << c.path;
}

TEST(DeckPath, IsCompletedWhenItIsBare) {
    EXPECT_EQ(completePath("road.DAT", "/home/u/"), "/home/u/road.DAT");
    EXPECT_EQ(completePath("road.DAT", "/home/u"), "/home/u/road.DAT");
    EXPECT_EQ(completePath("/b/road.DAT", "/home/u/"), "/b/road.DAT");
    EXPECT_EQ(completePath("", "/home/u/"), "/home/u/");
}

TEST(DeckPath, LosesItsExtension) {
    EXPECT_EQ(withoutExtension("road.DAT"), "road");
    EXPECT_EQ(withoutExtension(".DAT"), "");
    EXPECT_EQ(withoutExtension("ab"), "");
}

}  // namespace
