#include "platform/print_text_box.h"

#include "platform/numbers.h"
#include "platform/printer.h"
#include "platform/run_time_error.h"

namespace {

constexpr int textColumn = 12;

}  // namespace

void printBlankLines(Printer& printer, int count) {
    for (int i = 0; i < count; ++i) printer.Print("");
}

void printTextLines(Printer& printer, const std::string& text, const TextPages& pages) {
    Integer page = 1;
    int lines = 0;
    std::size_t position = 0;
    for (auto feed = text.find('\n'); feed != std::string::npos; feed = text.find('\n', position)) {
        if (feed == position) throw RunTimeError(Fault::InvalidCall, "a line of negative length");
        printer.Print(textColumn, text.substr(position, feed - position - 1));
        position = feed + 1;
        if (++lines != pages.linesPerPage) continue;
        printer.EndDoc();
        lines = 0;
        page = ToInteger(page + 1.0);
        printBlankLines(printer, pages.blanksAboveHeading);
        printer.Print(pages.headingColumn, "page " + Str(page));
        printBlankLines(printer, 1);
    }
    printer.EndDoc();
}

void PrintTextBox(Printer& printer, const std::string& text) {
    printer.FontName = "Courier New";
    printer.FontBold = true;
    try {
        printBlankLines(printer, 5);
        printTextLines(printer, text, {});
    } catch (const RunTimeError&) {
        printer.KillDoc();
    }
}
