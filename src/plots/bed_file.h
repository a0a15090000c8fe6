// The plot file of the layered solver, .BED: what it drew from the deck and what
// it found. The solver writes it whole, the layered plot reads one problem at a
// time. Free-format items in a fixed order; names are those of the deck.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/bounded.h"
#include "platform/list_file.h"
#include "platform/numbers.h"

/// One problem. Arrays count from 1, their last index is the file's limit; element 0 stays 0. Units are the
/// deck's: in., psi, pcf, F or, with NUNIT not 0, cm, kPa, kN/m^3, C.
struct BedProblem {
    template <class T>
    using PerLayer = Bounded<T, 19>;
    template <class T>
    using PerDepth = Bounded<T, 19>;
    template <class T>
    using PerPeriod = Bounded<T, 12>;
    template <class T>
    using PerLoad = Bounded<T, 12>;

    std::string TITLE;
    Integer MATL = 0;   ///< 1 linear, 2 nonlinear, 3 viscoelastic, 4 nonlinear and viscoelastic
    Integer NDAMA = 0;  ///< damage analysis, 0 for none
    Integer NPY = 0, NLG = 0;
    Integer NL = 0;     ///< layers
    Integer NZ = 0;     ///< response depths; in a damage run the number of damage locations
    Integer NUNIT = 0;  ///< 0 English, otherwise SI
    PerLayer<Single> TH, PR;
    PerDepth<Single> ZC;  ///< [1..NZ] response depths, or the depths of the damage locations
    PerPeriod<PerLayer<Long>> E;

    PerLoad<Integer> LOAD;  ///< 0 single wheel, 1 dual wheels, 2 tandem, 3 tridem
    PerLoad<Single> CR, CP;
    PerLoad<Integer> NPT;    ///< if LOAD is not 0: XW, YW, XPT, YPT too
    PerLoad<Single> XW, YW;  ///< axle spacing along x, dual spacing along y
    PerLoad<Bounded<Single, 25>> XPT, YPT;
    /// More radial coordinates than this, which a deck may have, are written but cannot be plotted.
    static constexpr Integer RADIAL_POINTS = 10;
    PerLoad<Integer> NR;  ///< if LOAD is 0: RC too
    PerLoad<Bounded<Single, 25>> RC;

    // Nonlinear block, MATL 2 or 4. The constants stand under their layer's number.
    Integer NOLAY = 0;
    Bounded<Integer, 12> LAYNO;
    PerLayer<Integer> NCLAY;    ///< 1: K2, K3, K4, K0, EMIN, EMAX, K1; otherwise K2, K0, PHI, K1
    Bounded<Single, 12> ZCNOL;  ///< [n] depth of the stress point of layer LAYNO(n)
    Single RCNOL = 0, XCNOL = 0, YCNOL = 0, SLD = 0;
    PerLayer<Single> GAM, K2, K3, K4, K0;
    PerPeriod<PerLayer<Single>> EMIN, EMAX, PHI, K1;

    // Viscoelastic block, MATL 3 or 4. The constants stand under their layer's number.
    Single DUR = 0;
    Integer NVL = 0;
    Bounded<Integer, 12> LNV;
    Integer NTYME = 0;
    Bounded<Single, 15> TYME;
    PerLayer<Single> BETA, TEMPREF;
    PerLayer<Bounded<Variant, 15>> CREEP;
    PerPeriod<PerLayer<Single>> TEMP;

    // Damage block, NDAMA not 0.
    Integer NLBT = 0, NLTC = 0;       ///< layer bottoms checked for fatigue, layer tops for deformation
    PerLoad<PerPeriod<Single>> TNLR;  ///< [load group][period]
    /// [period][load group][location], the NLBT fatigue locations first, then the NLTC deformation ones;
    /// all axles of the load group together, less what ADDED holds.
    PerPeriod<PerLoad<PerDepth<Single>>> DRATIO;
    /// The part of further axles, for the writer; the reader adds it to DRATIO and leaves 0 here.
    PerPeriod<PerLoad<PerDepth<Single>>> ADDED;
    Integer KBT = 0;  ///< governing fatigue location, 1..NLBT
    Integer KTC = 0;  ///< governing deformation location, 1..NLTC
    Single DRBT = 0, DRTC = 0, DESLIFE = 0;

    bool operator==(const BedProblem&) const = default;
};

class BedReader {
  public:
    /// Only opens the file: FileNotFound, PermissionDenied.
    explicit BedReader(const std::string& path) : in_(path) {}
    explicit BedReader(ListReader source) : in_(std::move(source)) {}

    /// The next problem, nothing behind the last one. Faults of the ListReader; SubscriptOutOfRange for a
    /// count beyond the limits.
    std::optional<BedProblem> next();

  private:
    ListReader in_;
    std::optional<Integer> left_;  ///< problems not yet read; unknown before the first
};

/// The whole file. Singles are written with the fewest digits that read back as the same value. Double quotes
/// in a title become two apostrophes. Overflow for a number that is not finite, SubscriptOutOfRange for a
/// count beyond the limits, TypeMismatch for a creep compliance that is no number.
void writeBed(ListWriter& out, const std::vector<BedProblem>& problems);
/// The same into the file at `path`, which stays as it was if anything fails.
void writeBedFile(const std::string& path, const std::vector<BedProblem>& problems);
