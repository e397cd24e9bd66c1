// The computer's turns in the game window, and its hints.

#include "ai/hint.h"
#include "ai/turn_driver.h"
#include "core/opponents.h"
#include "ui/frm_game.h"

namespace qarn {

void FrmGame::PrepareTimer() {
    tmrAI_.setObjectName("tmrAI");
    tmrAI_.setInterval(tmrAIInterval);
    tmrAI_.setSingleShot(true);
    tmrAI_.callOnTimeout(this, [this] { TimeIsUp(); });
}

// A tick comes when its time is up. An opponent thinks in that time; when it needs longer, the tick
// waits for it.
void FrmGame::FollowComputer() {
    const bool begins = BeginsToThink();
    if (!game_.controls.tmrAI.Enabled) {
        tmrAI_.stop();
    } else if (begins || (!tmrAI_.isActive() && !IsThinking())) {
        tmrAI_.start();
    }
    ShowFoundHint();
}

// A hint is wished for when no opponent is to choose.
std::optional<Choice> FrmGame::ToBeThoughtOver() const {
    if (game_.blnHintWanted) return ChoiceOfHint(game_);
    if (!game_.controls.tmrAI.Enabled) return std::nullopt;
    const std::optional<Choice> due = DueChoice(game_);
    return due && AnswersItself(due->opponent) ? due : std::nullopt;
}

// What the game no longer asks for is dropped, whatever has come between.
bool FrmGame::BeginsToThink() {
    const std::optional<Choice> due = ToBeThoughtOver();
    if (!due) {
        if (thinker_) thinker_->Drop();
        return false;
    }
    if (!thinker_) {
        thinker_ = std::make_unique<Thinker>();
        connect(thinker_.get(), &Thinker::Decided, this, [this] {
            ShowFoundHint();
            if (thinker_->HasDecided() && !tmrAI_.isActive()) TimeIsUp();
        });
    }
    if (thinker_->Current() == due) return false;
    thinker_->Begin(*due);
    return true;
}

bool FrmGame::IsThinking() const {
    return thinker_ && thinker_->Current() && !thinker_->HasDecided();
}

// Not while a box stands open: it may change what the hint was found for.
void FrmGame::ShowFoundHint() {
    if (running_ || !game_.blnHintWanted || !thinker_ || !thinker_->HasDecided()) return;
    game_.blnHintWanted = false;
    Run("ShowHint", [this](Game& game) { ShowHint(game, thinker_->Take()); });
}

void FrmGame::TimeIsUp() {
    if (IsThinking()) return;
    RunAlone([this] {
        Tick(game_, [this](const Choice& choice) {
            return AnswersItself(choice.opponent) ? thinker_->Take() : ChooseAtOnce(choice);
        });
    });
}

}  // namespace qarn
