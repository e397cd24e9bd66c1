#pragma once

#include <QPainter>

#include "play/reach_marks.h"

namespace qarn {

/// Paints the frame of a mark along the edges of its square: light where a group could go, dark
/// red, and broken for strikes, where there would be a fight.
void PaintReachFrame(QPainter& painter, const QRectF& square, ReachKind kind);

/// The room for codes that the label of a mark leaves in its square.
QRectF BesideReachLabel(const QRectF& square);

/// Paints that label in the lower right corner: the cost, or a call for attention where the enemy
/// could strike.
void PaintReachLabel(QPainter& painter, const QRectF& square, const ReachMark& mark);

}  // namespace qarn
