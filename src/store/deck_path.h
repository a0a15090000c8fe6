// Paths of decks as the input menus take them apart: the data directory, and the
// name behind it.
#pragma once

#include <string>

/// `directory` with a "/" at its end; an empty one stays empty.
std::string withSlash(const std::string& directory);

/// `path` with `directory` in front when it is a bare name; an empty path gives the directory.
std::string completePath(const std::string& path, const std::string& directory);

/// The part of `path` behind `directory` where the path begins with it, otherwise the part behind its last
/// "/". A bare name stays.
std::string nameBehind(const std::string& directory, const std::string& path);

/// A deck's name without its last four characters, ".DAT"; empty when it is shorter.
std::string withoutExtension(const std::string& name);
