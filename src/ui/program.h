#pragma once

#include <string>

namespace qarn {

/// Runs the program from its first window to its end: start-up, then start window and game window
/// in turn. `strCommandLine` are its arguments as one text. Gives the exit status.
int RunProgram(const std::string& strCommandLine);

}  // namespace qarn
