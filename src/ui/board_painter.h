#pragma once

#include <QFont>
#include <QPainter>
#include <QRegion>

#include "ui/board_places.h"
#include "ui/shown_board.h"

namespace qarn {

/// Paints a board: the ground of its squares, what is marked on it, the codes, and the outlines.
class BoardPainter {
public:
    BoardPainter(QPainter& painter, const BoardPlaces& places, const ShownBoard& board,
                 const QFont& font)
        : painter_(painter), places_(places), board_(board), font_(font) {}

    /// Paints what lies in the region.
    void Paint(const QRegion& region);

private:
    void PaintLines();
    void PaintGround(QPoint square);
    void PaintRole(QPoint square);
    void PaintHint();
    void PaintCaptionOfHint();
    void PaintMarked(QPoint square);
    void PaintOutlines();
    double Thick() const;

    QPainter& painter_;
    const BoardPlaces& places_;
    const ShownBoard& board_;
    QFont font_;
};

}  // namespace qarn
