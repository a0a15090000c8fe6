// Printing of a text line by line: of a built text, a help box for instance, and
// of the pages that a text is cut into.
#pragma once

#include <string>

class Printer;

/// Prints every line of `text` that ends in a line feed, less the one character in front of it (the carriage
/// return), in bold Courier New at tab column 12; the caller has set the font size. After 58 lines a page
/// goes out as a job of its own and the next one gets a heading. A failure, also of a line that has no
/// character in front of its line feed, ends the printing silently: pages sent stay sent, the unfinished one
/// is dropped.
void PrintTextBox(Printer& printer, const std::string& text);

struct TextPages {
    int linesPerPage = 58;  ///< below 1: one page without a break
    int blanksAboveHeading = 2;
    int headingColumn = 13;  ///< of "page  2" and so on; the first page has no heading
};

/// The lines of `text` as PrintTextBox prints them, in the printer's font. A line without a character in
/// front of its line feed is InvalidCall, a page number beyond an Integer Overflow, and the printer's own
/// failures come through: pages sent stay sent, the unfinished one is the caller's to drop.
void printTextLines(Printer& printer, const std::string& text, const TextPages& pages);

void printBlankLines(Printer& printer, int count);
