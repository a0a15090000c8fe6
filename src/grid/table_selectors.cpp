#include "grid/table_selectors.h"

#include "store/store.h"

void selectTable(Store& store, int TableKind, int GridCols, const Variant& lines) {
    store.TableKind = TableKind;
    store.GridCols = static_cast<Integer>(GridCols);
    store.TblLines = lines.integer();
}

void selectMainTable(Store& store, int TableKind, int MainCols, const Variant& lines) {
    store.TableKind = TableKind;
    store.MainCols = MainCols;
    store.MainLines = lines.integer();
    store.CurTopRow = 1;
    store.CurGroup = 0;
}
