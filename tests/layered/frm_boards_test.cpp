// The boards of periods and layers.
#include <gmock/gmock.h>

#include "support/layered_screens.h"

namespace {

using testing::ElementsAre;

class Boards : public LayeredScreens {
  protected:
    Boards() {
        store.CurLayDS = 2;
        set.NPY = 3;
        set.NL = 4;
        set.NLG = 5;
        set.NOLAY = set.NVL = 2;
        set.NTYME = 11;
        set.NOLLAY[1] = {4, 0, 0};
        set.NOLLAY[2] = {"12", 0, "1"};
        set.VISLAY[2].LNV = 3;
    }
    Form& board(int TableKind, const std::string& name) {
        store.TableKind = TableKind;
        screens.load(name);
        return *screens.loaded(name);
    }
    LayeredSet& set = store.layered[2];
};

TEST_F(Boards, ServeTheirKindsByWhatTheyKnewAtTheirLoad) {
    const struct {
        int TableKind;
        const char* thing;
        const char* words;  ///< first letters of "input" and "default"
        int lines;
    } cases[] = {{106, "Period", "iii", 4},
                 {119, "Period", "ddd", 2},
                 {123, "Period", "iii", 5},
                 {118, "Layer", "ii", 11}};
    for (const auto& c : cases) {
        store.CurLayDS = 2;
        const std::string thing = c.thing;
        Form& form = board(c.TableKind, "frm" + thing);
        std::string words;
        for (int n = 1; n <= 12; ++n) {
            const std::string number = std::to_string(n);
            const std::string word = form.control<Label>("lbl" + thing + number).caption();
            EXPECT_EQ(form.control<Button>("cmd" + thing + number).caption().empty(), word.empty());
            words += word.substr(0, 1);
        }
        EXPECT_EQ(words, c.words) << c.TableKind;
        // Another screen uses the shared selectors meanwhile.
        store.TableKind = store.CurLayDS = 1;
        store.TblLines = store.GridCols = 0;
        click(form, "cmd" + thing + "2");
        EXPECT_THAT((std::vector<int>{store.TableKind, store.CurLayDS, store.TblLines, store.GridCols}),
                    ElementsAre(c.TableKind, 2, c.lines, 2));
    }
}

TEST_F(Boards, CaptionsTellPeriodsAndLayers) {
    set.NPY = 13;  // a refused count may still be in the store
    const auto captions = [&](int TableKind, const std::string& thing, int last) {
        Form& form = board(TableKind, "frm" + thing);
        return form.control<Button>("cmd" + thing + "1").caption() + "|" +
               form.control<Button>("cmd" + thing + std::to_string(last)).caption();
    };
    EXPECT_EQ(captions(106, "Period", 12), "Period&1|Perio&d12");
    EXPECT_EQ(captions(112, "Layer", 2), "&1  Layer 4|&2  Layer 12");
    EXPECT_EQ(captions(118, "Layer", 2), "&1  Layer 0|&2  Layer 3");
}

TEST_F(Boards, ANewVisitForgetsTheWordsAndMayBeForAnotherKind) {
    const auto word = [&](int TableKind) -> StatusLabel& {
        return board(TableKind, "frmPeriod").control<StatusLabel>("lblPeriod1");
    };
    word(106).done();
    EXPECT_EQ(word(106).caption(), "input");
    EXPECT_EQ(word(119).caption(), "default");
}

TEST_F(Boards, TablesFollowWhatOtherTablesHaveStored) {
    Form& form = board(112, "frmLayer");
    set.NPY = 5;  // a line was inserted in the table of another layer
    store.NewFile = 1;
    click(form, "cmdLayer2");
    EXPECT_EQ(store.TblLines, 5);
    EXPECT_EQ(store.GridCols, 2);
    store.NewFile = 0;  // the types of clay of an old file are known
    click(form, "cmdLayer2");
    EXPECT_EQ(store.GridCols, 4);
    EXPECT_NE(screens.loaded("frmSpread2"), nullptr);
    set.NOLLAY[2].NCLAY = "";  // the nonseasonal table was never confirmed
    dialogs.expectBox("Type mismatch");
    click(form, "cmdLayer2");
}

}  // namespace
