#include "ui/paint_arrow.h"

#include <QPainterPath>

namespace qarn {
namespace {

constexpr double rim = 0.03;  // by the width of a square

constexpr double tail = 0.18;  // how far it reaches into the first square, ...
constexpr double tip = 0.20;   // ... and into the last one, beside what stands there

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

void PaintArrow(QPainter& painter, const std::vector<QRectF>& squares, const ArrowLook& look) {
    const QRectF& first = squares.front();
    const QRectF& last = squares.back();
    const QRectF& beforeLast = squares[squares.size() - 2];
    const double width = first.width();
    const QPointF ahead = Direction(beforeLast, last) * width;
    const QPointF aside(-ahead.y(), ahead.x());
    const QPointF start =
        EdgeTowards(first, squares[1]) - Direction(first, squares[1]) * width * tail;
    const QPointF point = EdgeTowards(last, beforeLast) + ahead * tip;
    const QPointF neck = point - ahead * look.headLength;

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look.rim, width * rim));
    painter.setBrush(look.color);
    painter.drawPath(Shaft(squares, start, neck, width * look.shaft)
                         .united(Head(point, neck, aside * look.headWidth / 2))
                         .simplified());
    painter.restore();
}

}  // namespace qarn
