// Runs the program's event handlers. What a handler does not catch is shown in
// a message box; the program and its data live on.
#pragma once

#include <functional>

class Dialogs;

using Handler = std::function<void()>;

/// The box that dispatch() reports to. Set once at start; tests set their own.
void setDispatchDialogs(Dialogs* dialogs);

/// Runs `handler` (nothing, when empty); a RunTimeError or other exception becomes a message box.
void dispatch(const Handler& handler);
