#include "ui/paint_hint.h"

#include <QPainterPath>
#include <QtMath>

namespace qarn {
namespace {

constexpr QColor arrowColor(0xFF, 0xA0, 0x00);
constexpr QColor rimColor(0x00, 0x00, 0x00);
constexpr QColor plateColor(0xFF, 0xFF, 0xFF);

// By the width of a square.
constexpr double shaft = 0.10;
constexpr double headLength = 0.30;
constexpr double headWidth = 0.36;
constexpr double rim = 0.03;

constexpr double tail = 0.18;  // how far it reaches into the first square, ...
constexpr double tip = 0.20;   // ... and into the last one, beside what stands there

constexpr double plateHeight = 0.26;  // by the height of a square
constexpr double plateFont = 0.75;    // by the height of the plate

// The point where the line from the middle of a square to that of its neighbour leaves the square.
QPointF EdgeTowards(const QRectF& square, const QRectF& neighbour) {
    return (square.center() + neighbour.center()) / 2;
}

QPointF Direction(const QRectF& from, const QRectF& to) {
    const QLineF line(from.center(), to.center());
    return (line.p2() - line.p1()) / line.length();
}

QPainterPath Shaft(const std::vector<QRectF>& squares, QPointF start, QPointF end, double thick) {
    QPainterPath line(start);
    for (std::size_t i = 1; i + 1 < squares.size(); ++i) line.lineTo(squares[i].center());
    line.lineTo(end);
    QPainterPathStroker stroker;
    stroker.setWidth(thick);
    stroker.setJoinStyle(Qt::RoundJoin);
    stroker.setCapStyle(Qt::RoundCap);
    return stroker.createStroke(line);
}

QPainterPath Head(QPointF point, QPointF neck, QPointF aside) {
    QPainterPath head(point);
    head.lineTo(neck + aside);
    head.lineTo(neck - aside);
    head.closeSubpath();
    return head;
}

}  // namespace

void PaintHintArrow(QPainter& painter, const std::vector<QRectF>& squares) {
    const QRectF& first = squares.front();
    const QRectF& last = squares.back();
    const QRectF& beforeLast = squares[squares.size() - 2];
    const double width = first.width();
    const QPointF ahead = Direction(beforeLast, last) * width;
    const QPointF aside(-ahead.y(), ahead.x());
    const QPointF start =
        EdgeTowards(first, squares[1]) - Direction(first, squares[1]) * width * tail;
    const QPointF point = EdgeTowards(last, beforeLast) + ahead * tip;
    const QPointF neck = point - ahead * headLength;

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(rimColor, width * rim));
    painter.setBrush(arrowColor);
    painter.drawPath(Shaft(squares, start, neck, width * shaft)
                         .united(Head(point, neck, aside * headWidth / 2))
                         .simplified());
    painter.restore();
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
