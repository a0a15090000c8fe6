// Names and folders, as the program uses them on any system: names resolve
// ignoring letter case to the one file that is there.
#pragma once

#include <string>
#include <vector>

/// A name is full when it starts with "/".
bool isFullName(const std::string& name);

/// The exact file, else the one existing file that differs only in letter case (also in its extension);
/// otherwise the name as given. Directories are taken as they stand.
std::string resolveName(const std::string& path);

/// `name` itself when full, else taken from `directory` (with or without a "/" at its end); resolved.
std::string resolveIn(const std::string& directory, const std::string& name);

/// File names (no folders) in `directory` that match `pattern` ("*.dat"), ignoring case, sorted by name.
/// An unreadable directory is PermissionDenied, a missing one gives an empty list.
std::vector<std::string> listFiles(const std::string& directory, const std::string& pattern);

/// Upper and lower case of ASCII letters; comparison that ignores case.
std::string upperCase(std::string text);
bool equalIgnoringCase(const std::string& a, const std::string& b);
