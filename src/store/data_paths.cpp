#include "store/data_paths.h"

#include <algorithm>
#include <vector>

#include "platform/files.h"
#include "platform/list_file.h"

namespace {

constexpr int pathsLoaded = 8;

}  // namespace

void readDataPaths(const std::string& file, DataPathHistory& DataPaths, int& PathCount) {
    ListReader reader(file);
    PathCount = 0;
    while (!reader.endOfFile() && PathCount < pathsLoaded) {
        DataPaths[++PathCount] = reader.readLine();
        if (PathCount != 1 && equalIgnoringCase(DataPaths[PathCount], DataPaths[1])) --PathCount;
    }
}

std::optional<int> putDataPathFirst(const std::string& directory, DataPathHistory& DataPaths,
                                    int& PathCount) {
    std::vector<std::string> paths = {directory};
    for (int i = 1; i <= PathCount; ++i) paths.push_back(DataPaths[i]);

    std::optional<int> dropped;
    const auto earlier = std::find(paths.begin() + 1, paths.end(), directory);
    if (earlier != paths.end()) {
        dropped = static_cast<int>(earlier - paths.begin());
    } else if (PathCount == DataPathHistory::last) {
        dropped = PathCount;
    }
    if (dropped) paths.erase(paths.begin() + *dropped);

    PathCount = static_cast<int>(paths.size());
    for (int i = 1; i <= PathCount; ++i) DataPaths[i] = paths[static_cast<std::size_t>(i - 1)];
    return dropped;
}

void writeDataPaths(const std::string& file, const std::optional<std::string>& first,
                    const DataPathHistory& DataPaths, int PathCount) {
    ListWriter writer(file);
    if (first) writer.line(*first);
    for (int i = 1; i <= PathCount; ++i) writer.line(DataPaths[i]);
    writer.close();
}
