// The main menu of layered input: it leads through the data from left to right,
// tells by a word under each menu what is still missing, makes, reads and saves
// the deck, and keeps up to five data sets.
#pragma once

#include "store/frm_deck_menu.h"

class frmBEDFORM : public FrmDeckMenu {
    Q_OBJECT
  public:
    explicit frmBEDFORM(Program& program);

  private:
    static const Side side;

    Double setCount() const override { return store_.NPROB; }
    void setSetCount(int n) override { store_.NPROB = static_cast<Integer>(n); }
    void newFile() override;
    void makeDataSet(int n) override;
    DeckReadResult readDeck(const std::string& path, const std::function<void()>& countRead) override;
    void saveDeck(const std::string& path) override;
    std::vector<std::string> ErrCheck() override;
    void ColorCode(int n) override;
};
