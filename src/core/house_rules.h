#pragma once

namespace qarn {

/// Rules that the players may agree on. With all of them off, the game is played as it always was.
struct HouseRules {
    /// Each side attacks, moves and loses only its own groups, and attacks only the enemy's, also
    /// on a square that both sides share.
    bool ownGroupsOnly = false;
    /// A direct attack that burns a landmark down leaves the turn until the move is ended, which
    /// passes it; else the turn passes twice.
    bool oneTurnForABurning = false;

    friend bool operator==(const HouseRules&, const HouseRules&) = default;
};

}  // namespace qarn
