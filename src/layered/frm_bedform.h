// The main menu of layered input: it leads through the data from left to right,
// tells by a word under each menu what is still missing, makes, reads and saves
// the deck, and keeps up to five data sets.
#pragma once

#include <optional>

#include "platform/dialogs.h"
#include "platform/qt/menu_form.h"
#include "store/program.h"

class frmBEDFORM : public MenuForm {
    Q_OBJECT
  public:
    explicit frmBEDFORM(Program& program);
    void Form_Load() override;
    bool queryUnload() override { return mayLeave(); }

  private:
    enum class SaveState { Fresh = 0, Changed = 1, Saved = 2 };

    std::vector<MenuRow> menuRows();
    QLayout* dataSetButtons();

    void dataMenu_Click(std::size_t row);
    void mnuNew_Click();
    void mnuOpen_Click();
    void mnuMohr_Click();
    void optDataSet_Click(int n);
    void cmdSave_Click();
    void cmdSaveAs_Click();
    void cmdExit_Click();

    void open(const std::string& form);
    void readDeck();
    void showDataSets();
    void ColorCode(int n);
    bool errorFound();
    void Save();
    void cutFilePath();
    void saveUnderDialogName();
    bool mayLeave();
    std::optional<FileAnswer> CMDialogBox(FileQuestion::Action action, const std::string& proposal);

    Program& program_;
    Store& store_;
    SaveState SaveState_ = SaveState::Fresh;  ///< data menus count as changes, whatever is done in them
    std::string FilePath;                     ///< of the deck: full after a reading, bare after a save
    std::string DataDir;                      ///< directory of the deck, with "/" at its end
};
