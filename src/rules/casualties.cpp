#include "rules/casualties.h"

#include <array>

#include "core/board_display.h"
#include "core/file_store.h"
#include "core/game.h"
#include "core/turn_cycle.h"
#include "rules/attack_mode.h"
#include "rules/check_boxes.h"
#include "rules/end_move.h"
#include "rules/questions/casualties.h"
#include "rules/questions/start.h"

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

void TellThePerson(Game& game, const std::string& text) {
    game.ports.dialogs.Show({.Title = {}, .Text = text, .ForThePerson = true});
}

[[noreturn]] void DeleteFileAndEnd(Game& game) {
    const std::string& path = game.record.strGamePath;
    try {
        DeleteFile(path);
    } catch (const std::system_error& error) {
        TellThePerson(game,
                      "The game file can not be deleted: " + error.code().message() + ".\n" + path);
    }
    throw ProgramEnd{};
}

}  // namespace

bool StartCasualtyChoice(Game& game) {
    GameRecord& record = game.record;
    const Position position = PositionOf(record);
    const PeopleSet attackers = ListedOn(position, {record.bytAnchorX, record.bytAnchorY});
    if (CharactersOf(position, attackers).Empty()) return false;

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

    EliminateAll(game, {ticked.front()});
    game.record.blnCasualtyPending = false;
    EndMove(game.record);
    cmdAttack_Click(game);
    controls.cmdMove.Caption = "&Move";
    ShowTurn(game, true);
    HideCheckBoxes(controls);
    controls.cmdDoneSel.Visible = false;
    CountPeople(game);
}

void EliminateAll(Game& game, PeopleSet people) {
    GameRecord& record = game.record;
    std::array<Lost, 3> lost{};  // of the sides
    Square at;
    for (const std::uint8_t i : people) {
        PeopleRecord& one = record.People.at(i);
        at = {one.LocationX, one.LocationY};
        lost.at(one.Side).people.Add(i);
        one.LocationX = 0;
        one.LocationY = 0;
    }
    for (std::uint8_t side = 1; side <= 2; ++side) {
        if (lost[side].people.Empty()) continue;
        game.happenings.emplace_back(Lost{lost[side].people, side, at});
    }
    if (at.X != 0) RedrawSquare(game, at.X, at.Y);
}

void CountPeople(Game& game) {
    GameRecord& record = game.record;
    record.bytPeopleLeft = PeopleLeft(PositionOf(record));
    if (record.bytPeopleLeft[1] == 0 || record.bytPeopleLeft[2] == 0) EndGame(game);
}

void EndGame(Game& game) {
    const std::uint8_t winner = game.record.bytPeopleLeft[1] > 0 ? 1 : 2;
    EndWonGame(game, {.winner = winner});
}

void EndWonGame(Game& game, Ended end) {
    game.happenings.emplace_back(end);
    TellThePerson(game, std::string(game.record.strVictoryText.at(end.winner)));
    DeleteFileAndEnd(game);
}

void TellDraw(Game& game) {
    game.happenings.emplace_back(Ended{});
    game.controls.lblStatus.Caption = "The game is a draw.";
    TellThePerson(game, game.controls.lblStatus.Caption);
}

void EndDrawnGame(Game& game) {
    TellDraw(game);
    DeleteFileAndEnd(game);
}

}  // namespace qarn
