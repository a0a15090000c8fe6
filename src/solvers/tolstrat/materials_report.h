// The part of the text output that tells of nonlinear and viscoelastic layers.
#pragma once

#include <ostream>

#include "layered/layered_set.h"
#include "solvers/tolstrat/analysis.h"

/// The cards of nonlinear and viscoelastic layers as the solver understood them, with every temperature that
/// it uses, and the series through the creep compliances. Nothing for linear layers.
void writeMaterialEcho(std::ostream& out, const LayeredSet& set, const Viscoelasticity& creep);

/// The moduli that a result belongs to: the iterations of the nonlinear layers and the moduli of the
/// viscoelastic ones, with a clear mark where the iteration ended too early or a lower limit held.
void writeModuli(std::ostream& out, const LayeredSet& set, const Viscoelasticity& creep,
                 const GroupResult& result);
