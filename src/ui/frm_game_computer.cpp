// The computer's turns in the game window, and its hints.

#include "ai/hint.h"
#include "ai/turn_driver.h"
#include "core/captions.h"
#include "core/opponents.h"
#include "play/pass_turn.h"
#include "ui/design.h"
#include "ui/frm_game.h"
#include "ui/text.h"
#include "window/opponents_turn.h"
#include "window/speed.h"
#include "window/told_of_opponent.h"

namespace qarn {
namespace {

std::string NameOf(std::string_view opponent) {
    return PlainCaption(FindOpponentChoice(opponent)->Caption);
}

}  // namespace

void FrmGame::PrepareTimer() {
    tmrAI_.setObjectName("tmrAI");
    tmrAI_.setInterval(tmrAIInterval);
    tmrAI_.setSingleShot(true);
    tmrAI_.callOnTimeout(this, [this] { TimeIsUp(); });
}

// A tick comes when its time is up. An opponent thinks in that time; when it needs longer, the tick
// waits for it, as it does until every box has been told.
void FrmGame::FollowComputer() {
    const bool begins = BeginsToThink();
    const int interval = OpponentActs(game_) ? MillisecondsOf(game_.speed) : tmrAIInterval;
    if (tmrAI_.interval() != interval) tmrAI_.setInterval(interval);
    if (!game_.controls.tmrAI.Enabled || TellsMore()) {
        tmrAI_.stop();
    } else if (begins || (!tmrAI_.isActive() && !IsThinking())) {
        tmrAI_.start();
    }
    ShowThinking();
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
            ShowThinking();
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
    // Not by Run: what it takes away first would have the choice dropped that is no longer wanted.
    RunAlone([this] {
        history_.Run(game_, "ShowHint", [this](Game& game) { ShowHint(game, thinker_->Take()); });
    });
}

void FrmGame::TimeIsUp() {
    if (IsThinking() || TellsMore()) return;
    RunAlone([this] {
        ShowThinking();  // no longer, behind a box that may come
        Tick(game_, [this](const Choice& choice) { return MakeChoice(choice); });
        history_.NoteTick(game_);
    });
}

std::optional<Plan> FrmGame::MakeChoice(const Choice& choice) {
    acting_ = choice.opponent;
    const bool thought = thinker_ && thinker_->Current() == choice;
    return thought ? thinker_->Take() : ChooseAtOnce(choice);
}

// ---- What is told of an opponent ----

OpponentStrip& FrmGame::Strip() {
    if (strip_ == nullptr) {
        strip_ = new OpponentStrip(area_);
        area_->Place(strip_, opponentStripTwips);
        connect(strip_, &OpponentStrip::Changed, this, [this] {
            MakeRoomForStrips();
            if (!running_) {
                FollowComputer();
                ShowNoMove();
            }
        });
    }
    return *strip_;
}

// Those that tell of the game lie over the offer.
void FrmGame::MakeRoomForStrips() {
    bool room = false;
    for (QWidget* strip : std::initializer_list<QWidget*>{offer_, noMove_, strip_}) {
        if (strip == nullptr || strip->isHidden()) continue;
        strip->raise();
        room = true;
    }
    panel_.MakeRoomForStrip(room);
}

bool FrmGame::TellsMore() const { return strip_ != nullptr && strip_->HasMore(); }

void FrmGame::TellAnswered(const MessageBox& box, Answer answer) {
    journal_.NoteSaid(acting_, box, answer);
    Strip().Tell(ToQt(ToldOfOpponent(NameOf(acting_), box, answer)), MillisecondsOf(game_.speed));
}

NoMoveStrip& FrmGame::StripOfNoMove() {
    if (noMove_ == nullptr) {
        noMove_ = new NoMoveStrip(area_);
        connect(noMove_, &NoMoveStrip::PassWanted, this,
                [this] { Run("mnuPassTurn_Click", PassTurn); });
    }
    return *noMove_;
}

// Where the strip of opponents is not in use.
void FrmGame::ShowNoMove() {
    const bool told = strip_ != nullptr && !strip_->isHidden();
    const bool shows = HasFoundNoMove(game_) && !told;
    if (noMove_ == nullptr && !shows) return;
    NoMoveStrip& strip = StripOfNoMove();
    if (shows) {
        const std::uint8_t side = game_.record.bytTurn;
        QList<QAction*> others;
        for (const char* name : {"mnuScout%1", "mnuCaptain%1", "mnuWarlord%1"}) {
            others << findChild<QAction*>(QString(name).arg(side));
        }
        strip.Tell(game_.record.strPlayerName.at(side), others);
    } else if (strip.isAncestorOf(focusWidget())) {
        board_->setFocus();
    }
    strip.setVisible(shows);
    MakeRoomForStrips();
}

void FrmGame::ShowThinking() {
    if (IsThinking()) {
        const std::string name = NameOf(thinker_->Current()->opponent);
        Strip().ShowThinking(ToQt(game_.blnHintWanted ? "Finding a hint. Esc: never mind."
                                                      : name + " is thinking. Esc: decide now."));
    } else if (strip_ != nullptr) {
        strip_->ShowThinking({});
    }
}

}  // namespace qarn
