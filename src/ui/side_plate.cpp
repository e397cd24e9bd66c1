#include "ui/side_plate.h"

#include <QPainterPath>

#include "play/side_colors.h"
#include "ui/color.h"

namespace qarn {
namespace {

// By the height of the plate.
constexpr double roundness = 0.45;
constexpr double keel = 0.25;  // how much narrower a hull is at its bottom, on each side
constexpr double edge = 0.08;

QPainterPath ShapeOf(const QRectF& place, std::uint8_t side) {
    QPainterPath shape;
    if (side == 1) {
        const double radius = place.height() * roundness;
        shape.addRoundedRect(place, radius, radius);
    } else if (side == 2) {
        shape.addRect(place);
    } else {
        const double inwards = place.height() * keel;
        shape.addPolygon(
            QPolygonF({place.topLeft(), place.topRight(), place.bottomRight() - QPointF(inwards, 0),
                       place.bottomLeft() + QPointF(inwards, 0)}));
        shape.closeSubpath();
    }
    return shape;
}

}  // namespace

void PaintPlate(QPainter& painter, const QRectF& place, std::uint8_t side, const QString& code) {
    const SideColors colors = ColorsOfSide(side);
    const double thick = std::max(1.0, place.height() * edge);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ToQt(colors.edge), thick));
    painter.setBrush(ToQt(colors.fill));
    painter.drawPath(ShapeOf(place.adjusted(thick / 2, thick / 2, -thick / 2, -thick / 2), side));
    painter.setPen(ToQt(colors.text));
    painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, code);
}

}  // namespace qarn
