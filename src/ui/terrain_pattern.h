#pragma once

#include <QPainter>
#include <QPixmap>
#include <array>

#include "core/group.h"
#include "ui/board_places.h"

namespace qarn {

/// Paints the strokes of a terrain over its colour, in cells of this width: one kind of mark for
/// each kind of terrain, so that they can be told apart without colours.
void PaintTerrainPattern(QPainter& painter, const QRectF& rect, std::uint8_t code, double cell);

/// The squares of all terrains with their strokes, kept as pictures, since there are many of them.
class TerrainSquares {
public:
    /// Makes them as large as the largest square of a board.
    void Spread(const BoardPlaces& places, double devicePixelRatio);

    /// Paints the colour and the strokes of a terrain into a square.
    void Paint(QPainter& painter, const QRectF& square, std::uint8_t code);

private:
    std::array<QPixmap, terrainKindCount> pictures_;  // those that have been painted
    QSize pixels_;
    double ratio_ = 1;
};

}  // namespace qarn
