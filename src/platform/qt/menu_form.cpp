#include "platform/qt/menu_form.h"

#include <QGridLayout>
#include <QMenu>

namespace {

QString shown(const std::string& text) { return QString::fromStdString(text); }

void dropDown(MenuButton& button, const std::vector<MenuEntry>& entries) {
    auto* menu = new QMenu(&button);
    fillMenu(*menu, entries);
    button.setMenu(menu);
    button.setPopupMode(QToolButton::InstantPopup);
    button.setStyleSheet("QToolButton::menu-indicator { image: none; }");
}

StatusLabel* statusLabel(const MenuRow& row, QWidget* parent) {
    auto* label = new StatusLabel(row.label, row.word, parent);
    label->setForeColor(row.word == "default" ? StatusLabel::blue : StatusLabel::red);
    label->setToolTip(shown(row.hint));
    label->onClick = row.action;
    if (row.action) label->setCursor(Qt::PointingHandCursor);
    return label;
}

}  // namespace

MenuButton::MenuButton(const std::string& name, const std::string& caption, QWidget* parent)
    : QToolButton(parent) {
    setObjectName(shown(name));
    setText(shown(caption));
    setAutoRaise(true);
    connect(this, &QToolButton::clicked, this, [this] { dispatch(onClick); });
}

QLayout* MenuForm::menuBar(const std::vector<MenuRow>& rows) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(4);
    grid->setVerticalSpacing(2);
    for (const MenuRow& row : rows) {
        const int column = grid->columnCount();
        auto* menu = new MenuButton(row.menu, row.caption, this);
        menu->onClick = row.action;
        menu->setAccessibleDescription(shown(row.hint));
        if (!row.entries.empty()) dropDown(*menu, row.entries);
        grid->addWidget(menu, 0, column, Qt::AlignHCenter);
        if (!row.label.empty()) grid->addWidget(statusLabel(row, this), 1, column, Qt::AlignHCenter);
        grid->setColumnStretch(column, 1);
    }
    return grid;
}

void showStatus(StatusLabel& label, bool needsInput, bool keepDone) {
    if (!needsInput) {
        label.blueDefault();
    } else if (keepDone && label.caption() == "done") {
        label.setForeColor(StatusLabel::red);
    } else {
        label.input();
    }
}
