// What every window must keep, whatever is on it: captions are whole, access keys
// are its own, every input has a name, and Tab follows the page.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <map>

#include "platform/qt/form.h"

/// Windows of `Screens` at usual and at large type: the parameter is the scale.
template <class Screens>
class AtScales : public Screens, public ::testing::WithParamInterface<double> {
  protected:
    AtScales() {
        QFont larger = usual_;
        larger.setPointSizeF(usual_.pointSizeF() * GetParam());
        QApplication::setFont(larger);
    }
    ~AtScales() override { QApplication::setFont(usual_); }

  private:
    const QFont usual_ = QApplication::font();
};

inline void expectWholeCaptions(Form& form) {
    for (const QWidget* widget : form.findChildren<QWidget*>()) {
        if (!widget->isVisible()) continue;
        if (!qobject_cast<const QLabel*>(widget) && !qobject_cast<const QAbstractButton*>(widget)) continue;
        EXPECT_GE(widget->width(), widget->sizeHint().width()) << widget->objectName().toStdString();
        EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << widget->objectName().toStdString();
        const QRect place(widget->mapTo(&form, QPoint(0, 0)), widget->size());
        EXPECT_TRUE(form.rect().contains(place)) << widget->objectName().toStdString();
    }
}

inline void expectOwnAccessKeys(Form& form) {
    std::map<QString, QString> owners;
    for (const auto* button : form.findChildren<QAbstractButton*>()) {
        const QString key = button->shortcut().toString();
        if (key.isEmpty()) continue;
        EXPECT_TRUE(owners.emplace(key, button->objectName()).second)
            << key.toStdString() << " of " << button->objectName().toStdString() << " and "
            << owners[key].toStdString();
    }
}

inline void expectInputsNamedAndInPageOrder(Form& form) {
    QPoint last(0, -1);
    const QWidget* widget = form.nextInFocusChain();
    for (; widget != &form; widget = widget->nextInFocusChain()) {
        if (!widget->isVisible() || !(widget->focusPolicy() & Qt::TabFocus)) continue;
        const std::string name = widget->objectName().toStdString();
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        EXPECT_FALSE(widget->accessibleName().isEmpty() && (!button || button->text().isEmpty())) << name;
        const QPoint middle = widget->mapTo(&form, widget->rect().center());
        const bool sameRow = std::abs(middle.y() - last.y()) < 6;
        EXPECT_TRUE(sameRow ? middle.x() > last.x() : middle.y() > last.y()) << name;
        last = middle;
    }
}

inline void expectWellMade(Form& form) {
    QApplication::sendPostedEvents();
    expectWholeCaptions(form);
    expectOwnAccessKeys(form);
    expectInputsNamedAndInPageOrder(form);
}
