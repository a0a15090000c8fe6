#include "platform/list_file.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <functional>

#include "support/faults.h"
#include "support/temporary_directory.h"

namespace {

TEST(ListReader, SeparatesItemsAndLines) {
    for (const std::string end : {"\n", "\r\n"}) {
        ListReader in = ListReader::fromText(" 1 , (1) NPROB" + end + "My road" + end + end + " 2, 3,,4" +
                                             end + "-.5 1.5E-2" + end + "  (9) END" + end);
        EXPECT_EQ(in.readInteger(), 1);
        EXPECT_EQ(in.readText(), "(1) NPROB");
        EXPECT_EQ(in.readText(), "My road");
        EXPECT_EQ(in.lineNumber(), 4);
        EXPECT_EQ(in.readInteger(), 2);
        EXPECT_EQ(in.readLong(), 3);
        EXPECT_EQ(in.readSingle(), 4);
        EXPECT_EQ(in.lineNumber(), 5);
        EXPECT_EQ(in.readDouble(), -.5);
        EXPECT_EQ(in.readVariant(), Variant(.015));
        EXPECT_EQ(in.readText(), "") << "a text starts on the line where the reader stands";
        EXPECT_EQ(in.readText(), "(9) END");
        EXPECT_TRUE(in.endOfFile());
    }
}

TEST(ListReader, TextsRunToCommaOrLineEnd) {
    const struct {
        const char* file;
        std::vector<std::string> texts;
    } rows[] = {
        {"a, b c ,d\n", {"a", "b c ", "d"}},
        {"one\n\ntwo", {"one", "", "two"}},
        {"  \r\nx\r\n", {"", "x"}},
        {"\"a, b\", c\r\n", {"a, b", "c"}},
        {" \"a, b\"  \r\nc", {"a, b", "c"}},
        {"\"\",x", {"", "x"}},
        {"\"unclosed, x\ny", {"\"unclosed", "x", "y"}},
        {"\"A\" road, 5\" thick", {"\"A\" road", "5\" thick"}},
    };
    for (const auto& row : rows) {
        ListReader in = ListReader::fromText(row.file);
        for (const auto& text : row.texts) EXPECT_EQ(in.readText(), text) << row.file;
        EXPECT_TRUE(in.endOfFile()) << row.file;
    }
}

TEST(ListReader, VariantTakesNumberOrText) {
    ListReader in = ListReader::fromText(" 2.5,(6) NLAYER NNCK, 7 up\r\n");
    EXPECT_TRUE(std::holds_alternative<Double>(in.readVariant().value()));
    EXPECT_EQ(in.readVariant().text(), "(6) NLAYER NNCK");
    EXPECT_EQ(in.readVariant().number(), 7);
    EXPECT_EQ(in.readVariant().text(), "up");
}

TEST(ListReader, FailuresNameTheLineAndMoveNothing) {
    ListReader in = ListReader::fromText("1\r\n2 40000 x\r\n");
    in.readInteger();
    in.readInteger();
    EXPECT_EQ(faultOf([&] { in.readInteger(); }), Fault::Overflow);
    EXPECT_EQ(in.lineNumber(), 2);
    EXPECT_EQ(in.readLong(), 40000);
    EXPECT_EQ(faultOf([&] { in.readSingle(); }), Fault::TypeMismatch);
    EXPECT_EQ(in.readLine(), " x");
    EXPECT_EQ(faultOf([&] { in.readDouble(); }), Fault::EndOfFile);
    EXPECT_EQ(faultOf([&] { in.readText(); }), Fault::EndOfFile);
}

TEST(ListReader, OpensFilesIgnoringCase) {
    TemporaryDirectory folder;
    folder.write("Road.dat", " 5 \r\n");
    EXPECT_EQ(ListReader(folder.path() + "road.DAT").readInteger(), 5);
    EXPECT_EQ(faultOf([&] { ListReader(folder.path() + "none/road.DAT"); }), Fault::FileNotFound);
    EXPECT_EQ(faultOf([&] { ListReader{folder.path()}; }), Fault::PermissionDenied);
    folder.write("empty", "");
    EXPECT_TRUE(ListReader(folder.path() + "empty").endOfFile());
}

struct WriterTest : ::testing::Test {
    TemporaryDirectory folder;
    const std::string target = folder.path() + "road.DAT";

    auto filesInFolder() const {
        return std::distance(std::filesystem::directory_iterator(folder.path()), {});
    }
    /// What `act` ends in, run in a process of its own; nothing also where that process could not run it.
    static std::optional<Fault> faultInChild(const std::function<void()>& act) {
        constexpr int none = 99;
        const pid_t child = fork();
        if (child == 0) {
            const auto run = [&]() noexcept { return faultOf(act); };  // no way back into the tests
            const auto fault = run();
            _exit(fault ? static_cast<int>(*fault) : none);
        }
        int status = 0;
        waitpid(child, &status, 0);
        if (!WIFEXITED(status) || WEXITSTATUS(status) == none) return std::nullopt;
        return static_cast<Fault>(WEXITSTATUS(status));
    }
};

TEST_F(WriterTest, ReplacesOnlyOnClose) {
    folder.write("road.DAT", "old");
    for (const bool closed : {false, true}) {
        ListWriter out(folder.path() + "ROAD.dat");  // the file that is there, whatever its case
        out.number(Integer{1});
        out.number(4.3f);
        out.number(-.5);
        out.number(Variant(1.365e-9f));
        out.number(Variant("text"));
        out.text(" (1) LABEL");
        out.endLine();
        out.line("Title");
        EXPECT_EQ(folder.read("road.DAT"), "old");
        if (closed) out.close();
    }
    EXPECT_EQ(folder.read("road.DAT"), " 1  4.3 -.5  1.365E-09 text (1) LABEL\r\nTitle\r\n");
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(WriterTest, KeepsPermissionsAndFollowsLinks) {
    folder.write("road.DAT", "old");
    chmod(target.c_str(), 0640);
    std::filesystem::create_symlink("road.DAT", folder.path() + "link.DAT");
    std::filesystem::create_symlink("new.DAT", folder.path() + "dangling.DAT");
    std::filesystem::create_symlink("loop.DAT", folder.path() + "loop.DAT");
    writeFileAtomically(folder.path() + "link.DAT", "new");
    writeFileAtomically(folder.path() + "dangling.DAT", "fresh");

    EXPECT_EQ(folder.read("road.DAT"), "new");
    EXPECT_TRUE(std::filesystem::is_symlink(folder.path() + "link.DAT"));
    EXPECT_EQ(folder.read("new.DAT"), "fresh");
    struct stat status;
    ASSERT_EQ(stat(target.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640u);
    EXPECT_EQ(faultOf([&] { ListWriter{folder.path() + "loop.DAT"}; }), Fault::PathNotFound);
}

TEST_F(WriterTest, WritesADeviceItself) {
    mkfifo(target.c_str(), 0666);
    const int reader = open(target.c_str(), O_RDONLY | O_NONBLOCK);
    writeFileAtomically(target, "text");
    char text[5] = "";
    EXPECT_EQ(read(reader, text, 4), 4);
    EXPECT_STREQ(text, "text");
    EXPECT_TRUE(std::filesystem::is_fifo(target));
    close(reader);
}

TEST_F(WriterTest, PlacesThatCannotBeWritten) {
    EXPECT_EQ(faultOf([&] { ListWriter(folder.path() + "none/road.DAT"); }), Fault::PathNotFound);
    EXPECT_EQ(faultOf([&] { ListWriter{folder.path()}; }), Fault::PermissionDenied);

    // Permissions bind only those who are not the administrator.
    constexpr uid_t nobody = 65534;
    folder.write("road.DAT", "old");
    const auto write = [&] {
        if (geteuid() == 0 && setuid(nobody) != 0) _exit(99);
        writeFileAtomically(target, "new");
    };
    chmod(folder.path().c_str(), 0555);
    chmod(target.c_str(), 0666);
    EXPECT_EQ(faultInChild(write), Fault::PermissionDenied) << "a folder that takes no file";
    chmod(folder.path().c_str(), 0777);
    chmod(target.c_str(), 0444);
    EXPECT_EQ(faultInChild(write), Fault::PermissionDenied) << "a file that must not be written";
    EXPECT_EQ(folder.read("road.DAT"), "old");
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(WriterTest, AFullDiskLeavesTheOldFileWhole) {
    folder.write("road.DAT", "old");
    for (const rlim_t room : {0, 1, 5000, 99999}) {
        const auto write = [&] {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit limit{room, room};
            setrlimit(RLIMIT_FSIZE, &limit);
            writeFileAtomically(target, std::string(100000, 'x'));
        };
        EXPECT_EQ(faultInChild(write), Fault::DiskFull) << room;
        EXPECT_EQ(folder.read("road.DAT"), "old");
        EXPECT_EQ(filesInFolder(), 1) << "the temporary file stayed";
    }
}

}  // namespace
