#include "ui/game_docks.h"

#include <QLayout>
#include <QScreen>
#include <algorithm>
#include <set>
#include <utility>

#include "core/game.h"

namespace qarn {
namespace {

// All columns of the roster need that much more than what a text is easy to read in.
constexpr double widest = 1.5;

// By what is spare; below 0, down to what can still be read easily.
int Widened(const QDockWidget& dock, int spare) {
    const int readable = dock.sizeHint().width();
    const int least = std::min(dock.width(), readable);
    const int most = std::max(dock.width(), qRound(readable * widest));
    return std::clamp(dock.width() + spare, least, most);
}

}  // namespace

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
    TakeSpareRoom();
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

void GameDocks::TakeSpareRoom() {
    const bool large = window_.isMaximized() || window_.isFullScreen();
    const bool wasLarge = std::exchange(large_, large);
    const QList<QDockWidget*> docks = DocksBeside();
    if (docks.isEmpty() || (!large && !wasLarge)) return;
    const int spare = SpareRoomBeside(docks);
    QList<int> widths;
    for (const QDockWidget* dock : docks) {
        if (!wasLarge) usualWidth_[dock] = dock->width();
        widths.append(large ? Widened(*dock, spare)
                            : usualWidth_.value(dock, dock->sizeHint().width()));
    }
    window_.resizeDocks(docks, widths, Qt::Horizontal);
    window_.layout()->activate();  // it would wait for the next change of the layout
}

QList<QDockWidget*> GameDocks::DocksBeside() const {
    QList<QDockWidget*> docks;
    for (SideDock* dock : {static_cast<SideDock*>(journal_), static_cast<SideDock*>(roster_)}) {
        if (dock != nullptr && !dock->isHidden() && !dock->isFloating()) docks.append(dock);
    }
    return docks;
}

// How many pixels of the width beside the board are used by nobody, on each side where docks are;
// below 0, how many more the board would use.
int GameDocks::SpareRoomBeside(const QList<QDockWidget*>& docks) const {
    std::set<Qt::DockWidgetArea> sides;
    for (QDockWidget* dock : docks) sides.insert(window_.dockWidgetArea(dock));
    const QSize room = window_.centralWidget()->size();
    const QSize shape = window_.centralWidget()->sizeHint();
    const int used = room.height() * shape.width() / shape.height();
    return (room.width() - used) / static_cast<int>(sides.size());
}

QByteArray GameDocks::Places() const {
    return journal_ == nullptr && roster_ == nullptr ? QByteArray() : window_.saveState();
}

void GameDocks::PutAt(const QByteArray& places) { window_.restoreState(places); }

}  // namespace qarn
