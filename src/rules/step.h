#pragma once

#include <cstdint>

#include "core/game.h"

namespace qarn {

/// What came of one step of a move.
enum class StepResult : std::uint8_t {
    PlainStep = 0,
    JoinedOwn = 1,
    AttackWon = 2,
    Impossible = 3,
    NotEnoughMobility = 4,
    TooManyTransports = 5,
    TooManyCharacters = 6,
    WaterWithoutBoat = 7,
    AttackTied = 8,
    AttackLost = 9,
    AttackCancelled = 10,  ///< or not possible
};

/// True for the groups that fly over water: those with the code "J" or "SK".
bool IsBird(const PeopleRecord& people);

/// The mobility units that the selected people spend to step onto terrain T, their special movers
/// considered.
std::uint8_t StepCost(const GameRecord& record, std::uint8_t T);

/// Checks the step of the moving group to its neighbour (bytX, bytY) for bytStepCost mobility
/// units. Carries out the direct attack when enemies stand there and the player wants it.
StepResult CheckStep(Game& game, std::uint8_t bytX, std::uint8_t bytY);

}  // namespace qarn
