#pragma once

#include <QDialog>

#include "shell/next_window.h"

class QHBoxLayout;

namespace qarn {

struct Game;
class GameJournal;

/// The window after a game: who has won, in how many turns, whom it has cost, and what comes next.
/// The journal can still be saved.
class FrmEnd : public QDialog {
public:
    /// Stands before the window of the game, which outlives it as the game and its journal do.
    FrmEnd(QWidget* gameWindow, const Game& game, const GameJournal& journal);

    /// What comes next: a game that has just been written into the same file, the start window, or
    /// nothing, which is also what Escape and the close box mean.
    NextWindow Next() const { return next_; }

private:
    void AddButton(QHBoxLayout* row, const char* name, const char* caption, const char* tip,
                   void (FrmEnd::*choose)());
    void SaveJournal();
    void PlayAgain() { WriteAndPlay(false); }
    void ExchangeSides() { WriteAndPlay(true); }
    void GoToStartWindow() { Leave(NextWindow::Start); }
    void Exit() { Leave(NextWindow::None); }
    void WriteAndPlay(bool exchanged);
    void Leave(NextWindow next);

    const Game& game_;
    const GameJournal& journal_;
    NextWindow next_ = NextWindow::None;
};

}  // namespace qarn
