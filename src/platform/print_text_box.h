// Printing of a built text, a help box for instance, line by line.
#pragma once

#include <string>

class Printer;

/// Prints every line of `text` that ends in a line feed, less the one character in front of it (the carriage
/// return), in bold Courier New at tab column 12; the caller has set the font size. After 58 lines a page
/// goes out as a job of its own and the next one gets a heading. A failure, also of a line that has no
/// character in front of its line feed, ends the printing silently: pages sent stay sent, the unfinished one
/// is dropped.
void PrintTextBox(Printer& printer, const std::string& text);
