// A desktop that starts nothing and remembers what it was asked for.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/desktop.h"
#include "platform/run_time_error.h"

class QuietDesktop : public Desktop {
  public:
    explicit QuietDesktop(std::string programDirectory) : directory_(std::move(programDirectory)) {}

    struct Started {
        std::string program, argument;
    };
    std::vector<Started> started;
    std::vector<std::string> made, terminals;

    std::string programDirectory() const override { return directory_; }
    std::string settingsDirectory() const override { return directory_; }
    void Shell(const std::string& program, const std::string& argument) override {
        started.push_back({program, argument});
    }
    void openTerminal(const std::string& directory) override { terminals.push_back(directory); }
    void ChDir(const std::string& directory) override {
        if (!std::filesystem::is_directory(directory)) throw RunTimeError(Fault::PathNotFound, directory);
    }
    void MkDir(const std::string& directory, const std::string& base) override {
        made.push_back(directory.starts_with('/') ? directory : base + directory);
    }

  private:
    std::string directory_;
};
