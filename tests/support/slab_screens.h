// The slab screens on a desk of their own, with blank forms in place of the tables.
#pragma once

#include "layered/frm_layered.h"
#include "slab/frm_slab.h"
#include "support/desk_screens.h"
#include "support/slab_stores.h"

class SlabScreens : public DeskScreens {
  protected:
    SlabScreens() : DeskScreens({"frmspreadb", "frmSpread1", "frmSpread2", "frmSpread3", "frmSpreada"}) {
        addLayeredForms(program);  // the board of periods
        addSlabForms(program);
        store.CurSlabDS = 1;
        store.slab[1] = singleSlabStore()->slab[1];
        store.SlabNPROB = 1;
    }

    Form& load(const std::string& name) { return *screens.load(name); }
    bool isOpen(const std::string& name) { return screens.loaded(name) != nullptr; }
    std::string caption(const std::string& form, const std::string& label) {
        return screens.loaded(form)->control<Label>(label).caption();
    }
    /// The word and, where it is red, an exclamation mark.
    std::string word(const std::string& form, const std::string& label) {
        auto& found = screens.loaded(form)->control<StatusLabel>(label);
        return found.caption() + (found.foreColor() == StatusLabel::red ? "!" : "");
    }

    SlabSet& set = store.slab[1];
};
