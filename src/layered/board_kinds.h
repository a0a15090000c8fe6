// The boards of periods, layers and slabs serve several tables, told apart by TableKind:
// what each of them shows, opens and reports.
#pragma once

#include "platform/numbers.h"

struct LayeredSet;
struct Store;

struct BoardKind {
    int TableKind;
    const char* caption;                            ///< the number of the data set follows
    const char* helpPage;                           ///< of textPage()
    int Store::*dataSet;                            ///< the side's current data set
    Variant (*live)(const Store& store, int set);   ///< buttons with a caption
    Variant (*lines)(const Store& store, int set);  ///< lines of the table behind the button chosen
    int GridCols;                                   ///< its columns; 0 where each button has its own
    const char *caller, *label;                     ///< the form and the label that OK sets to "done"
    bool defaultsStand;  ///< the words under the buttons are "default", not "input"
    /// What the button of that sequence number is for; nullptr for periods.
    Variant (*layer)(const LayeredSet& set, int sequence);
};

/// The board of that kind. InvalidCall for any other number.
const BoardKind& boardKind(int TableKind);
