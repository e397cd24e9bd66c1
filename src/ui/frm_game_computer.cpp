// The computer's turns in the game window.

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
}

// What the game no longer asks for is dropped, whatever has come between.
bool FrmGame::BeginsToThink() {
    std::optional<Choice> due;
    if (game_.controls.tmrAI.Enabled) due = DueChoice(game_);
    if (due && !AnswersItself(due->opponent)) due.reset();
    if (!due) {
        if (thinker_) thinker_->Drop();
        return false;
    }
    if (!thinker_) {
        thinker_ = std::make_unique<Thinker>();
        connect(thinker_.get(), &Thinker::Decided, this, [this] {
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

void FrmGame::TimeIsUp() {
    if (IsThinking()) return;
    RunAlone([this] {
        Tick(game_, [this](const Choice& choice) {
            return AnswersItself(choice.opponent) ? thinker_->Take() : ChooseAtOnce(choice);
        });
    });
}

}  // namespace qarn
