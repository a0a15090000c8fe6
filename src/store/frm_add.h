// Puts a screen on the program's list of screens.
#pragma once

#include <memory>
#include <string>

#include "platform/qt/form.h"
#include "store/program.h"

/// `group` as Screens::add has it.
template <class AForm>
void addForm(Program& program, const std::string& name, const std::string& group = "") {
    program.screens.add(
        name, [&program] { return std::make_unique<AForm>(program); }, group);
}
