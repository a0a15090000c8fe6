// The results as tables for other programs: numbers with 10 significant digits, in deck units.
#pragma once

#include <ostream>

#include "layered/layered_set.h"
#include "solvers/tolstrat/analysis.h"
#include "solvers/tolstrat/damage.h"

/// A table, begun with its head. A run with stationary loads on viscoelastic layers has a column `time`
/// behind `group`, which stays empty for other data sets.
class CsvTable {
  public:
    CsvTable(std::ostream& out, bool timed, const char* columnsBehindGroup);

    /// Begins a row with set, period, group and time.
    std::ostream& row(int set, int period, int group, std::optional<double> time);

  private:
    std::ostream& out_;
    bool timed_;
};

inline constexpr const char* RESPONSE_COLUMNS =
    "point,x,y,z,w,sxx,syy,szz,sxy,sxz,syz,exx,eyy,ezz,exy,exz,eyz,s1,s2,s3,e1,e2,e3";
inline constexpr const char* MODULI_COLUMNS = "iteration,layer,modulus";
inline constexpr const char* DAMAGE_COLUMNS = "axle,location,layer,kind,strain,allowed,ratio";

/// One line per point and depth; what NSTD leaves out is empty.
void writeResponseRows(CsvTable& table, const LayeredSet& set, int n, const GroupResult& group);

/// One line per iteration and nonlinear or viscoelastic layer, layers from the top; iteration 0 is the start.
void writeModuliRows(CsvTable& table, int n, const Viscoelasticity& creep, const GroupResult& group);

/// One line per location and, for tandem and tridem axles, for the primary (1) and secondary (2) damage.
void writeDamageRows(CsvTable& table, const LayeredSet& set, int n, const GroupDamage& group);
