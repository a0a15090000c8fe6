// The plot file of the slab solver, .PAN: what it drew from the deck and what it
// found. The solver writes it whole; the slab plot reads a problem's header and
// then the results of one page at a time, the contour plot checks the head of the
// header before it reads on. Free-format items in a fixed order; names are those
// of the deck.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/bounded.h"
#include "platform/list_file.h"
#include "platform/numbers.h"

/// One problem. Arrays count from 1, their last index is the limit; element 0 stays 0. Units are the deck's:
/// in., psi, pci, lb or, with NUNIT 1, cm, kPa, kN/m^3 (SUBMOD too), kN.
struct PanProblem {
    template <class T>
    using PerSlab = Bounded<T, 6>;
    template <class T>
    using PerLayer = Bounded<T, 2>;
    template <class T>
    using PerPeriod = Bounded<T, 12>;
    template <class T>
    using PerLoad = Bounded<T, 12>;
    template <class T>
    using PerEntry = Bounded<T, 120>;

    /// What the plots hold of the lists that a solver may write longer.
    static constexpr Integer PLOTTED_AREAS = 20, PLOTTED_NODES = 420;

    struct LoadedArea {
        Integer LS = 0;  ///< slab
        Single XL1 = 0, XL2 = 0, YL1 = 0, YL2 = 0;
        /// psi or kPa; a problem that was read with NUNIT 1 has it in kN per square centimetre.
        Single QQ = 0;
        bool operator==(const LoadedArea&) const = default;
    };
    enum Table : Integer { StressTable = 0, MomentTable = 1, NoTable = 2 };

    std::string TITLE;
    Integer NFOUND = 0;  ///< 0 liquid, 1 solid, 2 layer
    Integer NDAMA = 0;
    Integer NPY = 0, NLG = 0;
    Integer NSLAB = 0, NJOINT = 0;
    PerSlab<Integer> NX, NY;
    PerSlab<Bounded<Single, 4>>
        JONO;  ///< [slab][side] joint on the left, right, bottom, top side, 0 for none
    Integer NLAYER = 0, NSX = 0, NSY = 0;
    Integer NUNIT = 0;                  ///< 0 English, otherwise SI; the solver writes 0 or 1
    PerSlab<Bounded<Single, 25>> X, Y;  ///< [slab][grid line]
    PerLayer<Single> T, PR;
    PerLayer<Long> YM;
    PerLoad<Integer> NUDL;
    Integer NCNF = 0, NNMX = 0, NNMY = 0;
    Integer NSTRESS = NoTable;  ///< a Table

    PerLoad<Bounded<LoadedArea, 24>> areas;  ///< [load group][1..NUDL]
    PerEntry<Variant> NN, FF, NNX, FMX, NNY, FMY;
    PerPeriod<Single> FSAF;
    Single SUBMOD = 0;        ///< liquid
    Single YMS = 0, PRS = 0;  ///< solid
    Integer NL = 0;           ///< layer foundation: TH, E and PRBF too
    Bounded<Single, 6> TH, E, PRBF;
    PerLoad<PerPeriod<Single>> TNLR;  ///< [load group][period], if NDAMA > 0
    Integer NNP = 0, LN = 0;          ///< nodes of the table, number of the loaded slab; not with NoTable
    Bounded<PerLayer<Single>, 625> SX, SY;  ///< [node of slab LN][layer], by the table's kind
    Single DESLIFE = 0;                     ///< if NDAMA > 0

    bool operator==(const PanProblem&) const = default;
};

/// Results of one period and load group. Nodes are global, whole numbers.
struct PanResults {
    struct Layer {
        Single NMAX = 0, SMAX = 0;  ///< node and value of the largest stress
        Integer NOFF = 0;           ///< nodes in the slabs before the loaded one
        // Largest negative (I) and largest positive (L) value in x and in y; not with NoTable.
        Integer NMIX = 0;
        Single SMIX = 0;
        Integer NPLX = 0;
        Single SPLX = 0;
        Integer NMIY = 0;
        Single SMIY = 0;
        Integer NPLY = 0;
        Single SPLY = 0;
        bool operator==(const Layer&) const = default;
    };
    PanProblem::PerLayer<Layer> layers;
    PanProblem::PerLayer<Single> CIDX;  ///< damage index, if NDAMA > 0
    bool operator==(const PanResults&) const = default;
};

/// Calls in the order of the file: next, readLoads, then readResults NPY x NLG times and, if the problem has
/// damage, readDesignLife. Faults of the ListReader; SubscriptOutOfRange for a count beyond the limits.
class PanReader {
  public:
    enum class LoadGroups { All, First };

    /// Only opens the file: FileNotFound, PermissionDenied.
    explicit PanReader(const std::string& path) : in_(path) {}
    explicit PanReader(ListReader source) : in_(std::move(source)) {}

    /// The next problem up to NSTRESS, nothing behind the last one. A plot of one load group takes the first
    /// NUDL only.
    std::optional<PanProblem> next(LoadGroups groups = LoadGroups::All);
    /// The rest of its header.
    void readLoads(PanProblem& pan);
    PanResults readResults(const PanProblem& pan);
    void readDesignLife(PanProblem& pan);

  private:
    ListReader in_;
    std::optional<Integer> left_;  ///< problems not yet read; unknown before the first
};

/// What the solver writes of one problem.
struct PanRun {
    PanProblem problem;
    PanProblem::PerPeriod<PanProblem::PerLoad<PanResults>> results;  ///< [period][load group]
};

/// The whole file. Singles are written with the fewest digits that read back as the same value, whole numbers
/// as plain digits. Double quotes in a title become two apostrophes. Overflow for a number that is not
/// finite, SubscriptOutOfRange for a count beyond the arrays, TypeMismatch for a force that is no number.
void writePan(ListWriter& out, const std::vector<PanRun>& runs);
/// The same into the file at `path`, which stays as it was if anything fails.
void writePanFile(const std::string& path, const std::vector<PanRun>& runs);
