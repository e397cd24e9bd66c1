#pragma once

#include <QPoint>
#include <QString>
#include <array>
#include <vector>

#include "core/controls.h"
#include "core/last_move.h"
#include "core/path.h"
#include "core/view_choices.h"
#include "play/reach_marks.h"
#include "play/square_codes.h"
#include "ui/hint_caption.h"
#include "ui/square_marks.h"

namespace qarn {

/// Stands for no square.
inline constexpr QPoint nowhere;

/// What a square shows of itself.
struct ShownSquare {
    std::vector<SquareCode> codes;
    Color BackColor{0xFFFFFF};
    Color ForeColor{0x000080};
    std::uint8_t terrain = 0;  ///< its code

    friend bool operator==(const ShownSquare&, const ShownSquare&) = default;
};

/// One value for each square of the board.
template <typename Value>
using OfSquares = std::array<std::array<Value, rowCount + 1>, columnCount + 1>;

template <typename Squares>
auto& SquareOf(Squares& squares, QPoint square) {
    return squares[static_cast<std::size_t>(square.x())][static_cast<std::size_t>(square.y())];
}

template <typename Function>
void ForEachSquare(Function function) {
    for (int Y = 1; Y <= rowCount; ++Y) {
        for (int X = 1; X <= columnCount; ++X) function(QPoint(X, Y));
    }
}

/// All that stands on the board's widget.
struct ShownBoard {
    ViewChoices view;
    OfSquares<ShownSquare> squares;
    OfSquares<ReachMark> reach;  ///< on (0, 0): none
    std::vector<MarkedSquare> roles;
    TurnTrace lastMove;
    QPoint highlight;
    Path hintWay;  ///< empty: there is no hint
    QString hintCaption;
    CaptionPlace hintPlace;
    QPoint cursor{columnCount / 2, rowCount / 2};
    bool focused = false;  ///< the cursor is to be seen
    QPoint hovered;
    QPoint tipped;  ///< whose tooltip was shown last
    QString tip;    ///< what it said; empty: it is not to be seen any more
};

}  // namespace qarn
