#pragma once

#include <QString>

#include "help/help_reader.h"

namespace qarn {

/// Shows a topic of the help at a path, a compiled file for the reader or a folder of pages, in the
/// viewer that is already open on it or in a window of its own, and runs until that window is
/// closed. Gives the program's exit status: 1 when the help is missing or damaged, which a box has
/// reported then. Needs a QApplication.
int RunViewer(HelpReader reader, const QString& helpFilePath, const QString& topic);

}  // namespace qarn
