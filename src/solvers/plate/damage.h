// Fatigue of the slab layers under repeated loads.
#pragma once

#include <array>
#include <optional>

namespace plate {

/// Fatigue law log10 N = F1 - F2 SR of the user's own.
struct FatigueLaw {
    double F1, F2;
};

/// Repetitions allowed at the stress ratio `SR` = tension / modulus of rupture;
/// infinite where the ratio does no harm.
///
/// Without `law` by the criteria of the Portland Cement Association (Packard and
/// Tayabji, 1985): log10 N = 11.737 - 12.077 SR from 0.55, N = (4.2577 / (SR -
/// 0.4325))^3.268 from 0.45 to 0.55, unlimited below. At 0.55 the two differ by 0.2 %.
/// A ratio of 0 or less is never harmful, by either law.
double allowedRepetitions(double SR, const std::optional<FatigueLaw>& law);

enum class Axles { Single = 1, Tandem, Tridem };

struct Passage {
    Axles axles;
    double peak;    ///< largest tension
    double range;   ///< what each further axle adds: peak less the valley between the axles
    double damage;  ///< damage of one passage
};

/// Damage of one passage by the tension (positive) at three points on the edge of a
/// slab that is symmetrical about the y axis: the first on the axis, then outward.
///
/// The point with the peak tells the axles apart. First point: a single axle stands
/// on the axis. Second: two axles stand beside it and the first point is the valley
/// between them. Third: one stands on the axis and two beside it, and the second
/// point is the valley; the peak is the larger of the first and third. A third point
/// that rises again behind a single axle has less than half of its tension and does
/// not count as an axle. Cycles are counted by the rainflow rule
/// (Matsuishi and Endo, 1968): one from 0 to the peak, and for each further axle one
/// from valley to peak; a valley in compression counts as 0.
/// @pre PMR > 0
Passage passage(const std::array<double, 3>& tension, double PMR, const std::optional<FatigueLaw>& law);

}  // namespace plate
