#pragma once

#include <string>

#include "help/help_contents.h"

namespace qarn {

/// Reads a whole compiled help file. Throws HelpFileError when it cannot be opened, is not such a
/// file, is cut short, or holds more than 64 MiB.
HelpContents ReadChm(const std::string& path);

}  // namespace qarn
