// Everything a screen may reach: the store, the other screens by name, and the
// seams to the user and the machine. Passed to every form by reference.
#pragma once

class Screens;
class Dialogs;
class Printer;
class Desktop;
struct Store;

struct Program {
    Store& store;
    Screens& screens;
    Dialogs& dialogs;
    Printer& printer;
    Desktop& desktop;
};
