// The machine the program runs on: its folders, and the processes it starts.
#pragma once

#include <QPointer>
#include <string>
#include <vector>

#include "platform/desktop.h"

class ConsoleWindow;
class Dialogs;

class QtDesktop : public Desktop {
  public:
    /// `programDirectory`: without a "/" at its end.
    QtDesktop(Dialogs& dialogs, std::string programDirectory);
    ~QtDesktop() override;

    std::string programDirectory() const override { return programDirectory_; }
    std::string settingsDirectory() const override;
    void Shell(const std::string& program, const std::string& argument) override;
    void openTerminal(const std::string& directory) override;
    void ChDir(const std::string& directory) override;
    void MkDir(const std::string& directory, const std::string& base) override;

  private:
    Dialogs& dialogs_;
    std::string programDirectory_;
    std::vector<QPointer<ConsoleWindow>> consoles_;
};
