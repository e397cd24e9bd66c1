#pragma once

#include <algorithm>
#include <array>

#include "ai/opponents/distances.h"
#include "core/position.h"

namespace qarn {

/// The characters of one side on one square, with what they can do together.
struct Stack {
    Square square = {};
    PeopleSet people = {};
    std::uint8_t count = 0;
    std::uint8_t attack = 0;    ///< of everything on the square
    std::uint8_t defense = 0;   ///< of everything on the square, with what the terrain adds
    std::uint8_t cover = 0;     ///< what the terrain adds
    std::uint8_t mobility = 0;  ///< with the cart's, when it is there
    std::uint8_t strength = 0;  ///< attack and defense of the characters
    std::uint8_t weakest = 0;   ///< attack and defense of the weakest character
    Gait gait = Gait::OnFoot;
    bool hasBoat = false;
    bool shared = false;        ///< enemies stand there as well: nobody attacks, fairly
    Square boat = {};           ///< the nearest that it could fetch; (0, 0): none, or it has one
    std::uint8_t fetching = 0;  ///< the turns that takes
};

/// No way leads there.
inline constexpr int neverThere = 99;

/// How many turns of so much mobility a distance takes.
inline int TurnsOf(int distance, int mobility) {
    return distance == Distances::unreachable ? neverThere : (distance + mobility - 1) / mobility;
}

/// How many turns of so much mobility a stack takes to a square, with the boat fetched first where
/// that is the shorter way.
inline int TurnsTo(const Stack& stack, Square square, int mobility, const Distances& distances) {
    const int direct = TurnsOf(distances.Between(stack.gait, stack.square, square), mobility);
    if (stack.boat == Square{}) return direct;
    const int sailing = TurnsOf(distances.Between(Gait::ByBoat, stack.boat, square), mobility);
    return std::min(direct, std::min(stack.fetching + sailing, neverThere));
}

/// The up to four best attackers that can come together on one of their side's squares.
struct Team {
    std::uint8_t attack = 0;
    std::uint8_t mobility = 0;
    std::uint8_t turns = 0;  ///< about how many turns it takes them to come together
};

/// All stacks of a side.
class Army {
public:
    const Stack* begin() const { return stacks_.data(); }
    const Stack* end() const { return begin() + count_; }
    std::size_t Count() const { return count_; }
    /// Attack and defense of all characters.
    int Strength() const;
    /// The team that could gather on the square of stack k.
    const Team& TeamOf(std::size_t k) const { return teams_[k]; }

private:
    friend class Armies;
    std::array<Stack, peopleCount> stacks_;
    std::array<Team, peopleCount> teams_;
    std::size_t count_ = 0;
    bool changed_ = true;  ///< since the teams were formed
};

/// Both sides of a position by their stacks, kept up to date square by square.
class Armies {
public:
    explicit Armies(const Position& position, const Distances& distances);

    const Army& OfSide(std::uint8_t side) const { return armies_[side - 1u]; }

    /// Looks again at the squares on which somebody came or went.
    void Refresh(const Position& position, const Distances& distances,
                 std::initializer_list<Square> squares);

private:
    void Look(const Position& position, Square square);
    void FindBoats(const Position& position, const Distances& distances);
    void FormTeams(const Position& position, const Distances& distances, Army& army);

    std::array<Army, 2> armies_;
    PeopleSet boats_;
};

}  // namespace qarn
