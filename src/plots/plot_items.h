// Items of the solvers' plot files. The order of a file is stated once, by
// templates that walk a problem with a PlotSource, which reads each item into it,
// or with a PlotSink, which writes each item of it.
#pragma once

#include <charconv>
#include <cmath>
#include <string>
#include <type_traits>

#include "platform/list_file.h"
#include "platform/numbers.h"
#include "platform/run_time_error.h"

class PlotSource {
  public:
    explicit PlotSource(ListReader& in) : in_(in) {}

    /// The number in front of a title ends its own line as a rule; then the title is on the next one.
    void title(std::string& text) {
        text = in_.readText();
        if (text.empty()) text = in_.readText();
    }
    void item(Integer& value) { value = in_.readInteger(); }
    void item(Long& value) { value = in_.readLong(); }
    void item(Single& value) { value = in_.readSingle(); }
    void item(Variant& value) { value = in_.readDouble(); }
    void endLine() {}
    /// A plot may hold less of a list than a solver may write.
    void limit(Integer count, int most) {
        if (count > most) throw RunTimeError(Fault::SubscriptOutOfRange);
    }

  protected:
    ListReader& in_;
};

class PlotSink {
  public:
    explicit PlotSink(ListWriter& out) : out_(out) {}

    void title(const std::string& text) {
        std::string quoted = "\"";
        for (const char c : text) quoted += c == '"' ? "''" : std::string(1, c);
        out_.line(quoted + '"');
    }
    void item(Integer value) { out_.number(value); }
    void item(Long value) { put(value); }
    void item(Single value) { put(value); }
    void item(const Variant& value) {
        if (const Single* single = std::get_if<Single>(&value.value()))
            put(*single);
        else
            put(value.number());
    }
    void endLine() { out_.endLine(); }
    void limit(Integer, int) {}

  private:
    /// With the fewest digits that read back as the same value.
    template <class Number>
    void put(Number value) {
        if constexpr (std::is_floating_point_v<Number>)
            if (!std::isfinite(value)) throw RunTimeError(Fault::Overflow, "a result is not finite");
        char digits[40];
        const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
        out_.text(" " + std::string(digits, end) + " ");
    }
    ListWriter& out_;
};

template <class File, class... Items>
void line(File& file, Items&... items) {
    (file.item(items), ...);
    file.endLine();
}

/// Elements from..to of one or more arrays, side by side.
template <class File, class... Arrays>
void list(File& file, int from, int to, Arrays&... arrays) {
    for (int i = from; i <= to; ++i) (file.item(arrays[i]), ...);
    if (from <= to) file.endLine();
}
