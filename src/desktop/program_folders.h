#pragma once

#include <string>

#include "core/ports.h"

namespace qarn {

/// True when programs are built in the folder, so that what else lies there goes with the next
/// clean build.
bool IsBuildTree(const std::string& folder);

/// The folder of the running program, and the person's data folder for it.
ProgramFolders FindProgramFolders();

}  // namespace qarn
