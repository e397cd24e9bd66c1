#pragma once

#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "console/answers.h"
#include "console/console_ports.h"
#include "core/game.h"

namespace qarn {

/// What one command did besides changing the game.
struct CommandOutcome {
    std::string error;  ///< empty when the command was carried out
    std::vector<ShownBox> boxes;
    std::vector<std::string> help;
    Happenings happenings;
    Answers answers;
};

/// The object that reports to a program what a command did and how the game now stands.
nlohmann::ordered_json StateJson(const CommandOutcome& outcome, const Game& game);

/// The object as one line of UTF-8; bytes that are not UTF-8 are replaced.
std::string OneLine(const nlohmann::ordered_json& object);

}  // namespace qarn
