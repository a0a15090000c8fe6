#include "platform/files.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "platform/run_time_error.h"

namespace fs = std::filesystem;

namespace {

/// `*` is any run of characters, `?` any one; both texts in upper case.
bool matches(std::string_view name, std::string_view pattern) {
    if (pattern.empty()) return name.empty();
    if (pattern.front() == '*')
        return matches(name, pattern.substr(1)) || (!name.empty() && matches(name.substr(1), pattern));
    if (name.empty() || (pattern.front() != '?' && pattern.front() != name.front())) return false;
    return matches(name.substr(1), pattern.substr(1));
}

/// Names of the files in a directory, folders left out. `error` tells a directory that cannot be read.
std::vector<std::string> filesIn(const fs::path& directory, std::error_code& error) {
    std::vector<std::string> names;
    fs::directory_iterator entry(directory, error);
    while (!error && entry != fs::directory_iterator()) {
        std::error_code unknown;  // an entry that vanished is no file
        if (!entry->is_directory(unknown) && !unknown) names.push_back(entry->path().filename().string());
        entry.increment(error);
    }
    return names;
}

}  // namespace

bool isFullName(const std::string& name) { return name.starts_with('/'); }

std::string resolveName(const std::string& path) {
    std::error_code error;
    const fs::path told(path);
    if (path.empty() || !told.has_filename() || fs::exists(fs::symlink_status(told, error))) return path;

    const fs::path directory = told.has_parent_path() ? told.parent_path() : fs::path(".");
    std::vector<std::string> same = filesIn(directory, error);
    std::erase_if(
        same, [&](const std::string& name) { return !equalIgnoringCase(name, told.filename().string()); });
    if (same.size() != 1) return path;
    return path.substr(0, path.size() - told.filename().string().size()) + same.front();
}

std::string resolveIn(const std::string& directory, const std::string& name) {
    if (isFullName(name)) return resolveName(name);
    const bool joined = directory.empty() || directory.ends_with('/');
    return resolveName(directory + (joined ? "" : "/") + name);
}

std::vector<std::string> listFiles(const std::string& directory, const std::string& pattern) {
    std::error_code error;
    std::vector<std::string> names = filesIn(directory, error);
    if (error == std::errc::permission_denied) throw RunTimeError(Fault::PermissionDenied, directory);
    const std::string wanted = upperCase(pattern);
    std::erase_if(names, [&](const std::string& name) { return !matches(upperCase(name), wanted); });
    std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
        const std::string upperA = upperCase(a), upperB = upperCase(b);
        return upperA != upperB ? upperA < upperB : a < b;
    });
    return names;
}

std::string upperCase(std::string text) {
    for (char& c : text)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
    return text;
}

bool equalIgnoringCase(const std::string& a, const std::string& b) { return upperCase(a) == upperCase(b); }
