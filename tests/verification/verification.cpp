// Writes docs/verification.md: cases with known answers, what TOLMARK computes, and the difference.
// `scripts/verification` runs it; a test compares its output with the document. It fails where a difference
// is beyond what its section allows.
#include <cmath>
#include <cstdio>

#include "solvers/report_lines.h"
#include "verification/rows.h"

namespace verification {
namespace {

double bound;
bool failed = false;

/// The power of ten that a relative difference stays below; finer ones than 1e-10 are not told apart.
std::string errorText(double error) {
    int power = -10;
    while (error >= std::pow(10., power)) ++power;
    return "< 1e" + std::to_string(power);
}

}  // namespace

void head(const char* title, const char* text, double errorBound) {
    bound = errorBound;
    std::printf("\n## %s\n\n%s\n\n", title, text);
    std::puts("| case | source | expected | computed | relative error |\n|---|---|---|---|---|");
}

void row(const std::string& name, const char* source, double expected, double computed, double scale,
         const char* digits) {
    const double error = std::abs(computed - expected) / scale;
    std::printf("| %s | %s | %s | %s | %s |\n", name.c_str(), source, printed(digits, expected).c_str(),
                printed(digits, computed).c_str(), errorText(error).c_str());
    if (error < bound) return;
    failed = true;
    std::fprintf(stderr, "%s: the error %g is not below %g\n", name.c_str(), error, bound);
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
    return verification::failed ? 1 : 0;
}
