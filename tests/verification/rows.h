// The sections of docs/verification.md and the printer of their tables.
#pragma once

#include <string>

namespace verification {

/// A section with the head of its table. Rows whose error is not below `bound` are told, and fail the run.
void head(const char* title, const char* text, double bound);

/// One case. The error is relative to `scale`; `digits` is the number format of both values.
void row(const std::string& name, const char* source, double expected, double computed, double scale,
         const char* digits = "%.7g");

void layered();  ///< the layered solver's sections
void slabs();    ///< the slab solver's sections

}  // namespace verification
