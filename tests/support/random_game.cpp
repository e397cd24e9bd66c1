#include "support/random_game.h"

#include <algorithm>

#include "scenarios/catalogue.h"
#include "scenarios/setup.h"

namespace qarn {

RandomGame::RandomGame(int scenario, unsigned seed, int ofThree) : chance_(seed) {
    std::string crowd(NamesOfScenario(scenario).Code);
    if (Below(2) == 0) crowd += " turn2";
    for (const RosterEntry& entry : DataOfScenario(scenario).Roster) {
        if (Below(3) >= ofThree) continue;
        const std::string code(entry.Code.Text());
        crowd +=
            " " + code + "@" + std::to_string(7 + Below(6)) + "," + std::to_string(3 + Below(5));
        if (entry.Side != 0) crowd += " " + code + ".Attack=" + std::to_string(1 + Below(25));
    }
    Load(crowd);
}

std::string RandomGame::RandomCommand() {
    const GameRecord& record = game.record;
    const auto& at = record.People.at(static_cast<std::size_t>(1 + Below(peopleCount)));
    const bool starts = !record.blnMoveUnderWay && !record.blnAttackerChosen && OnBoard(at);
    const std::string click = "click" +
                              Near(starts ? at.LocationX : record.bytClickX, columnCount) +
                              Near(starts ? at.LocationY : record.bytClickY, rowCount);
    const std::string commands[] = {
        Below(3) > 0 ? "press cmdMove" : "press cmdAttack",
        (Below(2) == 0 ? "tick " : "untick ") + std::to_string(1 + Below(4)),
        game.controls.cmdDoneSel.Visible ? "press cmdDoneSel" : click, click};
    return commands[Below(4)];
}

void RandomGame::QueueAnswersAndDice() {
    dialogs.queued.assign(5, Below(4) > 0 ? Answer::Yes : Answer::No);
    random.queued = {Below(5) / 5.0, Below(5) / 5.0};
}

std::string RandomGame::Near(int place, int last) {
    return " " + std::to_string(std::clamp(place + Below(3) - 1, 1, last));
}

}  // namespace qarn
