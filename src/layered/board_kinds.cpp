#include "layered/board_kinds.h"

#include <string>

#include "store/store.h"

namespace {

template <auto count>
Variant layered(const Store& store, int set) {
    return store.layered[set].*count;
}

template <auto count>
Variant slab(const Store& store, int set) {
    return store.slab[set].*count;
}

/// Grid lines of the slab whose button was clicked.
template <auto count>
Variant ofSlab(const Store& store, int set) {
    return store.slab[set].SLAB[store.CurSlab].*count;
}

using L = LayeredSet;

const BoardKind kinds[] = {
    {.TableKind = 106,
     .caption = "Layer Modulus of each period for Data Set No. ",
     .helpPage = "frm_period_106",
     .dataSet = &Store::CurLayDS,
     .live = layered<&L::NPY>,
     .lines = layered<&L::NL>,
     .GridCols = 2,
     .caller = "frmBEDFORM",
     .label = "lblModuli",
     .defaultsStand = false,
     .layer = nullptr},
    {.TableKind = 112,
     .caption = "Seasonal Input Parameters of Each Layer for Data Set No. ",
     .helpPage = "frm_layer_112",
     .dataSet = &Store::CurLayDS,
     .live = layered<&L::NOLAY>,
     .lines = layered<&L::NPY>,
     .GridCols = 0,
     .caller = "frmNonlin",
     .label = "lblSeasonal",
     .defaultsStand = false,
     .layer = [](const L& set, int sequence) { return set.NOLLAY[sequence].LAYNO; }},
    {.TableKind = 118,
     .caption = "Creep Compliances of Each Layer for Data Set No. ",
     .helpPage = "frm_layer_118",
     .dataSet = &Store::CurLayDS,
     .live = layered<&L::NVL>,
     .lines = layered<&L::NTYME>,
     .GridCols = 2,
     .caller = "frmVisco",
     .label = "lblCreep",
     .defaultsStand = false,
     .layer = [](const L& set, int sequence) { return set.VISLAY[sequence].LNV; }},
    {.TableKind = 119,
     .caption = "Layer Temperature of each period for Data Set No. ",
     .helpPage = "frm_period_119",
     .dataSet = &Store::CurLayDS,
     .live = layered<&L::NPY>,
     .lines = layered<&L::NVL>,
     .GridCols = 2,
     .caller = "frmVisco",
     .label = "lbltemperature",
     .defaultsStand = true,
     .layer = nullptr},
    {.TableKind = 123,
     .caption = "Load Repetitions of Each Period for Data Set No. ",
     .helpPage = "frm_period_123",
     .dataSet = &Store::CurLayDS,
     .live = layered<&L::NPY>,
     .lines = layered<&L::NLG>,
     .GridCols = 2,
     .caller = "frmDamage1",
     .label = "lblVolume",
     .defaultsStand = false,
     .layer = nullptr},
    {.TableKind = 206,
     .caption = "X Coordinates of Each Slab for Data Set No. ",
     .helpPage = "frm_slabs_x",
     .dataSet = &Store::CurSlabDS,
     .live = slab<&SlabSet::NSLAB>,
     .lines = ofSlab<&SlabSet::Slab::NX>,
     .GridCols = 2,
     .caller = "frmSlabData",
     .label = "lblXcoord",
     .defaultsStand = false,
     .layer = nullptr},
    {.TableKind = 207,
     .caption = "Y Coordinates of Each Slab for Data Set No. ",
     .helpPage = "frm_slabs_y",
     .dataSet = &Store::CurSlabDS,
     .live = slab<&SlabSet::NSLAB>,
     .lines = ofSlab<&SlabSet::Slab::NY>,
     .GridCols = 2,
     .caller = "frmSlabData",
     .label = "lblYcoord",
     .defaultsStand = false,
     .layer = nullptr},
    {.TableKind = 225,
     .caption = "Load Repetitions of each period for Data Set No. ",
     .helpPage = "frm_period_225",
     .dataSet = &Store::CurSlabDS,
     .live = slab<&SlabSet::NPY>,
     .lines = slab<&SlabSet::NLG>,
     .GridCols = 2,
     .caller = "frmDamage",
     .label = "lblVolume",
     .defaultsStand = false,
     .layer = nullptr},
};

}  // namespace

const BoardKind& boardKind(int TableKind) {
    for (const BoardKind& kind : kinds) {
        if (kind.TableKind == TableKind) return kind;
    }
    throw RunTimeError(Fault::InvalidCall, "no board for table " + std::to_string(TableKind));
}
