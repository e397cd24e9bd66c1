#pragma once

#include <span>
#include <string>

namespace qarn {

/// The arguments behind the program's name as one text: a path with blanks in it need not stand in
/// quotes.
std::string CommandLine(std::span<char*> arguments);

/// The absolute path of the game file that a command line names; empty when it names none. The path
/// may be relative, may stand in double quotes and may have "\" in place of "/". A text that is a
/// file's path as it stands is taken as it stands.
std::string GamePathOf(const std::string& strCommandLine);

}  // namespace qarn
