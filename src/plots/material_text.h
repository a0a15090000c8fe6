// What a page of the layered plot says about the material of a layer: one text a
// kind of layer, as a table of captions, number formats, fields and units.
#pragma once

#include "plots/bed_file.h"
#include "plots/kernel.h"

/// Writes the text of layer i in period p, beginning at (x, y) inside the layer at its top. A material type
/// outside 1 to 4 has no text. The numbers are rounded in `bed` as they are shown.
void materialText(Kernel& q, BedProblem& bed, int p, int i, Single x, Single y);

/// The entry of LAYNO whose nonlinear text layer i takes, 0 where it takes another text.
int nonlinearEntry(const BedProblem& bed, int i);
