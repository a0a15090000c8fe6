#include "layered/data_menus.h"

#include "grid/table_selectors.h"
#include "layered/layered_rules.h"
#include "store/store.h"

namespace {

/// Forms that are told what they show by the kind alone.
template <int TableKind>
void selectKind(Store& store, const LayeredSet&) {
    store.TableKind = TableKind;
}

template <int TableKind, int GridCols, auto count>
void selectLines(Store& store, const LayeredSet& set) {
    selectTable(store, TableKind, GridCols, set.*count);
}

using L = LayeredSet;

const DataMenu nonlinear[] = {
    {"mnuGeneral", "&General", "lblGeneral", "input", "nonlinear general information", nullptr, "",
     selectKind<109>, "frmGenNon"},
    {"mnuRelaxation", "&Relaxation", "lblRelaxation", "default", "relaxation factor for each period", nullptr,
     "", selectLines<110, 2, &L::NPY>, "frmspreadb"},
    {"mnuNonseasonal", "&Nonseasonal", "lblNonseasonal", "input",
     "input parameters not changing with season or period", nullptr, "",
     [](Store& store, const L& set) { selectMainTable(store, 111, 4, set.NOLAY); }, "frmSpread1"},
    {"mnuSeasonal", "&Seasonal", "lblSeasonal", "input", "input parameters changing with season or period",
     nullptr, "", selectKind<112>, "frmLayer"},
};

const DataMenu viscoelastic[] = {
    {"mnuGeneral", "&General", "lblGeneral", "input", "Viscoelastic general information", nullptr, "",
     [](Store&, const L&) {}, "frmGenvis"},
    {"mnuDuration", "T&ime", "lblDuration", "", "Time durations for creep compliances", nullptr, "",
     selectLines<116, 2, &L::NTYME>, "frmspreadb", timesNeedInput},
    {"mnuLayer", "&Layer", "lblLayer", "input",
     "Layer number, shift factors, and reference temperature for each viscoelastic layer", nullptr, "",
     selectLines<117, 4, &L::NVL>, "frmSpread2"},
    {"mnuCreep", "&Creep", "lblCreep", "input",
     "Creep compliances of each viscoelastic layer at reference temperature", nullptr, "", selectKind<118>,
     "frmLayer"},
    {"mnuTemperature", "&Temperature", "lbltemperature", "",
     "Temperature of each viscoelastic layer during each period", nullptr, "", selectKind<119>, "frmPeriod",
     temperaturesNeedInput},
};

const DataMenu damage[] = {
    {"mnuBottom", "&Bottom Tension", "lblBottom", "input",
     "damage based on the tensile strains at the bottom of designated asphalt layers",
     [](const L& set) { return set.NLBT != 0; }, "No input is required because NLBT = 0",
     selectLines<121, 5, &L::NLBT>, "frmSpread2"},
    {"mnuTop", "&Top Compression", "lblTop", "input",
     "damage based on the compressive strain on the surface of subgrade or other granular layers",
     [](const L& set) { return set.NLTC != 0; }, "No input is required because NLTC = 0",
     selectLines<122, 4, &L::NLTC>, "frmSpread2"},
    {"mnuVolume", "&Volume of Traffic", "lblVolume", "input",
     "number of repetitions of each load group during each period", nullptr, "", selectKind<123>,
     "frmPeriod"},
};

}  // namespace

const DataMenuForm dataMenuForms[3] = {
    {"frmNonlin", "Nonlinear Layers Menu for Data Set No. ", "frm_nonlin", "lblNonlinear", nonlinear},
    {"frmVisco", "Viscoelastic Layers for Data Set No. ", "frm_visco", "lblViscoelastic", viscoelastic},
    {"frmDamage1", "Damage Analysis for Data Set N0.", "frm_damage1", "lblDamage",  // a zero: kept
     damage},
};
