// The history of data directories: the main screen's list, and the text file that
// keeps it between runs, one directory per line, most recent first.
#pragma once

#include <optional>
#include <string>

#include "platform/bounded.h"

/// Element 1 is the most recent directory. How many are used is counted beside it, as `PathCount`.
using DataPathHistory = Bounded<std::string, 20>;

/// Reads at most eight directories; a line that repeats the first one, ignoring case, is dropped. `PathCount`
/// counts along, so that after a failure it tells what was read. FileNotFound, PermissionDenied.
void readDataPaths(const std::string& file, DataPathHistory& DataPaths, int& PathCount);

/// Puts `directory` in front of the history and drops its earlier entry, which is compared exactly, or else,
/// when all places are taken, the oldest one. Gives the place of the dropped entry in a list that counts from
/// 0 and has the new directory already.
std::optional<int> putDataPathFirst(const std::string& directory, DataPathHistory& DataPaths, int& PathCount);

/// Replaces the file by `first`, where there is one, and the history behind it. PathNotFound,
/// PermissionDenied, DiskFull: the file stays as it was.
void writeDataPaths(const std::string& file, const std::optional<std::string>& first,
                    const DataPathHistory& DataPaths, int PathCount);
