// What the boards of periods, of layers and of slabs share: they keep their kind and data
// set from their load, so that other screens may use the shared selectors while
// they are open.
#pragma once

#include "layered/board_kinds.h"
#include "platform/qt/board_form.h"
#include "store/program.h"

class frmTableBoard : public BoardForm {
    Q_OBJECT
  public:
    frmTableBoard(const std::string& name, const std::string& thing, int buttons, Program& program);
    void Form_Load() override;

  protected:
    virtual std::string buttonCaption(int n) const = 0;
    /// Sets the shared selectors for the table behind a button; 0 leaves `GridCols`. The lines are those that
    /// the store has by now: an earlier table of the board may have inserted one.
    void selectTable(int GridCols);
    /// OK does not look at the words of the board.
    void cmdOk_Click() override;

    Program& program_;
    const BoardKind& kind_;
    const int set_;
};
