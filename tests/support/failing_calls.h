#pragma once

#include <optional>
#include <string>
#include <vector>

namespace qarn {

/// What comes of the calls that a fault meets, in place of what they do.
struct Fault {
    enum Kind { Fails, Shortens, WritesNothing, Kills };

    std::size_t first = 0;  ///< the call that it meets, counted from 0
    bool andAllAfter = false;
    Kind kind = Fails;
    int error = 0;          ///< errno of a call that fails
    std::string only = {};  ///< of calls that begin so; empty: of all
};

/// While one lives, the system calls by which this program changes files are recorded in order, and
/// fail as told: open (of new files and folders), fchown, fchmod, write, fsync, close, rename.
class FailingCalls {
public:
    explicit FailingCalls(const std::optional<Fault>& fault = {});
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;
    ~FailingCalls();

    const std::vector<std::string>& Calls() const;
};

}  // namespace qarn
