#include "layered/frm_general1.h"

#include "layered/layered_rules.h"
#include "store/frm_status_words.h"
#include "store/store.h"
#include "text/pages.h"

namespace {

constexpr int titleLength = 68;

std::vector<ValueRow> rows(LayeredSet& set) {
    return {
        {"txtTitle1",
         "TITLE",
         &set.TITLE,
         {{[&] { return set.TITLE.find(',') != std::string::npos; }, "No comma should be used in TITLE"},
          {[&] { return set.TITLE.empty(); }, "TITLE should not be left blank"}}},
        {"txtMatl", "Type of material (1=linear, 2=nonlinear, 3=viscoelastic, 4=combined) (MATL)", &set.MATL},
        {"txtNdama", "Damage analysis (0=no, 1=yes with summary only, 2=yes with detatiled printout) (NDAMA)",
         &set.NDAMA},
        {"txtNpy",
         "Number of periods per year (NPY)",
         &set.NPY,
         {{[&] { return set.NPY > 12; }, "NPY should not be greater than 12."}}},
        {"txtNlg",
         "Number of load groups (NLG)",
         &set.NLG,
         {{[&] { return set.NLG > 12; }, "NLG should not be greater than 12."}}},
        {"txtDel", "Tolerance for numerical integration (DEL)", &set.DEL},
        {"txtNl",
         "Number of layers (NL)",
         &set.NL,
         {{[&] { return set.NL > 19; }, "NL should not be greater than 19."},
          {[&] { return set.NL == 0; }, "NL cannot be zero and should be specified."}}},
        {"txtNz",
         "Number of Z coordinates for analysis (NZ)",
         &set.NZ,
         {{[&] { return set.NDAMA == 0 && set.NZ == 0; }, "If NDAMA = 0, NZ should not be zero."}}},
        {"txtIcl", "Maximum cycles of numerical integration (ICL)", &set.ICL},
        {"txtNstd",
         "Type of responses (1=displacements only, 5=plus stresses, 9=plus strains) (NSTD)",
         &set.NSTD,
         {{[&] { return set.NSTD != 1 && set.NSTD != 5 && set.NSTD != 9; },
           "NSTD should be equal to 1, 5, or 9"}}},
        {"txtNbond", "All layer interfaces bonded (1=yes, 0=if some are frictionless) (NBOND)", &set.NBOND},
        {"txtNlbt", "Number of layers for bottom tension (NLBT)", &set.NLBT},
        {"txtNltc", "Number of layers for top compression (NLTC)", &set.NLTC},
        {"txtNunit", "System of units (0=English, 1=SI) (NUNIT)", &set.NUNIT},
    };
}

}  // namespace

frmGeneral1::frmGeneral1(Program& program)
    : ValueForm("frmGeneral1", program.dialogs, program.printer),
      program_(program),
      set_(program.store.layered[program.store.CurLayDS]) {
    build(rows(set_));
    control<TextBox>("txtTitle1").setMaxLength(titleLength);
}

void frmGeneral1::Form_Load() {
    Store& store = program_.store;
    store.TableKind = 102;
    setCaption("General Information of BEDFORM for Set No. " + Str(store.CurLayDS));
    program_.screens.done("frmBEDFORM", "lblGeneral");  // on entering: a visit that stores nothing counts too
    ++store.GeneralVisits;
    showFields();
    setHelp(textPage("frm_general1", store.NL));
    present();
}

void frmGeneral1::cmdOk_Click() {
    if (!storeFields()) return;
    if (Form* menu = program_.screens.loaded("frmBEDFORM")) showStatusWords(*menu, generalRules, set_);
    // Visits count over all data sets: only the one of the first visit gets these, others copy them.
    if (program_.store.NewFile == 1 && program_.store.GeneralVisits == 1) setUnitDefaults(set_);
    program_.screens.unload(name());
}
