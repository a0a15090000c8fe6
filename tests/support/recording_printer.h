// A printer that keeps what it was given: jobs of lines, and pages.
#pragma once

#include <string>
#include <vector>

#include "platform/printer.h"

class RecordingPrinter : public Printer {
  public:
    struct Job {
        std::string face;
        float size = 0;
        bool bold = false;
        std::vector<std::string> lines;  ///< a tab column is written as blanks in front; "\f" is a new page
    };
    std::vector<Job> jobs;    ///< sent
    std::vector<Page> pages;  ///< printed whole
    bool jobOpen() const { return open_; }

    void Print(const std::string& line) override {
        start();
        job_.lines.push_back(line);
    }
    void Print(int tabColumn, const std::string& line) override {
        Print(std::string(static_cast<std::size_t>(tabColumn - 1), ' ') + line);
    }
    void NewPage() override { Print("\f"); }
    void EndDoc() override {
        if (open_) jobs.push_back(job_);
        KillDoc();
    }
    void KillDoc() override {
        job_ = {};
        open_ = false;
    }
    void PrintForm(const Page& page) override { pages.push_back(page); }

  private:
    void start() {
        if (!open_) job_ = {FontName, FontSize, FontBold, {}};
        open_ = true;
    }
    Job job_;
    bool open_ = false;
};
