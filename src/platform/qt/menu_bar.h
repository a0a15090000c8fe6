// The menus of a window that has a menu bar, stated as rows.
#pragma once

#include <string>
#include <vector>

#include "platform/qt/dispatcher.h"

class QMenu;
class QMenuBar;
class QWidget;

/// An entry of a menu, or, with `entries`, a menu of its own. `&` marks the access key.
struct MenuEntry {
    std::string name, caption;  ///< an empty caption is a line between entries
    Handler action = {};
    std::vector<MenuEntry> entries = {};
};

/// Adds the entries, and under them theirs, to a menu.
void fillMenu(QMenu& menu, const std::vector<MenuEntry>& entries);

/// A bar with one menu, or one entry, for each row.
QMenuBar* makeMenuBar(const std::vector<MenuEntry>& rows, QWidget* parent);
