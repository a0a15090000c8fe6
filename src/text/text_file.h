// The rules of the text editor that need no window: which file is read for a
// name that was chosen, and how a text is printed.
#pragma once

#include <optional>
#include <string>

class Printer;

/// The file that is read when `chosen` comes back from the dialog. Its extension follows the filter that a
/// dialog last came back with: 1 reads the chosen name, 2 the name with "dat" for its last three characters,
/// anything else (no such filter yet) with "txt". The one existing file that differs only in letter case
/// stands for it. Nothing where the name is not full or too short to have an extension.
std::optional<std::string> nameToRead(const std::string& chosen, int EdFilter);

/// The whole file as it stands. FileNotFound, PermissionDenied.
std::string readBytes(const std::string& path);

/// Prints every line of `text` that ends in CR LF, in bold Courier New of 10 points at tab column 12; each
/// `linesPerPage` lines are a job of their own. Below 1 there is one page without a break. False when the
/// printing failed: pages sent stay sent.
bool printText(Printer& printer, const std::string& text, int linesPerPage);
