#include "play/ticked_told.h"

#include <utility>
#include <vector>

#include "core/eight_bit.h"
#include "core/game.h"
#include "core/position.h"

namespace qarn {
namespace {

PeopleSet Ticked(const Game& game) {
    PeopleSet ticked;
    for (std::size_t i = 1; i <= checkBoxCount; ++i) {
        const CheckBox& box = game.controls.chkItems[i];
        if (box.Visible && box.Value) ticked.Add(game.record.bytListedPeople[i]);
    }
    return ticked;
}

std::string LineOf(const PeopleRecord& people) {
    if (IsTransport(people)) return std::string(people.Name);
    return std::string(people.Name) + ": " + std::to_string(people.Mobility) + ", " +
           std::to_string(people.Attack) + ", " + std::to_string(people.Defense);
}

std::string Told(const GameRecord& record, PeopleSet ticked) {
    const Strength sum = StrengthOf(PositionOf(record), ticked);
    std::string told = std::to_string(sum.Mobility) + " mobility, " + std::to_string(sum.Attack) +
                       " attack, " + std::to_string(sum.Defense) + " defense";
    std::vector<std::pair<std::string, int>> lines;
    for (const std::uint8_t i : ticked) {
        const std::string line = LineOf(record.People[i]);
        if (lines.empty() || lines.back().first != line) lines.emplace_back(line, 0);
        ++lines.back().second;
    }
    for (const auto& [line, count] : lines) {
        told += '\n' + line + (count > 1 ? "\u00D7" + std::to_string(count) : "");
    }
    return told;
}

}  // namespace

std::string ToldOfTicked(const Game& game) {
    if (!game.view.sides || !game.controls.cmdDoneSel.Visible) return "";
    const PeopleSet ticked = Ticked(game);
    if (ticked.Empty()) return "";
    try {
        return Told(game.record, ticked);
    } catch (const EightBitOverflow&) {
        return "";
    }
}

}  // namespace qarn
