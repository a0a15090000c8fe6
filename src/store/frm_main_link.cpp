#include "store/frm_main_link.h"

#include "platform/files.h"
#include "platform/qt/form.h"
#include "store/frm_file_list.h"
#include "store/frm_tolmark.h"
#include "store/program.h"
#include "store/store.h"

namespace {

ComboBox* boxOfMainScreen(Program& program, const std::string& name) {
    Form* main = program.screens.loaded("frmTOLMARK");
    return main ? &main->control<ComboBox>(name) : nullptr;
}

}  // namespace

void setDataPath(Program& program, const std::string& directory) {
    program.store.cmbDirectory = directory;
    if (ComboBox* box = boxOfMainScreen(program, "cmbDataPath")) box->setTextValue(directory);
}

void offerDataPath(Program& program, const std::string& directory) {
    if (equalIgnoringCase(directory, program.store.DataPaths[1])) return;
    if (ComboBox* box = boxOfMainScreen(program, "cmbDataPath")) box->insertListItem(directory, 0);
}

void appendDataPath(Program& program, const std::string& directory) {
    ComboBox* box = boxOfMainScreen(program, "cmbDataPath");
    if (!box || (box->listCount() > 0 && equalIgnoringCase(directory, box->listText(0)))) return;
    box->addListItem(directory);
}

void refreshFileName(Program& program, const std::string& name) {
    if (ComboBox* box = boxOfMainScreen(program, "cmbFileName")) {
        FillFileList(program.store.cmbDirectory, "*.dat", *box);
        box->setTextValue(name);
    }
}

void setFileName(Program& program, const std::string& name) {
    if (ComboBox* box = boxOfMainScreen(program, "cmbFileName")) box->setTextValue(name);
}

void syncDataPath(Program& program) {
    if (auto* main = dynamic_cast<frmTOLMARK*>(program.screens.loaded("frmTOLMARK"))) main->SyncDataPath();
}
