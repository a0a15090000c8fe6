// The printer as the program sees it: lines of text at tab columns, and whole
// pages. Where there is no printer each job becomes a PDF file.
#pragma once

#include <string>

#include "platform/page.h"

class Printer {
  public:
    virtual ~Printer() = default;

    std::string FontName = "Courier New";
    float FontSize = 10;
    bool FontBold = false;

    /// One line at the left edge, or beginning at a tab column (from 1; columns are average characters of the
    /// font). Starts a job if none is open.
    virtual void Print(const std::string& line) = 0;
    virtual void Print(int tabColumn, const std::string& line) = 0;
    virtual void NewPage() = 0;
    /// Sends the job. The next Print starts another one.
    virtual void EndDoc() = 0;
    /// Drops the job that is open, if any; jobs sent stay sent.
    virtual void KillDoc() = 0;
    /// A page of its own, as a job of its own.
    virtual void PrintForm(const Page& page) = 0;
};
