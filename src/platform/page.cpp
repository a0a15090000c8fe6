#include "platform/page.h"

#include <array>

#include "platform/run_time_error.h"

Colour QBColor(int index) {
    static constexpr std::array<Colour, 16> palette = {
        0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
        0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};
    if (index < 0 || index > 15) throw RunTimeError(Fault::SubscriptOutOfRange, "colour index");
    return palette[static_cast<std::size_t>(index)];
}
