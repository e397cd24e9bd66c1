#pragma once

#include <iosfwd>
#include <string>

#include "core/ports.h"

namespace qarn {

/// Lets a program play: one JSON object a command, flushed before the next command is read. Opens
/// `file` first when it is not empty; why that was refused goes to `errors`. Gives the exit status.
int RunForProgram(std::istream& in, std::ostream& out, std::ostream& errors,
                  const DesktopPorts& desktop, const std::string& file);

/// Lets a person play over a terminal: the board in colour when `colors` is true, message boxes
/// asked at the prompt. Gives the exit status.
int RunForPerson(std::istream& in, std::ostream& out, const DesktopPorts& desktop,
                 const std::string& file, bool colors);

}  // namespace qarn
