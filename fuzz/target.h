#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// A fuzz target: does with any input what the program does, and ends the process when something
/// comes of it that must not be. Gives 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace qarn {

/// Ends the process, naming what was found, when `holds` is false.
inline void Require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "This does not hold: %s\n", what);
    std::abort();
}

}  // namespace qarn
