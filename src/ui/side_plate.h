#pragma once

#include <QPainter>
#include <cstdint>

namespace qarn {

/// Paints a plate with a code of side 1, side 2 or a transport piece (0), in the painter's font.
/// The sides differ in shape and brightness as well as in colour: side 1 has bright round plates,
/// side 2 dark ones with corners, and transport pieces are brown, and shaped as a hull.
void PaintPlate(QPainter& painter, const QRectF& place, std::uint8_t side, const QString& code);

}  // namespace qarn
