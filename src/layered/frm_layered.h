// The screens of the layered side, for the program's list of screens.
#pragma once

struct Program;

void addLayeredForms(Program& program);
