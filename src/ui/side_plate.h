#pragma once

#include <QPainter>
#include <cstdint>

namespace qarn {

struct PlateColors {
    QColor fill;
    QColor edge;
    QColor text;
};

/// The colours of the plates of side 1, side 2 or transport pieces (0).
PlateColors ColorsOfPlate(std::uint8_t side);

/// Paints a plate with a code, in the painter's font. The sides differ in shape and brightness as
/// well as in colour: side 1 has bright round plates, side 2 dark ones with corners, and transport
/// pieces are brown, and shaped as a hull.
void PaintPlate(QPainter& painter, const QRectF& place, std::uint8_t side, const QString& code);

}  // namespace qarn
