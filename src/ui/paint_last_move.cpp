#include "ui/paint_last_move.h"

#include <QPolygonF>
#include <QtMath>

#include "ui/paint_arrow.h"

namespace qarn {
namespace {

constexpr QColor rimColor(0xFF, 0xFF, 0xFF);
constexpr ArrowLook thinArrow{.color = QColor(0x18, 0x18, 0x30),
                              .rim = rimColor,
                              .shaft = 0.05,
                              .headLength = 0.22,
                              .headWidth = 0.24};

constexpr QColor burstColor(0xE8, 0x40, 0x00);
constexpr int spikes = 9;
constexpr double outside = 0.47;  // by the width of the square
constexpr double inside = 0.28;
constexpr double burstRim = 0.03;

}  // namespace

void PaintLastPath(QPainter& painter, const std::vector<QRectF>& squares) {
    PaintArrow(painter, squares, thinArrow);
}

void PaintBurst(QPainter& painter, const QRectF& square) {
    QPolygonF burst;
    for (int i = 0; i < 2 * spikes; ++i) {
        const double radius = square.width() * (i % 2 == 0 ? outside : inside);
        const double angle = M_PI * i / spikes;
        burst << square.center() + QPointF(qSin(angle), -qCos(angle)) * radius;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(rimColor, square.width() * burstRim));
    painter.setBrush(burstColor);
    painter.drawPolygon(burst);
    painter.restore();
}

}  // namespace qarn
