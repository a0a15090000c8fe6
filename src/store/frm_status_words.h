// The words under the menus, set by the rules of a data set.
#pragma once

#include "platform/qt/form.h"
#include "platform/qt/menu_form.h"
#include "store/rules.h"

template <class Set>
void showStatusWord(Form& menu, const StatusRule<Set>& rule, const Set& set) {
    auto& label = menu.control<StatusLabel>(rule.label);
    const bool input = rule.needsInput(set);
    showStatus(label, input, rule.keepsDone);
    if (!input) label.setCaption(rule.otherwise);
}

template <class Rules, class Set>
void showStatusWords(Form& menu, const Rules& rules, const Set& set) {
    for (const auto& rule : rules) showStatusWord(menu, rule, set);
}
