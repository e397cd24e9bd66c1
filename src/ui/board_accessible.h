#pragma once

#include <QAccessible>

namespace qarn {

class BoardWidget;

/// Tells screen readers about the board and its 180 squares, row by row. A factory for
/// QAccessible; gives null for anything but a board.
QAccessibleInterface* MakeAccessibleBoard(const QString& className, QObject* object);

/// Tells screen readers that the board's cursor has come to another square.
void TellFocusedSquare(BoardWidget* board);

/// Tells screen readers that something else stands on the square now.
void TellChangedSquare(BoardWidget* board, QPoint square);

}  // namespace qarn
