#include "play/strikes.h"

#include <algorithm>

#include "rules/questions/attack.h"
#include "rules/questions/occupancy.h"
#include "rules/questions/reach.h"
#include "rules/questions/start.h"
#include "rules/questions/terrain_effect.h"

namespace qarn {
namespace {

class Strikes {
public:
    explicit Strikes(const Position& position) : position_(position), occupancy_(position) {}

    void AddThoseFrom(Square square) {
        if (AskStart(position_, square) == StartRefusal::None) AddSteps(square);
        if (AskAttackers(position_, square).refusal == AttackRefusal::None) AddCommand(square);
    }

    std::vector<Square> All() const {
        std::vector<Square> squares;
        for (std::uint8_t X = 1; X <= columnCount; ++X) {
            for (std::uint8_t Y = 1; Y <= rowCount; ++Y) {
                if (struck_[X][Y]) squares.push_back({X, Y});
            }
        }
        return squares;
    }

private:
    // Whoever steps alone may find other ways than all together, and so may those whom a bird
    // leads, which is the first of them. All others get no further than all together.
    void AddSteps(Square square) {
        PeopleSet behind = ListedOn(position_, square);
        AddReach(behind, square);
        for (const std::uint8_t i : CharactersOf(position_, behind)) {
            AddReach({i}, square);
            AddReach(behind, square);
            behind = behind - PeopleSet{i};
        }
    }

    void AddReach(PeopleSet people, Square square) {
        const int mobility = StrengthOf(position_, people).Mobility;
        for (const ReachMap::Way& way :
             ReachMap(position_, occupancy_, {people, square, mobility})) {
            const std::uint8_t T = TerrainOf(position_, way.square);
            if (way.attack || (!way.joins && position_.TerrainKinds.at(T).DirectAttack)) {
                struck_[way.square.X][way.square.Y] = true;
            }
        }
    }

    void AddCommand(Square square) {
        for (std::uint8_t X = 1; X <= columnCount; ++X) {
            for (std::uint8_t Y = 1; Y <= rowCount; ++Y) {
                const Square to{X, Y};
                if (DistanceBetween(square, to) == 1 && CanBeAttacked(to)) struck_[X][Y] = true;
            }
        }
    }

    bool CanBeAttacked(Square to) const {
        const PeopleSet own = occupancy_.On(to) & occupancy_.OfSide(position_.bytTurn);
        return own.Empty() && TerrainModifiers(position_, to, true, 0, 0, false).blnAllowed;
    }

    const Position& position_;
    Occupancy occupancy_;
    std::array<std::array<bool, rowCount + 1>, columnCount + 1> struck_{};
};

}  // namespace

std::vector<Square> StrikesOf(const Position& position, std::uint8_t side) {
    Position turned = position;
    turned.bytTurn = side;
    Strikes strikes(turned);
    for (const std::uint8_t i : Occupancy(turned).OfSide(side)) {
        strikes.AddThoseFrom(SquareOf(turned.People[i]));
    }
    return strikes.All();
}

}  // namespace qarn
