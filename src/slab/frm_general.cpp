#include "slab/frm_general.h"

#include <QButtonGroup>
#include <QGridLayout>

#include "slab/slab_rules.h"
#include "store/frm_status_words.h"
#include "store/store.h"
#include "text/pages.h"

namespace {

constexpr int titleLength = 68;

std::vector<ValueRow> rows(SlabSet& set) {
    return {
        {"txtTitle",
         "TITLE",
         &set.TITLE,
         {{[&] { return set.TITLE.find(',') != std::string::npos; }, "No comma should be used in TITLE"},
          {[&] { return set.TITLE.empty(); }, "TITLE should not be left blank."}}},
        {"txtNfound", "Type of foundation (0=liquid, 1=solid, 2=layer)               (NFOUND)", &set.NFOUND},
        {"txtNdama", "Damage analysis (0=no, 1=PCA criteria, 2=user specified) (NDAMA)", &set.NDAMA},
        {"txtNpy", "Number of periods per year                                                 (NPY)",
         &set.NPY},
        {"txtNlg", "Number of load groups                                                       (NLG)",
         &set.NLG},
        {"txtNlayer", "Number of slab layers                                                  (NLAYER)",
         &set.NLAYER},
        {"txtNbond", "Bond between two slab layers (0=unbonded, 1=bonded) (NBOND)", &set.NBOND},
        {"txtNslab",
         "Number of slabs                                                            (NSLAB)",
         &set.NSLAB,
         {},
         true},
        {"txtNjoint",
         "Number of joints                                                           (NJOINT)",
         &set.NJOINT,
         {},
         true},
        {"txtNnck", "Nodal number for checking convergence                           (NNCK)", &set.NNCK},
        {"txtNprint",
         "Number of nodes for stress printout                                (NPRINT)",
         &set.NPRINT,
         {},
         true},
        {"txtNsx", "Number of nodes on X axis of symmetry                               (NSX)", &set.NSX},
        {"txtNsy", "Number of nodes on Y axis of symmetry                               (NSY)", &set.NSY},
        {"txtMdpo", "More detailed printout (0=no, 1=yes)                                 (MDPO)", &set.MDPO},
        {"txtNunit", "System of units (0=English, 1=SI)                                     (NUNIT)",
         &set.NUNIT},
        {"TxtNat1", "Number of nodes with different thicknesses of slab layer 1   (NAT1)", &set.NAT1},
        {"txtNat2", "Number of nodes with different thicknesses of slab layer 2   (NAT2)", &set.NAT2},
    };
}

/// Tested when all boxes are stored.
std::vector<Check> limits(const SlabSet& set) {
    return {
        {[&] { return set.NPY > 12; }, "NPY should not be greater than 12"},
        {[&] { return set.NLG > 12; }, "NLG should not be greater than 12"},
        {[&] { return set.NBOND == 1 && set.NLAYER == 1; }, "When NLAYER = 1, NBOND should always be 0"},
        {[&] { return set.NSLAB > 6; }, "NSLAB should not be greater than 6"},
        {[&] { return set.NJOINT > 7; }, "NLG should not be greater than 7"},  // names another field: kept
    };
}

std::vector<Check> damageTest(const SlabSet& set) {
    return {{[&] { return set.NDAMA != 0 && (set.NPRINT != 3 || set.NSY == 0); },
             "Damage analysis is limited to edge loading involving only one slab symmetry with respect to y "
             "axis, as shown in Example PAN4.  NPRINT must be equal to 3 and NSY to the number of nodes on "
             "the y axis of symmetry"}};
}

/// Two buttons of which a click stores 1 or 2 at once, without OK.
struct Option {
    const char *with, *withCaption, *without, *withoutCaption;
    void (*store)(SlabSet& set, int choice);
    bool (*isWithout)(const SlabSet& set);
};

const Option optionPairs[] = {
    {"optWUL", "with uniform load", "optNUL", "without uniform load",
     [](SlabSet& set, int choice) { set.UL = choice; },
     [](const SlabSet& set) { return set.UL == Variant(2); }},
    {"optWTC", "with temperature gradient and/or checking contact", "optNTC",
     "without temperature gradient and/or checking  contact",
     [](SlabSet& set, int choice) { set.TC = static_cast<Integer>(choice); },
     [](const SlabSet& set) { return set.TC == 2; }},
    {"optWCL", "with concentrated load", "optNCL", "without concentrated load",
     [](SlabSet& set, int choice) { set.CL = choice; },
     [](const SlabSet& set) { return set.CL == Variant(2); }},
};

}  // namespace

frmGeneral::frmGeneral(Program& program)
    : ValueForm("frmGeneral", program.dialogs, program.printer),
      program_(program),
      set_(program.store.slab[program.store.CurSlabDS]) {
    build(rows(set_));
    control<TextBox>("txtTitle").setMaxLength(titleLength);
}

/// The three pairs side by side, each with its first button on top.
QLayout* frmGeneral::makeUnder() {
    auto* grid = new QGridLayout;
    grid->setVerticalSpacing(2);
    grid->addWidget(
        new Label(
            "Label1",
            "Default options are shown by the black dots. If not true, please click the other button.   ",
            this),
        0, 0, 1, -1);
    QButtonGroup* groups[std::size(optionPairs)] = {};
    for (auto*& group : groups) group = new QButtonGroup(this);
    for (const int choice : {1, 2}) {
        for (int column = 0; const Option& pair : optionPairs) {
            const bool with = choice == 1;
            auto* option = new OptionButton(with ? pair.with : pair.without,
                                            with ? pair.withCaption : pair.withoutCaption, this);
            option->onClick = [this, &pair, choice] { pair.store(set_, choice); };
            groups[column]->addButton(option);
            grid->addWidget(option, choice, column);
            grid->setColumnStretch(column++, 1);
        }
    }
    return grid;
}

void frmGeneral::Form_Load() {
    Store& store = program_.store;
    store.TableKind = 2;
    for (const Option& pair : optionPairs)
        control<OptionButton>(pair.isWithout(set_) ? pair.without : pair.with).setValue(true);
    setCaption("General Information of PANFORM for Set No. " + Str(store.CurSlabDS));
    program_.screens.done("frmPANFORM", "lblGeneral");  // on entering: a visit that stores nothing counts too
    ++store.GeneralOpens;
    showFields();
    setHelp(textPage("frm_general", store.NL));
    present();
}

/// The words have changed by the time that the damage test refuses: kept.
void frmGeneral::cmdOk_Click() {
    if (!storeFields() || !passes(limits(set_))) return;
    Form* menu = program_.screens.loaded("frmPANFORM");
    if (menu) showStatusWords(*menu, slabGeneralRules, set_);
    if (!passes(damageTest(set_))) return;
    if (menu) showStatusWord(*menu, slabDamageRule, set_);
    if (program_.store.NewFile == 1 && program_.store.GeneralOpens == 1) setUnitDefaults(set_);
    program_.screens.unload(name());
}
