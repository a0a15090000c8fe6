// Layered data for tests: a plain three-layer road, and random stores that are
// valid in every mix of materials, damage, interfaces and loads.
#pragma once

#include <memory>

#include "layered/layered_cards.h"
#include "store/store.h"
#include "support/random_cells.h"

/// Three layers under one wheel with one point; every field that its cards need, nothing else.
inline std::unique_ptr<Store> threeLayerStore() {
    auto store = std::make_unique<Store>();
    store->NPROB = 1;
    LayeredSet& s = store->layered[1];
    s.TITLE = "Three layers";
    s.MATL = s.NPY = s.NLG = s.NBOND = 1;
    s.DEL = .001f;
    s.NL = 3;
    s.NZ = 2;
    s.ICL = 80;
    s.NSTD = 9;
    s.LAYER[1] = {4.0, .35, 145.0};
    s.LAYER[2] = {8.0, .3f, 135.0};
    s.LAYER[3] = {0, .45, 125.0};
    s.ZC[1] = 0;
    s.ZC[2] = 4.0001;
    s.EMOD[1][1] = 400000.0;
    s.EMOD[1][2] = 2.5e4f;
    s.EMOD[1][3] = 7500;
    s.LOADL[1] = {0, 4.5f, 100.0f, 0.0f, 0.0f, 1.0f};
    s.RC[1][1] = 0;
    return store;
}

class RandomStores : public RandomCells {
  public:
    using RandomCells::RandomCells;

    std::unique_ptr<Store> next() {
        auto store = std::make_unique<Store>();
        store->NPROB = static_cast<Integer>(from(1, 5));
        for (int n = 1; n <= store->NPROB; ++n) fill(store->layered[n]);
        return store;
    }

  private:
    Single count(int most) { return static_cast<Single>(someCount(most).number()); }

    void fill(LayeredSet& s) {
        s.TITLE = from(0, 5) == 0 ? "" : "Road " + std::to_string(from(1, 999)) + ": 5\" of \"mix\"; wet";
        s.MATL = static_cast<Single>(from(1, 4));
        s.NDAMA = static_cast<Single>(from(0, 2));
        s.NBOND = static_cast<Single>(from(0, 2));
        s.NPY = count(12);
        s.NLG = count(12);
        s.NL = std::max(1.0f, count(19));
        s.NZ = count(19);
        s.NLBT = count(19);
        s.NLTC = count(19);
        s.NOLAY = someCount(12);
        s.NVL = someCount(12);
        s.NTYME = someCount(15);
        for (int n = 1; n <= 12; ++n) {
            s.LOADL[n].LOAD = from(0, 3);
            s.LOADL[n].NR = someCount(25);
            s.NOLLAY[n].NCLAY = from(0, 1);
        }
        randomizeOthers(s, layeredCards(),
                        {"TITLE", "MATL", "NDAMA", "NPY", "NLG", "NL", "NZ", "NBOND", "LOAD", "NR", "NPT",
                         "NOLAY", "NCLAY", "NVL", "NTYME", "NLBT", "NLTC"});
    }
};
