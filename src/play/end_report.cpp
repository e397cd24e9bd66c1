#include "play/end_report.h"

#include <variant>
#include <vector>

#include "core/enumerate.h"
#include "core/game.h"

namespace qarn {
namespace {

const Ended* EndOf(const Game& game) {
    return game.happenings.empty() ? nullptr : std::get_if<Ended>(&game.happenings.back());
}

std::string NamesOfLost(const GameRecord& record, std::uint8_t side) {
    std::vector<std::uint8_t> lost;
    for (std::uint8_t i = 1; i <= peopleCount; ++i) {
        if (record.People[i].Side == side && !OnBoard(record.People[i])) lost.push_back(i);
    }
    return lost.empty() ? "nobody" : Enumerate(GetPeopleNames(record, lost));
}

}  // namespace

bool IsOver(const Game& game) { return game.blnEnded && EndOf(game) != nullptr; }

EndReport ReportOfEnd(const Game& game, int turns) {
    const GameRecord& record = game.record;
    const std::uint8_t winner = EndOf(game)->winner;
    return {.outcome =
                winner == 0 ? "The game is a draw." : record.strPlayerName.at(winner) + " has won.",
            .turns = std::to_string(turns) + (turns == 1 ? " turn" : " turns"),
            .lost = {"", NamesOfLost(record, 1), NamesOfLost(record, 2)}};
}

}  // namespace qarn
