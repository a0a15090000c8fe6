#include "text/text_file.h"

#include <filesystem>
#include <fstream>

#include "platform/files.h"
#include "platform/print_text_box.h"
#include "platform/printer.h"
#include "platform/run_time_error.h"

std::optional<std::string> nameToRead(const std::string& chosen, int EdFilter) {
    constexpr std::size_t extension = 3;
    if (!isFullName(chosen) || chosen.size() < extension) return std::nullopt;
    if (EdFilter == 1) return resolveName(chosen);
    return resolveName(chosen.substr(0, chosen.size() - extension) + (EdFilter == 2 ? "dat" : "txt"));
}

std::string readBytes(const std::string& path) {
    std::error_code unknown;
    if (!std::filesystem::exists(path, unknown)) throw RunTimeError(Fault::FileNotFound, path);
    std::ifstream file(path, std::ios::binary);
    const auto size = std::filesystem::file_size(path, unknown);
    if (!file || unknown) throw RunTimeError(Fault::PermissionDenied, path);
    std::string bytes(size, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(size));
    if (file.gcount() != static_cast<std::streamsize>(size)) throw RunTimeError(Fault::EndOfFile, path);
    return bytes;
}

bool printText(Printer& printer, const std::string& text, int linesPerPage) {
    try {
        printBlankLines(printer, 5);
        printer.FontBold = true;
        printer.FontName = "Courier New";
        printer.FontSize = 10;
        printTextLines(printer, text,
                       {.linesPerPage = linesPerPage, .blanksAboveHeading = 3, .headingColumn = 12});
        return true;
    } catch (const RunTimeError&) {
        printer.KillDoc();
        return false;
    }
}
