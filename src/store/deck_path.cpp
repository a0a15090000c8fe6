#include "store/deck_path.h"

#include "platform/files.h"

std::string withSlash(const std::string& directory) {
    return directory.empty() || directory.ends_with('/') ? directory : directory + '/';
}

std::string completePath(const std::string& path, const std::string& directory) {
    return isFullName(path) ? path : withSlash(directory) + path;
}

std::string nameBehind(const std::string& directory, const std::string& path) {
    if (!isFullName(path)) return path;
    if (!directory.empty() && path.starts_with(directory)) return path.substr(directory.size());
    return path.substr(path.rfind('/') + 1);
}

std::string withoutExtension(const std::string& name) {
    return name.size() < 4 ? "" : name.substr(0, name.size() - 4);
}
