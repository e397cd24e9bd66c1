#pragma once

#include <QHash>
#include <QMainWindow>
#include <functional>

#include "ui/journal_dock.h"
#include "ui/roster_dock.h"

namespace qarn {

/// The docks beside the board of the game window. Each is made when it is first shown.
class GameDocks {
public:
    /// What a person wants of the docks.
    struct Wishes {
        std::function<void(const char*)> choose;  ///< the item with this name of the menu View
        std::function<void(QPoint)> goTo;         ///< a square of the board
        std::function<void(const QString&)> saveJournal;  ///< to the file at this path
    };

    /// The docks of `window`, which then owns them.
    GameDocks(QMainWindow& window, Wishes wishes);

    /// Shows the docks that the person has chosen, up to date. While the window is still hidden
    /// they stay empty, so that it comes up sooner.
    void Show(const Game& game, const Journal& journal);

    /// Has the docks of a window as large as the screen take what the board leaves empty beside
    /// itself, and give it back where the board could be larger or the window has left that state.
    /// To be called when the window has become another size.
    void TakeSpareRoom();

    /// Where the docks stand, and how wide they are; empty when none has been shown.
    QByteArray Places() const;
    /// Has docks stand where they stood then.
    void PutAt(const QByteArray& places);

private:
    void Fill(const Game& game, const Journal& journal);
    void Add(SideDock* dock, const char* item);
    void SetVisible(SideDock& dock, bool visible);
    bool GiveBoardRoom(int before, int least);
    QList<QDockWidget*> DocksBeside() const;
    int SpareRoomBeside(const QList<QDockWidget*>& docks) const;

    QMainWindow& window_;
    Wishes wishes_;
    JournalDock* journal_ = nullptr;
    RosterDock* roster_ = nullptr;
    int widened_ = 0;     // by how many pixels, to make room for them
    bool large_ = false;  // the window was as large as the screen when they took their room last
    QHash<const QDockWidget*, int> usualWidth_;  // before it became so
};

}  // namespace qarn
