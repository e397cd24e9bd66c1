#pragma once

#include <QFont>
#include <QPainter>
#include <QRegion>

#include "ui/board_places.h"
#include "ui/shown_board.h"
#include "ui/terrain_pattern.h"

namespace qarn {

/// Paints a board: the ground of its squares, what is marked on it, the codes, and the outlines.
class BoardPainter {
public:
    BoardPainter(QPainter& painter, const BoardPlaces& places, const ShownBoard& board,
                 const QFont& font, TerrainSquares& terrain)
        : painter_(painter), places_(places), board_(board), font_(font), terrain_(terrain) {}

    /// Paints what lies in the region.
    void Paint(const QRegion& region);

private:
    void PaintLines();
    void PaintGround(QPoint square);
    void PaintRole(QPoint square);
    void PaintLastMove();
    void PaintHint();
    void PaintCaptionOfHint();
    void PaintMarked(QPoint square);
    void PaintOutlines();
    std::vector<QRectF> PlacesOf(const Path& path) const;
    double Thick() const;

    QPainter& painter_;
    const BoardPlaces& places_;
    const ShownBoard& board_;
    QFont font_;
    TerrainSquares& terrain_;
};

}  // namespace qarn
