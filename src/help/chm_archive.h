#pragma once

#include <string>

#include "help/lock_in.h"

namespace qarn {

/// How the reading of a compiled help file ended.
enum class ChmResult { Whole, Damaged, TooLarge };

/// Sends all that a compiled help file holds to `socket`, see sent_help.h. Its library may come to
/// any harm on a damaged file: only for a process that is locked in.
ChmResult SendChm(const LockedIn& process, const std::string& path, int socket);

}  // namespace qarn
