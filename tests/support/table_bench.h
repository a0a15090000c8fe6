// Tables without a screen: opened by the shared selectors, filled and confirmed.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <sstream>
#include <stdexcept>
#include <string>

#include "grid/table_engine.h"
#include "store/store.h"
#include "text/pages.h"

class TableBench : public ::testing::Test {
  protected:
    /// Key codes, and on the grid the code times ten and the shift key.
    static constexpr int Enter = 13, Esc = 27, Up = 38, Down = 40;
    static constexpr int EscOnGrid = 270, CtrlIns = 452, Del = 460, ShiftDel = 461, CtrlDel = 462;

    static const TableForm& formNamed(const std::string& name) {
        for (const TableForm& form : tableForms)
            if (form.name == name) return form;
        throw std::logic_error(name);
    }
    TableEngine open(int kind, const std::string& form, int lines, int cols) {
        store.TableKind = kind;
        store.TblLines = store.MainLines = lines;
        store.GridCols = static_cast<Integer>(cols);
        store.MainCols = cols;
        return TableEngine(store, formNamed(form));
    }
    /// The table to which the outcome leads.
    TableEngine follow(const TableOutcome& outcome, const std::string& form) {
        EXPECT_EQ(outcome.load, form) << outcome.message;
        return TableEngine(store, formNamed(form));
    }

    static void go(TableEngine& table, int row, int col, int top = 1) {
        table.setPosition({row, col, row, col, top});
    }
    /// Types over the active cell and ends with Enter.
    static TableOutcome enter(TableEngine& table, const std::string& text) {
        table.GridEdit(text.empty() ? ' ' : text[0]);
        table.setOverlayText(text);
        return table.CellKeyDown(Enter);
    }
    static TableOutcome enter(TableEngine& table, int row, int col, const std::string& text) {
        go(table, row, col);
        return enter(table, text);
    }
    static void put(TableEngine& table, int row, int col, const std::string& text) {
        go(table, row, col);
        table.GridEdit('0');
        table.setOverlayText(text);
        table.CommitCell();
    }
    /// From the start of a line on, each of the cells and Enter until that leads away.
    static TableOutcome fill(TableEngine& table, const std::string& cells, int line = 1) {
        go(table, line, 1);
        std::istringstream texts(cells);
        TableOutcome outcome;
        for (std::string text; !outcome.unload && texts >> text;) outcome = enter(table, text);
        return outcome;
    }

    static std::string at(const TableEngine& table) {
        return std::to_string(table.position().Row) + "," + std::to_string(table.position().Col);
    }
    static std::string column(const TableEngine& table, int col) {
        std::string texts;
        for (int row = 1; row < table.Rows(); ++row) texts += table.Text(row, col) + "|";
        return texts;
    }
    static std::string row(const TableEngine& table, int line) {
        std::string texts;
        for (int col = 0; col < table.Cols(); ++col) texts += table.Text(line, col) + "|";
        return texts;
    }
    /// Message, status words, and what becomes of the table: "lblRaft done, frmSpreada".
    static std::string told(const TableOutcome& outcome) {
        std::string text = outcome.message;
        const auto add = [&](const std::string& part) { text += (text.empty() ? "" : ", ") + part; };
        const char* const words[] = {"done", "input", "default"};
        for (const StatusWord& status : outcome.words)
            add(status.label + " " + words[static_cast<int>(status.word)]);
        if (outcome.unload) add(outcome.load.empty() ? "closed" : outcome.load);
        return text;
    }

    /// A line per table: kind, caption, and the heads with the units of both systems, which `chooseUnits`
    /// switches. Each has a help page that names its columns.
    std::string catalogue(const std::vector<TableEntry>& tables,
                          const std::function<void(bool si)>& chooseUnits) {
        std::string text;
        for (const TableEntry& entry : tables) {
            const int cols = static_cast<int>(entry.columns.size()) + 1;
            store.TableKind = entry.kind;
            store.CurGroup = 3;
            while (&tableEntry(store, entry.form, currentPlace(store), cols) != &entry && store.CurGroup > 1)
                --store.CurGroup;
            std::vector<std::string> heads;
            for (const bool si : {false, true}) {
                chooseUnits(si);
                const TableEngine table = open(entry.kind, entry.form, 1, cols);
                for (int col = 0; col < cols && !si; ++col) heads.push_back(table.Text(0, col));
                for (const UnitWord& word : table.unitWords())
                    if (word.column > 0)
                        heads[static_cast<std::size_t>(word.column)] +=
                            si ? ", " + word.text + ")" : " (" + word.text;
                if (!si) text += std::to_string(entry.kind) + " " + table.caption() + ": ";
            }
            for (const std::string& head : heads) text += head + "|";
            text += "\n";
            expectHelpOf(entry);
        }
        return text;
    }

    Store store;

  private:
    static void expectHelpOf(const TableEntry& entry) {
        const std::string help = textPage(entry.help, "\r\n");
        EXPECT_EQ(help.find("@include"), std::string::npos) << entry.help;
        for (const TableColumn& column : entry.columns)
            EXPECT_NE(help.find(column.head), std::string::npos)
                << entry.help << " leaves out " << column.head;
    }
};
