// The decks in examples/ as texts.
#pragma once

#include <fstream>
#include <iterator>
#include <string>

inline std::string example(const std::string& name) {
    std::ifstream file(std::string(TOLMARK_SOURCE_DIR "/examples/") + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}
