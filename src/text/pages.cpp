#include "text/pages.h"

#include <sstream>

#include "platform/run_time_error.h"

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
            text += line + lineEnd;
        }
    }
    return text;
}
