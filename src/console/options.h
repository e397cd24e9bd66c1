#pragma once

#include <optional>
#include <span>
#include <string>

#include "console/match_command.h"
#include "console/self_play_command.h"

namespace qarn {

/// What the command line asks for.
struct Options {
    bool help = false;     ///< the usage is to be shown, and nothing else done
    bool version = false;  ///< the same with the version
    bool json = false;
    std::string file;  ///< empty: no game is opened at the start
    std::optional<SelfPlayOptions> selfPlay;
    std::optional<MatchOptions> match;
};

/// Reads the arguments behind the program's name. Throws Refusal for a wrong command line.
Options ParseOptions(std::span<char* const> arguments);

}  // namespace qarn
