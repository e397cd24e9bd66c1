#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/position.h"
#include "rules/questions/odds.h"

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

/// The odds of so many attack units against so many defense units, terrain included; `burns`: the
/// target burns down.
AttackOdds OddsOfUnits(std::uint8_t attack, std::uint8_t defense, bool burns);

/// What an attack from one square on another would come to; none where it can not be made. Throws
/// EightBitOverflow when a sum passes 255.
std::optional<AttackOdds> OddsOfAttack(const Position& position, Square from, Square to,
                                       bool blnDirect);

/// What the whole stack on the first square would set against the second if it were its side's
/// turn. Throws EightBitOverflow when a sum passes 255.
OddsAnswer OddsOfStack(const GameRecord& record, Square from, Square to);

/// Odds in words: "wins 60 %, ties 20 %, loses 20 %".
std::string TextOf(const Odds& odds);

/// The odds of an attack in words: "13 against 4: wins 60 %, ties 20 %, loses 20 %; after a win one
/// in five costs a character".
std::string TextOf(const AttackOdds& attack);

}  // namespace qarn
