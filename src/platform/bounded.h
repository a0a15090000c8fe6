// An array that counts from 1. Element 0 exists, and every index is checked.
#pragma once

#include <array>
#include <cstddef>

#include "platform/run_time_error.h"

template <class T, int Last>
class Bounded {
  public:
    static constexpr int last = Last;

    /// Element 0 to `Last`; anything else is SubscriptOutOfRange.
    T& operator[](int i) { return elements_[checked(i)]; }
    const T& operator[](int i) const { return elements_[checked(i)]; }

    bool operator==(const Bounded&) const = default;

  private:
    static std::size_t checked(int i) {
        if (i < 0 || i > Last) throw RunTimeError(Fault::SubscriptOutOfRange);
        return static_cast<std::size_t>(i);
    }
    std::array<T, static_cast<std::size_t>(Last) + 1> elements_{};
};
