#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ai/hint.h"
#include "core/square.h"
#include "play/odds_told.h"
#include "rules/questions/reach.h"

namespace qarn {

struct GameRecord;

/// The answers to the questions of one command.
struct Answers {
    std::optional<std::vector<ReachedSquare>> reach;
    std::optional<OddsAnswer> odds;
    std::optional<Hint> hint;
    std::optional<std::vector<std::string>> journal;  ///< its lines
};

/// What an attack that a hint tells of would come to.
AttackOdds OddsOfHint(const Attacked& attack);

/// The squares that the group in move can still reach, the cheapest first. Throws Refusal when no
/// group is in move.
std::vector<ReachedSquare> ReachOfGroupInMove(const GameRecord& record);

/// The squares that the whole stack on a square could reach if it were its side's turn. Throws
/// Refusal when no move can start there, EightBitOverflow when its mobility passes 255.
std::vector<ReachedSquare> ReachOfStack(const GameRecord& record, Square square);

}  // namespace qarn
