#include "rules/casualties.h"

#include <algorithm>

#include "core/board_display.h"
#include "core/file_store.h"
#include "core/turn_cycle.h"
#include "rules/attack_mode.h"
#include "rules/check_boxes.h"
#include "rules/end_move.h"

namespace qarn {
namespace {

void UntickHiddenBoxes(Controls& controls) {
    for (CheckBox& chkItem : controls.chkItems) {
        if (!chkItem.Visible) chkItem.Value = false;
    }
}

void DisableTransportBoxes(Game& game) {
    for (std::size_t box = 1; box <= game.record.bytListedCount; ++box) {
        const PeopleRecord& people = game.record.People[game.record.bytListedPeople[box]];
        if (IsTransport(people)) game.controls.chkItems[box].Enabled = false;
    }
}

}  // namespace

bool StartCasualtyChoice(Game& game) {
    GameRecord& record = game.record;
    const SquareList attackers = LocationOfPeople(record, record.bytAnchorX, record.bytAnchorY);
    if (attackers.bytTotalPeople == 0) return false;

    record.blnMoveMode = false;
    record.blnCasualtyPending = true;
    ListInCheckBoxes(game, attackers, false);
    UntickHiddenBoxes(game.controls);
    DisableTransportBoxes(game);
    game.controls.lblStatus.Caption = "Select the character which died in the attack.";
    return true;
}

void ConfirmCasualty(Game& game) {
    Controls& controls = game.controls;
    const std::vector<std::uint8_t> ticked = TickedPeople(game);
    if (ticked.size() > 1) {
        controls.lblStatus.Caption = "You can only select one item.";
        return;
    }
    if (ticked.empty()) {
        controls.lblStatus.Caption = "You did not select anyone.";
        controls.SetFocus = Control::chkFirst;
        return;
    }

    Eliminate(game, ticked.front());
    game.record.blnCasualtyPending = false;
    EndMove(game.record);
    cmdAttack_Click(game);
    controls.cmdMove.Caption = "&Move";
    ShowTurn(game, true);
    HideCheckBoxes(controls);
    controls.cmdDoneSel.Visible = false;
    CountPeople(game);
}

std::uint8_t ChooseDeadAnimal(const GameRecord& record, int X, int Y) {
    const SquareList list = LocationOfPeople(record, X, Y);
    return ChooseDeadAnimal(record, list.People());
}

std::uint8_t ChooseDeadAnimal(const GameRecord& record, std::span<const std::uint8_t> list) {
    std::size_t choice = 1;
    int lowest = 100;
    for (std::size_t place = 1; place <= list.size(); ++place) {
        const PeopleRecord& people = record.People.at(list[place - 1]);
        if (IsTransport(people) || people.Attack + people.Defense >= lowest) continue;
        lowest = people.Attack + people.Defense;
        choice = place;
    }
    return static_cast<std::uint8_t>(choice);
}

void Eliminate(Game& game, std::uint8_t i) {
    PeopleRecord& people = game.record.People.at(i);
    const std::uint8_t X = people.LocationX;
    const std::uint8_t Y = people.LocationY;
    people.LocationX = 0;
    people.LocationY = 0;
    if (X != 0) RedrawSquare(game, X, Y);
}

void CountPeople(Game& game) {
    GameRecord& record = game.record;
    record.bytPeopleLeft = {};
    for (std::size_t i = 1; i <= peopleCount && !IsTransport(record.People[i]); ++i) {
        if (OnBoard(record.People[i])) ++record.bytPeopleLeft.at(record.People[i].Side);
    }
    if (record.bytPeopleLeft[1] == 0 || record.bytPeopleLeft[2] == 0) EndGame(game);
}

void EndGame(Game& game) {
    const GameRecord& record = game.record;
    game.ports.dialogs.Tell(record.strVictoryText[record.bytPeopleLeft[1] > 0 ? 1 : 2]);
    try {
        DeleteFile(record.strGamePath);
    } catch (const std::system_error& error) {
        game.ports.dialogs.Tell("The game file can not be deleted: " + error.code().message() +
                                ".\n" + record.strGamePath);
    }
    throw ProgramEnd{};
}

}  // namespace qarn
