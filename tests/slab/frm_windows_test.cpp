// Every window of the slab side, in both systems of units, at usual and large type.
#include "support/slab_screens.h"
#include "support/window_checks.h"

namespace {

using SlabWindows = AtScales<SlabScreens>;

TEST_P(SlabWindows, AreWellMade) {
    set.NSLAB = 6;
    for (const Integer NUNIT : {Integer(0), Integer(1)}) {
        set.NUNIT = NUNIT;
        for (const char* name : {"frmPANFORM", "frmGeneral", "frmCurling", "frmSlabs", "frmSlabData",
                                 "frmSolid", "frmOptional", "frmDowel", "frmDamage"}) {
            SCOPED_TRACE(std::string(name) + (NUNIT ? " SI" : ""));
            store.TableKind = 206;  // of the board
            expectWellMade(load(name));
            screens.unload(name);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Scales, SlabWindows, ::testing::Values(1.0, 1.5, 2.0));

}  // namespace
