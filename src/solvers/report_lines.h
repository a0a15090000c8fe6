// Lines of the text output: how a value, a list and a cell of a table are printed.
#pragma once

#include <array>
#include <cstdio>
#include <ostream>
#include <string>

template <class... Values>
std::string printed(const char* pattern, Values... values) {
    std::array<char, 256> text;
    std::snprintf(text.data(), text.size(), pattern, values...);
    return text.data();
}

inline int count(double value) { return static_cast<int>(value); }

inline std::string cell(double value) { return printed(" %12.5g", value); }

inline void line(std::ostream& out, const std::string& text = "") { out << text << "\r\n"; }

/// A row of numbers under a name, continued below itself after `perLine`.
inline void row(std::ostream& out, const std::string& name, int first, int last, auto value,
                int perLine = 8) {
    std::string text = printed("  %-34s", name.c_str());
    for (int i = first; i <= last; ++i) {
        if (i > first && (i - first) % perLine == 0) {
            line(out, text);
            text = std::string(36, ' ');
        }
        text += printed(" %.7g", static_cast<double>(value(i)));
    }
    line(out, text);
}

inline void item(std::ostream& out, const std::string& name, double value, const std::string& note = "") {
    line(out, printed("  %-34s %.7g", name.c_str(), value) + (note.empty() ? "" : "   " + note));
}
