#include "core/random_numbers.h"

#include <chrono>

namespace qarn {

void UniformGenerator::SeedFromClock() {
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    Seed(static_cast<std::uint64_t>(
        std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()));
}

// The standard fixes the generator's bits but not what a distribution makes of them, so the number
// is made here: 53 bits fill a double's fraction exactly.
double UniformGenerator::Next() { return static_cast<double>(bits_() >> 11) * 0x1.0p-53; }

}  // namespace qarn
