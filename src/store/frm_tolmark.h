// The main screen: the data directory and the file name of the program, and the
// buttons that open every other screen and start the solvers. It stays open under
// all of them; its Exit keeps the history of directories and ends the program.
#pragma once

#include <string>

#include "platform/qt/form.h"
#include "store/program.h"

class QBoxLayout;

class frmTOLMARK : public Form {
  public:
    explicit frmTOLMARK(Program& program);

    void Form_Load() override;
    /// Opens a terminal in the data directory; no button, but Ctrl+T. PathNotFound, PermissionDenied.
    void openTerminalInDataDirectory();
    /// The line at the foot of the screen: where a print job went.
    void showStatus(const std::string& text);

    /// Takes the data directory of the box into the history, and the file name of its box as the shared one.
    void SyncDataPath();

    /// Ends the program, forms that are open included.
    Handler onExit;

  private:
    struct ButtonRow;
    void buildHead(QBoxLayout& page);
    void buildInputs(QBoxLayout& page);
    void buildGroup(QBoxLayout& page, const char* label, const char* caption, const char* aboutLabel,
                    const char* about, std::initializer_list<ButtonRow> rows);
    Button* makeButton(const ButtonRow& row);

    void restoreHistory();
    void startWithProgramDirectory();
    std::string historyFile() const;
    std::string completed(const std::string& directory) const;

    void cmbDataPath_Click();
    void cmbDataPath_Change() { cmbDataPath_Click(); }
    void lblFileName_Click();
    void cmdBedform_Click() { openInput("frmBEDFORM"); }
    void cmdPanform_Click() { openInput("frmPANFORM"); }
    void cmdEdit_Click() { openInput("frmEditor"); }
    void cmdBedplot_Click() { openPlot("frmBEDPLOT"); }
    void cmdPanplot_Click() { openPlot("frmPANPLOT"); }
    void cmdContour_Click() { openPlot("frmCONTOUR"); }
    void cmdTolstrat_Click() { startSolver("TOLSTRAT.EXE"); }
    void cmdTolplate_Click() { startSolver("TOLPLATE.EXE"); }
    void cmdLarge_Click() { startSolver("TOLGIANT.EXE"); }
    void cmdHelp_Click();
    void cmdExit_Click();

    void openInput(const std::string& form);
    void openPlot(const std::string& form);
    void startSolver(const std::string& executable);

    Program& program_;
    std::string ProgramDir;  ///< with its trailing "/"
    int PathCount = 0;
    std::string lastFullDirectory_;  ///< under which a directory typed as a bare name lies

    ComboBox* cmbDataPath = nullptr;
    ComboBox* cmbFileName = nullptr;
    HelpBox* Text1 = nullptr;
    Label* lblStatus = nullptr;
};
