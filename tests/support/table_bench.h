// Tables without a screen: opened by the shared selectors, filled and confirmed.
#pragma once

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "grid/table_engine.h"
#include "store/store.h"
#include "text/pages.h"

inline const TableForm& formNamed(const std::string& name) {
    for (const TableForm& form : tableForms) {
        if (form.name == name) return form;
    }
    throw std::logic_error(name);
}

class TableBench : public ::testing::Test {
  protected:
    TableEngine open(int kind, const std::string& form, int lines, int cols) {
        store.TableKind = kind;
        store.TblLines = store.MainLines = lines;
        store.GridCols = static_cast<Integer>(cols);
        store.MainCols = cols;
        return TableEngine(store, formNamed(form));
    }
    static void put(TableEngine& table, int row, int col, const std::string& text) {
        table.setPosition({row, col, row, col, 1});
        table.GridEdit('0');
        table.setOverlayText(text);
        table.CommitCell();
    }
    static TableOutcome enter(TableEngine& table, int row, int col, const std::string& text) {
        put(table, row, col, text);
        return table.CellKeyDown(13);
    }
    static std::string words(const TableOutcome& outcome) {
        std::string text;
        for (const StatusWord& status : outcome.words)
            text += status.label + (status.word == StatusWord::Word::Done    ? " done "
                                    : status.word == StatusWord::Word::Input ? " input "
                                                                             : " default ");
        return text;
    }

    /// The unit row as column and word.
    static std::string units(const TableEngine& table) {
        std::string text;
        for (const UnitWord& word : table.unitWords())
            text += (text.empty() ? "" : " ") + std::to_string(word.column) + word.text;
        return text;
    }

    /// Every table has a help page that names its columns.
    static void expectHelpOf(const std::vector<TableEntry>& tables) {
        for (const TableEntry& entry : tables) {
            const std::string help = textPage(entry.help, "\r\n");
            EXPECT_EQ(help.find("@include"), std::string::npos) << entry.help;
            for (const TableColumn& column : entry.columns)
                EXPECT_NE(help.find(column.head), std::string::npos)
                    << entry.help << " leaves out " << column.head;
        }
    }

    Store store;
};
