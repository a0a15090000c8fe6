// What a menu sets before it loads a table form.
#pragma once

#include "platform/numbers.h"

struct Store;

/// For a table on frmspreadb, frmSpread2 or frmSpread3. Type mismatch or overflow where `lines` is no
/// Integer.
void selectTable(Store& store, int TableKind, int GridCols, const Variant& lines);

/// For a main table, which starts at its first line whatever auxiliary table was open last.
void selectMainTable(Store& store, int TableKind, int MainCols, const Variant& lines);
