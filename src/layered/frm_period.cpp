#include "layered/frm_period.h"

#include "store/store.h"

std::string frmPeriod::buttonCaption(int n) const {
    // The access keys of the last three fall on other characters than the last digit: kept.
    static const char* const captions[] = {"Period&1", "Period&2",  "Period&3",  "Period&4",
                                           "Period&5", "Period&6",  "Period&7",  "Period&8",
                                           "Period&9", "Period1&0", "&Period11", "Perio&d12"};
    return captions[n - 1];
}

void frmPeriod::button_Click(int n) {
    selectTable(kind_.GridCols);
    program_.store.CurPeriod = n;
    program_.screens.load("frmspreadb");
}
