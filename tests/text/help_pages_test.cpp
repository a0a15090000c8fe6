// The help boxes of the input forms as texts.
#include <gtest/gtest.h>

#include <sstream>

#include "text/pages.h"

namespace {

TEST(FormHelp, IsNumberedThroughoutAndFitsItsBox) {
    const struct {
        const char* page;
        int paragraphs;
    } pages[] = {
        {"frm_bedform", 12},   {"frm_general1", 17},  {"frm_period_106", 3}, {"frm_period_119", 3},
        {"frm_period_123", 3}, {"frm_period_225", 3}, {"frm_layer_112", 3},  {"frm_layer_118", 3},
        {"frm_nonlin", 6},     {"frm_gen_non", 10},   {"frm_granular", 5},   {"frm_clay", 7},
        {"frm_visco", 7},      {"frm_genvis", 7},     {"frm_damage1", 9},    {"frm_panform", 11},
        {"frm_general", 18},   {"frm_slabdata", 5},   {"frm_slabs_x", 3},    {"frm_slabs_y", 3},
        {"frm_curling", 14},   {"frm_solid", 3},      {"frm_dowel", 4},      {"frm_optional", 6},
        {"frm_damage", 7},
    };
    for (const auto& [page, paragraphs] : pages) {
        std::istringstream lines(textPage(page, "\n"));
        int found = 0;
        for (std::string line; std::getline(lines, line);) {
            EXPECT_LE(line.size(), 75U) << page << ": " << line;
            if (!line.starts_with('(')) continue;
            EXPECT_TRUE(line.starts_with("(" + std::to_string(++found) + ")")) << page << ": " << line;
        }
        EXPECT_EQ(found, paragraphs) << page;
    }
}

}  // namespace
