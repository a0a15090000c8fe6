#include "plots/plot_name.h"

std::string plotFileName(const std::string& fileName, const std::string& extension) {
    if (fileName.ends_with(".DAT") || fileName.ends_with(".dat"))
        return fileName.substr(0, fileName.size() - 4) + extension;
    return extension;
}
