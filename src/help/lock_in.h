#pragma once

namespace qarn {

/// That this process is locked in, for what must only be done then.
class LockedIn {
public:
    /// Leaves the process nothing but standard input and what it takes to open one file, to read it
    /// and to write to standard input: memory and time are limited, and any other call of the
    /// system ends it. Under AddressSanitizer, which needs more memory and calls than that, only
    /// time and files are limited. Throws std::runtime_error when it cannot be done.
    LockedIn();
};

}  // namespace qarn
