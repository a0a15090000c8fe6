#include "text/pages.h"

#include <algorithm>
#include <sstream>

#include "platform/run_time_error.h"

namespace {

constexpr std::size_t widest = 75;  // columns

/// A line as it fits a page. Only decks have longer ones: values may go on in the next line, and the label
/// stays with the last of them.
std::string fitted(const std::string& line, const std::string& lineEnd) {
    const std::size_t label = line.find('(');
    if (label == std::string::npos) return line + lineEnd;
    const std::size_t lastValue = line.rfind(' ', line.find_last_not_of(' ', label - 1));
    std::string text;
    std::size_t start = 0;
    while (line.size() - start > widest) {
        const std::size_t end = std::min(line.rfind(' ', start + widest), lastValue);
        if (end == std::string::npos || end <= start) break;
        text += line.substr(start, line.find_last_not_of(' ', end) + 1 - start) + lineEnd;
        start = end;
    }
    return text + line.substr(start) + lineEnd;
}

}  // namespace

std::string textPage(const std::string& name, const std::string& lineEnd) {
    static const std::string include = "@include ";
    const auto page = embeddedPages().find(name);
    if (page == embeddedPages().end()) throw RunTimeError(Fault::InvalidCall, "no help page " + name);
    std::istringstream lines(page->second);
    std::string text;
    for (std::string line; std::getline(lines, line);) {
        if (line.ends_with('\r')) line.pop_back();  // decks
        if (line.starts_with(include)) {
            text += textPage(line.substr(include.size()), lineEnd);
        } else {
            text += fitted(line, lineEnd);
        }
    }
    return text;
}
