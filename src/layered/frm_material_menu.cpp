#include "layered/frm_material_menu.h"

#include "layered/layered_rules.h"
#include "store/frm_status_words.h"

namespace {

using Set = LayeredSet;
using Form = const char*;

Form openGenvis(Store&, const Set&) { return "frmGenvis"; }
Form openNonseasonal(Store& store, const Set& set) {
    selectMainTable(store, 111, 4, set.NOLAY);
    return "frmSpread1";
}

// Forms that are told what they show by the kind alone.
enum class Board { Layers, Periods, GenNon };
template <int TableKind, Board board>
Form openKind(Store& store, const Set&) {
    store.TableKind = TableKind;
    return board == Board::Layers ? "frmLayer" : board == Board::Periods ? "frmPeriod" : "frmGenNon";
}

template <int TableKind, int GridCols, auto count>
Form openTable(Store& store, const Set& set) {
    selectTable(store, TableKind, GridCols, set.*count);
    return "frmspreadb";
}
template <int TableKind, int GridCols, auto count>
Form openWideTable(Store& store, const Set& set) {
    openTable<TableKind, GridCols, count>(store, set);
    return "frmSpread2";
}

const DataMenu<Set> nonlinear[] = {
    {"mnuGeneral", "&General", "lblGeneral", "input", "nonlinear general information", nullptr, "",
     openKind<109, Board::GenNon>},
    {"mnuRelaxation", "&Relaxation", "lblRelaxation", "default", "relaxation factor for each period", nullptr,
     "", openTable<110, 2, &Set::NPY>},
    {"mnuNonseasonal", "&Nonseasonal", "lblNonseasonal", "input",
     "input parameters not changing with season or period", nullptr, "", openNonseasonal},
    {"mnuSeasonal", "&Seasonal", "lblSeasonal", "input", "input parameters changing with season or period",
     nullptr, "", openKind<112, Board::Layers>},
};

const DataMenu<Set> viscoelastic[] = {
    {"mnuGeneral", "&General", "lblGeneral", "input", "Viscoelastic general information", nullptr, "",
     openGenvis},
    {"mnuDuration", "T&ime", "lblDuration", "", "Time durations for creep compliances", nullptr, "",
     openTable<116, 2, &Set::NTYME>},
    {"mnuLayer", "&Layer", "lblLayer", "input",
     "Layer number, shift factors, and reference temperature for each viscoelastic layer", nullptr, "",
     openWideTable<117, 4, &Set::NVL>},
    {"mnuCreep", "&Creep", "lblCreep", "input",
     "Creep compliances of each viscoelastic layer at reference temperature", nullptr, "",
     openKind<118, Board::Layers>},
    {"mnuTemperature", "&Temperature", "lbltemperature", "",
     "Temperature of each viscoelastic layer during each period", nullptr, "", openKind<119, Board::Periods>},
};

const DataMenu<Set> damage[] = {
    {"mnuBottom", "&Bottom Tension", "lblBottom", "input",
     "damage based on the tensile strains at the bottom of designated asphalt layers",
     [](const Set& set) { return set.NLBT != 0; }, "No input is required because NLBT = 0",
     openWideTable<121, 5, &Set::NLBT>},
    {"mnuTop", "&Top Compression", "lblTop", "input",
     "damage based on the compressive strain on the surface of subgrade or other granular layers",
     [](const Set& set) { return set.NLTC != 0; }, "No input is required because NLTC = 0",
     openWideTable<122, 4, &Set::NLTC>},
    {"mnuVolume", "&Volume of Traffic", "lblVolume", "input",
     "number of repetitions of each load group during each period", nullptr, "",
     openKind<123, Board::Periods>},
};

const StatusRule<Set> viscoelasticWords[] = {{"lblDuration", timesNeedInput},
                                             {"lbltemperature", temperaturesNeedInput}};

constexpr FrmSecondMenu::Kind kindOf(Form form, const char* caption, const char* helpPage,
                                     const char* label) {
    return {form, caption, helpPage, "cmdOK", "frmBEDFORM", label, &Store::CurLayDS};
}

}  // namespace

const MaterialMenu materialMenus[3] = {
    {kindOf("frmNonlin", "Nonlinear Layers Menu for Data Set No. ", "frm_nonlin", "lblNonlinear"),
     nonlinear,
     {}},
    {kindOf("frmVisco", "Viscoelastic Layers for Data Set No. ", "frm_visco", "lblViscoelastic"),
     viscoelastic, viscoelasticWords},
    {kindOf("frmDamage1", "Damage Analysis for Data Set N0.", "frm_damage1", "lblDamage"),  // a zero: kept
     damage,
     {}},
};

FrmMaterialMenu::FrmMaterialMenu(const MaterialMenu& menu, Program& program)
    : FrmSecondMenu(menu.kind, program) {
    printedSize = 9;
    const auto current = [this]() -> const Set& { return store_.layered[set_]; };
    build(rowsOf(menu.menus, current));
    showStatusWords(*this, menu.words, current());
}
