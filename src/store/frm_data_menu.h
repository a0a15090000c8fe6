// Menus that lead to the data of one data set: each tests whether its data are
// wanted, sets the shared selectors of its form and loads it. The main menus of
// both sides and the menus of the second level are such forms.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/qt/menu_form.h"
#include "store/program.h"
#include "store/store.h"

template <class Set>
struct DataMenu {
    const char *menu, *caption, *label, *word, *hint;
    bool (*wanted)(const Set& set);  ///< nullptr: always
    const char* refusal;
    /// Sets the shared selectors and gives the form that serves them.
    const char* (*select)(Store& store, const Set& set);
    bool countsAsChange = true;
};

/// For a table on frmspreadb, frmSpread2 or frmSpread3. Type mismatch or overflow where `lines` is no
/// Integer.
void selectTable(Store& store, int TableKind, int GridCols, const Variant& lines);
/// A main table starts at its first line, whatever auxiliary table was open last.
void selectMainTable(Store& store, int TableKind, int MainCols, const Variant& lines);

class FrmDataMenu : public MenuForm {
    Q_OBJECT
  protected:
    FrmDataMenu(const std::string& name, Program& program);

    /// The menus as rows of the bar; `currentSet` gives the data set at the time of a click. `menus` must
    /// outlive the form.
    template <class Menus, class CurrentSet>
    std::vector<MenuRow> rowsOf(const Menus& menus, CurrentSet currentSet) {
        std::vector<MenuRow> rows;
        for (const auto& menu : menus) {
            rows.push_back({.menu = menu.menu,
                            .caption = menu.caption,
                            .label = menu.label,
                            .word = menu.word,
                            .hint = menu.hint,
                            .action = [this, &menu, currentSet] {
                                if (mayChoose(menu.countsAsChange)) choose(menu, currentSet());
                            }});
        }
        return rows;
    }

    /// In front of every choice; false ends it.
    virtual bool mayChoose(bool countsAsChange) = 0;
    /// A form that is open comes to the front.
    void open(const std::string& form);

    Program& program_;
    Store& store_;

  private:
    template <class Set>
    void choose(const DataMenu<Set>& menu, const Set& set) {
        if (menu.wanted && !menu.wanted(set))
            showMessage(menu.refusal);
        else
            open(menu.select(store_, set));
    }
};

/// A menu of the second level: its data set is the one that was current at its load, and OK says "done" to
/// the menu above, whatever was entered.
class FrmSecondMenu : public FrmDataMenu {
    Q_OBJECT
  public:
    void Form_Load() override;

    struct Kind {
        const char *form, *caption, *helpPage;  ///< the number of the data set follows the caption
        const char* okButton;
        const char *caller, *label;  ///< which OK sets to "done"
        int Store::*dataSet;         ///< the side's current data set
    };

  protected:
    /// `kind` must outlive the form.
    FrmSecondMenu(const Kind& kind, Program& program);
    void build(const std::vector<MenuRow>& rows);
    bool mayChoose(bool countsAsChange) override;

    const Kind& kind_;
    const int set_;

  private:
    void cmdOk_Click();
};
