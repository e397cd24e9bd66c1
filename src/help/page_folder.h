#pragma once

#include <string>

#include "help/help_contents.h"

namespace qarn {

/// Reads a folder of help pages as the help compiler would take it: its file "help.hhp" names the
/// start page and the table of contents. Throws HelpFileError when the folder or a file in it can
/// not be read.
HelpContents ReadPageFolder(const std::string& path);

}  // namespace qarn
