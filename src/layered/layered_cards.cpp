#include "layered/layered_cards.h"

using Set = LayeredSet;
using enum Layout;

#define F CARD_FIELD
#define N CARD_COUNT
#define WHEN CARD_WHEN

namespace {

bool isClay(const Set& s, int n) { return s.NOLLAY[n].NCLAY.number() != 0; }

constexpr Count<Set> periods = N(s.NPY), groups = N(s.NLG), layers = N(s.NL), interfaces = N(s.NL - 1),
                     nonlinearLayers = N(s.NOLAY.number()), viscousLayers = N(s.NVL.number()),
                     times = N(s.NTYME.number());

constexpr Condition<Set> always = nullptr, nonlinear = WHEN(isNonlinear(s)), viscous = WHEN(isViscous(s)),
                         damage = WHEN(s.NDAMA > 0), radial = WHEN(s.LOADL[at.i].LOAD.number() == 0),
                         multiple = WHEN(s.LOADL[at.i].LOAD.number() != 0);

}  // namespace

// Numbers that are missing (12, 15, 18, 21 to 24, 32, 34, 35, 40, 43, 45) stand on no card. Card (37) has two
// lines when there are more layers than one: kept.
const CardTable<LayeredSet>& layeredCards() {
    static const CardTable<Set> table = {
        {always,
         {},
         {
             {2, nullptr, {{Close, {F("TITLE", s.TITLE)}}}},
             {3,
              " (3) MATL NDAMA NPY NLG",
              {{Close, {F("MATL", s.MATL), F("NDAMA", s.NDAMA), F("NPY", s.NPY), F("NLG", s.NLG)}}}},
             {4, " (4) DEL", {{Close, {F("DEL", s.DEL)}}}},
             {5,
              " (5) NL NZ ICL NSTD NUNIT",
              {{Close,
                {F("NL", s.NL), F("NZ", s.NZ), F("ICL", s.ICL), F("NSTD", s.NSTD), F("NUNIT", s.NUNIT)}}}},
             {6, " (6) TH", {{Spaced, {F("TH", s.LAYER[at.k].TH)}, interfaces}}, WHEN(s.NL > 1)},
             {7, " (7) PR", {{Spaced, {F("PR", s.LAYER[at.k].PR)}, layers}}},
             {8, " (8) ZC", {{Spaced, {F("ZC", s.ZC[at.k])}, N(s.NZ)}}, WHEN(s.NDAMA == 0 && s.NZ > 0)},
             {9, " (9) NBOND", {{Close, {F("NBOND", s.NBOND)}}}},
             {10,
              " (10) INT",
              {{Spaced, {F("INT", s.INTF[at.k])}, interfaces}},
              WHEN(s.NBOND != 1 && s.NL > 1)},
         }},
        {always, {periods}, {{11, " (11) E", {{Spaced, {F("E", s.EMOD[at.i][at.k])}, layers}}}}},
        {always,
         {groups},
         {
             {13, " (13) LOAD", {{Spaced, {F("LOAD", s.LOADL[at.i].LOAD)}}}},
             {14, " (14) CR CP", {{Spaced, {F("CR", s.LOADL[at.i].CR), F("CP", s.LOADL[at.i].CP)}}}},
             {16, " (16) NR", {{Spaced, {F("NR", s.LOADL[at.i].NR)}}}, radial},
             {17, " (17) RC", {{Spaced, {F("RC", s.RC[at.i][at.k])}, N(s.LOADL[at.i].NR.number())}}, radial},
             {19, " (19) NPT", {{Spaced, {F("NPT", s.LOADL[at.i].NR)}}}, multiple},
             {20,
              " (20) XW YW XPT",
              {{Spaced, {F("XW", s.LOADL[at.i].XW), F("YW", s.LOADL[at.i].YW)}},
               {Spaced,
                {F("XPT", s.PT[at.i][at.k].XPT), F("YPT", s.PT[at.i][at.k].YPT)},
                N(s.LOADL[at.i].NR.number())}},
              multiple},
         }},
        {nonlinear,
         {},
         {
             {25, " (25) NOLAY ITENOL", {{Close, {F("NOLAY", s.NOLAY), F("ITENOL", s.ITENOL)}}}},
             {26,
              " (26) LAYNO NCLAY",
              {{Spaced,
                {F("LAYNO", s.NOLLAY[at.k].LAYNO), F("NCLAY", s.NOLLAY[at.k].NCLAY)},
                nonlinearLayers}}},
             {27, " (27) ZCNOL", {{Spaced, {F("ZCNOL", s.NOLLAY[at.k].ZCNOL)}, nonlinearLayers}}},
             {28,
              " (28) RCNOL XCNOL YCNOL SLD DELNOL",
              {{Close,
                {F("RCNOL", s.RCNOL), F("XCNOL", s.XCNOL), F("YCNOL", s.YCNOL), F("SLD", s.SLD),
                 F("DELNOL", s.DELNOL)}}}},
             {29, " (29) RELAX", {{Spaced, {F("RELAX", s.RELAX[at.k])}, periods}}},
             {30, " (30) GAM", {{Spaced, {F("GAM", s.LAYER[at.k].GAM)}, layers}}},
         }},
        {nonlinear,
         {nonlinearLayers},
         {
             {31,
              " (31) K2 K3 K4 K0",
              {{Close,
                {F("K2", s.KCLAY[at.i].K2), F("K3", s.KCLAY[at.i].K3), F("K4", s.KCLAY[at.i].K4),
                 F("K0", s.KCLAY[at.i].K0)}}},
              WHEN(isClay(s, at.i))},
             {31,
              " (31) K2 K0",
              {{Close, {F("K2", s.KGRAN[at.i].K2), F("K0", s.KGRAN[at.i].K0)}}},
              WHEN(!isClay(s, at.i))},
         }},
        {nonlinear,
         {periods, nonlinearLayers},
         {
             {33,
              " (33) EMIN EMAX K1",
              {{Spaced,
                {F("EMIN", s.KPER[at.j][at.i][1]), F("EMAX", s.KPER[at.j][at.i][2]),
                 F("K1", s.KPER[at.j][at.i][3])}}},
              WHEN(isClay(s, at.j))},
             {33,
              " (33) PHI K1",
              {{Spaced, {F("PHI", s.KPER[at.j][at.i][1]), F("K1", s.KPER[at.j][at.i][2])}}},
              WHEN(!isClay(s, at.j))},
         }},
        {viscous,
         {},
         {
             {36, " (36) DUR", {{Close, {F("DUR", s.DUR)}}}},
             {37,
              " (37) NVL LNV",
              {{Close, {F("NVL", s.NVL)}}, {Spaced, {F("LNV", s.VISLAY[at.k].LNV)}, viscousLayers, true}}},
             {38, " (38) NTYME", {{Close, {F("NTYME", s.NTYME)}}}},
             {39, " (39) TYME", {{Spaced, {F("TYME", s.TYME[at.k])}, times}}},
         }},
        {viscous,
         {viscousLayers},
         {
             {41,
              " (41) BETA TEMPREF",
              {{Spaced, {F("BETA", s.VISLAY[at.i].BETA), F("TEMPREF", s.VISLAY[at.i].TEMPREF)}}}},
             {42, " (42) CREEP", {{Spaced, {F("CREEP", s.CREEP[at.i][at.k])}, times}}},
         }},
        {viscous,
         {periods},
         {{44, " (44) TEMP", {{Spaced, {F("TEMP", s.TEMP[at.i][at.k])}, viscousLayers}}}}},
        {damage,
         {},
         {
             {46, " (46) NLBT NLTC", {{Close, {F("NLBT", s.NLBT), F("NLTC", s.NLTC)}}}},
             {47, " (47) LNBT", {{Spaced, {F("LNBT", s.DAMBT[at.k].LNBT)}, N(s.NLBT)}}},
             {48, " (48) LNTC", {{Spaced, {F("LNTC", s.DAMTC[at.k].LNTC)}, N(s.NLTC)}}},
         }},
        {damage, {periods}, {{49, " (49) TNLR", {{Spaced, {F("TNLR", s.TNLR[at.i][at.k])}, groups}}}}},
        {damage,
         {N(s.NLBT)},
         {{50,
           " (50) FT1 FT2 FT3",
           {{Spaced,
             {F("FT1", s.DAMBT[at.i].FT1), F("FT2", s.DAMBT[at.i].FT2), F("FT3", s.DAMBT[at.i].FT3)}}}}}},
        {damage,
         {N(s.NLTC)},
         {{51, " (51) FT4 FT5", {{Spaced, {F("FT4", s.DAMTC[at.i].FT4), F("FT5", s.DAMTC[at.i].FT5)}}}}}},
    };
    return table;
}

const Card<LayeredSet>& oldCard5() {
    static const Card<Set> card = {
        5,
        " (5) NL NZ ICL NSTD",
        {{Close, {F("NL", s.NL), F("NZ", s.NZ), F("ICL", s.ICL), F("NSTD", s.NSTD)}}}};
    return card;
}

bool isViscoelastic(const LayeredSet& set, int layer) {
    if (!isViscous(set)) return false;
    const int last = static_cast<int>(std::min(set.NVL.number(), 12.0));
    for (int n = 1; n <= last; ++n)
        if (set.VISLAY[n].LNV.number() == layer) return true;
    return false;
}
