#include "ui/paint_coordinates.h"

#include "core/square.h"
#include "ui/contrast.h"

namespace qarn {
namespace {

// By the width of the square.
constexpr double fontSize = 0.20;
constexpr double above = 0.22;   // of the number of a column
constexpr double beside = 0.24;  // of the number of a row

}  // namespace

QRectF BesideCoordinates(const QRectF& inner, QPoint square) {
    const double height = inner.width() * above;
    const double width = inner.width() * beside;
    return inner.adjusted(square.x() == 1 ? width : 0, square.y() == 1 ? height : 0,
                          square.x() == columnCount ? -width : 0,
                          square.y() == rowCount ? -height : 0);
}

void PaintCoordinates(QPainter& painter, const QRectF& inner, QPoint square, const QColor& ground) {
    const QRectF room = BesideCoordinates(inner, square);
    if (room == inner) return;
    painter.save();
    painter.setPen(StandingOutFrom(ground));
    QFont font = painter.font();
    font.setBold(false);
    font.setPixelSize(qMax(6, static_cast<int>(inner.width() * fontSize)));
    painter.setFont(font);
    const auto paint = [&](const QRectF& place, int number) {
        painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, QString::number(number));
    };
    const QRectF wide(inner.left(), room.top(), inner.width(), room.height());  // between them
    if (square.y() == 1) paint({inner.topLeft(), wide.topRight()}, square.x());
    if (square.y() == rowCount) paint({wide.bottomLeft(), inner.bottomRight()}, square.x());
    if (square.x() == 1) paint({inner.topLeft(), QPointF(room.left(), inner.bottom())}, square.y());
    if (square.x() == columnCount) {
        paint({QPointF(room.right(), inner.top()), inner.bottomRight()}, square.y());
    }
    painter.restore();
}

}  // namespace qarn
