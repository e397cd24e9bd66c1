#include "ui/side_plate.h"

#include <QPainterPath>

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

PlateColors ColorsOfPlate(std::uint8_t side) {
    if (side == 1) return {QColor(0xFF, 0xFF, 0xFF), QColor(0x10, 0x60, 0x20), QColor(0, 0x40, 0)};
    if (side == 2) return {QColor(0x28, 0x10, 0x10), QColor(0xFF, 0xC0, 0xC0), QColor("white")};
    return {QColor(0xD8, 0xC0, 0x98), QColor(0x60, 0x40, 0x10), QColor(0x40, 0x28, 0)};
}

void PaintPlate(QPainter& painter, const QRectF& place, std::uint8_t side, const QString& code) {
    const PlateColors colors = ColorsOfPlate(side);
    const double thick = std::max(1.0, place.height() * edge);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colors.edge, thick));
    painter.setBrush(colors.fill);
    painter.drawPath(ShapeOf(place.adjusted(thick / 2, thick / 2, -thick / 2, -thick / 2), side));
    painter.setPen(colors.text);
    painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, code);
}

}  // namespace qarn
