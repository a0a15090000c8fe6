// Writes docs/verification.md: cases with known answers, what TOLMARK computes, and the difference.
// `scripts/verification` runs it; a test compares its output with the document.
#include <cmath>
#include <cstdio>

#include "solvers/report_lines.h"
#include "verification/rows.h"

namespace verification {
namespace {

/// The power of ten that a relative difference stays below; finer ones than 1e-10 are not told apart.
std::string errorText(double computed, double expected, double scale) {
    const double error = std::abs(computed - expected) / scale;
    int power = -10;
    while (error >= std::pow(10., power)) ++power;
    return "< 1e" + std::to_string(power);
}

}  // namespace

void head(const char* title, const char* text) {
    std::printf("\n## %s\n\n%s\n\n", title, text);
    std::puts("| case | source | expected | computed | relative error |\n|---|---|---|---|---|");
}

void row(const std::string& name, const char* source, double expected, double computed, double scale,
         const char* digits) {
    std::printf("| %s | %s | %s | %s | %s |\n", name.c_str(), source, printed(digits, expected).c_str(),
                printed(digits, computed).c_str(), errorText(computed, expected, scale).c_str());
}

}  // namespace verification

int main() {
    std::puts(R"(# Verification

Known answers and what TOLMARK computes, at the default tolerance DEL = .001. For layered roads the aim is a
relative error of at most 1e-6 of the largest component at a place; slabs carry the error of their elements,
which falls with the square of their size, unless the case is one that elements meet exactly. This file is
written by `scripts/verification`; a test checks that it is what the program computes now. Many more cases stand
in `tests/solvers/`: equilibrium, continuity at interfaces, reciprocity, superposition, and the same systems at
many points.)");
    verification::layered();
    verification::slabs();
}
