// The rules of layered data that need no screen: what a new file holds, what a
// new data set takes over, what may not be missing at a save, and which menus
// ask for input.
#pragma once

#include <array>
#include <optional>
#include <string>

#include "store/rules.h"

struct LayeredSet;
struct Store;

/// A data set of a new file. Some arrays are cleared only in part; what lies beyond stays as it was.
void setNewFileDefaults(LayeredSet& set);

/// The values of a new file that depend on its system of units: shift factors, temperatures and, in SI,
/// the first fatigue coefficient.
void setUnitDefaults(LayeredSet& set);

/// Copies data set 1 into data set n, as far as the counts of data set 1 reach. A failure on the way (a count
/// that is no number, or beyond the store) ends it silently; what was copied stays.
void Initial(Store& store, int n);

/// The first thing that is missing in data set 1, as the message that says so, or nothing. Looks at data set
/// 1 only and leaves it the current one, whatever the menu's buttons show: kept.
std::optional<std::string> ErrCheck1(Store& store);

using StatusRules = std::array<StatusRule<LayeredSet>, 5>;

/// After a choice of data set and after reading a file, and the milder ones after the general information.
/// They differ in `lblZcoord`: NDAMA decides here, NZ there. Kept.
extern const StatusRules colorCodeRules;
extern const StatusRules generalRules;

/// When the menu of viscoelastic layers asks for the times of the compliances, and for the temperatures of
/// the periods: defaults stand for 11 times, and for a reference temperature of 70 F or 21.1 C of line 1.
bool timesNeedInput(const LayeredSet& set);
bool temperaturesNeedInput(const LayeredSet& set);
