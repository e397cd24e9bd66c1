#include "ui/paint_reach.h"

namespace qarn {
namespace {

constexpr QColor lightColor(0xFF, 0xFF, 0xFF);
constexpr QColor rimColor(0x20, 0x20, 0x20);
constexpr QColor fightColor(0x9C, 0x00, 0x10);

// By the width of the square.
constexpr double rim = 0.02;
constexpr double frame = 0.05;
constexpr double labelWidth = 0.34;
constexpr double labelHeight = 0.30;

constexpr double labelFont = 0.85;  // by the height of the label

void PaintFrame(QPainter& painter, const QRectF& square, double inset, const QPen& pen) {
    const double within = inset + pen.widthF() / 2;
    painter.setPen(pen);
    painter.drawRect(square.adjusted(within, within, -within, -within));
}

}  // namespace

void PaintReachFrame(QPainter& painter, const QRectF& square, ReachKind kind) {
    const double thinLine = square.width() * rim;
    const double thickLine = square.width() * frame;
    const bool fight = kind != ReachKind::Reached;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const Qt::PenStyle style = kind == ReachKind::Struck ? Qt::DashLine : Qt::SolidLine;
    PaintFrame(painter, square, 0,
               QPen(fight ? lightColor : rimColor, thickLine + 2 * thinLine, Qt::SolidLine,
                    Qt::FlatCap, Qt::MiterJoin));
    PaintFrame(painter, square, thinLine,
               QPen(fight ? fightColor : lightColor, thickLine, style, Qt::FlatCap, Qt::MiterJoin));
    painter.restore();
}

QRectF BesideReachLabel(const QRectF& square) {
    return square.adjusted(0, 0, 0, -square.width() * labelHeight);
}

void PaintReachLabel(QPainter& painter, const QRectF& square, const ReachMark& mark) {
    QRectF label(0, 0, square.width() * labelWidth, square.width() * labelHeight);
    label.moveBottomRight(square.bottomRight());
    const bool fight = mark.kind != ReachKind::Reached;
    const double thinLine = square.width() * rim;
    painter.save();
    painter.setPen(QPen(rimColor, thinLine));
    painter.setBrush(fight ? fightColor : lightColor);
    painter.drawRect(label.adjusted(thinLine / 2, thinLine / 2, -thinLine / 2, -thinLine / 2));
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(qMax(6, static_cast<int>(label.height() * labelFont)));
    painter.setFont(font);
    painter.setPen(fight ? lightColor : QColor(Qt::black));
    painter.drawText(label, Qt::AlignCenter | Qt::TextDontClip,
                     mark.kind == ReachKind::Struck ? "!" : QString::number(mark.cost));
    painter.restore();
}

}  // namespace qarn
