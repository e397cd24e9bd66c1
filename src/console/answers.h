#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "ai/hint.h"
#include "core/square.h"
#include "rules/questions/odds.h"
#include "rules/questions/reach.h"

namespace qarn {

struct GameRecord;

/// What an attack would set against each other, and what would come of it.
struct AttackOdds {
    std::uint8_t attack = 0;   ///< units
    std::uint8_t defense = 0;  ///< units, terrain included
    Odds odds;
    bool burns = false;  ///< the target burns down: won without a roll
};

/// The odds of one stack against a square, in both ways of attacking; none where it can not be
/// attacked so.
struct OddsAnswer {
    std::optional<AttackOdds> command;  ///< with the Attack command
    std::optional<AttackOdds> direct;   ///< by stepping in
};

/// The answers to the questions of one command.
struct Answers {
    std::optional<std::vector<ReachedSquare>> reach;
    std::optional<OddsAnswer> odds;
    std::optional<Hint> hint;
};

/// What an attack that a hint tells of would come to.
AttackOdds OddsOfHint(const Attacked& attack);

/// The squares that the group in move can still reach, the cheapest first. Throws Refusal when no
/// group is in move.
std::vector<ReachedSquare> ReachOfGroupInMove(const GameRecord& record);

/// The squares that the whole stack on a square could reach if it were its side's turn. Throws
/// Refusal when no move can start there, EightBitOverflow when its mobility passes 255.
std::vector<ReachedSquare> ReachOfStack(const GameRecord& record, Square square);

/// What the whole stack on the first square would set against the second if it were its side's
/// turn. Throws EightBitOverflow when a sum passes 255.
OddsAnswer OddsOfStack(const GameRecord& record, Square from, Square to);

}  // namespace qarn
