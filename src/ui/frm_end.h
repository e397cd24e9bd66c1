#pragma once

#include <QDialog>

#include "shell/next_window.h"

class QHBoxLayout;

namespace qarn {

struct EndReport;
struct Game;

/// The window after a game: who has won, in how many turns, whom it has cost, and what comes next.
class FrmEnd : public QDialog {
public:
    /// Stands before the window of the game, which outlives it.
    FrmEnd(QWidget* gameWindow, const Game& game, const EndReport& report);

    /// What comes next: a game that has just been written into the same file, the start window, or
    /// nothing, which is also what Escape and the close box mean.
    NextWindow Next() const { return next_; }

private:
    void AddButton(QHBoxLayout* row, const char* name, const char* caption, const char* tip,
                   void (FrmEnd::*choose)());
    void PlayAgain() { WriteAndPlay(false); }
    void ExchangeSides() { WriteAndPlay(true); }
    void GoToStartWindow() { Leave(NextWindow::Start); }
    void Exit() { Leave(NextWindow::None); }
    void WriteAndPlay(bool exchanged);
    void Leave(NextWindow next);

    const Game& game_;
    NextWindow next_ = NextWindow::None;
};

}  // namespace qarn
