// The catalogue of tables. One number, `TableKind`, says which table a form
// shows; each kind is an entry of data here, a main table and its auxiliary
// table one entry each. Functions stand only for what differs in kind.
#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "platform/numbers.h"

struct Store;

/// Where a table belongs: the shared selectors as they stood when it was loaded.
struct TablePlace {
    int kind = 0;
    int dataSet = 0;  ///< of the side that the kind belongs to
    int period = 0, layer = 0, slab = 0;
    int group = 0;   ///< line of the main table, for its auxiliary table
    int topRow = 0;  ///< first visible row of the main table
};

/// A cell's or a count's home in the store. Free-value fields are Variants.
using TableField = std::variant<Variant*, Single*, Integer*, Double*>;
/// The field of a line (from 1). SubscriptOutOfRange beyond the store.
using TableFieldAt = TableField (*)(Store&, const TablePlace&, int line);

struct TableColumn {
    const char* head;
    TableFieldAt field;
    bool hasUnit = false;  ///< the next word of the unit row stands over it
};

/// A refusal at OK: the line's value in `column`, tested once the cell in `after` is stored.
struct TableTest {
    enum class Bad { Zero, Above };
    int after;
    int column;
    Bad bad;
    Double limit;
    const char* message;
    int line = 0;  ///< the one line that is tested; 0: every line
};

struct StatusWord {
    enum class Word { Done, Input, BlueDefault };
    std::string form = {}, label = {};
    Word word = Word::Done;
};

/// The way from a line of a main table to its auxiliary form.
struct TableChain {
    struct ZeroTest {
        int column;
        const char* message;
    };
    int enterColumn = 0;       ///< Enter that ends this column's cell starts the chain; 0: any column
    bool enterAlways = false;  ///< whatever the text; otherwise only a number other than 0
    int editColumn = 0;        ///< column in which the overlay opens; 0: the active one
    int countColumn = 0;       ///< column that says the lines of the auxiliary table; 0: it has none
    std::vector<ZeroTest> tests = {};
    int auxiliaryCols = 0;
    /// The form to load, by the line's numbers; column 1 is element 1. Nothing: no chain.
    const char* (*form)(const std::vector<Single>& values) = nullptr;
};

/// What comes up when OK has closed the table: nothing, or another table of the same kind.
struct TableNext {
    const char* form = nullptr;
    int cols = 0;
    TableFieldAt mainLines = nullptr;  ///< for a main table
    int fixedLines = 0;                ///< for a main table whose lines are always as many
};

struct TableOutcome;

struct TableEntry {
    int kind;
    const char* form;
    /// Which entry holds where a kind has several on one form; nothing: this one.
    bool (*when)(Store&, const TablePlace&, int cols) = nullptr;
    /// With {set}, {period}, {group}, {slab} and {number}, each with its sign blank.
    const char* caption;
    TableFieldAt number = nullptr;     ///< {number}; its line is the place's layer
    const char* rowHead;               ///< head of column 0
    std::vector<TableColumn> columns;  ///< from column 1; those beyond the table's Cols are not there
    const char* units = "";            ///< the unit row in customary units, blanks for distances
    const char* unitsSI = "";
    const char* help;  ///< name of the help page
    const char* doubleHint =
        "Double click (or press the Esc key) for auxiliary form if any entry is not zero.";

    bool allColumns = false;          ///< Cols follow from the columns here, not from GridCols
    bool fixedLines = false;          ///< no line is inserted or deleted
    bool crossesLast = false;         ///< the first cell of the last line is crossed out
    bool showsZeros = false;          ///< every cell starts as 0 instead of what is stored
    TableFieldAt rowLabel = nullptr;  ///< column 0, in place of the line number
    /// Names of the lines in column 0, in place of the line number; lines beyond them have none.
    std::optional<std::vector<const char*>> rowNames = {};
    void (*onLoad)(Store&, const TablePlace&) = nullptr;

    TableFieldAt count = nullptr;
    std::vector<TableTest> tests = {};
    /// What OK does beyond storing cells and count.
    void (*afterStore)(Store&, const TablePlace&, int lines, TableOutcome&) = nullptr;
    StatusWord status = {};  ///< set at OK; {period} and {layer} in the label's name
    TableNext next = {};

    TableChain chain = {};
    /// Auxiliary data of a main table's lines, when a line is deleted or inserted.
    void (*moveLine)(Store&, const TablePlace&, int from, int to) = nullptr;
    void (*clearLine)(Store&, const TablePlace&, int line) = nullptr;
};

/// The selectors of the store as a place.
TablePlace currentPlace(const Store& store);
/// Sets the shared selectors to the place again.
void restorePlace(Store& store, const TablePlace& place);

/// The entry for the place's kind on that form. InvalidCall when there is none.
const TableEntry& tableEntry(Store& store, const std::string& form, const TablePlace& place, int cols);

/// The data set's units: true for SI.
bool isSI(const Store& store, const TablePlace& place);

/// `text` with {set}, {period}, {group}, {slab}, {layer} and {number} replaced.
std::string fillIn(const std::string& text, Store& store, const TablePlace& place, const TableEntry& entry,
                   bool signBlank);

/// A field as cells show it: numbers, and texts that are numbers, as number text; other texts as they stand.
std::string cellText(const TableField& field);
/// Takes a cell's text: a Variant as it stands, others by strict conversion (TypeMismatch, Overflow).
void putText(const TableField& field, const std::string& text);
void putNumber(const TableField& field, Single value);
void putCount(const TableField& field, int count);
/// A count rounded to a whole number; a text that is no number counts as 0.
int countOf(const TableField& field);

/// The number that a table's own tests see: an empty text counts as 0, any other text is none.
std::optional<Double> numberOf(const TableField& field);

/// The entries of the two sides.
const std::vector<TableEntry>& layeredTables();
const std::vector<TableEntry>& slabTables();

/// A word of the unit row and the column over which it stands; column 0 is the word "Unit".
struct UnitWord {
    std::string text;
    int column;
};
/// The unit row of a table with that many columns, as it stands and word by word.
std::string unitText(const TableEntry& entry, int cols, bool si);
std::vector<UnitWord> unitWords(const TableEntry& entry, int cols, bool si);
