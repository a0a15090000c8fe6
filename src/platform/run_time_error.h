// The one exception of the system. A routine's contract says whether it lets a
// RunTimeError through; what nobody catches reaches the event dispatcher, which
// shows the text in a message box and keeps the program and its data alive.
#pragma once

#include <stdexcept>
#include <string>

enum class Fault {
    Overflow,
    TypeMismatch,
    SubscriptOutOfRange,
    DivisionByZero,
    InvalidCall,
    FileNotFound,
    PathNotFound,
    PermissionDenied,
    EndOfFile,
    DiskFull,
};

class RunTimeError : public std::runtime_error {
  public:
    /// `detail` is appended to the fault's own sentence, e.g. a file name.
    explicit RunTimeError(Fault fault, const std::string& detail = "");
    Fault fault() const { return fault_; }
    const std::string& detail() const { return detail_; }

  private:
    Fault fault_;
    std::string detail_;
};
