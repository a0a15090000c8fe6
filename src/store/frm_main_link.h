// What the input menus and the editor write on the main screen. The data directory in the store
// follows also when no main screen is open.
#pragma once

#include <string>

struct Program;

/// Makes `directory` the data directory: the box on the main screen shows it, and its file list follows.
void setDataPath(Program& program, const std::string& directory);
/// Puts `directory` on top of the list of data directories, unless the history begins with it (ignoring
/// case).
void offerDataPath(Program& program, const std::string& directory);
/// Puts `directory` at the end of that list, unless the list begins with it (ignoring case).
void appendDataPath(Program& program, const std::string& directory);
/// Reads the list of data files again and shows `name` as the file name.
void refreshFileName(Program& program, const std::string& name);
/// Runs SyncDataPath of the main screen, which takes its data directory into the history.
void syncDataPath(Program& program);
void setFileName(Program& program, const std::string& name);
