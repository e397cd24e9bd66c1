#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <array>

#include "core/square.h"

namespace qarn {

/// Where the lines and squares of the board stand on its widget. Lines stand on whole pixels of the
/// screen, so that they are sharp at any size.
class BoardPlaces {
public:
    /// Spreads the board over a widget of this size, on a screen with so many pixels for each of
    /// the widget's.
    void Spread(QSize size, double devicePixelRatio);

    QSize Size() const { return size_; }
    double LineWidth() const { return lineWidth_; }
    const std::array<double, columnCount + 1>& ColumnLines() const { return columnLines_; }
    const std::array<double, rowCount + 1>& RowLines() const { return rowLines_; }

    /// The place of a square, without its lines and with them.
    QRectF Inner(QPoint square) const;
    QRect Whole(QPoint square) const;

    /// The square at a place; the nearest one where the place is off the board.
    QPoint SquareAt(QPointF place) const;

private:
    QSize size_;
    double lineWidth_ = 1;
    std::array<double, columnCount + 1> columnLines_{};  // from the left
    std::array<double, rowCount + 1> rowLines_{};        // from the top
};

}  // namespace qarn
