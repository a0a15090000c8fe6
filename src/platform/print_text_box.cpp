#include "platform/print_text_box.h"

#include "platform/numbers.h"
#include "platform/printer.h"
#include "platform/run_time_error.h"

namespace {

constexpr int linesPerPage = 58;
constexpr int textColumn = 12, headingColumn = 13;

void blankLines(Printer& printer, int count) {
    for (int i = 0; i < count; ++i) printer.Print("");
}

void printLines(Printer& printer, const std::string& text) {
    Integer page = 1;
    int lines = 0;
    blankLines(printer, 5);
    std::size_t position = 0;
    for (auto feed = text.find('\n'); feed != std::string::npos; feed = text.find('\n', position)) {
        if (feed == position) throw RunTimeError(Fault::InvalidCall, "a line of negative length");
        printer.Print(textColumn, text.substr(position, feed - position - 1));
        position = feed + 1;
        if (++lines < linesPerPage) continue;
        printer.EndDoc();
        lines = 0;
        blankLines(printer, 2);
        printer.Print(headingColumn, "page " + Str(++page));
        blankLines(printer, 1);
    }
    printer.EndDoc();
}

}  // namespace

void PrintTextBox(Printer& printer, const std::string& text) {
    printer.FontName = "Courier New";
    printer.FontBold = true;
    try {
        printLines(printer, text);
    } catch (const RunTimeError&) {
        printer.KillDoc();
    }
}
