// The rules of slab data that need no screen: what a new file holds, what the
// second data set takes over, what may not be missing at a save, which menus ask
// for input, and the defaults that other data decide.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "slab/slab_set.h"
#include "store/rules.h"

struct Store;

/// Data set 1 of a new file. Load data are cleared to group 7 and coordinates to 15 only, what lies beyond
/// stays as it was: kept.
void setNewFileDefaults(SlabSet& set);

/// The values of a new file that depend on its system of units.
void setUnitDefaults(SlabSet& set);

/// Copies data set 1 into data set 2, as far as the counts of data set 1 reach. The status fields are not
/// copied. A count beyond the store is SubscriptOutOfRange, with all before it copied.
void copyToDataSet2(Store& store);

/// What keeps data set 1 from being saved, as messages in order; empty when nothing does. Data set 1 becomes
/// the current one, whatever the menu's buttons show: kept.
std::vector<std::string> ErrCheck(Store& store);

/// After the first arrangement of a new file: no dowel at the end node of each joint, and the nodes for the
/// printout of a damage analysis.
void setArrangementDefaults(SlabSet& set);

/// A new file with concentrated loads is a raft, which may move more.
void setRaftDefault(SlabSet& set);

/// After a choice of data set and after reading a file. `lblOptional` says "defaulr" there: kept.
extern const std::array<StatusRule<SlabSet>, 7> slabColorCode;
/// After the general information, in front of its test of the damage analysis and behind it.
extern const std::array<StatusRule<SlabSet>, 6> slabGeneralRules;
extern const StatusRule<SlabSet> slabDamageRule;
