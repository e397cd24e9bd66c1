#pragma once

#include <QPainter>
#include <vector>

namespace qarn {

/// How an arrow looks; its parts by the width of a square.
struct ArrowLook {
    QColor color;
    QColor rim;
    double shaft;
    double headLength;
    double headWidth;
};

/// Paints an arrow from the edge of the first square through the others to that of the last one,
/// beside what stands there. The squares are two or more.
void PaintArrow(QPainter& painter, const std::vector<QRectF>& squares, const ArrowLook& look);

}  // namespace qarn
