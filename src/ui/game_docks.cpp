#include "ui/game_docks.h"

#include <QLayout>
#include <QScreen>
#include <algorithm>

#include "core/game.h"

namespace qarn {

GameDocks::GameDocks(QMainWindow& window, Wishes wishes)
    : window_(window), wishes_(std::move(wishes)) {}

void GameDocks::Show(const Game& game, const Journal& journal) {
    if (game.view.journal && journal_ == nullptr) {
        journal_ = new JournalDock;
        QObject::connect(journal_, &JournalDock::SaveWanted, &window_, wishes_.saveJournal);
        Add(journal_, "mnuJournal");
    }
    if (game.view.roster && roster_ == nullptr) {
        roster_ = new RosterDock;
        QObject::connect(roster_, &RosterDock::SquareWanted, &window_, wishes_.goTo);
        Add(roster_, "mnuRoster");
    }
    if (window_.isVisible()) Fill(game, journal);
    if (journal_ != nullptr) SetVisible(*journal_, game.view.journal);
    if (roster_ != nullptr) SetVisible(*roster_, game.view.roster);
}

void GameDocks::Fill(const Game& game, const Journal& journal) {
    if (game.view.journal) journal_->Show(journal, game);
    if (game.view.roster) roster_->Show(game.record);
}

// Where it stood last, or else to the right of the board.
void GameDocks::Add(SideDock* dock, const char* item) {
    QObject::connect(dock, &SideDock::CloseWanted, &window_,
                     [this, item] { wishes_.choose(item); });
    if (!window_.restoreDockWidget(dock)) {
        window_.addDockWidget(Qt::RightDockWidgetArea, dock);
        if (journal_ != nullptr && roster_ != nullptr) {
            window_.resizeDocks({journal_, roster_}, {1, 1}, Qt::Vertical);
        }
    }
    dock->hide();
}

void GameDocks::SetVisible(SideDock& dock, bool visible) {
    if (dock.isHidden() != visible) return;
    const int boardRoom = window_.centralWidget()->width();
    const int least = window_.width() - widened_;
    dock.setVisible(visible);
    if (!window_.isVisible()) return;  // it opens with the docks that it was closed with
    do {
        window_.layout()->activate();  // what a dock was short of it takes first
    } while (GiveBoardRoom(boardRoom, least));
    widened_ = window_.width() - least;
}

// The board stays as large as it was where the screen has room for it, and the window becomes no
// narrower than `least`. Gives false once there is nothing left to do.
bool GameDocks::GiveBoardRoom(int before, int least) {
    if (window_.isMaximized() || window_.isFullScreen()) return false;
    const QRect screen = window_.screen()->availableGeometry();
    const int missing = before - window_.centralWidget()->width();
    const int most = std::max(0, screen.width() - window_.frameGeometry().width());
    const int wider = std::clamp(missing, std::min(0, least - window_.width()), most);
    if (wider == 0) return false;
    window_.resize(window_.width() + wider, window_.height());
    const int beyond = window_.frameGeometry().right() - screen.right();
    if (beyond > 0) window_.move(window_.x() - beyond, window_.y());
    return true;
}

QByteArray GameDocks::Places() const {
    return journal_ == nullptr && roster_ == nullptr ? QByteArray() : window_.saveState();
}

void GameDocks::PutAt(const QByteArray& places) { window_.restoreState(places); }

}  // namespace qarn
