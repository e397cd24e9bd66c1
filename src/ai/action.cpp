#include "ai/action.h"

#include "ai/directions.h"
#include "rules/casualties.h"
#include "rules/movement.h"
#include "window/board_clicks.h"

namespace qarn {
namespace {

// The values of bytAIStep. Reaching MoveFinished or CasualtyFinished ends the action.
enum Stage : std::uint8_t {
    ClickStart = 1,
    ConfirmItems = 2,
    WalkPath = 3,
    FinishMove = 4,
    MoveFinished = 5,
    TickCasualty = 6,
    ConfirmChoice = 7,
    CasualtyFinished = 8,
};

void ClickNextSquare(Game& game) {
    ActionRecord& action = game.record.Action;
    MoveOneSquare(action.bytAIPath.at(action.bytAIPathIndex), action.bytAICurrentX,
                  action.bytAICurrentY);
    ++action.bytAIPathIndex;
    ClickSquare(game, action.bytAICurrentX, action.bytAICurrentY);
}

// The attack may have been lost short of the path's last square, so the choice is made among those
// whose boxes are showing.
std::uint8_t ChooseCasualty(const GameRecord& record) {
    return ChooseDeadAnimal(record, {record.bytListedPeople.data() + 1, record.bytListedCount});
}

// Gives the stage that follows.
Stage ReplayStage(Game& game) {
    ActionRecord& action = game.record.Action;
    switch (action.bytAIStep) {
        case ClickStart:
            ClickSquare(game, action.bytAIStartX, action.bytAIStartY);
            return ConfirmItems;
        case ConfirmItems:
            cmdDoneSel_Click(game);
            return WalkPath;
        case WalkPath:
            ClickNextSquare(game);
            return action.bytAIPathIndex <= action.bytAIPathLength ? WalkPath : FinishMove;
        case FinishMove:
            if (game.record.blnCasualtyPending) {
                action.bytAIDeadChoice = ChooseCasualty(game.record);
                return TickCasualty;
            }
            cmdMove_Click(game);
            action.blnAIBusy = false;
            return MoveFinished;
        case TickCasualty:
            game.controls.chkItems.at(action.bytAIDeadChoice).Value = true;
            return ConfirmChoice;
        default:
            cmdDoneSel_Click(game);
            action.blnAIBusy = false;
            return CasualtyFinished;
    }
}

}  // namespace

void StartAction(Game& game, std::uint8_t bytX, std::uint8_t bytY, const PathSteps& bytSteps,
                 std::uint8_t bytLength) {
    game.record.Action = {.blnAIBusy = true,
                          .bytAIStartX = bytX,
                          .bytAIStartY = bytY,
                          .bytAIPath = bytSteps,
                          .bytAIPathLength = bytLength,
                          .bytAICurrentX = bytX,
                          .bytAICurrentY = bytY,
                          .bytAIStep = ClickStart,
                          .bytAIPathIndex = 1};
    cmdMove_Click(game);
    game.controls.tmrAI.Enabled = true;
}

void StepAction(Game& game) {
    const Stage stage = ReplayStage(game);
    game.record.Action.bytAIStep = stage;
    if (stage != MoveFinished && stage != CasualtyFinished) game.controls.tmrAI.Enabled = true;
    if (stage >= MoveFinished) game.controls.shpHighlight.Visible = false;
}

void ClickSquare(Game& game, int X, int Y) {
    game.controls.shpHighlight = {
        .Left = 720 * (X - 1) + 115, .Top = 960 * (Y - 1) + 115, .Visible = true};
    lblX_Click(game, X, Y);
}

}  // namespace qarn
