// Menus of the layered side that lead to data of one data set, as rows: the entries
// of the main menu, and the whole menus of the nonlinear, viscoelastic and damage
// data.
#pragma once

#include <span>

struct LayeredSet;
struct Store;

/// A menu that leads to data of a data set, with the status word under it.
struct DataMenu {
    const char *menu, *caption, *label, *word, *hint;
    bool (*wanted)(const LayeredSet& set);  ///< nullptr: always
    const char* refusal;
    void (*select)(Store& store, const LayeredSet& set);  ///< the shared selectors of its form
    const char* form;
    /// Where the data decide between "input" and "default" instead of `word`.
    bool (*needsInput)(const LayeredSet& set) = nullptr;
};

/// A form of such menus that an entry of the main menu opens.
struct DataMenuForm {
    const char* name;
    const char* caption;    ///< the number of the data set follows
    const char* helpPage;   ///< of textPage()
    const char* doneLabel;  ///< label of the main menu that OK sets to "done"
    std::span<const DataMenu> menus;
};

/// frmNonlin, frmVisco and frmDamage1.
extern const DataMenuForm dataMenuForms[3];
