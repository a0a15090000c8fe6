#include "store/store.h"

#include "platform/files.h"

std::string DirectoryOf(const std::string& path) {
    std::size_t end = path.empty() ? 0 : 1;
    for (int level = 0; level < 10; ++level) {
        const std::size_t slash = path.find('/', end);
        if (slash == std::string::npos) break;
        end = slash + 1;
    }
    return path.substr(0, end);
}

std::string withDatExtension(const std::string& name) {
    const bool has = name.size() >= 4 && upperCase(name.substr(name.size() - 4)) == ".DAT";
    return has ? name : name + ".DAT";
}
