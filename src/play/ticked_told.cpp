#include "play/ticked_told.h"

#include "core/game.h"

namespace qarn {
namespace {

struct Strengths {
    int mobility = 0;
    int attack = 0;
    int defense = 0;
};

std::string LineOf(const PeopleRecord& people) {
    if (IsTransport(people)) return std::string(people.Name);
    return std::string(people.Name) + ": " + std::to_string(people.Mobility) + ", " +
           std::to_string(people.Attack) + ", " + std::to_string(people.Defense);
}

}  // namespace

std::string ToldOfTicked(const Game& game) {
    if (!game.view.sides || !game.controls.cmdDoneSel.Visible) return "";
    Strengths sum;
    std::string lines;
    for (std::size_t i = 1; i <= checkBoxCount; ++i) {
        const CheckBox& box = game.controls.chkItems[i];
        if (!box.Visible || !box.Value) continue;
        const PeopleRecord& people = game.record.People.at(game.record.bytListedPeople[i]);
        sum.mobility += people.Mobility;
        sum.attack += people.Attack;
        sum.defense += people.Defense;
        lines += '\n' + LineOf(people);
    }
    if (lines.empty()) return "";
    return std::to_string(sum.mobility) + " mobility, " + std::to_string(sum.attack) + " attack, " +
           std::to_string(sum.defense) + " defense" + lines;
}

}  // namespace qarn
