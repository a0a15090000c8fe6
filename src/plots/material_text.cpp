#include "plots/material_text.h"

#include <variant>
#include <vector>

namespace {

enum class Unit { None, Pressure, Density, Temperature, Expansion };

const char* unitText(Unit unit, bool si) {
    switch (unit) {
        case Unit::Pressure:
            return si ? "kPa" : "psi";
        case Unit::Density:
            return si ? "kN/m^3" : "pcf";
        case Unit::Temperature:
            return si ? "C" : "F";
        case Unit::Expansion:
            return si ? "per C" : "per F";
        case Unit::None:
            break;
    }
    return "";
}

/// A field of layer i in period p.
using SingleField = Single& (*)(BedProblem&, int p, int i);
using LongField = Long& (*)(BedProblem&, int p, int i);

Long& E(BedProblem& bed, int p, int i) { return bed.E[p][i]; }
Single& PR(BedProblem& bed, int, int i) { return bed.PR[i]; }
Single& GAM(BedProblem& bed, int, int i) { return bed.GAM[i]; }
Single& K0(BedProblem& bed, int, int i) { return bed.K0[i]; }
Single& K1(BedProblem& bed, int p, int i) { return bed.K1[p][i]; }
Single& K2(BedProblem& bed, int, int i) { return bed.K2[i]; }
Single& K3(BedProblem& bed, int, int i) { return bed.K3[i]; }
Single& K4(BedProblem& bed, int, int i) { return bed.K4[i]; }
Single& PHI(BedProblem& bed, int p, int i) { return bed.PHI[p][i]; }
Single& EMIN(BedProblem& bed, int p, int i) { return bed.EMIN[p][i]; }
Single& EMAX(BedProblem& bed, int p, int i) { return bed.EMAX[p][i]; }
Single& BETA(BedProblem& bed, int, int i) { return bed.BETA[i]; }
Single& TEMPREF(BedProblem& bed, int, int i) { return bed.TEMPREF[i]; }
Single& TEMP(BedProblem& bed, int p, int i) { return bed.TEMP[p][i]; }

struct Term {
    const char* label;
    const char* format;
    std::variant<SingleField, LongField> field;
    Unit unit = Unit::None;
};
using Terms = std::vector<Term>;

const Terms linear = {{"E =", "#.###E+##", E, Unit::Pressure}, {"  PR =", "0.###", PR}};
const Terms linearAmongViscoelastic = {{"E =", "0.000E+00", E, Unit::Pressure}, {"  PR =", "0.###", PR}};
const Terms linearAmongNonlinear = {{"E =", "0.000E+00", E, Unit::Pressure},
                                    {"  PR =", "0.###", PR},
                                    {" GAM =", "###0.###", GAM, Unit::Density}};
const Terms viscoelastic = {{"PR =", "0.###", PR},
                            {" BETA =", "0.###", BETA, Unit::Expansion},
                            {"  TEMPREF =", "##0.###", TEMPREF, Unit::Temperature},
                            {"  TEMP =", "##0.###", TEMP, Unit::Temperature}};
const Terms fourConstants = {{"K1 =", "######0.###", K1, Unit::Pressure},
                             {"  PR =", "0.###", PR},
                             {"  K0 =", "0.###", K0},
                             {"  GAM =", "###0.###", GAM, Unit::Density}};
/// The second line of such a layer where it is the subgrade.
const Terms fourConstantsSubgrade = {{"EMIN =", "0.000E+00", EMIN, Unit::Pressure},
                                     {"  EMAX =", "0.000E+00", EMAX, Unit::Pressure},
                                     {"  K2 =", "####0.###", K2, Unit::Pressure},
                                     {"  K3 =", "####0.###", K3},
                                     {" K4 =", "####0.###", K4}};
const Terms twoConstants = {{"K1 =", "######0.###", K1, Unit::Pressure},
                            {"  K2 =", "0.###", K2},
                            {" PR =", "0.###", PR},
                            {"  PHI =", "##0.###", PHI},
                            {" K0 =", "0.###", K0},
                            {" GAM =", "###0.###", GAM, Unit::Density}};

/// How the creep compliances follow each other; the break of the row differs between the material types.
struct CreepRow {
    const char* caption;
    int secondRow;       ///< the value that begins the second row
    const char* before;  ///< in front of a value that goes on with a row
    const char* after;   ///< behind every value
};
const CreepRow creepOfViscoelastic = {"   CREEP are:", 7, " ", ""};
const CreepRow creepOfCombined = {"  CREEP are:", 8, "", " "};

/// One page's texts of one layer, with what all of them need.
struct LayerText {
    Kernel& q;
    BedProblem& bed;
    int p, i;
    Single x, y;

    bool si() const { return bed.NUNIT != 0; }

    void write(const Terms& terms, Single top) {
        const Term* first = &terms.front();
        for (const Term& term : terms) {
            std::visit(
                [&](auto field) {
                    auto& value = field(bed, p, i);
                    if (&term == first)
                        q.SHOWnum(x, top, term.label, term.format, value);
                    else
                        q.PRN(term.label, term.format, value);
                },
                term.field);
            q.Print(unitText(term.unit, si()));
        }
    }

    void creep(const CreepRow& row) {
        constexpr const char* format = "0.000E+00";
        q.PrintLine(row.caption);
        for (int t = 1; t <= bed.NTYME; ++t) {
            Variant& value = bed.CREEP[i][t];
            if (t == 1) {
                q.SHOWn(x, y + 150, format, value);
            } else if (t == row.secondRow) {
                q.SHOWn(x, y + 300, format, value);
            } else {
                q.Print(row.before);
                q.PRN("", format, value);
            }
            q.Print(row.after);
        }
    }

    void writeViscoelastic() {
        write(viscoelastic, y);
        if (bed.MATL == 3) {
            creep(creepOfViscoelastic);
            q.Print(si() ? " per kPa" : " per psi");
            return;
        }
        creep(creepOfCombined);
        q.PRN(si() ? "per kPa  GAM =" : "per psi  GAM =", "###0.###", bed.GAM[i]);
        q.Print(si() ? " kN/m^3" : " pcf");
    }

    void writeNonlinear() {
        write(bed.NCLAY[i] == 1 ? fourConstants : twoConstants, y);
        if (bed.NCLAY[i] == 1 && i == bed.NL) write(fourConstantsSubgrade, y + 200);
    }
};

bool isViscoelastic(const BedProblem& bed, int i) {
    if (bed.MATL != 3 && bed.MATL != 4) return false;
    for (int n = 1; n <= bed.NVL; ++n)
        if (bed.LNV[n] == i) return true;
    return false;
}

}  // namespace

int nonlinearEntry(const BedProblem& bed, int i) {
    if ((bed.MATL != 2 && bed.MATL != 4) || isViscoelastic(bed, i)) return 0;
    for (int n = 1; n <= bed.NOLAY; ++n)
        if (bed.LAYNO[n] == i) return n;
    return 0;
}

void materialText(Kernel& q, BedProblem& bed, int p, int i, Single x, Single y) {
    LayerText text{q, bed, p, i, x, y};
    if (isViscoelastic(bed, i))
        text.writeViscoelastic();
    else if (nonlinearEntry(bed, i) != 0)
        text.writeNonlinear();
    else if (bed.MATL == 1)
        text.write(linear, y);
    else if (bed.MATL == 3)
        text.write(linearAmongViscoelastic, y);
    else if (bed.MATL == 2 || bed.MATL == 4)
        text.write(linearAmongNonlinear, y);
}
