// Apart from the conversions of numbers to texts and back, which are heavy: the setup rounds and
// has no need of them.
#include "helpers/number_text.h"

#include <cmath>

namespace quillon {

std::int64_t RoundToEven(double value)
{
    const double below = std::floor(value);
    const double rest = value - below;
    const bool up = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2.0) != 0);
    return static_cast<std::int64_t>(below) + (up ? 1 : 0);
}

} // namespace quillon
