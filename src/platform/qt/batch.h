// What the batch commands need of the machine: no window, no display.
#pragma once

#include <memory>
#include <string>
#include <vector>

class QGuiApplication;

/// Fonts and painting without a display, as long as it lives.
class BatchApplication {
  public:
    BatchApplication();
    ~BatchApplication();

  private:
    std::unique_ptr<QGuiApplication> application_;
};

/// Runs `program` with the console of this process and waits. Returns its exit status; a program that cannot
/// be started or that crashes is FileNotFound or InvalidCall.
int runAndWait(const std::string& program, const std::vector<std::string>& arguments);

/// The folder of this executable.
std::string executableDirectory();
