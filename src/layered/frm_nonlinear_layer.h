// The constants of one nonlinear layer that do not change with the season: the
// auxiliary forms of the table of nonlinear layers, for granular materials and for
// fine-grained soils. Their OK leads back to the table.
#pragma once

#include "grid/table_kinds.h"
#include "layered/layered_set.h"
#include "platform/qt/value_form.h"
#include "store/program.h"

class frmNonlinearLayer : public ValueForm {
    Q_OBJECT
  public:
    frmNonlinearLayer(const std::string& name, Program& program);

  protected:
    void show(const std::string& material, const std::string& helpPage);
    /// A layer's constants; what lies beyond the store is shown as zeros and dropped.
    template <class Constants, int Last>
    Constants& ofLine(Bounded<Constants, Last>& stored, Constants& beyond) {
        return place_.group <= Last ? stored[place_.group] : beyond;
    }
    /// Back to the table with that many lines.
    void leave(int lines);

    Program& program_;
    const TablePlace place_;  ///< of the table, as it was left; its line is the group
    const int lines_;         ///< of the table
    LayeredSet& set_;
};

class frmGranular : public frmNonlinearLayer {
    Q_OBJECT
  public:
    explicit frmGranular(Program& program);
    void Form_Load() override;

  private:
    void cmdOk_Click() override;
    LayeredSet::Granular beyond_;
};

class frmClay : public frmNonlinearLayer {
    Q_OBJECT
  public:
    explicit frmClay(Program& program);
    void Form_Load() override;

  private:
    void cmdOk_Click() override;
    LayeredSet::Clay beyond_;
};
