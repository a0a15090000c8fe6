// The list of data files in a box.
#pragma once

#include <string>

class ComboBox;

/// Fills the box's list with the files of `directory` that match `pattern` and takes the first one as its
/// text; gives their number. A directory without "/" at its end: 0, and nothing changes. With no file the
/// list is cleared and the text stays. PermissionDenied where the directory cannot be read.
int FillFileList(const std::string& directory, const std::string& pattern, ComboBox& box);
