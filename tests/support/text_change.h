// Variants of a sample text.
#pragma once

#include <gtest/gtest.h>

#include <string>

/// `text` with the first `what` in it replaced; a failure where there is none.
inline std::string replaced(std::string text, const std::string& what, const std::string& by) {
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return at == std::string::npos ? text : text.replace(at, what.size(), by);
}
