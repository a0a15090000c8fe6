// The text editor, for decks and for the solvers' text output: one text box under
// a menu bar. The main screen's directory and file name follow what it opens and
// saves; its other menus open the manual and the example sheets.
#pragma once

#include <optional>
#include <string>

#include "platform/dialogs.h"
#include "platform/qt/byte_text_box.h"
#include "platform/qt/form.h"
#include "store/program.h"

class frmEditor : public Form {
    Q_OBJECT
  public:
    explicit frmEditor(Program& program);

    void Form_Load() override;
    /// Asks what Exit asks when the text was changed, whether or not a file was opened.
    bool queryUnload() override { return mayLeave(); }

  private:
    void buildMenus();
    void mnuOpen_Click();
    void mnuSave_Click();
    void mnuSaveAs_Click();
    void mnuPrint_Click();
    void mnuExit_Click();
    void mnuCut_Click();
    void mnuCopy_Click();
    void mnuPast_Click();

    bool saidNotOpen();
    std::optional<std::string> EdDialog(FileQuestion question);
    void open(const std::string& path);
    bool saveAs();
    bool mayLeave();
    bool readFile(const std::string& path);
    enum class Outcome { Written, Failed, Told };  ///< Told: not written, and the user knows
    Outcome writeFile(const std::string& name, bool replacing);
    void showFileNameOfDeck();

    Program& program_;
    ByteTextBox* txtEditor;
    bool EdOpen = false;   ///< File/Open was clicked, even if its dialog was cancelled then
    std::string EdFile;    ///< bare at first; a full path once a file was opened or saved
    std::string EdDir;     ///< of EdFile, with its trailing "/"
    QString EdSaved;       ///< the text as it was last read or written
    int EdFilter = 0;      ///< the filter, 1 or 2, that a dialog last came back with; kept where that was 3
    std::string ownFile_;  ///< the file that was last read or written here: it is replaced without a question
};
