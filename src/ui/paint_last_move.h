#pragma once

#include <QPainter>
#include <vector>

namespace qarn {

/// Paints a thin arrow along the squares that somebody went over.
void PaintLastPath(QPainter& painter, const std::vector<QRectF>& squares);

/// Paints a burst where a fight was.
void PaintBurst(QPainter& painter, const QRectF& square);

}  // namespace qarn
