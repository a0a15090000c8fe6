// One data set of the slab side, as the deck names its fields. Units are the
// deck's: in., psi, pci, pcf, lb, F or cm, kPa, MN/m^3, kN/m^3, kN, C, as NUNIT says.
#pragma once

#include <string>

#include "platform/bounded.h"
#include "platform/numbers.h"

struct SlabSet {
    std::string TITLE;

    Integer NFOUND = 0;  ///< foundation: 0 liquid, 1 solid, 2 layer
    Integer NDAMA = 0;   ///< damage analysis: 0 none, 1 PCA criteria, 2 the user's coefficients
    Integer NPY = 0;     ///< periods per year, at most 12
    Integer NLG = 0;     ///< load groups, at most 12
    Integer NLAYER = 0;  ///< slab layers, 1 or 2
    Integer NBOND = 0;   ///< 1: the two layers are bonded
    Integer NSLAB = 0;   ///< slabs, at most 6
    Integer NJOINT = 0;  ///< joints, at most 7
    Integer NNCK = 0;    ///< node for checking convergence, and the one of FMAX
    Integer NPRINT = 0;  ///< nodes for stress printout
    Integer NSX = 0;     ///< nodes on the x axis of symmetry
    Integer NSY = 0;     ///< nodes on the y axis of symmetry
    Integer MDPO = 0;    ///< 1: more detailed printout
    Integer NUNIT = 0;   ///< 0 English, other SI
    Integer NAT1 = 0;    ///< additional thicknesses of slab layer 1
    Integer NAT2 = 0;    ///< additional thicknesses of slab layer 2

    Variant NOTCON;  ///< nodes initially not in contact
    Variant NGAP;    ///< nodes with a gap
    Variant INPUT;   ///< 1: gaps and precompressions come from the previous problem
    Variant NTEMP;   ///< 1: curling
    Variant NWT;     ///< 1: the slab's weight counts
    Variant NCYCLE;  ///< cycles for checking subgrade contact; 1 full contact
    Variant TEMP;    ///< temperature at the bottom of the slab minus that at its top
    Variant CT;      ///< coefficient of thermal expansion
    Variant DEL;     ///< tolerance of the iteration
    Variant FMAX;    ///< largest displacement allowed at NNCK

    // What the words of the input menu go by, 1 with, 2 without: uniform load, temperature gradient or
    // contact checking, concentrated load. 0 until somebody decides.
    Variant UL;
    Integer TC = 0;
    Variant CL;

    struct Slab {
        Integer NX = 0, NY = 0;  ///< nodes in x and y
        Integer JONO1 = 0, JONO2 = 0, JONO3 = 0,
                JONO4 = 0;         ///< joint on the left, right, bottom, top; 0 none
        Bounded<Single, 25> X, Y;  ///< the slab's own coordinates of its grid lines
    };
    Bounded<Slab, 6> SLAB;

    struct Layer {
        Single T = 0, PR = 0, YM = 0, GAMA = 0;  ///< thickness, Poisson's ratio, modulus, unit weight
        Single PMR = 0, F1 = 0, F2 = 0;          ///< modulus of rupture, fatigue coefficients
    };
    Bounded<Layer, 2> LAYER;
    Bounded<Single, 12> FSAF;  ///< [period] seasonal adjustment of the foundation

    struct Area {
        Variant LS, XL1, XL2, YL1, YL2, QQ;  ///< slab, limits in its coordinates, contact pressure
    };
    Bounded<Integer, 12> NUDL;               ///< [load group] loaded areas
    Bounded<Bounded<Area, 24>, 12> AREA;     ///< [load group][area]
    Bounded<Bounded<Variant, 12>, 12> TNLR;  ///< [period][load group] predicted repetitions

    Integer NCNF = 0, NNMX = 0, NNMY = 0;  ///< concentrated forces, moments in x and in y
    struct Force {
        Double NN = 0, FF = 0;
    };
    struct MomentX {
        Double NNX = 0, FMX = 0;
    };
    struct MomentY {
        Double NNY = 0, FMY = 0;
    };
    Bounded<Force, 120> FORCE;
    Bounded<MomentX, 120> MOMENTX;
    Bounded<MomentY, 120> MOMENTY;

    Bounded<Integer, 120> NODNC;        ///< nodes not in contact
    Bounded<Integer, 120> NP;           ///< nodes for printout
    Bounded<Integer, 50> NODSX, NODSY;  ///< nodes on the axes of symmetry
    struct Thickness {
        Variant NT, T;
    };
    Bounded<Thickness, 120> THICK1, THICK2;  ///< nodes of slab layer 1 and 2 that are thicker, by so much
    struct Gap {
        Variant NG, CURL;
    };
    Bounded<Gap, 120> GAP;

    Variant SUBMOD, NAS;  ///< liquid foundation: modulus everywhere, number of nodes that differ
    struct Modulus {
        Variant NS, SUBMOD;
    };
    Bounded<Modulus, 120> SUBGRADE;
    Variant YMS, PRS;   ///< solid foundation
    Variant NL, MAXIC;  ///< layered foundation: layers, cycles of integration
    struct FoundationLayer {
        Variant TH, E, PRBF;
    };
    Bounded<FoundationLayer, 6> FOUNDATION;

    Variant YMSB, PRSB;  ///< modulus and Poisson's ratio of the dowel bars
    struct Joint {
        Variant SPCON1, SPCON2;      ///< shear and moment spring constants
        Variant SCKV, BD, BS;        ///< dowel support, bar diameter and spacing
        Variant WJ, GDC;             ///< joint width, gap between dowel and concrete
        Variant NNAJ;                ///< nodes at the joint, 0 where its dowels are uniform
        Bounded<Variant, 15> BARNO;  ///< [node] bars
    };
    Bounded<Joint, 7> JOINT;
};
