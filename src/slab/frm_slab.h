// The screens of the slab side, for the program's list of screens.
#pragma once

struct Program;

void addSlabForms(Program& program);
