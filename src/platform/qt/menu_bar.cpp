#include "platform/qt/menu_bar.h"

#include <QMenuBar>

namespace {

QString shown(const std::string& text) { return QString::fromStdString(text); }

/// `Menu` is a menu or the bar.
template <class Menu>
void fill(Menu& menu, const std::vector<MenuEntry>& entries) {
    for (const MenuEntry& entry : entries) {
        if (entry.caption.empty()) {
            menu.addSeparator();
        } else if (!entry.entries.empty()) {
            QMenu* inner = menu.addMenu(shown(entry.caption));
            inner->setObjectName(shown(entry.name));
            fill(*inner, entry.entries);
        } else {
            QAction* action = menu.addAction(shown(entry.caption));
            action->setObjectName(shown(entry.name));
            QObject::connect(action, &QAction::triggered, &menu, [run = entry.action] { dispatch(run); });
        }
    }
}

}  // namespace

void fillMenu(QMenu& menu, const std::vector<MenuEntry>& entries) { fill(menu, entries); }

QMenuBar* makeMenuBar(const std::vector<MenuEntry>& rows, QWidget* parent) {
    auto* bar = new QMenuBar(parent);
    fill(*bar, rows);
    return bar;
}
