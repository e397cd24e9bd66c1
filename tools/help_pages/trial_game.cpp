#include "help_pages/trial_game.h"

#include "rules/attack_mode.h"
#include "rules/combat.h"
#include "rules/step.h"
#include "rules/terrain.h"
#include "scenarios/catalogue.h"
#include "scenarios/setup.h"

namespace qarn {
namespace {

void PlacePeople(PeopleRecord& people, std::uint8_t side, std::uint8_t X) {
    people.Side = side;
    people.LocationX = X;
    people.LocationY = 1;
    people.Attack = 1;
}

AttackResult Attack(TrialGame& trial, int difference, int die) {
    constexpr std::uint8_t defense = 20;
    auto& people = trial.game.record.People;
    PlacePeople(people[1], 1, 1);
    PlacePeople(people[2], 2, 2);
    PlacePeople(people[3], 2, columnCount);  // so that a win does not end the game
    people[1].Attack = static_cast<std::uint8_t>(defense + difference);
    people[2].Defense = defense;
    trial.SetDie(die);

    AttackResult result = AttackResult::NotPossible;
    cmdAttack_Click(trial.game);
    AttackSquare(trial.game, false, 1, 1, result);
    AttackSquare(trial.game, false, 2, 1, result);
    return result;
}

}  // namespace

TrialGame::TrialGame()
    : game{.record = {}, .controls = {}, .ports = {*this, *this, *this, *this, *this, {}}} {
    InitTerrainKinds(game.record);
}

TrialGame::TrialGame(int scenario) : TrialGame() {
    game.record.bytScenario = static_cast<std::uint8_t>(scenario);
    SetupScenario(game);
}

Answer TrialGame::Show(const MessageBox& box) {
    if (box.Offered == Buttons::OK) return Answer::OK;
    asked_ = true;
    return Answer::Yes;
}

Odds OddsOf(int difference) {
    Odds odds;
    for (int die = 1; die <= 5; ++die) {
        TrialGame trial;
        const AttackResult result = Attack(trial, difference, die);
        if (result == AttackResult::Won) ++odds.wins;
        if (result == AttackResult::Tie) ++odds.ties;
        if (result == AttackResult::Lost) ++odds.losses;
        odds.warns = trial.WasAsked();
    }
    return odds;
}

int CostOfStep(std::int16_t Ability1, std::int16_t Ability2, std::uint8_t terrain) {
    TrialGame trial(ScenarioNumber("TQM"));  // has all kinds of terrain
    GameRecord& record = trial.game.record;
    record.People[1].Ability1 = Ability1;
    record.People[1].Ability2 = Ability2;
    record.bytSelectedPeople[1] = 1;
    record.bytSelectedCount = 1;
    return StepCost(record, terrain);
}

}  // namespace qarn
