// The questions the program asks: one seam, which tests answer by a script.
#pragma once

#include <optional>
#include <string>

enum class Buttons { Ok = 0, YesNoCancel = 3, YesNo = 4 };
enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

struct FileQuestion {
    enum class Action { Open = 1, Save = 2 };
    Action action = Action::Open;
    std::string filter = {};            ///< "Data Files (*.DAT)|*.DAT|Text files|*.TXT"
    int filterNumber = 1;               ///< preselected entry of the filter, from 1
    std::string name = {};              ///< proposed name, full or bare
    std::string directory = {};         ///< folder in which the dialog starts when the name is bare
    std::string pattern = {};           ///< files listed until another entry of the filter is chosen: "*.dat"
    std::string defaultExtension = {};  ///< of a name that is typed without one: ".DAT"
};

struct FileAnswer {
    std::string name;  ///< full path
    int filterNumber = 1;
};

class Dialogs {
  public:
    virtual ~Dialogs() = default;
    /// Waits for the answer; closing the box is Cancel where there is one, else No or Ok.
    virtual Answer MsgBox(const std::string& text, Buttons buttons = Buttons::Ok,
                          const std::string& title = "") = 0;
    /// Nothing when cancelled.
    virtual std::optional<std::string> InputBox(const std::string& prompt, const std::string& title,
                                                const std::string& proposal) = 0;
    /// Nothing when cancelled.
    virtual std::optional<FileAnswer> fileDialog(const FileQuestion& question) = 0;

    /// The question before a file that is there is written over.
    bool mayReplace(const std::string& path) {
        return MsgBox("There is a file " + path + " already. Do you want to replace it?", Buttons::YesNo) ==
               Answer::Yes;
    }
};
