#pragma once

#include <QWidget>

#include "core/game.h"
#include "ui/board_places.h"
#include "ui/shown_board.h"
#include "ui/terrain_pattern.h"

namespace qarn {

/// The board: all 180 squares painted as one widget. Has a cursor of its own, so that the keyboard
/// can click squares too, and marks the squares of the move or attack under way. Squares are told
/// by column and row, from 1.
class BoardWidget : public QWidget {
    Q_OBJECT

public:
    /// Shows the squares of `game`, which outlives the widget.
    BoardWidget(const Game& game, QWidget* parent);

    /// Paints what has changed since the last call.
    void BringUpToDate();

    /// The square that the keyboard clicks.
    QPoint Cursor() const { return shown_.cursor; }
    /// Moves it to a square, or to the nearest one where that is off the board.
    void MoveCursor(QPoint square);

    /// Whether a key moves it.
    static bool MovesTheCursor(const QKeyEvent& event);

    /// Clicks a square as a mouse does: the cursor goes there too.
    void Click(QPoint square);

    /// The square under the mouse or the cursor, whichever moved last; (0, 0): none.
    Square LookedAt() const { return look_.square; }
    /// Whether the person asks where the enemy could strike.
    void AskForStrikes(bool asks);

    /// The squares of the move or attack under way, with the one that was clicked last in it.
    std::vector<QPoint> SquaresOfAction() const;

    /// The place of a square on the widget, its lines included.
    QRect PlaceOfSquare(QPoint square) const { return places_.Whole(square); }
    /// The square at a place on the widget; the nearest one where the place is off it.
    QPoint SquareAt(QPointF place) const { return places_.SquareAt(place); }

    /// The game whose squares it shows.
    const Game& ShownGame() const { return game_; }

signals:
    /// A square was clicked, with the mouse, a key or by a screen reader.
    void SquareClicked(int X, int Y);
    /// The person looks at something else, see LookedAt.
    void LooksElsewhere();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool event(QEvent* event) override;

private:
    void ShowSquare(QPoint square);
    void ShowRoles();
    void ShowHighlight();
    void ShowHint();
    void ShowReach();
    void ShowLastMove();
    void HideOldTip();
    QString TipOf(QPoint square) const;
    void LookAt(QPoint square);
    void LookAt(const Look& look);
    void MoveMark(QPoint& mark, QPoint square);

    void PlaceLines();
    void Hover(QPoint square);
    void TellCursor();
    void UpdateSquare(QPoint square);

    const Game& game_;
    ShownBoard shown_;
    BoardPlaces places_;
    Look look_;
    TerrainSquares terrain_;
    QPoint pressed_;  // (0, 0): none
};

}  // namespace qarn
