#pragma once

#include <cstdint>
#include <random>

namespace qarn {

/// A generator of uniform numbers that gives the same sequence for the same seed on every machine
/// and compiler.
class UniformGenerator {
public:
    /// Starts the sequence that belongs to `seed`.
    void Seed(std::uint64_t seed) { bits_.seed(seed); }

    /// Starts a sequence that differs from run to run.
    void SeedFromClock();

    /// The next number, at least 0 and below 1.
    double Next();

private:
    std::mt19937_64 bits_;
};

}  // namespace qarn
