// Slab data for tests: a plain single slab, and random stores that are valid in
// every mix of foundations, joints, lists, loads and damage.
#pragma once

#include <memory>
#include <sstream>

#include "slab/slab_cards.h"
#include "slab/slab_deck.h"
#include "slab/slab_rules.h"
#include "store/store.h"
#include "support/deck_texts.h"
#include "support/random_cells.h"

/// A new file with one slab of 3 by 2 nodes, one loaded area and a liquid foundation.
inline std::unique_ptr<Store> singleSlabStore() {
    auto store = std::make_unique<Store>();
    store->SlabNPROB = 1;
    SlabSet& s = store->slab[1];
    setNewFileDefaults(s);
    setUnitDefaults(s);
    s.TITLE = "Single slab";
    s.SLAB[1].NX = 3;
    s.SLAB[1].NY = 2;
    s.SLAB[1].X[2] = 60;
    s.SLAB[1].X[3] = 120.5F;
    s.SLAB[1].Y[2] = 72;
    s.LAYER[1].T = 8;
    s.NUDL[1] = 1;
    s.AREA[1][1] = {1.0, 0.0, "10", 0.0, 12.5, 80.0};
    s.SUBMOD = 100.0;
    return store;
}

class RandomSlabStores : public RandomCells {
  public:
    using RandomCells::RandomCells;

    std::unique_ptr<Store> next() {
        auto store = std::make_unique<Store>();
        store->SlabNPROB = from(1, 2);
        for (int n = 1; n <= store->SlabNPROB.number(); ++n) fill(store->slab[n]);
        return store;
    }

  private:
    Integer count(int most) { return static_cast<Integer>(someCount(most).number()); }

    void fill(SlabSet& s) {
        s.TITLE = from(0, 5) == 0 ? "" : "Slab " + std::to_string(from(1, 999)) + ": 8\" on \"k\"; wet";
        s.NFOUND = static_cast<Integer>(from(0, 3));
        s.NDAMA = static_cast<Integer>(from(0, 2));
        s.NPY = count(12);
        s.NLG = count(12);
        s.NLAYER = static_cast<Integer>(from(1, 2));
        s.NSLAB = static_cast<Integer>(from(1, 6));
        s.NJOINT = count(7);
        for (Integer SlabSet::*list : {&SlabSet::NPRINT, &SlabSet::NAT1, &SlabSet::NAT2, &SlabSet::NCNF,
                                       &SlabSet::NNMX, &SlabSet::NNMY})
            s.*list = count(120);
        s.NSX = count(50);
        s.NSY = count(50);
        for (Variant SlabSet::*list : {&SlabSet::NOTCON, &SlabSet::NGAP, &SlabSet::NAS})
            s.*list = someCount(120);
        s.NTEMP = from(0, 1);
        s.NCYCLE = from(1, 2);
        s.NL = someCount(6);
        for (int n = 1; n <= 6; ++n) {
            s.SLAB[n].NX = count(25);
            s.SLAB[n].NY = count(25);
        }
        for (int n = 1; n <= 12; ++n) s.NUDL[n] = count(24);
        for (int n = 1; n <= 7; ++n) s.JOINT[n].NNAJ = someCount(15);
        s.UL = s.NLG >= 1 && s.NUDL[1] != 0 ? 1 : 2;
        s.TC = s.NTEMP == Variant(0) && s.NCYCLE == Variant(1) ? 2 : 1;
        s.CL = s.NCNF != 0 || s.NNMX != 0 || s.NNMY != 0 ? 1 : 2;
        randomizeOthers(
            s, slabCards(),
            {"TITLE",  "NFOUND", "NDAMA", "NPY",  "NLG",  "NLAYER", "NSLAB",  "NJOINT", "NPRINT", "NAT1",
             "NAT2",   "NCNF",   "NNMX",  "NNMY", "NSX",  "NSY",    "NOTCON", "NGAP",   "NAS",    "NTEMP",
             "NCYCLE", "NL",     "NX",    "NY",   "NUDL", "NNAJ",   "UL",     "TC",     "CL"});
    }
};
