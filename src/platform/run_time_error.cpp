#include "platform/run_time_error.h"

namespace {

const char* sentence(Fault fault) {
    switch (fault) {
        case Fault::Overflow:
            return "Overflow";
        case Fault::TypeMismatch:
            return "Type mismatch";
        case Fault::SubscriptOutOfRange:
            return "Subscript out of range";
        case Fault::DivisionByZero:
            return "Division by zero";
        case Fault::InvalidCall:
            return "Invalid procedure call";
        case Fault::FileNotFound:
            return "File not found";
        case Fault::PathNotFound:
            return "Path not found";
        case Fault::PermissionDenied:
            return "Permission denied";
        case Fault::EndOfFile:
            return "Input past end of file";
        case Fault::DiskFull:
            return "The file could not be written";
    }
    return "Run-time error";
}

}  // namespace

RunTimeError::RunTimeError(Fault fault, const std::string& detail)
    : std::runtime_error(detail.empty() ? std::string(sentence(fault)) : sentence(fault) + (": " + detail)),
      fault_(fault),
      detail_(detail) {}
