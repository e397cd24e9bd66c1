#include "rules/check_boxes.h"

#include "core/game.h"

namespace qarn {

void ListInCheckBoxes(Game& game, PeopleSet people, bool ticked) {
    GameRecord& record = game.record;
    HideCheckBoxes(game.controls);
    record.bytListedCount = 0;
    for (const std::uint8_t i : people) {
        const std::size_t box = ++record.bytListedCount;
        record.bytListedPeople[box] = i;
        game.controls.chkItems[box] = {
            .Caption = record.People[i].Code, .Enabled = true, .Visible = true, .Value = ticked};
    }
    game.controls.cmdDoneSel.Visible = true;
}

std::vector<std::uint8_t> TickedPeople(const Game& game) {
    std::vector<std::uint8_t> ticked;
    for (std::size_t box = 1; box <= checkBoxCount; ++box) {
        const CheckBox& chkItem = game.controls.chkItems[box];
        if (chkItem.Visible && chkItem.Value) ticked.push_back(game.record.bytListedPeople[box]);
    }
    return ticked;
}

void HideCheckBoxes(Controls& controls) {
    for (CheckBox& chkItem : controls.chkItems) chkItem.Visible = false;
}

}  // namespace qarn
