// What the plate solver is given: slabs with their grids, layers, loads, joints,
// foundation, contact. Fields carry the deck's names.
//
// Units are consistent ones of force and length (kN and cm, or lb and in.); the
// caller converts. Nodes are numbered from 1 through the slabs in order, within a
// slab along y first.
//
// Signs: x to the right, y up the plan, the third axis towards the viewer of the
// plan. Deflections and forces are positive downward. Moments and rotations go by
// the right-hand rule, so rx = -dw/dy and ry = dw/dx.
#pragma once

#include <array>
#include <vector>

namespace plate {

struct Slab {
    std::vector<double> X, Y;   ///< grid lines in local coordinates, from 0, growing
    std::array<int, 4> JONO{};  ///< joint on the left, right, bottom and top side, 0 for a free edge
};

struct SlabLayer {
    double T = 0;     ///< thickness [length]
    double PR = 0;    ///< Poisson's ratio
    double YM = 0;    ///< Young's modulus [force/length^2]
    double GAMA = 0;  ///< unit weight [force/length^3], used when NWT is set
};

struct NodeValue {
    int node = 0;
    double value = 0;
};

struct LoadedArea {
    int LS = 1;                                 ///< slab, from 1
    double XL1 = 0, XL2 = 0, YL1 = 0, YL2 = 0;  ///< rectangle in the slab's coordinates
    double QQ = 0;                              ///< pressure [force/length^2], positive downward
};

/// Springs per length of joint act beside dowel bars; a joint whose constants are
/// all 0 is free.
struct Joint {
    double SPCON1 = 0;          ///< shear spring [force/length per length of joint]
    double SPCON2 = 0;          ///< moment spring [force length/radian per length of joint]
    double SCKV = 0;            ///< modulus of dowel support [force/length^3]
    double BD = 0;              ///< bar diameter; 0 for no bars
    double BS = 0;              ///< bar spacing, used when BARNO is empty
    double WJ = 0;              ///< joint width
    double GDC = 0;             ///< gap between dowel and concrete, taken up before the bar carries
    std::vector<double> BARNO;  ///< bars at each node of the joint, empty when spaced evenly
};

enum class FoundationKind { Liquid, Solid, Layer };

struct Foundation {
    FoundationKind kind = FoundationKind::Liquid;
    double SUBMOD = 0;            ///< Liquid: modulus of subgrade reaction [force/length^3]
    std::vector<NodeValue> NS;    ///< Liquid: other moduli at nodes
    double YMS = 0, PRS = 0;      ///< Solid: Young's modulus, Poisson's ratio
    std::vector<double> TH;       ///< Layer: thicknesses, one less than layers
    std::vector<double> E, PRBF;  ///< Layer: moduli and Poisson's ratios from the top
};

/// What a data set leaves behind for one that continues it. Empty vectors are zeros.
struct ContactState {
    std::vector<double> gap;           ///< per node: distance to the foundation, 0 where they touch
    std::vector<double> reaction;      ///< per node: precompression force
    std::vector<double> displacement;  ///< w, rx, ry of each node, since the first data set
    std::vector<double> slip;          ///< per node pair of the joints in order: w of side a less w of side b
};

struct Problem {
    std::vector<Slab> slabs;
    std::vector<SlabLayer> layers;    ///< one or two, from the top
    bool NBOND = false;               ///< two layers act as one composite section
    std::vector<NodeValue> NT1, NT2;  ///< thickness of layer 1, 2 that replaces T at its node
    std::vector<Joint> joints;
    double YMSB = 0, PRSB = 0;  ///< dowel steel
    Foundation foundation;
    std::vector<double> FSAF{1};  ///< one per period: the foundation's stiffness is multiplied by it

    std::vector<std::vector<LoadedArea>> groups;  ///< loaded areas of each load group
    std::vector<NodeValue> FF;                    ///< nodal forces, in every group like those below
    std::vector<NodeValue> FMX, FMY;  ///< nodal moments: FMX bends in x (about y), FMY in y (about x)
    bool NWT = false;                 ///< the slabs' weight acts
    double TEMP = 0;                  ///< temperature at the bottom less that at the top
    double CT = 0;                    ///< coefficient of thermal expansion

    std::vector<int> NODSX, NODSY;  ///< nodes on the x and on the y axis of symmetry
    std::vector<int> NODNC;         ///< nodes that start out of contact
    std::vector<NodeValue> NG;      ///< gaps between slab and foundation
    int NCYCLE = 1;                 ///< cycles for contact; 1: no check, tension is allowed
    /// Continuation (INPUT = 1): the state left by the data set before, for each
    /// period; the last one serves further periods. Its gaps replace NG.
    std::vector<ContactState> previous;

    double DEL = 0.001;  ///< largest relative residual that is accepted
    int NNCK = 1;        ///< node whose deflection FMAX bounds
    double FMAX = 0;     ///< 0: no bound
};

}  // namespace plate
