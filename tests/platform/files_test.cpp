#include "platform/files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/temporary_directory.h"

namespace {

TEST(Files, NamesResolveToTheOneFileThatIsThere) {
    TemporaryDirectory folder;
    for (const char* name : {"road.dat", "Two.DAT", "two.dat", "exact.DAT", "EXACT.DAT"})
        folder.write(name, "");
    std::filesystem::create_directory(folder.path() + "Sub.dat");
    const struct {
        const char *told, *found;
    } rows[] = {
        {"road.DAT", "road.dat"},   {"ROAD.dat", "road.dat"}, {"road.dat", "road.dat"},
        {"exact.DAT", "exact.DAT"}, {"TWO.dat", "TWO.dat"},  // two files: neither is the one
        {"new.DAT", "new.DAT"},     {"sub.DAT", "sub.DAT"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(resolveName(folder.path() + row.told), folder.path() + row.found);
        EXPECT_EQ(resolveIn(folder.path(), row.told), folder.path() + row.found);
        EXPECT_EQ(resolveIn(folder.path().substr(0, folder.path().size() - 1), row.told),
                  folder.path() + row.found);
    }
    EXPECT_EQ(resolveIn("/nowhere", folder.path() + "ROAD.DAT"), folder.path() + "road.dat");
    EXPECT_EQ(resolveName("/no/such/folder/x.DAT"), "/no/such/folder/x.DAT");
    EXPECT_EQ(resolveName(folder.path()), folder.path());
    EXPECT_EQ(resolveName(""), "");
}

TEST(Files, PatternsIgnoreCaseAndNamesComeSorted) {
    TemporaryDirectory folder;
    for (const char* name : {"B.DAT", "a.dat", "c.Dat", "c.dat.bak", "dat", "a10.txt"})
        folder.write(name, "");
    std::filesystem::create_directory(folder.path() + "folder.dat");
    using ::testing::ElementsAre;
    EXPECT_THAT(listFiles(folder.path(), "*.dat"), ElementsAre("a.dat", "B.DAT", "c.Dat"));
    EXPECT_THAT(listFiles(folder.path(), "?.d*"), ElementsAre("a.dat", "B.DAT", "c.Dat", "c.dat.bak"));
    EXPECT_THAT(listFiles(folder.path(), "*.exe"), ElementsAre());
    EXPECT_THAT(listFiles(folder.path() + "none", "*"), ElementsAre());
}

}  // namespace
