#include "play/end_report.h"

#include <variant>
#include <vector>

#include "core/enumerate.h"
#include "core/game.h"
#include "play/journal.h"
#include "play/tell_journal.h"

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

std::string OutcomeOf(const GameRecord& record, const Ended& end) {
    if (end.winner == 0) return "The game is a draw.";
    const std::string won = record.strPlayerName.at(end.winner) + " has won.";
    if (!end.resigned) return won;
    return record.strPlayerName.at(OtherSide(end.winner)) + " has resigned. " + won;
}

std::string LuckTold(const Journal& journal, const Game& game) {
    std::string told;
    for (const std::string& sentence : TellLuck(journal, game)) {
        told += (told.empty() ? "" : "\n") + sentence;
    }
    return told.empty() ? "No die was rolled." : told;
}

}  // namespace

bool IsOver(const Game& game) { return game.blnEnded && EndOf(game) != nullptr; }

EndReport ReportOfEnd(const Game& game, const Journal& journal) {
    const int turns = TurnsOf(journal);
    const GameRecord& record = game.record;
    return {.outcome = OutcomeOf(record, *EndOf(game)),
            .turns = std::to_string(turns) + (turns == 1 ? " turn" : " turns"),
            .lost = {"", NamesOfLost(record, 1), NamesOfLost(record, 2)},
            .luck = LuckTold(journal, game)};
}

}  // namespace qarn
