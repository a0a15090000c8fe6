// The main menu of slab input: it leads through the data from left to right, tells
// by a word under each menu what is still missing, makes, reads and saves the
// deck, and keeps up to two data sets.
#pragma once

#include "store/frm_deck_menu.h"

class frmPANFORM : public FrmDeckMenu {
    Q_OBJECT
  public:
    explicit frmPANFORM(Program& program);
    void Form_Load() override;

  private:
    static const Side side;

    Double setCount() const override { return store_.SlabNPROB.number(); }
    void setSetCount(int n) override { store_.SlabNPROB = n; }
    void newFile() override;
    void makeDataSet(int n) override;
    DeckReadResult readDeck(const std::string& path, const std::function<void()>& countRead) override;
    void saveDeck(const std::string& path) override;
    std::vector<std::string> ErrCheck() override;
    void ColorCode(int n) override;
    void refreshMainScreen(const std::string& FileName) override;

    Integer DataSet2Clicks = 0;  ///< clicks on Data Set 2 that made it, since File/New
};
