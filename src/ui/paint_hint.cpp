#include "ui/paint_hint.h"

#include <QtMath>

#include "ui/paint_arrow.h"

namespace qarn {
namespace {

constexpr QColor rimColor(0x00, 0x00, 0x00);
constexpr QColor plateColor(0xFF, 0xFF, 0xFF);
constexpr double rim = 0.03;  // by the width of a square

constexpr ArrowLook arrow{.color = QColor(0xFF, 0xA0, 0x00),
                          .rim = rimColor,
                          .shaft = 0.10,
                          .headLength = 0.30,
                          .headWidth = 0.36};

constexpr double plateHeight = 0.26;  // by the height of a square
constexpr double plateFont = 0.75;    // by the height of the plate

}  // namespace

void PaintHintArrow(QPainter& painter, const std::vector<QRectF>& squares) {
    PaintArrow(painter, squares, arrow);
}

void PaintHintCaption(QPainter& painter, const QRectF& square, Qt::Alignment where,
                      const QString& caption) {
    QRectF plate(square.left(), square.top(), square.width(), square.height() * plateHeight);
    if (where == Qt::AlignVCenter) plate.moveCenter(square.center());
    if (where == Qt::AlignBottom) plate.moveBottom(square.bottom());
    painter.save();
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(qFloor(plate.height() * plateFont));
    painter.setFont(font);
    painter.setPen(QPen(rimColor, square.width() * rim));
    painter.setBrush(plateColor);
    painter.drawRect(plate);
    painter.drawText(plate, Qt::AlignCenter | Qt::TextDontClip, caption);
    painter.restore();
}

}  // namespace qarn
