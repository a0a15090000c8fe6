#include "platform/qt/board_form.h"

#include <QGridLayout>

namespace {

constexpr int buttonsPerRow = 6;
constexpr int rowsPerButton = 3;  // button, word, gap

}  // namespace

BoardForm::BoardForm(const std::string& name, const std::string& thing, int count, Dialogs& dialogs,
                     Printer& printer)
    : InputForm(name, dialogs, printer), thing_(thing), count_(count) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(4);
    for (int n = 1; n <= count; ++n) {
        const std::string number = std::to_string(n);
        const int row = rowsPerButton * ((n - 1) / buttonsPerRow), column = (n - 1) % buttonsPerRow;
        auto* button = new Button("cmd" + thing + number, "", this);
        button->setAccessibleName(QString::fromStdString(thing + " " + number));
        button->setMinimumHeight(qMax(34, button->sizeHint().height()));
        button->onClick = [this, n] { button_Click(n); };
        grid->addWidget(button, row, column);
        grid->addWidget(new StatusLabel("lbl" + thing + number, "", this), row + 1, column, Qt::AlignHCenter);
        grid->setRowMinimumHeight(row + 2, 4);
        grid->setColumnStretch(column, 1);
    }
    layOut(grid, "Text1", {{"cmdOk", "&OK", [this] { cmdOk_Click(); }}});
}
