#include "rules/selection.h"

#include <algorithm>

#include "core/game.h"
#include "rules/check_boxes.h"
#include "rules/questions/start.h"
#include "rules/texts.h"

namespace qarn {
namespace {

void RefuseStart(Game& game, const std::string& text) {
    game.record.blnMoveUnderWay = false;
    Status(game, text);
}

void SelectTicked(Game& game) {
    GameRecord& record = game.record;
    const std::vector<std::uint8_t> ticked = TickedPeople(game);
    std::copy(ticked.begin(), ticked.end(), record.bytSelectedPeople.begin() + 1);
    record.bytSelectedCount = static_cast<std::uint8_t>(ticked.size());
}

bool IsSelected(const GameRecord& record, GroupKind kind) {
    const auto selection = Selection(record);
    return std::any_of(selection.begin(), selection.end(),
                       [&](std::uint8_t i) { return record.People[i].Kind == kind; });
}

bool IsCharacterSelected(const GameRecord& record) {
    const auto selection = Selection(record);
    return std::any_of(selection.begin(), selection.end(),
                       [&](std::uint8_t i) { return !IsTransport(record.People[i]); });
}

}  // namespace

void ChooseStart(Game& game) {
    GameRecord& record = game.record;
    record.bytStartX = record.bytGroupX = record.bytCurrentX;
    record.bytStartY = record.bytGroupY = record.bytCurrentY;
    record.bytMobilityLeft = 0;
    record.blnMobilitySet = false;
    record.bytStepCost = 0;
    record.blnMoveUnderWay = true;

    const Square start{record.bytStartX, record.bytStartY};
    const Position position = PositionOf(record);
    switch (AskStart(position, start)) {
        case StartRefusal::NobodyThere:
            RefuseStart(game, "There is no one here." + pickStart);
            break;
        case StartRefusal::OnlyTransports:
            RefuseStart(game, "The cart and/or boat can not go on its own." + pickStart);
            break;
        case StartRefusal::OpponentsPieces:
            RefuseStart(game, "You can not move your opponent's pieces.");
            break;
        case StartRefusal::None:
            Status(game, "Choose the item(s) you would like to move.");
            ListInCheckBoxes(game, ListedOn(position, start), true);
            game.controls.SetFocus = Control::chkFirst;
            record.blnMoveMode = false;
            record.blnChoosing = true;
            break;
    }
}

void ConfirmSelection(Game& game) {
    GameRecord& record = game.record;
    Controls& controls = game.controls;
    SelectTicked(game);
    if (record.bytSelectedCount == 0) {
        Status(game, "You did not select anyone.");
        controls.SetFocus = Control::chkFirst;
        return;
    }
    if (IsSelected(record, GroupKind::Boat) && !IsCharacterSelected(record)) {
        Status(game, "You must have someone going with the boat.");
        return;
    }
    if (IsSelected(record, GroupKind::Cart) && !IsCharacterSelected(record)) {
        Status(game, "You must have someone going with the cart.");
        return;
    }

    Strength sums;
    SumStrength(record, Selection(record), sums);
    Status(game, "You have " + std::to_string(sums.Mobility) +
                     " mobility units.\nSelect your destination.");
    controls.cmdDoneSel.Visible = false;
    for (CheckBox& chkItem : controls.chkItems) chkItem.Enabled = false;
    record.blnMoveMode = true;
    record.blnChoosing = false;
    controls.cmdMove.Enabled = true;
    controls.SetFocus = Control::cmdMove;
}

}  // namespace qarn
