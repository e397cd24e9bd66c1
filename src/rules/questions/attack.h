#pragma once

#include <cstdint>

#include "core/position.h"

namespace qarn {

/// Why a square can not attack, or not be attacked.
enum class AttackRefusal : std::uint8_t {
    None,
    OnItself,     ///< the target is the attackers' own square
    NotAdjacent,  ///< the target is no neighbour of it
    NobodyThere,  ///< nobody stands there, and it is no landmark to be attacked
    Inanimate,    ///< only things without attack units stand there
    WrongSide,    ///< the attackers are not those of the side to move, or the attacked are
    Barred,       ///< by the terrain of the target
};

/// What an attack would set against each other.
struct AttackAnswer {
    AttackRefusal refusal = AttackRefusal::None;
    std::uint8_t attackUnits = 0;   ///< of those who act on the attacking square
    std::uint8_t defenseUnits = 0;  ///< of those attacked, the terrain included
    bool burns = false;             ///< the target burns down, without a roll
    bool turnStays = false;         ///< ... and the turn stays until the move is ended
    Terrain ruins = Plain;          ///< what it then is
};

/// Whether the people on a square could attack, and with how many attack units. Throws
/// EightBitOverflow when a sum passes 255.
AttackAnswer AskAttackers(const Position& position, Square from);

/// What an attack with so many attack units from one square on another would be; `blnDirect`: by
/// stepping into it. Throws EightBitOverflow when a sum passes 255.
AttackAnswer AskTarget(const Position& position, Square from, std::uint8_t attackUnits, Square to,
                       bool blnDirect);

/// Both in one: what an attack from one square on another would be, or why it can not be made.
AttackAnswer AskAttack(const Position& position, Square from, Square to, bool blnDirect);

}  // namespace qarn
