#pragma once

#include <QPainter>

namespace qarn {

/// The room that the numbers at the edges of the board leave in a square, which is all of it away
/// from the edges. `inner` is the place of the square.
QRectF BesideCoordinates(const QRectF& inner, QPoint square);

/// Paints the numbers of column and row into a square at the edge of the board, in a colour that
/// stands out from its ground.
void PaintCoordinates(QPainter& painter, const QRectF& inner, QPoint square, const QColor& ground);

}  // namespace qarn
