#include "store/frm_file_list.h"

#include "platform/files.h"
#include "platform/qt/controls.h"

int FillFileList(const std::string& directory, const std::string& pattern, ComboBox& box) {
    if (!directory.ends_with('/')) return 0;
    box.clearList();
    for (const std::string& name : listFiles(directory, pattern)) box.addListItem(name);
    if (box.listCount() > 0) box.setListIndex(0);
    return box.listCount();
}
