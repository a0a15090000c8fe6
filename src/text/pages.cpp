#include "text/pages.h"

#include <algorithm>
#include <sstream>

#include "platform/run_time_error.h"

namespace {

constexpr std::size_t widest = 75;  // columns
const std::string cut = " ...";

/// A line as it fits a page. Only decks have longer ones: values may go on in the next line, and the label
/// stays with the last of them. Labels may not go on, but may be any text: one that is too long is cut.
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
    std::string rest = line.substr(start);
    if (rest.size() > widest) rest = rest.substr(0, rest.rfind(' ', widest - cut.size())) + cut;
    return text + rest + lineEnd;
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
