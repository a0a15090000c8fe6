// Which run-time error a call ends in.
#pragma once

#include <optional>

#include "platform/run_time_error.h"

/// Nothing where the call returns.
template <class Call>
std::optional<Fault> faultOf(Call call) {
    try {
        call();
    } catch (const RunTimeError& error) {
        return error.fault();
    }
    return std::nullopt;
}
