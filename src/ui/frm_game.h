#pragma once

#include <QDialog>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>

#include "core/game.h"
#include "desktop/help_program.h"
#include "play/game_journal.h"
#include "play/turn_history.h"
#include "ui/board_widget.h"
#include "ui/control_panel.h"
#include "ui/game_docks.h"
#include "ui/game_menus.h"
#include "ui/no_move_strip.h"
#include "ui/odds_note.h"
#include "ui/offer_strip.h"
#include "ui/opponent_strip.h"
#include "ui/qt_ports.h"
#include "ui/scaled_area.h"
#include "ui/side_key.h"
#include "ui/thinker.h"

namespace qarn {

/// The game window. It owns the game, forwards every event to the handler of that name, and shows
/// the game's controls as they stand after it.
class FrmGame : public QMainWindow {
public:
    /// `random` and the ports of `desktop` outlive the window.
    FrmGame(RandomNumbers& random, const DesktopPorts& desktop);
    ~FrmGame() override;

    /// Opens a game file and shows the window. The game has ended when it could not be opened.
    void Open(const std::string& strGamePath);

    /// Closes the window where nobody can be asked: what a box stands open for is given up, and the
    /// game is saved.
    void CloseWithoutBoxes();

    /// The game, which has ended, or was left, once it is no longer open.
    const Game& ShownGame() const { return game_; }

    /// Its journal.
    const GameJournal& ShownJournal() const { return journal_; }

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void Run(const std::string& name, const std::function<void(Game&)>& handler);
    void Click(const std::string& name, const std::function<void(Game&)>& handler);
    void RunAlone(const std::function<void()>& event);
    void BringUpToDate();
    void ShowWidgets();
    void Choose(const MenuCommand& command);
    void ShowFileTypeMark();
    void MakeOffer();
    void AnswerOffer(const std::string& name, void (*answer)(Game&));
    void ShowFullScreen();
    void ShowOdds();
    bool HasHint() const;
    void ShowAbout();
    void Escape();
    void GoToOwnGroup(bool forward);
    void GoTo(QPoint square);
    void SaveJournal(const QString& path);
    void End();

    void PrepareTimer();
    void FollowComputer();
    std::optional<Choice> ToBeThoughtOver() const;
    bool BeginsToThink();
    bool IsThinking() const;
    void ShowFoundHint();
    void TimeIsUp();
    std::optional<Plan> MakeChoice(const Choice& choice);
    OpponentStrip& Strip();
    bool TellsMore() const;
    std::vector<QRect> KeptClearOfBoxes() const;
    void TellAnswered(const MessageBox& box, Answer answer);
    void ShowThinking();
    void ShowNoMove();
    NoMoveStrip& StripOfNoMove();
    void MakeRoomForStrips();

    QtDialogs dialogs_;
    HelpProgram help_;
    Game game_;
    TurnHistory history_;
    GameJournal journal_;
    bool running_ = false;            // a handler runs, perhaps with a box open
    bool closing_ = false;            // ... and the window closes as soon as it is given up
    std::optional<bool> fullScreen_;  // as it was chosen last
    bool fitsScreen_ = false;         // with the frame that it has been given

    ScaledArea* area_;
    BoardWidget* board_;
    ControlPanel panel_;
    GameMenus menus_;
    SideKey* sideKey_;
    GameDocks docks_;
    QTimer tmrAI_{this};
    std::unique_ptr<Thinker> thinker_;  // of opponents that look ahead, once one has played
    OpponentStrip* strip_ = nullptr;    // ... and theirs
    NoMoveStrip* noMove_ = nullptr;     // once the computer has found no move
    std::string_view acting_;           // the opponent that chose last
    OfferStrip* offer_ = nullptr;       // while it is made
    OddsNote* oddsNote_ = nullptr;      // once odds have been shown
    QPointer<QDialog> about_;
};

}  // namespace qarn
