// The name of the plot file that a solver leaves beside a data file.
#pragma once

#include <string>

/// `fileName` with its ".DAT" or ".dat" (exactly these) replaced by `extension`. Any other ending leaves the
/// bare extension, a file that is not there.
std::string plotFileName(const std::string& fileName, const std::string& extension);
