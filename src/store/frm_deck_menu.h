// What the main menus of the two input sides share: they make, read and save the
// deck, keep its data sets, and ask before they go.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/dialogs.h"
#include "store/cards.h"
#include "store/frm_data_menu.h"

class FrmDeckMenu : public FrmDataMenu {
    Q_OBJECT
  public:
    void Form_Load() override;
    bool queryUnload() override { return mayLeave(); }

  protected:
    struct Side {
        const char *form, *caption, *helpBox, *helpPage;
        const char* untitled;  ///< name of a new file
        int dataSets;
        int Store::*dataSet;  ///< the current one
    };
    /// `side` must outlive the form.
    FrmDeckMenu(const Side& side, Program& program);
    /// The bar: File, the menus of the data, and what follows them.
    void build(const std::vector<MenuRow>& dataMenus);

    bool mayChoose(bool countsAsChange) override;

    // The deck of the side.
    virtual Double setCount() const = 0;  ///< `NPROB`
    virtual void setSetCount(int n) = 0;
    /// New has been chosen: the data, the visits, and the words under the menus.
    virtual void newFile() = 0;
    /// A data set that the deck did not have has been chosen; the first time it becomes a copy.
    virtual void makeDataSet(int n) = 0;
    virtual DeckReadResult readDeck(const std::string& path, const std::function<void()>& countRead) = 0;
    virtual void saveDeck(const std::string& path) = 0;
    /// What is missing, as messages; nothing is saved unless there is none.
    virtual std::vector<std::string> ErrCheck() = 0;
    virtual void ColorCode(int n) = 0;
    /// The boxes of the main screen at a save.
    virtual void refreshMainScreen(const std::string& FileName);

  private:
    enum class SaveState { Fresh = 0, Changed = 1, Saved = 2 };

    MenuRow fileMenu();
    QLayout* dataSetButtons();
    void showDataSet(int n);

    void mnuNew_Click();
    void mnuOpen_Click();
    void optDataSet_Click(int n);
    void cmdSave_Click();
    void cmdSaveAs_Click();
    void cmdExit_Click();

    void readFile();
    bool errorFound();
    void Save();
    void cutFilePath();
    void saveUnderDialogName();
    bool mayLeave();
    std::optional<FileAnswer> CMDialogBox(FileQuestion::Action action, const std::string& proposal);

    const Side& side_;
    SaveState SaveState_ = SaveState::Fresh;  ///< data menus count as changes, whatever is done in them
    std::string FilePath;                     ///< of the deck: full after a reading, bare after a save
    std::string DataDir;                      ///< directory of the deck, with "/" at its end
};
