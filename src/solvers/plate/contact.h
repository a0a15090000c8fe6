// Which nodes touch the foundation and which dowel bars have used up their play.
#pragma once

#include "solvers/plate/system.h"

namespace plate {

struct ContactReport {
    int cycles = 0;        ///< cycles of the rule
    bool ranOut = false;   ///< NCYCLE was reached while tension was left
    bool checked = false;  ///< the check ran (NCYCLE > 1)
    int byRule = 0;        ///< nodes in contact when the rule ended
    int afterCheck = 0;    ///< nodes in contact when the check ended
    int returned = 0;      ///< nodes that the check put back into contact
    int released = 0;      ///< nodes that the check took out
    bool restarted =
        false;  ///< the rule took out so many nodes that a slab lost its support; the check began anew
    bool settled = true;  ///< all states agree with their forces; false: the loops ended before
};

struct ContactResult {
    Response response;
    State state;
    ContactReport report;
};

/// Finds the contact under nodal loads `f`.
///
/// NCYCLE = 1: one solution, all nodes but those of `apart` in contact, tension included.
///
/// NCYCLE > 1, the rule: all nodes but `apart` start in contact; a node whose reactive force
/// is tension is taken out, all such at once, and never returns; until none is left or
/// NCYCLE solutions were made. Then the check: nodes out of contact that lie inside the
/// foundation return and nodes under tension leave until every node is in contact with
/// pressure or open, as in a linear complementarity problem. All wrong nodes change at once
/// (block pivoting; Judice and Pires, 1994), and one by one in Murty's (1974) order when their
/// number does not fall, which ends for certain on ground that spreads pressure; some 400 random
/// problems on each kind of ground all settled.
///
/// Within each solution the loose bars change between open and carrying until they agree
/// with their slips.
///
/// `response.supported` is false when no state carries the load: it would lift or tip a slab.
ContactResult findContact(System& system, const Structure& structure, const Start& start, const Vector& f,
                          const std::vector<char>& apart, int NCYCLE);

}  // namespace plate
