#pragma once

#include "core/ports.h"

namespace qarn {

/// The folder of the running program, and the person's data folder for it.
ProgramFolders FindProgramFolders();

}  // namespace qarn
