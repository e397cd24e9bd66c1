#include "ai/action.h"

#include <algorithm>
#include <span>

#include "ai/directions.h"
#include "core/board_geometry.h"
#include "core/game.h"
#include "core/position.h"
#include "rules/attack_mode.h"
#include "rules/movement.h"
#include "rules/questions/casualties.h"
#include "rules/questions/start.h"
#include "rules/questions/step.h"
#include "window/board_clicks.h"

namespace qarn {
namespace {

// The values of bytAIStep. Reaching MoveFinished or CasualtyFinished ends the action. Who stays
// behind is unticked in a stage of its own, which is left out when everybody goes.
enum Stage : std::uint8_t {
    ClickStart = 1,
    ConfirmItems = 2,
    WalkPath = 3,
    FinishMove = 4,
    MoveFinished = 5,
    TickCasualty = 6,
    ConfirmChoice = 7,
    CasualtyFinished = 8,
    UntickThoseWhoStay = 9,
};

bool IsEnd(Stage stage) { return stage == MoveFinished || stage == CasualtyFinished; }

bool IsHighlit(Stage stage) { return stage < MoveFinished || stage == UntickThoseWhoStay; }

// ---- From a plan to an action ----

Plan AsMarchOrAttack(const Position& position, const Plan& plan) {
    if (plan.kind != PlanKind::Pass) return plan;
    const Square square = SquareToPassFrom(position);
    return {.kind = PlanKind::March, .start = square, .people = ListedOn(position, square)};
}

// Those who go; none when everybody does, whoever that may be by then.
PeopleSet WhoGoes(const Position& position, const Plan& plan) {
    return plan.people == ListedOn(position, plan.start) ? PeopleSet() : plan.people;
}

ActionRecord ActionOf(const Position& position, const Plan& plan) {
    const Path path = plan.kind == PlanKind::Attack ? Path{plan.target} : plan.path;
    ActionRecord action{.blnAIBusy = true,
                        .blnAttacks = plan.kind == PlanKind::Attack,
                        .bytAIStartX = plan.start.X,
                        .bytAIStartY = plan.start.Y,
                        .goes = WhoGoes(position, plan),
                        .casualty = plan.casualty,
                        .bytAIPathLength = static_cast<std::uint8_t>(path.size()),
                        .bytAICurrentX = plan.start.X,
                        .bytAICurrentY = plan.start.Y,
                        .bytAIStep = ClickStart,
                        .bytAIPathIndex = 1};
    Square at = plan.start;
    for (std::size_t k = 0; k < path.size(); at = path[k++]) {
        action.bytAIPath[k + 1] = DirectionBetween(at, path[k]);
    }
    return action;
}

// ---- The stages ----

Stage StageAfterStart(const Game& game) {
    const GameRecord& record = game.record;
    const ActionRecord& action = record.Action;
    if (action.blnAttacks) return WalkPath;
    const bool someStay = record.blnChoosing && !action.goes.Empty();
    return someStay ? UntickThoseWhoStay : ConfirmItems;
}

void UntickWhoStays(Game& game) {
    const GameRecord& record = game.record;
    for (std::size_t box = 1; box <= record.bytListedCount; ++box) {
        game.controls.chkItems[box].Value =
            record.Action.goes.Contains(record.bytListedPeople[box]);
    }
}

Stage StageAfterItems(const ActionRecord& action) {
    return action.bytAIPathLength > 0 ? WalkPath : FinishMove;
}

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
    const std::span listed(record.bytListedPeople.data() + 1, record.bytListedCount);
    const auto planned = std::find(listed.begin(), listed.end(), record.Action.casualty);
    if (planned == listed.end() || IsTransport(record.People[*planned])) {
        return ChooseDeadAnimal(PositionOf(record), listed);
    }
    return static_cast<std::uint8_t>(planned - listed.begin() + 1);
}

// An attack is over once its target has been clicked, unless it costs a character; one that the
// rules or the player refused is called off.
Stage StageAfterAttack(Game& game) {
    ActionRecord& action = game.record.Action;
    if (game.record.blnCasualtyPending) {
        action.blnOwnMove = true;
        return FinishMove;
    }
    if (game.record.blnAttackMode) cmdAttack_Click(game);
    action.blnAIBusy = false;
    return MoveFinished;
}

Stage StageAfterSquare(Game& game) {
    const ActionRecord& action = game.record.Action;
    if (action.bytAIPathIndex <= action.bytAIPathLength) return WalkPath;
    return action.blnAttacks ? StageAfterAttack(game) : FinishMove;
}

// While it lives, an opponent that answers for itself does so.
class OwnAnswers {
public:
    explicit OwnAnswers(Game& game) : dialogs_(game.ports.dialogs) {
        dialogs_.LetOpponentAnswer(game.record.Action.blnAnswersItself);
    }
    OwnAnswers(const OwnAnswers&) = delete;
    OwnAnswers& operator=(const OwnAnswers&) = delete;
    ~OwnAnswers() { dialogs_.LetOpponentAnswer(false); }

private:
    Dialogs& dialogs_;
};

// Gives the stage that follows.
Stage ReplayStage(Game& game) {
    ActionRecord& action = game.record.Action;
    switch (action.bytAIStep) {
        case ClickStart:
            ClickSquare(game, action.bytAIStartX, action.bytAIStartY);
            return StageAfterStart(game);
        case UntickThoseWhoStay:
            UntickWhoStays(game);
            return ConfirmItems;
        case ConfirmItems:
            cmdDoneSel_Click(game);
            return StageAfterItems(action);
        case WalkPath:
            ClickNextSquare(game);
            return StageAfterSquare(game);
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

void StartAction(Game& game, const Plan& plan) {
    GameRecord& record = game.record;
    const Position position = PositionOf(record);
    record.Action = ActionOf(position, AsMarchOrAttack(position, plan));
    if (record.Action.blnAttacks) {
        cmdAttack_Click(game);
        record.Action.blnOwnMove = record.blnAttackMode;
    } else {
        cmdMove_Click(game);
        record.Action.blnOwnMove = record.blnMoveMode || record.blnCasualtyPending;
    }
    game.controls.tmrAI.Enabled = true;
}

void StepAction(Game& game) {
    const OwnAnswers answers(game);
    const Stage stage = ReplayStage(game);
    game.record.Action.bytAIStep = stage;
    if (!IsEnd(stage)) game.controls.tmrAI.Enabled = true;
    if (!IsHighlit(stage)) game.controls.shpHighlight.Visible = false;
}

void DropAction(Game& game) {
    game.record.Action = {};
    game.controls.shpHighlight.Visible = false;
}

void ClickSquare(Game& game, int X, int Y) {
    constexpr int outside = 5;  // twips by which the mark reaches over the square's corner
    game.controls.shpHighlight = {
        .Left = LeftOfColumn(X) - outside, .Top = TopOfRow(Y) - outside, .Visible = true};
    lblX_Click(game, X, Y);
}

}  // namespace qarn
