#include "ai/turn_driver.h"

#include "ai/action.h"
#include "ai/draw_offer.h"
#include "core/details_mode.h"
#include "core/game.h"
#include "core/opponents.h"
#include "window/opponents_turn.h"
#include "window/run_event.h"

namespace qarn {
namespace {

bool IsToGoOn(const GameRecord& record) {
    return IsOwnMoveUnderWay(record) && (IsComputersTurn(record) || record.Action.blnAnswersItself);
}

// What a person looks at stays as it is. Looking would otherwise take the clicks.
void ActUnderLook(Game& game, const std::function<void()>& act) {
    const std::string lookedAt = game.controls.lblDetailMore.Caption;
    const Marker frame = game.controls.fraQuickDetails;
    LeaveDetailsMode(game);
    act();
    EnterDetailsMode(game);
    game.controls.lblDetailMore.Caption = lookedAt;
    game.controls.fraQuickDetails = frame;
}

void Act(Game& game, bool answersItself, const std::function<void()>& act) {
    game.controls.tmrAI.Enabled = false;
    if (answersItself && game.record.blnDetailsMode) {
        ActUnderLook(game, act);
    } else {
        act();
    }
}

}  // namespace

std::optional<Plan> ChooseAtOnce(const Choice& choice) {
    Thinking thinking;
    return Choose(choice, thinking);
}

void tmrAI_Timer(Game& game, const ChoiceMaker& choose) {
    if (IsToGoOn(game.record)) {
        Act(game, game.record.Action.blnAnswersItself, [&] { StepAction(game); });
    } else if (const std::optional<Choice> due = DueChoice(game)) {
        Act(game, AnswersItself(due->opponent), [&] {
            DropAction(game);
            if (AnswersItself(due->opponent) && AgreesOnDraw(game)) return;
            TakeChoice(game, *due, choose(*due));
        });
    }
}

bool Tick(Game& game, const ChoiceMaker& choose) {
    const bool went =
        RunEvent(game, "tmrAI_Timer", [&](Game& ticked) { tmrAI_Timer(ticked, choose); });
    if (!went) game.controls.tmrAI.Enabled = false;
    return went;
}

}  // namespace qarn
