// What the program asks of the machine it runs on, beside files.
#pragma once

#include <string>

class Desktop {
  public:
    virtual ~Desktop() = default;

    /// The folder of the executable, without a "/" at its end (unless it is the root).
    virtual std::string programDirectory() const = 0;
    /// Where the history file lies: the program directory, or the user's configuration folder when the
    /// program directory cannot be written. No "/" at the end.
    virtual std::string settingsDirectory() const = 0;
    /// Starts `program` with `argument` as its one argument, detached; a small window follows its console
    /// text. A program that cannot be started is told in a message box.
    virtual void Shell(const std::string& program, const std::string& argument) = 0;
    /// Opens a terminal in `directory`; where there is none, says so in a message box.
    virtual void openTerminal(const std::string& directory) = 0;
    /// Enters nothing, but fails like a change of directory: PathNotFound, PermissionDenied.
    virtual void ChDir(const std::string& directory) = 0;
    /// Makes the directory; every failure passes silently. A bare name is made under `base`.
    virtual void MkDir(const std::string& directory, const std::string& base) = 0;
};
