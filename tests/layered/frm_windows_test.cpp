// Every window of the layered side at usual and at large type.
#include <gtest/gtest.h>

#include "support/layered_screens.h"
#include "support/window_checks.h"

namespace {

using LayeredWindows = AtScales<LayeredScreens>;

TEST_P(LayeredWindows, AreWellMade) {
    LayeredSet& set = store.layered[1];
    store.CurLayDS = 1;
    set.NPY = 12;
    set.NOLAY = 9;
    const struct {
        const char* form;
        int TableKind;
    } windows[] = {{"frmBEDFORM", 0}, {"frmGeneral1", 0}, {"frmPeriod", 106}, {"frmLayer", 112},
                   {"frmNonlin", 0},  {"frmGenNon", 0},   {"frmGranular", 0}, {"frmClay", 0},
                   {"frmVisco", 0},   {"frmGenvis", 0},   {"frmDamage1", 0}};
    for (const auto& window : windows) {
        SCOPED_TRACE(window.form);
        store.TableKind = window.TableKind;
        Form* form = screens.load(window.form);
        ASSERT_NE(form, nullptr);
        expectWellMade(*form);
        screens.unload(window.form);
    }
}

INSTANTIATE_TEST_SUITE_P(Scales, LayeredWindows, ::testing::Values(1.0, 1.5, 2.0));

TEST_F(LayeredScreens, AWindowGrowsWithALongFileName) {
    Form* menu = screens.load("frmBEDFORM");
    menu->control<Label>("lblFile").setCaption(std::string(120, 'W'));
    expectWellMade(*menu);
}

}  // namespace
