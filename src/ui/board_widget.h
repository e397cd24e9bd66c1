#pragma once

#include <QWidget>
#include <array>
#include <vector>

#include "core/game.h"
#include "play/square_codes.h"
#include "ui/board_places.h"
#include "ui/square_marks.h"

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
    QPoint Cursor() const { return cursor_; }
    /// Moves it to a square, or to the nearest one where that is off the board.
    void MoveCursor(QPoint square);

    /// Clicks a square as a mouse does: the cursor goes there too.
    void Click(QPoint square);

    /// The place of a square on the widget, its lines included.
    QRect PlaceOfSquare(QPoint square) const { return places_.Whole(square); }
    /// The square at a place on the widget; the nearest one where the place is off it.
    QPoint SquareAt(QPointF place) const { return places_.SquareAt(place); }

    /// The game whose squares it shows.
    const Game& ShownGame() const { return game_; }

signals:
    /// A square was clicked, with the mouse, a key or by a screen reader.
    void SquareClicked(int X, int Y);

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
    // What a square shows.
    struct ShownSquare {
        std::vector<SquareCode> codes;
        Color BackColor{0xFFFFFF};
        Color ForeColor{0x000080};

        friend bool operator==(const ShownSquare&, const ShownSquare&) = default;
    };
    ShownSquare SquareOfGame(QPoint square) const;

    void PlaceLines() { places_.Spread(size(), devicePixelRatioF()); }
    void PaintLines(QPainter& painter) const;
    void PaintGround(QPainter& painter, QPoint square) const;
    void PaintCodes(QPainter& painter, QPoint square) const;
    double Thick() const;  // half an outline
    void PaintRole(QPainter& painter, QPoint square) const;
    void PaintOutlines(QPainter& painter) const;
    void PaintHint(QPainter& painter) const;
    void PaintCaptionOfHint(QPainter& painter) const;
    void ShowView();
    void ShowRoles();
    void ShowHighlight();
    void ShowHint();
    void Hover(QPoint square);
    void TellCursor();
    void UpdateSquare(QPoint square);

    const Game& game_;
    std::array<std::array<ShownSquare, rowCount + 1>, columnCount + 1> shown_;
    ViewChoices view_;  // as it is shown
    BoardPlaces places_;
    std::vector<MarkedSquare> roles_;
    QPoint highlight_;  // (0, 0): none
    Path hintWay_;      // empty: there is no hint
    QString hintCaption_;
    QPoint cursor_{columnCount / 2, rowCount / 2};
    QPoint hovered_;  // (0, 0): none
    QPoint pressed_;  // (0, 0): none
};

}  // namespace qarn
