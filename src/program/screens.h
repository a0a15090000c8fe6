// The list of the program's screens. A screen that is not on it answers that it is
// not there yet.
#pragma once

class Screens;
struct Program;

void addScreens(Screens& screens, Program& program);
