// The program's questions as real boxes. The only place that waits for the user.
#pragma once

#include <QString>
#include <QStringList>

#include "platform/dialogs.h"

class QtDialogs : public Dialogs {
  public:
    Answer MsgBox(const std::string& text, Buttons buttons, const std::string& title) override;
    std::optional<std::string> InputBox(const std::string& prompt, const std::string& title,
                                        const std::string& proposal) override;
    /// Names that differ only in letter case count as one file: the lists show both, and a name that would
    /// replace such a file is asked about.
    std::optional<FileAnswer> fileDialog(const FileQuestion& question) override;
};

/// The entries of "Data Files (*.DAT)|*.DAT|Text Files|*.TXT;*.LST|" as Qt has them.
QStringList qtNameFilters(const std::string& filter);
