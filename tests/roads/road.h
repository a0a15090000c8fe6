// A whole program on a desk: every screen, the real desktop that starts real
// solvers, a script of answers in place of message boxes, PDF in place of paper.
// A journey types and clicks as a user does.
#pragma once

#include <gtest/gtest.h>

#include <QtTest>
#include <string>
#include <vector>

#include "platform/qt/flex_grid.h"
#include "platform/qt/form.h"
#include "platform/qt/qt_desktop.h"
#include "platform/qt/qt_printer.h"
#include "program/screens.h"
#include "store/program.h"
#include "store/store.h"
#include "support/scripted_dialogs.h"
#include "support/temporary_directory.h"

class Road : public ::testing::Test {
  protected:
    Road();
    ~Road() override;

    /// The loaded form of that name, in front and active.
    Form& front(const std::string& form);
    void click(const std::string& form, const std::string& control);
    /// An entry of a menu that drops down.
    void choose(const std::string& form, const std::string& entry);
    /// Into a box: a click, which may empty it, then the keys.
    void type(const std::string& form, const std::string& box, const std::string& text);
    /// From the active cell of a table on: each text and Enter.
    void enter(const std::string& form, const std::vector<std::string>& cells);
    std::string word(const std::string& form, const std::string& label);
    /// As savePicture() has it.
    void picture(const std::string& form, const std::string& name);
    /// Solves the deck that the main screen names and waits for its plot file: the text of the results.
    std::string solve(const std::string& name);
    /// Its plot pages on the screen, each with the question whether to print it, answered by No but for the
    /// last one. All texts of each page, line by line.
    std::vector<std::string> plot(const std::string& name);

    TemporaryDirectory directory;
    Store store;
    ScriptedDialogs dialogs;
    std::vector<std::string> notes;
    Screens screens{dialogs};
    QtPrinter printer{[this] { return store.cmbDirectory; },
                      [this](const std::string& note) { notes.push_back(note); }};
    QtDesktop desktop{dialogs, TOLMARK_BIN_DIR};
    Program program{store, screens, dialogs, printer, desktop};
};
