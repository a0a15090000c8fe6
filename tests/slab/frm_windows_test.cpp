// Every window of the slab side, in both systems of units, at usual and large type.
#include "support/pictures.h"
#include "support/slab_screens.h"
#include "support/window_checks.h"

namespace {

class SlabWindows : public SlabScreens, public ::testing::WithParamInterface<double> {
  protected:
    SlabWindows() {
        QFont larger = usual_;
        larger.setPointSizeF(usual_.pointSizeF() * GetParam());
        QApplication::setFont(larger);
    }
    ~SlabWindows() override { QApplication::setFont(usual_); }

  private:
    const QFont usual_ = QApplication::font();
};

TEST_P(SlabWindows, AreWellMade) {
    set.NSLAB = 6;
    const struct {
        const char* form;
        int TableKind;
    } windows[] = {{"frmPANFORM", 0}, {"frmGeneral", 0}, {"frmCurling", 0}, {"frmSlabData", 0},
                   {"frmSlabs", 206}, {"frmSlabs", 207}, {"frmSolid", 0},   {"frmOptional", 0},
                   {"frmDowel", 0},   {"frmDamage", 0}};
    for (const Integer NUNIT : {Integer(0), Integer(1)}) {
        set.NUNIT = NUNIT;
        for (const auto& window : windows) {
            SCOPED_TRACE(std::string(window.form) + (NUNIT ? " SI" : ""));
            store.TableKind = window.TableKind;
            Form* form = screens.load(window.form);
            ASSERT_NE(form, nullptr);
            expectWellMade(*form);
            const std::string kind = window.TableKind ? std::to_string(window.TableKind) : "";
            savePicture(*form, window.form + kind + (NUNIT ? "_si" : "") + "_" +
                                   std::to_string(GetParam()).substr(0, 3));
            screens.unload(window.form);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Scales, SlabWindows, ::testing::Values(1.0, 1.5, 2.0));

}  // namespace
