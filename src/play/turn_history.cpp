#include "play/turn_history.h"

#include <algorithm>
#include <array>
#include <utility>

#include "window/opponents_turn.h"
#include "window/run_event.h"

namespace qarn {
namespace {

// Whatever else there is, such as a look or a setting, is no part of a turn.
constexpr std::array<std::string_view, 5> eventsOfATurn{
    "lblX_Click", "cmdMove_Click", "cmdAttack_Click", "cmdDoneSel_Click", "chkItems_Click"};

bool IsOfATurn(std::string_view event) {
    return std::find(eventsOfATurn.begin(), eventsOfATurn.end(), event) != eventsOfATurn.end();
}

void KeepNamesAndSettings(const Game& game, GameState& state) {
    state.record.strGameName = game.record.strGameName;
    state.record.strGamePath = game.record.strGamePath;
    state.record.house = game.record.house;
    state.controls.Caption = game.controls.Caption;
    state.controls.mnuSummary = game.controls.mnuSummary;
    state.controls.mnuTGF = game.controls.mnuTGF;
    state.controls.mnuAbout = game.controls.mnuAbout;
}

void KeepWhatIsLookedAt(const Controls& now, Controls& controls) {
    controls.lblDetailMore = now.lblDetailMore;
    controls.lblSummary = now.lblSummary;
    controls.fraQuickDetails = now.fraQuickDetails;
    controls.lblTerrainDescription = now.lblTerrainDescription;
    controls.cmdSeeTerDet = now.cmdSeeTerDet;
}

}  // namespace

bool TurnHistory::Run(Game& game, std::string_view name,
                      const std::function<void(Game&)>& handler) {
    const bool played = !game.record.blnDetailsMode && IsOfATurn(name);
    tookBack_ = false;
    const int confirmed = game.ports.dialogs.Confirmed();
    if (!RunEvent(game, name, handler)) return false;
    Note(game, played, game.ports.dialogs.Confirmed() != confirmed);
    return true;
}

void TurnHistory::NoteTick(Game& game) {
    tookBack_ = false;
    Note(game, false, false);
}

void TurnHistory::Note(Game& game, bool played, bool confirmed) {
    const bool underWay = IsPersonsMoveUnderWay(game.record);
    const bool decided = played && (confirmed || Brought<Attacked>(game.happenings));
    if (decided || Brought<TurnCame>(game.happenings) || HasTurnInHand(game)) {
        before_.clear();
        closed_ = decided && underWay;
    } else if (played && !closed_ && (underWay || IsPersonsMoveUnderWay(game.beforeEvent.record))) {
        before_.push_back(game.beforeEvent);
    }
    const bool any = !before_.empty() && !game.record.blnDetailsMode;
    game.controls.mnuTakeBack.Enabled = any;
    game.controls.mnuCancelMove.Enabled = any && StartOfMove(game) < before_.size();
}

void TurnHistory::TakeBack(Game& game) { TakeBackTo(game, before_.size() - 1); }

void TurnHistory::CancelMove(Game& game) { TakeBackTo(game, StartOfMove(game)); }

void TurnHistory::TakeBackTo(Game& game, std::size_t event) {
    GameState& state = before_.at(event);
    KeepNamesAndSettings(game, state);
    KeepWhatIsLookedAt(game.controls, state.controls);
    game.record = std::move(state.record);
    game.controls = std::move(state.controls);
    tookBack_ = true;
    before_.erase(before_.begin() + static_cast<std::ptrdiff_t>(event), before_.end());
}

// The event that began what is under way; Events() when there is none.
std::size_t TurnHistory::StartOfMove(const Game& game) const {
    if (!IsPersonsMoveUnderWay(game.record)) return before_.size();
    for (std::size_t event = before_.size(); event-- > 0;) {
        if (!IsPersonsMoveUnderWay(before_[event].record)) return event;
    }
    return before_.size();
}

}  // namespace qarn
