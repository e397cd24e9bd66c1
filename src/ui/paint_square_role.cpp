#include "ui/paint_square_role.h"

#include <QPolygonF>

namespace qarn {
namespace {

constexpr QColor ownColor(0xFF, 0xA0, 0x00);
constexpr QColor ownRimColor(0x00, 0x00, 0x00);
constexpr QColor targetColor(0xE0, 0x00, 0x00);
constexpr QColor targetRimColor(0xFF, 0xFF, 0xFF);

// By the width of the square.
constexpr double cornerSize = 0.24;
constexpr double bracketSize = 0.26;
constexpr double bracketThickness = 0.07;
constexpr double wedgeSize = 0.19;
constexpr double rim = 0.025;

// A triangle in the top left corner.
QPolygonF Corner(double width) {
    const double size = width * cornerSize;
    return QPolygonF({{0, 0}, {size, 0}, {0, size}});
}

// An angle along the top left corner.
QPolygonF Bracket(double width) {
    const double size = width * bracketSize;
    const double thick = width * bracketThickness;
    return QPolygonF({{0, 0}, {size, 0}, {size, thick}, {thick, thick}, {thick, size}, {0, size}});
}

// Paints a shape that is made for the top left corner in all four.
void PaintInCorners(QPainter& painter, const QRectF& square, const QPolygonF& shape) {
    for (const QPointF corner :
         {square.topLeft(), square.topRight(), square.bottomLeft(), square.bottomRight()}) {
        const double right = corner.x() > square.center().x() ? -1 : 1;
        const double down = corner.y() > square.center().y() ? -1 : 1;
        painter.drawPolygon(QTransform(right, 0, 0, down, corner.x(), corner.y()).map(shape));
    }
}

// Wedges from the left and the right edge towards the middle of the square.
void PaintWedges(QPainter& painter, const QRectF& square) {
    const double size = square.width() * wedgeSize;
    const QPolygonF wedge({{0, -size}, {size, 0}, {0, size}});
    const double middle = square.center().y();
    painter.drawPolygon(wedge.translated(square.left(), middle));
    painter.drawPolygon(QTransform(-1, 0, 0, 1, square.right(), middle).map(wedge));
}

}  // namespace

void PaintSquareRole(QPainter& painter, const QRectF& square, SquareRole role) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(square);
    const bool own = role != SquareRole::Target;
    painter.setPen(QPen(own ? ownRimColor : targetRimColor, square.width() * rim));
    painter.setBrush(own ? ownColor : targetColor);
    switch (role) {
        case SquareRole::Start:
            PaintInCorners(painter, square, Bracket(square.width()));
            break;
        case SquareRole::Acting:
            PaintInCorners(painter, square, Corner(square.width()));
            break;
        case SquareRole::Target:
            PaintWedges(painter, square);
            break;
    }
    painter.restore();
}

}  // namespace qarn
