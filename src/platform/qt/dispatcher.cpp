#include "platform/qt/dispatcher.h"

#include <exception>
#include <iostream>
#include <string>

#include "platform/dialogs.h"

namespace {

Dialogs* reportTo = nullptr;

void report(const std::string& text) {
    if (reportTo) {
        reportTo->MsgBox(text);
    } else {
        std::cerr << text << '\n';
    }
}

}  // namespace

void setDispatchDialogs(Dialogs* dialogs) { reportTo = dialogs; }

void dispatch(const Handler& handler) {
    if (!handler) return;
    // A handler may replace itself or leave with its control: it runs as a copy.
    const Handler running = handler;
    try {
        running();
    } catch (const std::exception& failure) {
        report(failure.what());
    } catch (...) {
        report("An unknown failure ended this action.");
    }
}
