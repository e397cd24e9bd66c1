#pragma once

#include <QPainter>
#include <vector>

namespace qarn {

/// Paints the arrow of a hint from the edge of the first square through the others to that of the
/// last one, beside what stands there. Bright with a dark rim, so that it can be told on every
/// terrain.
void PaintHintArrow(QPainter& painter, const std::vector<QRectF>& squares);

/// Paints the caption of a hint on a small plate in the middle of a square, or along its upper or
/// lower edge.
void PaintHintCaption(QPainter& painter, const QRectF& square, Qt::Alignment where,
                      const QString& caption);

}  // namespace qarn
