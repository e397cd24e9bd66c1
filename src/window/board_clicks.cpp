#include "window/board_clicks.h"

#include "core/board_geometry.h"
#include "core/details_mode.h"
#include "core/eight_bit.h"
#include "core/enumerate.h"
#include "core/game.h"
#include "rules/combat.h"
#include "rules/movement.h"

namespace qarn {
namespace {

void TakeClick(GameRecord& record) {
    record.bytClickX = record.bytCurrentX;
    record.bytClickY = record.bytCurrentY;
}

}  // namespace

void lblX_Click(Game& game, int X, int Index) {
    // Whoever has lost a character picks it before anything else, but may look around.
    if (game.record.blnCasualtyPending && !game.record.blnDetailsMode) return;
    game.record.bytCurrentX = EightBit(X, "column of the square");
    game.record.bytCurrentY = EightBit(Index, "row of the square");
    SquareClicked(game);
}

void SquareClicked(Game& game) {
    GameRecord& record = game.record;
    if (record.blnDetailsMode) {
        DescribeSquare(game, record.bytCurrentX, record.bytCurrentY);
        record.bytCurrentX = record.bytClickX;
        record.bytCurrentY = record.bytClickY;
    } else if (record.blnMoveMode) {
        TakeClick(record);
        MoveClick(game, false);
    } else if (record.blnAttackMode) {
        TakeClick(record);
        AttackResult bytResult = AttackResult::Won;
        AttackSquare(game, false, record.bytCurrentX, record.bytCurrentY, bytResult);
    }
}

void DescribeSquare(Game& game, int X, int Y) {
    Controls& controls = game.controls;
    const SquareList list = LocationOfPeople(game.record, X, Y);
    Strength sums;
    SumStrength(game.record, list.People(), sums);

    controls.lblDetailMore.Caption =
        "Current Items: " + Enumerate(GetPeopleNames(game.record, list.People()));
    if (!controls.mnuSummary.Checked) return;
    controls.lblSummary.Caption = "Location: (" + std::to_string(X) + ", " + std::to_string(Y) +
                                  ")\nMobility: " + std::to_string(sums.Mobility) +
                                  "\nAttack: " + std::to_string(sums.Attack) +
                                  "\nDefense: " + std::to_string(sums.Defense);
    PositionQuickInfo(game);
}

void PositionQuickInfo(Game& game) {
    const int X = game.record.bytCurrentX;
    const int Y = game.record.bytCurrentY;
    Marker& frame = game.controls.fraQuickDetails;
    constexpr int shift = 5;  // twips to the left and upwards
    frame.Left =
        LeftOfColumn(X) + (X >= columnCount - 1 ? -quickInfoWidthTwips : squareWidthTwips) - shift;
    frame.Top = TopOfRow(Y) + (Y == rowCount ? -quickInfoHeightTwips : squareHeightTwips) - shift;
    frame.Visible = true;
}

void mnuPeopleDetails_Click(Game& game) {
    if (game.record.blnDetailsMode) {
        LeaveDetailsMode(game);
    } else {
        EnterDetailsMode(game);
    }
}

void cmdSquareDetails_Click(Game& game) { mnuPeopleDetails_Click(game); }

}  // namespace qarn
