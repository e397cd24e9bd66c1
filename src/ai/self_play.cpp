#include "ai/self_play.h"

#include <stdexcept>

#include "ai/starting_position.h"
#include "ai/turn_driver.h"
#include "core/board_display.h"
#include "core/turn_cycle.h"

namespace qarn {
namespace {

void Count(SelfPlayResult& result, Outcome outcome) {
    ++result.games;
    switch (outcome) {
        case Outcome::Won1:
            ++result.wins1;
            break;
        case Outcome::Won2:
            ++result.wins2;
            break;
        case Outcome::Stalemate:
            ++result.stalemates;
            break;
        case Outcome::Endless:
            ++result.endless;
            break;
    }
}

}  // namespace

SelfPlayedGame::SelfPlayedGame(int scenario, std::uint64_t seed)
    : ports_(seed), game_{.record = {}, .controls = {}, .ports = ports_.All()} {
    SetUpNewGame(game_, scenario);
    game_.record.blnComputer = {false, true, true};
    game_.ports.random.Seed();
    for (int i = 1; i <= peopleCount; ++i) PlacePeople(game_, i);
    game_.blnOpen = true;
    StartTurns(game_);
}

Outcome SelfPlayedGame::PlayToEnd() {
    const GameRecord& record = game_.record;
    while (game_.controls.tmrAI.Enabled) {
        const bool choosing = !record.Action.blnAIBusy;
        if (choosing && turns_ == mostTurns) return Outcome::Endless;
        if (!Tick(game_)) throw std::runtime_error(ports_.LastText());
        if (game_.blnEnded) return record.bytPeopleLeft[1] > 0 ? Outcome::Won1 : Outcome::Won2;
        if (choosing && record.Action.blnAIBusy) ++turns_;
    }
    return Outcome::Stalemate;
}

SelfPlayResult PlayItself(int scenario, long games, std::uint64_t seed,
                          const std::function<void(long)>& progress) {
    SelfPlayResult result;
    const auto start = std::chrono::steady_clock::now();
    for (long k = 1; k <= games; ++k) {
        SelfPlayedGame game(scenario, seed + static_cast<std::uint64_t>(k - 1));
        Count(result, game.PlayToEnd());
        result.turns += game.Turns();
        progress(k);
    }
    result.time = std::chrono::steady_clock::now() - start;
    return result;
}

}  // namespace qarn
