#include "slab/slab_cards.h"

using Set = SlabSet;
using enum Layout;

#define F CARD_FIELD
#define N CARD_COUNT
#define WHEN CARD_WHEN

namespace {

constexpr EmptyList keepsLabel = EmptyList::KeepsLabel;

constexpr Count<Set> periods = N(s.NPY), groups = N(s.NLG), slabs = N(s.NSLAB), layers = N(s.NLAYER),
                     joints = N(s.NJOINT), foundationLayers = N(s.NL.number());

constexpr Condition<Set> always = nullptr, liquid = WHEN(s.NFOUND != 1 && s.NFOUND != 2),
                         solid = WHEN(s.NFOUND == 1), layered = WHEN(s.NFOUND == 2);

/// Card (6) to the last field that every generation has.
std::vector<Field<Set>> controlFields() {
    return {F("NLAYER", s.NLAYER), F("NNCK", s.NNCK),     F("NOTCON", s.NOTCON), F("NGAP", s.NGAP),
            F("NPRINT", s.NPRINT), F("INPUT", s.INPUT),   F("NBOND", s.NBOND),   F("NTEMP", s.NTEMP),
            F("NWT", s.NWT),       F("NCYCLE", s.NCYCLE), F("NAT1", s.NAT1),     F("NAT2", s.NAT2),
            F("NSX", s.NSX),       F("NSY", s.NSY),       F("MDPO", s.MDPO)};
}

std::vector<Field<Set>> unitAndStatusFields() {
    return {F("NUNIT", s.NUNIT), F("UL", s.UL), F("TC", s.TC), F("CL", s.CL)};
}

Integer& concentratedCount(Set& s, int n) {
    Integer* const counts[] = {&s.NCNF, &s.NNMX, &s.NNMY};
    if (n < 1 || n > 3) throw RunTimeError(Fault::SubscriptOutOfRange);
    return *counts[n - 1];
}

}  // namespace

// Numbers 2, 23, 26, 27 and 29 stand on no label. Label (6) alone has no blank in front: kept. What belongs
// to cards (11) and to cards (16) only their order tells.
const CardTable<SlabSet>& slabCards() {
    static const CardTable<Set> table = {
        {always,
         {},
         {
             {2, nullptr, {{Close, {F("TITLE", s.TITLE)}}}},
             {3,
              " (3) NFOUND NDAMA NPY NLG",
              {{Close, {F("NFOUND", s.NFOUND), F("NDAMA", s.NDAMA), F("NPY", s.NPY), F("NLG", s.NLG)}}}},
             {4, " (4) NSLAB NJOINT", {{Close, {F("NSLAB", s.NSLAB), F("NJOINT", s.NJOINT)}}}},
         }},
        {always,
         {slabs},
         {{5,
           " (5) NX NY JONO1 JONO2 JONO3 JONO4",
           {{Spaced,
             {F("NX", s.SLAB[at.i].NX), F("NY", s.SLAB[at.i].NY), F("JONO1", s.SLAB[at.i].JONO1),
              F("JONO2", s.SLAB[at.i].JONO2), F("JONO3", s.SLAB[at.i].JONO3),
              F("JONO4", s.SLAB[at.i].JONO4)}}}}}},
        {always,
         {},
         {
             {6,
              "(6) NLAYER NNCK NOTCON NGAP NPRINT INPUT NBOND NTEMP NWT NCYCLE NAT1 NAT2 NSX NSY MDPO NUNIT "
              "UL TC CL",
              {{Close, controlFields()}, {Close, unitAndStatusFields()}}},
             {7,
              " (7) TEMP GAMA(1) GAMA(2) PMR(1) PMR(2) CT DEL FMAX",
              {{Close, {F("TEMP", s.TEMP)}},
               {Spaced,
                {F("GAMA(1)", s.LAYER[1].GAMA), F("GAMA(2)", s.LAYER[2].GAMA), F("PMR(1)", s.LAYER[1].PMR),
                 F("PMR(2)", s.LAYER[2].PMR)}},
               {Close, {F("CT", s.CT), F("DEL", s.DEL), F("FMAX", s.FMAX)}}}},
             {8,
              " (8) F1(1) F1(2) F2(1) F2(2)",
              {{Spaced,
                {F("F1(1)", s.LAYER[1].F1), F("F1(2)", s.LAYER[2].F1), F("F2(1)", s.LAYER[1].F2),
                 F("F2(2)", s.LAYER[2].F2)}}}},
         }},
        {always,
         {slabs},
         {{9,
           " (9) X's and then Y's",
           {{Spaced, {F("X", s.SLAB[at.i].X[at.k])}, N(s.SLAB[at.i].NX)},
            {Spaced, {F("Y", s.SLAB[at.i].Y[at.k])}, N(s.SLAB[at.i].NY)}},
           always,
           keepsLabel}}},
        {always,
         {},
         {
             {10,
              " (10) T PR YM",
              {{Spaced,
                {F("T", s.LAYER[at.k].T), F("PR", s.LAYER[at.k].PR), F("YM", s.LAYER[at.k].YM)},
                layers}},
              always,
              keepsLabel},
             {11,
              " (11) NT T",
              {{Spaced, {F("NT1", s.THICK1[at.k].NT), F("T1", s.THICK1[at.k].T)}, N(s.NAT1)}},
              WHEN(s.NAT1 >= 1)},
             {11,
              " (11) NT T",
              {{Spaced, {F("NT2", s.THICK2[at.k].NT), F("T2", s.THICK2[at.k].T)}, N(s.NAT2)}},
              WHEN(s.NAT2 >= 1)},
             {12, " (12) NUDL", {{Spaced, {F("NUDL", s.NUDL[at.k])}, groups}}, always, keepsLabel},
             {13, " (13) NCNF", {{Spaced, {F("NCNF", s.NCNF)}}}},
             {14, " (14) NNMX NNMY", {{Spaced, {F("NNMX", s.NNMX), F("NNMY", s.NNMY)}}}},
         }},
        {always,
         {groups, N(s.NUDL[at.i])},
         {{15,
           " (15) LS XL1 XL2 YL1 YL2 QQ",
           {{Spaced,
             {F("LS", s.AREA[at.i][at.j].LS), F("XL1", s.AREA[at.i][at.j].XL1),
              F("XL2", s.AREA[at.i][at.j].XL2), F("YL1", s.AREA[at.i][at.j].YL1),
              F("YL2", s.AREA[at.i][at.j].YL2), F("QQ", s.AREA[at.i][at.j].QQ)}}}}}},
        {always,
         {},
         {
             {16,
              " (16) NN FF",
              {{Spaced, {F("NN", s.FORCE[at.k].NN), F("FF", s.FORCE[at.k].FF)}, N(s.NCNF)}},
              WHEN(s.NCNF >= 1)},
             {16,
              " (16) NNX FMX",
              {{Spaced, {F("NNX", s.MOMENTX[at.k].NNX), F("FMX", s.MOMENTX[at.k].FMX)}, N(s.NNMX)}},
              WHEN(s.NNMX >= 1)},
             {16,
              " (16) NNY FMY",
              {{Spaced, {F("NNY", s.MOMENTY[at.k].NNY), F("FMY", s.MOMENTY[at.k].FMY)}, N(s.NNMY)}},
              WHEN(s.NNMY >= 1)},
             {17,
              " (17) NODNC",
              {{Spaced, {F("NODNC", s.NODNC[at.k])}, N(s.NOTCON.number())}},
              WHEN(s.NOTCON.number() >= 1)},
             {18, " (18) NP", {{Spaced, {F("NP", s.NP[at.k])}, N(s.NPRINT)}}, WHEN(s.NPRINT >= 1)},
             {19, " (19) NODSX", {{Spaced, {F("NODSX", s.NODSX[at.k])}, N(s.NSX)}}, WHEN(s.NSX >= 1)},
             {20, " (20) NODSY", {{Spaced, {F("NODSY", s.NODSY[at.k])}, N(s.NSY)}}, WHEN(s.NSY >= 1)},
             {21,
              " (21) NG CURL",
              {{Spaced, {F("NG", s.GAP[at.k].NG), F("CURL", s.GAP[at.k].CURL)}, N(s.NGAP.number())}},
              WHEN(s.NGAP.number() >= 1)},
             {22, " (22) FSAF", {{Spaced, {F("FSAF", s.FSAF[at.k])}, periods}}, WHEN(s.NPY >= 1)},
         }},
        {liquid,
         {},
         {
             {24, " (24) NAS SUBMOD", {{Spaced, {F("NAS", s.NAS), F("SUBMOD", s.SUBMOD)}}}},
             {25,
              " (25) NS SUBMOD",
              {{Spaced,
                {F("NS", s.SUBGRADE[at.k].NS), F("SUBMOD", s.SUBGRADE[at.k].SUBMOD)},
                N(s.NAS.number())}},
              WHEN(s.NAS.number() >= 1)},
         }},
        {solid, {}, {{28, " (28) YMS PRS", {{Spaced, {F("YMS", s.YMS), F("PRS", s.PRS)}}}}}},
        {layered,
         {},
         {
             {30, " (30) NL MAXIC", {{Spaced, {F("NL", s.NL), F("MAXIC", s.MAXIC)}}}},
             {31,
              " (31) TH",
              {{Spaced, {F("TH", s.FOUNDATION[at.k].TH)}, N(s.NL.number() - 1)}},
              WHEN(s.NL.number() >= 2)},
             {32,
              " (32) E",
              {{Spaced, {F("E", s.FOUNDATION[at.k].E)}, foundationLayers}},
              WHEN(s.NL.number() >= 1)},
             {33,
              " (33) PRBF",
              {{Spaced, {F("PRBF", s.FOUNDATION[at.k].PRBF)}, foundationLayers}},
              WHEN(s.NL.number() >= 1)},
         }},
        {WHEN(s.NSLAB > 1), {}, {{34, " (34) YMSB PRSB", {{Close, {F("YMSB", s.YMSB), F("PRSB", s.PRSB)}}}}}},
        {always,
         {joints},
         {{35,
           " (35) SPCON1 SPCON2 SCKV BD BS WJ GDC NNAJ",
           {{Spaced,
             {F("SPCON1", s.JOINT[at.i].SPCON1), F("SPCON2", s.JOINT[at.i].SPCON2),
              F("SCKV", s.JOINT[at.i].SCKV), F("BD", s.JOINT[at.i].BD), F("BS", s.JOINT[at.i].BS),
              F("WJ", s.JOINT[at.i].WJ), F("GDC", s.JOINT[at.i].GDC), F("NNAJ", s.JOINT[at.i].NNAJ)}}}}}},
        {always,
         {joints},
         {{36,
           " (36) BARNO",
           {{Spaced, {F("BARNO", s.JOINT[at.i].BARNO[at.k])}, N(s.JOINT[at.i].NNAJ.number())}},
           WHEN(s.JOINT[at.i].NNAJ.number() >= 1)}}},
        {WHEN(s.NDAMA != 0),
         {periods},
         {{37, " (37) TNLR", {{Spaced, {F("TNLR", s.TNLR[at.i][at.k])}, groups}}, always, keepsLabel}}},
    };
    return table;
}

const Card<SlabSet>& oldSlabCard6() {
    static const Card<Set> card = {6, "(6)", {{Close, controlFields()}}};
    return card;
}

const Card<SlabSet>& oldSlabCard13() {
    static const Card<Set> card = {
        13, " (13)", {{Spaced, {F("NCNF", concentratedCount(s, at.k))}, groups}}, always, keepsLabel};
    return card;
}
