// One data set of the layered side, as the deck names its fields. Units are the
// deck's: in., psi, pcf, F or cm, kPa, kN/m^3, C, as NUNIT says.
#pragma once

#include <string>

#include "platform/bounded.h"
#include "platform/numbers.h"

struct LayeredSet {
    std::string TITLE;

    Single MATL = 0;   ///< 1 linear, 2 nonlinear, 3 viscoelastic, 4 combined
    Single NDAMA = 0;  ///< damage analysis: 0 none, 1 summary, 2 detailed
    Single NPY = 0;    ///< periods per year, at most 12
    Single NLG = 0;    ///< load groups, at most 12
    Single DEL = 0;    ///< tolerance of the numerical integration
    Single NL = 0;     ///< layers, at most 19
    Single NZ = 0;     ///< depths of response points, at most 19
    Single ICL = 0;    ///< maximum cycles of the numerical integration
    Single NSTD = 0;   ///< responses: 1 displacements, 5 and stresses, 9 and strains
    Single NBOND = 0;  ///< 1: all interfaces bonded
    Single NLBT = 0;   ///< damage locations at layer bottoms
    Single NLTC = 0;   ///< damage locations at layer tops
    Single NUNIT = 0;  ///< 0 English, 1 SI

    struct Layer {
        Variant TH, PR, GAM;  ///< thickness, Poisson's ratio, unit weight
    };
    Bounded<Layer, 19> LAYER;
    Bounded<Variant, 19> ZC;
    Bounded<Integer, 19> INTF;               ///< 1 bonded, 0 frictionless
    Bounded<Bounded<Variant, 19>, 12> EMOD;  ///< [period][layer]

    struct Load {
        Variant LOAD;    ///< 0 single wheel, 1 dual, 2 tandem, 3 tridem
        Variant CR, CP;  ///< contact radius, contact pressure
        Variant YW, XW;  ///< dual spacing along y, axle spacing along x
        Variant NR;      ///< number of points: NR if LOAD is 0, else NPT
    };
    struct Point {
        Variant XPT, YPT;
    };
    Bounded<Load, 12> LOADL;
    Bounded<Bounded<Variant, 25>, 12> RC;  ///< [load group][point]
    Bounded<Bounded<Point, 25>, 12> PT;    ///< [load group][point]

    Variant NOLAY, ITENOL, RCNOL, XCNOL, YCNOL, SLD, DELNOL;

    struct NonlinearLayer {
        Variant LAYNO, ZCNOL, NCLAY;
    };
    struct Granular {
        Variant K2, K0;
    };
    struct Clay {
        Variant K2, K3, K4, K0;
    };
    Bounded<NonlinearLayer, 12> NOLLAY;
    Bounded<Single, 12> RELAX;
    Bounded<Granular, 12> KGRAN;
    Bounded<Clay, 12> KCLAY;
    /// [nonlinear layer][period][m]: clay 1 EMIN, 2 EMAX, 3 K1; granular 1 PHI, 2 K1.
    Bounded<Bounded<Bounded<Variant, 3>, 12>, 12> KPER;
    /// [nonlinear layer][period][m]: clay type; not in the deck.
    Bounded<Bounded<Bounded<Variant, 3>, 12>, 12> KPERX;

    Variant DUR, NVL, NTYME;

    struct ViscousLayer {
        Variant LNV, BETA, TEMPREF;
    };
    Bounded<ViscousLayer, 12> VISLAY;
    Bounded<Variant, 15> TYME;
    Bounded<Bounded<Single, 15>, 12> CREEP;  ///< [viscoelastic layer][time]
    Bounded<Bounded<Variant, 12>, 12> TEMP;  ///< [period][viscoelastic layer]

    struct BottomTension {
        Variant LNBT, FT1, FT2, FT3;
    };
    struct TopCompression {
        Single LNTC = 0, FT4 = 0, FT5 = 0;
    };
    Bounded<BottomTension, 19> DAMBT;
    Bounded<TopCompression, 19> DAMTC;
    Bounded<Bounded<Single, 12>, 12> TNLR;  ///< [period][load group]
};

/// What MATL says of the layers.
inline bool isNonlinear(const LayeredSet& set) { return set.MATL == 2 || set.MATL == 4; }
inline bool isViscous(const LayeredSet& set) { return set.MATL == 3 || set.MATL == 4; }
