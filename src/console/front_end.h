#pragma once

#include <functional>
#include <iosfwd>
#include <string>

#include "core/ports.h"

namespace qarn {

/// Where the commands come from, and whether the program is asked to end in between: the game is
/// then closed without boxes, and so saved.
struct Commands {
    std::istream& in;
    std::function<bool()> isAskedToEnd = [] { return false; };
};

/// Lets a program play: one JSON object a command, flushed before the next command is read. Opens
/// `file` first when it is not empty; why that was refused goes to `errors`. Gives the exit status.
int RunForProgram(const Commands& commands, std::ostream& out, std::ostream& errors,
                  const DesktopPorts& desktop, const std::string& file);

/// Lets a person play over a terminal: the board in colour when `colors` is true, message boxes
/// asked at the prompt. Gives the exit status.
int RunForPerson(const Commands& commands, std::ostream& out, const DesktopPorts& desktop,
                 const std::string& file, bool colors);

}  // namespace qarn
