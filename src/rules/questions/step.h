#pragma once

#include <cstdint>

#include "core/position.h"

namespace qarn {

class Occupancy;

/// What comes of one step of a move.
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
    DirectAttack = 11,     ///< an answer only: enemies stand there, and the attack decides
};

/// People who go together, where they stand and the mobility units that they have left. They need
/// not stand there in the position itself: those who stayed behind do.
struct MovingGroup {
    PeopleSet people;  ///< at least one
    Square at;
    int mobilityLeft = 0;
};

/// The answer to "may this group step there, and what would it cost?".
struct StepAnswer {
    /// PlainStep, JoinedOwn or DirectAttack where the step can be taken, else why it can not.
    StepResult result = StepResult::Impossible;
    std::uint8_t cost = 0;  ///< mobility units
    bool enters = false;    ///< the group stands on the square afterwards
};

/// What the step of a group of the side to move onto square `to` would be. A direct attack enters
/// the square only when it is won.
StepAnswer AskStep(const Position& position, const MovingGroup& group, Square to);

/// The same for whoever asks about many squares of one position.
StepAnswer AskStep(const Position& position, const Occupancy& occupancy, const MovingGroup& group,
                   Square to);

/// The mobility units that the people spend together to step onto terrain T, their special movers
/// considered.
std::uint8_t StepCost(const Position& position, PeopleSet people, std::uint8_t T);

/// True when the people are a bird alone and the square is water, where it can not land.
bool IsLoneBirdOnWater(const Position& position, PeopleSet people, Square square);

}  // namespace qarn
