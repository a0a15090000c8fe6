#include "store/deck_path.h"

#include <gtest/gtest.h>

namespace {

TEST(DeckPath, IsCutOnlyWhereItBeginsWithTheDirectory) {
    struct {
        const char *directory, *path, *name;
    } const cases[] = {
        {"/home/u/a/", "/home/u/a/road.DAT", "road.DAT"},
        {"/tmp/", "/home/u/a/road.DAT", "road.DAT"},
        {"", "/home/u/a/road.DAT", "road.DAT"},
        {"/home/u/a/", "road.DAT", "road.DAT"},
        {"/a/b/", "/a/b/c/road.DAT", "c/road.DAT"},  // behind the tenth level of a deep path
        {"/home/u/a/", "", ""},
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
