#include "platform/qt/value_form.h"

#include <QGridLayout>
#include <QPainter>
#include <cmath>
#include <limits>

namespace {

constexpr int captionColumn = 0, boxColumn = 1, restColumn = 2;
constexpr int numberWidth = 130;  // pixels

/// A caption whose field name, the last thing in brackets, stands at the right edge.
class FieldCaption : public Label {
  public:
    using Label::Label;

    /// Blanks of the caption that set its name to the right need no room.
    QSize sizeHint() const override {
        return {fontMetrics().horizontalAdvance(text().simplified() + "MM"), Label::sizeHint().height()};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent*) override {
        const QString caption = text();
        const auto bracket = caption.endsWith(')') ? caption.lastIndexOf('(') : caption.size();
        QPainter painter(this);
        painter.setPen(palette().color(foregroundRole()));
        painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter, caption.left(bracket).trimmed());
        painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, caption.mid(bracket));
    }
};

template <class... Cases>
struct Overloaded : Cases... {
    using Cases::operator()...;
};

std::string shownText(const ValueField& field) {
    return std::visit(Overloaded{
                          [](const std::string* text) { return *text; },
                          [](const Variant* cell) { return cell->text(); },
                          [](const auto* number) { return numberText(*number); },
                      },
                      field);
}

Single toSingle(Double value) {
    if (std::abs(value) > std::numeric_limits<Single>::max()) throw RunTimeError(Fault::Overflow);
    return static_cast<Single>(value);
}

void storeText(const ValueField& field, const std::string& text) {
    std::visit(Overloaded{
                   [&](std::string* to) { *to = text; },
                   [&](Integer* to) { *to = ToInteger(Val(text)); },
                   [&](Single* to) { *to = toSingle(Val(text)); },
                   [&](auto* to) { *to = Val(text); },
               },
               field);
}

void paintRed(QLabel& caption) {
    QPalette colours = caption.palette();
    colours.setColor(caption.foregroundRole(), Qt::red);
    caption.setPalette(colours);
}

bool isText(const ValueField& field) { return std::holds_alternative<std::string*>(field); }

}  // namespace

ValueForm::ValueForm(const std::string& name, Dialogs& dialogs, Printer& printer)
    : InputForm(name, dialogs, printer) {}

void ValueForm::build(std::vector<ValueRow> rows, const std::string& okButton) {
    rows_ = std::move(rows);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(3);
    grid->setColumnStretch(restColumn, 1);  // captions stay near their boxes
    for (const ValueRow& row : rows_) {
        const int line = grid->rowCount();
        auto* caption = new FieldCaption("lbl" + row.box.substr(3), row.caption, this);
        if (row.red) paintRed(*caption);
        auto* box = new TextBox(row.box, "", this);
        box->setAccessibleName(QString::fromStdString(row.caption).simplified());
        if (isText(row.field)) {
            auto* wide = new QHBoxLayout;
            wide->setSpacing(grid->horizontalSpacing());
            wide->addWidget(caption);
            wide->addWidget(box, 1);
            grid->addLayout(wide, line, captionColumn, 1, -1);
        } else {
            box->setFixedWidth(numberWidth);
            if (row.emptiedByClick) box->onClick = [box] { box->setTextValue(""); };
            grid->addWidget(caption, line, captionColumn);
            grid->addWidget(box, line, boxColumn);
        }
    }
    auto* body = new QVBoxLayout;
    body->addLayout(grid);
    if (QLayout* under = makeUnder()) body->addLayout(under);
    layOut(body, "Text1", {{okButton, "&OK", [this] { cmdOk_Click(); }}});
}

void ValueForm::showFields() {
    for (const ValueRow& row : rows_) control<TextBox>(row.box).setTextValue(shownText(row.field));
}

bool ValueForm::storeFields() {
    for (const ValueRow& row : rows_) {
        auto& box = control<TextBox>(row.box);
        storeText(row.field, box.textValue());
        if (!passes(row.checks)) {
            box.setFocus();
            return false;
        }
    }
    return true;
}

bool ValueForm::passes(const std::vector<Check>& checks) {
    for (const Check& check : checks) {
        if (!check.fails()) continue;
        showMessage(check.message);
        return false;
    }
    return true;
}
