#include "rules/step.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

#include "rules/attack_mode.h"
#include "rules/combat.h"
#include "rules/terrain.h"

namespace qarn {
namespace {

int FirstDigit(std::int16_t ability) { return ability / 100; }
int MiddleDigit(std::int16_t ability) { return ability / 10 % 10; }
int LastDigit(std::int16_t ability) { return ability % 10; }

bool HasCode(const PeopleRecord& people, std::string_view code) {
    std::string own = people.Code.substr(0, people.Code.find_last_not_of(' ') + 1);
    std::transform(own.begin(), own.end(), own.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
    return own == code;
}

const PeopleRecord& FirstSelected(const GameRecord& record) {
    return record.People.at(record.bytSelectedPeople[1]);
}

std::uint8_t CostOfSpecialMover(const PeopleRecord& p, std::uint8_t T) {
    const int middle = MiddleDigit(p.Ability1);
    if (middle == 6 && T == Mountain) return 2;
    if (middle == 6 && T == Forest) return 1;
    return static_cast<std::uint8_t>(middle);
}

// What stands on the entered square and what the moving group brings along.
struct JoinedUnit {
    SquareList there;
    int characters = 0;
    int transports = 0;
    bool ownThere = false;
};

JoinedUnit CountJoinedUnit(const GameRecord& record, std::uint8_t X, std::uint8_t Y) {
    JoinedUnit unit{.there = LocationOfPeople(record, X, Y)};
    const auto count = [&](std::uint8_t i) {
        ++(IsTransport(record.People[i]) ? unit.transports : unit.characters);
    };
    for (const std::uint8_t i : Selection(record)) count(i);
    for (const std::uint8_t i : unit.there.People()) {
        count(i);
        if (record.People[i].Side == record.bytTurn) unit.ownThere = true;
    }
    return unit;
}

// A lone "J" needs the air to itself; an "SK" leads others across.
bool CanSwim(const GameRecord& record) {
    const PeopleRecord& p = FirstSelected(record);
    const bool alone =
        LocationOfPeople(record, record.bytGroupX, record.bytGroupY).bytNumberofPeople == 1;
    if (HasCode(p, "J") && alone) return true;
    if (HasCode(p, "SK")) return true;
    const auto selection = Selection(record);
    return std::any_of(selection.begin(), selection.end(),
                       [&](std::uint8_t i) { return record.People[i].Name == "Boat"; });
}

bool IsNeighbour(const GameRecord& record, std::uint8_t X, std::uint8_t Y) {
    return std::abs(X - record.bytGroupX) + std::abs(Y - record.bytGroupY) == 1;
}

StepResult ResultOfAttack(AttackResult result) {
    switch (result) {
        case AttackResult::Won:
            return StepResult::AttackWon;
        case AttackResult::Tie:
            return StepResult::AttackTied;
        case AttackResult::Lost:
            return StepResult::AttackLost;
        default:
            return StepResult::AttackCancelled;
    }
}

StepResult AttackDirectly(Game& game, std::uint8_t X, std::uint8_t Y) {
    GameRecord& record = game.record;
    const std::uint8_t T = record.bytTerrain.at(X).at(Y);
    if (!record.TerrainKinds.at(T).DirectAttack) {
        game.ports.dialogs.Tell("You can not directly attack here.");
        return StepResult::AttackCancelled;
    }
    const Answer answer = game.ports.dialogs.Show(
        {.Title = "Move",
         .Text = "You will have to initiate a direct attack to proceed.  Do you want to attack?",
         .Offered = Buttons::YesNo});
    if (answer == Answer::No) {
        record.blnAttackMode = true;
        return StepResult::AttackCancelled;
    }
    AttackResult result = AttackResult::NotPossible;
    record.blnAttackerChosen = false;
    EnterAttackMode(game);
    AttackSquare(game, true, record.bytGroupX, record.bytGroupY, result);
    AttackSquare(game, true, X, Y, result);
    return ResultOfAttack(result);
}

}  // namespace

bool IsBird(const PeopleRecord& people) { return HasCode(people, "J") || HasCode(people, "SK"); }

std::uint8_t StepCost(const GameRecord& record, std::uint8_t T) {
    const PeopleRecord& p = FirstSelected(record);
    const std::uint8_t kindCost = record.TerrainKinds.at(T).Mobility;
    const bool endsInOne = LastDigit(p.Ability1) == 1 || LastDigit(p.Ability2) == 1;
    if (record.bytSelectedCount > 1 || (T == Plain && !endsInOne)) return kindCost;

    const bool climbs = (T == Mountain || T == Forest) && FirstDigit(p.Ability1) == 9;
    const bool flies = T != Fortress && FirstDigit(p.Ability1) == 8;
    if (LastDigit(p.Ability1) == 1 && (climbs || flies)) return CostOfSpecialMover(p, T);
    return kindCost;
}

StepResult CheckStep(Game& game, std::uint8_t bytX, std::uint8_t bytY) {
    GameRecord& record = game.record;
    const std::uint8_t T = record.bytTerrain.at(bytX).at(bytY);
    const JoinedUnit unit = CountJoinedUnit(record, bytX, bytY);
    if (record.bytStepCost == 0) record.bytStepCost = record.TerrainKinds.at(T).Mobility;

    if (!IsNeighbour(record, bytX, bytY)) return StepResult::Impossible;
    const bool empty = unit.there.bytNumberofPeople == 0;
    if (T == Abbey && empty && record.bytTurn == 2) return StepResult::Impossible;
    if (IsWater(T) && !CanSwim(record)) return StepResult::WaterWithoutBoat;
    if (record.bytMobilityLeft < record.bytStepCost) return StepResult::NotEnoughMobility;
    if (unit.there.bytTotalPeople == 0) return StepResult::PlainStep;
    if (unit.ownThere) {
        if (unit.transports > 7) return StepResult::TooManyTransports;
        if (unit.characters > 4) return StepResult::TooManyCharacters;
        return StepResult::JoinedOwn;
    }
    return AttackDirectly(game, bytX, bytY);
}

}  // namespace qarn
