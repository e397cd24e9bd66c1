#pragma once

#include <QPainter>

#include "ui/square_marks.h"

namespace qarn {

/// Paints what a square is in the move or attack under way, along the edges of its rectangle. Each
/// role has a shape of its own, in a bright colour with a rim, so that it can be told on every
/// terrain and without colours.
void PaintSquareRole(QPainter& painter, const QRectF& square, SquareRole role);

}  // namespace qarn
