// Real processes and folders.
#include "platform/qt/qt_desktop.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QtTest>

#include "platform/run_time_error.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_directory.h"

namespace {

/// Says what it got, and works until a file "go on" lies beside it.
const char* const slowSolver = R"sh(#!/bin/sh
here=$(dirname "$0")
echo "$# argument: [$1]"
echo "on standard error" >&2
echo "session $(cut -d' ' -f6 /proc/$$/stat)"
while [ ! -e "$here/go on" ]; do sleep 0.02; done
echo "last line"
: > "$here/finished"
)sh";

/// A variable of the environment, set as long as this lives.
class Environment {
  public:
    Environment(const char* name, const std::string& value) : name_(name) { qputenv(name, value.c_str()); }
    ~Environment() { before_.isNull() ? qunsetenv(name_) : qputenv(name_, before_); }
    Environment(const Environment&) = delete;

  private:
    const char* const name_;
    const QByteArray before_ = qgetenv(name_);
};

class ShellTest : public ::testing::Test {
  protected:
    ShellTest() {
        directory.write("TOLSTRAT.EXE", slowSolver);
        std::filesystem::permissions(solver(), std::filesystem::perms::owner_all);
    }
    ~ShellTest() override { letSolverGoOn(); }

    std::string solver() const { return directory.path() + "TOLSTRAT.EXE"; }
    void letSolverGoOn() const { directory.write("go on", ""); }
    bool exists(const char* name) const { return std::filesystem::exists(directory.path() + name); }

    static QList<QWidget*> consoles() {
        QList<QWidget*> found;
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->objectName() == "ConsoleWindow" && window->isVisible()) found << window;
        return found;
    }
    static bool consoleFileExists() {
        return !QDir(QDir::tempPath()).entryList({"tolmark-console-*"}).isEmpty();
    }

    TemporaryDirectory directory;  ///< its name holds blanks
    ScriptedDialogs dialogs;
    QtDesktop desktop{dialogs, directory.path()};
    const Environment TMPDIR{"TMPDIR", directory.path()};
};

TEST_F(ShellTest, TheConsoleWindowFollowsTheProcessToItsEnd) {
    desktop.Shell(solver(), "/my data/two lane road");
    ASSERT_EQ(consoles().size(), 1);
    const QWidget* window = consoles().first();
    const auto* text = window->findChild<QPlainTextEdit*>("txtConsole");
    const auto* state = window->findChild<QLabel*>("lblState");
    const auto shows = [&](const char* words) { return text->toPlainText().contains(words); };

    EXPECT_TRUE(QTest::qWaitFor([&] { return shows("session "); }));
    EXPECT_TRUE(shows("1 argument: [/my data/two lane road]\n"));
    EXPECT_TRUE(shows("on standard error\n"));
    EXPECT_FALSE(shows(("session " + std::to_string(getsid(0)) + "\n").c_str()));
    EXPECT_TRUE(state->text().startsWith("TOLSTRAT.EXE is running"));

    letSolverGoOn();
    EXPECT_TRUE(QTest::qWaitFor([&] { return state->text() == "TOLSTRAT.EXE has ended."; }));
    EXPECT_TRUE(shows("last line\n"));
}

TEST_F(ShellTest, TheProcessGoesOnWithoutItsWindow) {
    desktop.Shell(solver(), "/road");
    ASSERT_EQ(consoles().size(), 1);
    EXPECT_TRUE(consoleFileExists());
    consoles().first()->close();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !consoleFileExists(); }));
    EXPECT_FALSE(exists("finished"));
    letSolverGoOn();
    EXPECT_TRUE(QTest::qWaitFor([&] { return exists("finished"); }));
}

TEST_F(ShellTest, AProgramThatCannotBeStartedIsTold) {
    const std::string missing = directory.path() + "TOLGIANT.EXE";
    dialogs.expectBox(missing + " cannot be started: there is no such program.");
    desktop.Shell(missing, "/road");

    std::filesystem::permissions(solver(), std::filesystem::perms::owner_read);
    dialogs.expectBox(solver() + " cannot be started: it is not a program that may be run.");
    desktop.Shell(solver(), "/road");
    EXPECT_EQ(consoles().size(), 0);
    EXPECT_FALSE(consoleFileExists());
}

TEST_F(ShellTest, ATerminalOpensInTheDirectoryOrItsLackIsTold) {
    const TemporaryDirectory programs;
    const Environment PATH("PATH", programs.path());
    dialogs.expectBox("No terminal program was found on this machine.");
    desktop.openTerminal(directory.path());

    programs.write("xterm", "#!/bin/sh\n: > 'was here'\n");
    std::filesystem::permissions(programs.path() + "xterm", std::filesystem::perms::owner_all);
    desktop.openTerminal(directory.path());
    EXPECT_TRUE(QTest::qWaitFor([&] { return exists("was here"); }));
}

TEST(QtDesktop, ChDirFailsForWhatIsNoDirectoryAndMkDirMakesOneLevelInSilence) {
    const TemporaryDirectory directory;
    directory.write("file", "");
    ScriptedDialogs dialogs;
    QtDesktop desktop(dialogs, "/");
    desktop.MkDir(directory.path() + "new/", "/nowhere");
    desktop.MkDir(directory.path() + "new", "/nowhere");
    desktop.MkDir("bare", directory.path());
    desktop.MkDir(directory.path() + "a/b", "/nowhere");
    desktop.MkDir("", directory.path());
    EXPECT_FALSE(std::filesystem::exists(directory.path() + "a"));
    for (const char* made : {"new", "bare"}) EXPECT_NO_THROW(desktop.ChDir(directory.path() + made)) << made;
    EXPECT_THROW(desktop.ChDir(directory.path() + "file"), RunTimeError);
    EXPECT_THROW(desktop.ChDir(""), RunTimeError);
}

TEST(QtDesktop, SettingsLieBesideTheProgramOrInTheUsersFolder) {
    const TemporaryDirectory directory;
    ScriptedDialogs dialogs;
    EXPECT_EQ(QtDesktop(dialogs, directory.path()).settingsDirectory(), directory.path());

    const Environment XDG_CONFIG_HOME("XDG_CONFIG_HOME", directory.path());
    const std::string own = QtDesktop(dialogs, "/nowhere").settingsDirectory();
    EXPECT_EQ(QDir(QString::fromStdString(own)), QDir(QString::fromStdString(directory.path() + "tolmark")));
    EXPECT_TRUE(std::filesystem::is_directory(own));
}

}  // namespace
