// Prints on the default printer. Where there is none each job becomes a numbered
// PDF file in `print/` under the data directory.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/printer.h"

class QtPrinter : public Printer {
  public:
    /// `dataDirectory` is asked when a job goes out; `status` is told where it went, or why it did not.
    QtPrinter(std::function<std::string()> dataDirectory, std::function<void(const std::string&)> status);

    /// A line that is too long for the sheet goes on below at the same column, a full sheet is followed by
    /// the next.
    void Print(const std::string& line) override;
    void Print(int tabColumn, const std::string& line) override;
    void NewPage() override;
    void EndDoc() override;
    void KillDoc() override;
    /// At its own size from the corner of the paper, so that the page's margin is the paper's margin; smaller
    /// only where the paper is. A page that is wider than high lies on the paper's long side.
    void PrintForm(const Page& page) override;

  private:
    void send(const std::vector<Page>& sheets);

    std::function<std::string()> dataDirectory_;
    std::function<void(const std::string&)> status_;
    std::vector<Page> sheets_;  ///< of the open text job; none when no job is open
    float lineTop_ = 0;         ///< where the next line stands on the last sheet
};
