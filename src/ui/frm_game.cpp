#include "ui/frm_game.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFile>
#include <QKeyEvent>
#include <QMenuBar>
#include <utility>

#include "play/end_report.h"
#include "play/first_offer.h"
#include "play/odds_ahead.h"
#include "play/own_groups.h"
#include "play/play_menu.h"
#include "shell/about.h"
#include "shell/file_commands.h"
#include "shell/kept_opponents.h"
#include "ui/design.h"
#include "ui/frm_about.h"
#include "ui/key_deed.h"
#include "ui/text.h"
#include "ui/window_icon.h"
#include "ui/window_place.h"
#include "window/board_clicks.h"
#include "window/hint_mark.h"
#include "window/load_game.h"
#include "window/opponents_turn.h"
#include "window/run_event.h"
#include "window/save_game.h"

namespace qarn {
namespace {

// The check box of a digit key; 0 stands for 10.
int BoxOfDigit(std::string_view key) { return key == "0" ? 10 : key[0] - '0'; }

}  // namespace

FrmGame::FrmGame(RandomNumbers& random, const DesktopPorts& desktop)
    : dialogs_(
          this, [this] { ShowWidgets(); },
          [this](const MessageBox& box, Answer answer) { TellAnswered(box, answer); },
          [this] { return KeptClearOfBoxes(); }),
      help_(desktop.folders.program, dialogs_),
      game_{
          .record = {},
          .controls = {},
          .ports = {dialogs_, random, help_, desktop.settings, desktop.fileTypes, desktop.folders}},
      area_(new ScaledArea(designTwips, DesignFontSize(font()))),
      board_(new BoardWidget(game_, area_)),
      panel_(area_, [this](const auto& name, const auto& handler) { Click(name, handler); }),
      menus_(menuBar(), [this](const MenuCommand& command) { Choose(command); }),
      sideKey_(new SideKey),
      docks_(*this, {.choose = [this](const char* item) { Choose(*FindMenuCommand(item)); },
                     .goTo = [this](QPoint square) { GoTo(square); },
                     .saveJournal = [this](const QString& path) { SaveJournal(path); }}) {
    game_.afterSave = [this] { journal_.Keep(game_); };
    setWindowIcon(WindowIcon());
    setCentralWidget(area_);
    menuBar()->setCornerWidget(sideKey_);
    area_->Place(board_, boardTwips);
    board_->setFocus();
    connect(board_, &BoardWidget::SquareClicked, this, [this](int X, int Y) {
        if (!TakesClicks(game_)) return;
        Click("lblX_Click", [=](Game& game) { lblX_Click(game, X, Y); });
    });
    connect(board_, &BoardWidget::LooksElsewhere, this, &FrmGame::ShowOdds);
    for (QPushButton* button : panel_.PushButtons()) button->installEventFilter(this);

    connect(menus_.MenuWith("mnuTGF"), &QMenu::aboutToShow, this, [this] { ShowFileTypeMark(); });
    PrepareTimer();
    RestoreWindowPlace(*this, desktop.settings);
    RestoreDockPlaces(docks_, desktop.settings);
}

// Its widgets tell it that they lose the focus, while all that it does then is still there.
FrmGame::~FrmGame() { hide(); }

void FrmGame::Open(const std::string& strGamePath) {
    Run("Form_Load", [&](Game& game) {
        game.opponent = KeptOpponents(game.ports, strGamePath);
        Form_Load(game, strGamePath);
    });
    if (game_.blnOpen && IsOfferDue(game_)) MakeOffer();
}

void FrmGame::Run(const std::string& name, const std::function<void(Game&)>& handler) {
    if (strip_ != nullptr && !OpponentActs(game_)) strip_->Dismiss();
    RunAlone([&] { history_.Run(game_, name, handler); });
}

// What was shown of the turn before has been seen by then.
void FrmGame::Click(const std::string& name, const std::function<void(Game&)>& handler) {
    Run(name, [&](Game& game) {
        game.record.LastMove.shown = {};
        handler(game);
    });
}

// One event at a time: what comes in while a box is open, as the timer does, is passed over.
void FrmGame::RunAlone(const std::function<void()>& event) {
    if (running_) return;
    const bool opens = !game_.blnOpen;
    running_ = true;
    event();
    running_ = false;
    if (opens && game_.blnOpen) {
        journal_.Open(game_);
    } else {
        journal_.Follow(game_, history_);
    }
    if (std::exchange(closing_, false)) {
        CloseWithoutBoxes();
    } else {
        BringUpToDate();
    }
}

void FrmGame::CloseWithoutBoxes() {
    dialogs_.GiveUp();
    closing_ = running_;
    if (running_) return;
    RunAlone([this] {
        if (game_.blnOpen) history_.Run(game_, "Form_Unload", qarn::CloseWithoutBoxes);
    });
}

void FrmGame::BringUpToDate() {
    if (!game_.blnOpen) {
        docks_.Show(game_, journal_.Told());  // with the event that ended it
        End();
        return;
    }
    ShowWidgets();
    ShowAbout();
    panel_.FocusOn(std::exchange(game_.controls.SetFocus, Control::None));
    FollowComputer();
    ShowNoMove();
}

void FrmGame::ShowWidgets() {
    const QWidget* focused = focusWidget();
    setWindowTitle(ToQt(game_.controls.Caption));
    board_->BringUpToDate();
    panel_.Show(game_);
    ShowOdds();
    if (offer_ != nullptr) offer_->LetTake(CanTakeOffer(game_));
    menus_.Show(game_);
    sideKey_->Show(game_);
    ShowFullScreen();
    docks_.Show(game_, journal_.Told());
    if (game_.blnOpen && isHidden()) {
        show();
        activateWindow();
        setAttribute(Qt::WA_KeyboardFocusChange);  // shows where the focus is from the start
        QTimer::singleShot(0, this, [this] { docks_.Show(game_, journal_.Told()); });
    }
    // Where a control loses the focus, the next event mostly comes from the board.
    if (focused != nullptr && (!focused->isEnabled() || focused->isHidden())) board_->setFocus();
}

// The desktop is asked when somebody looks for the mark: most games need the libraries for it
// never.
void FrmGame::ShowFileTypeMark() {
    if (game_.controls.mnuTGF.Checked) return;
    RunEvent(game_, "LoadFileTypeMark", LoadFileTypeMark);
    menus_.Show(game_);
}

// The squares of the move or attack that a box may be about, and the status line.
std::vector<QRect> FrmGame::KeptClearOfBoxes() const {
    if (isHidden()) return {};
    std::vector<QRect> places{panel_.PlaceOfStatusLine()};
    for (const QPoint square : board_->SquaresOfAction()) {
        const QRect place = board_->PlaceOfSquare(square);
        places.emplace_back(board_->mapToGlobal(place.topLeft()), place.size());
    }
    return places;
}

void FrmGame::MakeOffer() {
    offer_ = new OfferStrip(area_);
    connect(offer_, &OfferStrip::Taken, this, [this] { AnswerOffer("TakeOffer", TakeOffer); });
    connect(offer_, &OfferStrip::Declined, this, [this] { AnswerOffer("EndOffer", EndOffer); });
    offer_->show();
    MakeRoomForStrips();
}

void FrmGame::AnswerOffer(const std::string& name, void (*answer)(Game&)) {
    std::exchange(offer_, nullptr)->deleteLater();
    MakeRoomForStrips();
    board_->setFocus();
    Run(name, answer);
}

// Only what the person chooses anew: the desktop may have other ways to fill the screen.
void FrmGame::ShowFullScreen() {
    if (fullScreen_ == game_.view.fullScreen) return;
    fullScreen_ = game_.view.fullScreen;
    setWindowState(windowState().setFlag(Qt::WindowFullScreen, game_.view.fullScreen));
}

void FrmGame::ShowOdds() {
    const std::string text = OddsAheadTold(game_, board_->LookedAt());
    if (oddsNote_ == nullptr) {
        if (text.empty()) return;
        oddsNote_ = new OddsNote(area_);
        area_->Place(oddsNote_, oddsNoteTwips);
    }
    oddsNote_->Show(ToQt(text));
}

// The about window is open while its menu item is disabled.
void FrmGame::ShowAbout() {
    const bool open = !game_.controls.mnuAbout.Enabled;
    if (open == (about_ != nullptr)) return;
    if (!open) {
        about_->close();
        return;
    }
    about_ = new FrmAbout(this);
    connect(about_, &QDialog::finished, this, [this] {
        about_ = nullptr;
        Run("frmAbout_Unload", frmAbout_Unload);
    });
    about_->show();
}

void FrmGame::GoTo(QPoint square) {
    board_->MoveCursor(square);
    board_->setFocus();
}

void FrmGame::SaveJournal(const QString& path) {
    Run("SaveJournal",
        [&](Game& game) { journal_.Export(QFile::encodeName(path).toStdString(), game); });
}

void FrmGame::End() {
    tmrAI_.stop();
    if (thinker_) thinker_->Drop();
    if (offer_ != nullptr) EndOffer(game_);
    StoreDockPlaces(docks_, game_.ports.settings);
    StoreWindowPlace(*this, game_.ports.settings);
    if (!IsOver(game_)) hide();  // its last position can still be seen
    QCoreApplication::exit(game_.exitStatus);
}

void FrmGame::Choose(const MenuCommand& command) {
    if (!CanChoose(game_, command)) return;
    Run(std::string(command.Name) + "_Click", HandlerOf(command, history_));
}

// ---- Events of the window itself ----

// By the time the window becomes active it has its frame.
void FrmGame::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::WindowStateChange) docks_.TakeSpareRoom();
    if (event->type() != QEvent::ActivationChange || !isActiveWindow() || fitsScreen_) return;
    fitsScreen_ = true;
    FitOnScreen(*this);
}

void FrmGame::resizeEvent(QResizeEvent* event) {
    QMainWindow::resizeEvent(event);
    docks_.TakeSpareRoom();
}

// What the focused widget has no use for.
void FrmGame::keyPressEvent(QKeyEvent* event) {
    const KeyCommand* key = KeyOf(*event);
    if (key == nullptr) return QMainWindow::keyPressEvent(event);
    switch (key->Deed) {
        case KeyDeed::ShowStrikes:
            return board_->AskForStrikes(true);
        case KeyDeed::Escape:
            return Escape();
        case KeyDeed::NextGroup:
            return GoToOwnGroup(true);
        case KeyDeed::GroupBefore:
            return GoToOwnGroup(false);
        case KeyDeed::TickBox:
            return panel_.ClickBox(BoxOfDigit(key->Key));
        default:  // the board's
            QMainWindow::keyPressEvent(event);
    }
}

void FrmGame::Escape() {
    if (HasHint()) {
        Run("DropHint", DropHint);
    } else if (thinker_ && thinker_->Current()) {
        tmrAI_.stop();  // it need not wait for its time
        thinker_->DecideNow();
        TimeIsUp();
    }
}

void FrmGame::GoToOwnGroup(bool forward) {
    const QPoint from = board_->Cursor();
    const auto square = NextOwnGroup(
        game_.record, {static_cast<std::uint8_t>(from.x()), static_cast<std::uint8_t>(from.y())},
        forward);
    if (!square) return;
    board_->setFocus();
    board_->MoveCursor({square->X, square->Y});
}

void FrmGame::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Shift) board_->AskForStrikes(false);
    QMainWindow::keyReleaseEvent(event);
}

// Esc drops a hint before it cancels a move, whose menu item would take it first.
bool FrmGame::event(QEvent* event) {
    const bool escapes = event->type() == QEvent::ShortcutOverride &&
                         static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (escapes && HasHint()) event->accept();
    return QMainWindow::event(event);
}

bool FrmGame::HasHint() const { return game_.blnHintWanted || game_.controls.Hint.Visible; }

void FrmGame::closeEvent(QCloseEvent* event) {
    event->ignore();
    Run("Form_Unload", Form_Unload);
}

// Buttons act at once on their access keys, where Qt waits a while, and leave the keys of the
// cursor to the board.
bool FrmGame::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Shortcut) {
        static_cast<QPushButton*>(object)->click();
        return true;
    }
    if (event->type() == QEvent::KeyPress &&
        BoardWidget::MovesTheCursor(*static_cast<QKeyEvent*>(event))) {
        board_->setFocus();
        QCoreApplication::sendEvent(board_, event);
        return true;
    }
    return QMainWindow::eventFilter(object, event);
}

}  // namespace qarn
