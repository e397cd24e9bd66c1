#include "ui/terrain_pattern.h"

#include <QPainterPath>

#include "rules/terrain.h"
#include "ui/color.h"

namespace qarn {
namespace {

constexpr int cellsInSquare = 3;      // along its width
constexpr double cellHeight = 0.95;   // by the width of a cell
constexpr double strokeWidth = 0.10;  // by the width of a cell
constexpr double finestStroke = 1;    // pixels

// Where the codes are bright the strokes are darker than the ground, and else brighter where there
// is something brighter: they do not get into the way of the codes.
constexpr std::array<QRgb, terrainKindCount> strokeColors{0xFFA8B4A8, 0xFF404000, 0xFF000070,
                                                          0xFF00C4CC, 0xFFB09000, 0xFF000000,
                                                          0xFF58C058, 0xFFA44242, 0xFF500000};

// A mark and the parts of it that are filled, in a cell from (-0.5, -0.5) to (0.5, 0.5).
struct Mark {
    QPainterPath strokes;
    QPainterPath filled;
};

void AddLine(QPainterPath& path, std::initializer_list<QPointF> points) {
    path.moveTo(*points.begin());
    for (const QPointF& point : points) path.lineTo(point);
}

Mark Tuft() {
    Mark mark;
    AddLine(mark.strokes, {{-0.08, 0.16}, {-0.24, -0.06}});
    AddLine(mark.strokes, {{0, 0.16}, {0, -0.18}});
    AddLine(mark.strokes, {{0.08, 0.16}, {0.24, -0.06}});
    return mark;
}

Mark Peak() {
    Mark mark;
    AddLine(mark.strokes, {{-0.38, 0.28}, {0, -0.30}, {0.38, 0.28}});
    return mark;
}

Mark Wave() {
    Mark mark;
    mark.strokes.moveTo(-0.5, 0);
    mark.strokes.cubicTo(-0.3, -0.35, -0.2, -0.35, 0, 0);
    mark.strokes.cubicTo(0.2, 0.35, 0.3, 0.35, 0.5, 0);
    return mark;
}

Mark Current() {
    Mark mark;
    AddLine(mark.strokes, {{-0.34, -0.12}, {0.14, -0.12}});
    AddLine(mark.strokes, {{-0.14, 0.14}, {0.34, 0.14}});
    return mark;
}

Mark Grains() {
    Mark mark;
    for (const QPointF& grain :
         {QPointF(-0.22, -0.2), QPointF(0.24, -0.06), QPointF(-0.06, 0.26)}) {
        mark.filled.addEllipse(grain, 0.08, 0.08);
    }
    return mark;
}

Mark Reeds() {
    Mark mark;
    AddLine(mark.strokes, {{-0.38, 0.22}, {0.38, 0.22}});
    for (const double x : {-0.2, 0.0, 0.2}) {
        AddLine(mark.strokes, {{x, 0.22}, {x, x == 0 ? -0.32 : -0.14}});
    }
    return mark;
}

Mark Tree() {
    Mark mark;
    mark.filled.addEllipse(QPointF(0, -0.1), 0.24, 0.24);
    AddLine(mark.strokes, {{0, 0.1}, {0, 0.38}});
    return mark;
}

Mark Battlement() {
    Mark mark;
    AddLine(mark.strokes,
            {{-0.5, 0.15}, {-0.25, 0.15}, {-0.25, -0.2}, {0.25, -0.2}, {0.25, 0.15}, {0.5, 0.15}});
    return mark;
}

Mark Cross() {
    Mark mark;
    AddLine(mark.strokes, {{0, -0.34}, {0, 0.34}});
    AddLine(mark.strokes, {{-0.24, -0.1}, {0.24, -0.1}});
    return mark;
}

const Mark& MarkOf(std::uint8_t code) {
    static const std::array<Mark, terrainKindCount> marks{
        Tuft(), Peak(), Wave(), Current(), Grains(), Reeds(), Tree(), Battlement(), Cross()};
    return marks.at(code);
}

// Waves and walls join the next ones; the marks of every other row stand between those above.
bool IsLong(std::uint8_t code) { return code == Ocean || code == Fortress; }

}  // namespace

void PaintTerrainPattern(QPainter& painter, const QRectF& rect, std::uint8_t code, double cell) {
    const Mark& mark = MarkOf(code);
    const QColor color = QColor::fromRgb(strokeColors.at(code));
    const int rows = qMax(1, qRound(rect.height() / (cell * cellHeight)));
    const int columns = qMax(1, qRound(rect.width() / cell));
    const QSizeF step(rect.width() / columns, rect.height() / rows);
    painter.save();
    painter.setClipRect(rect, Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    const double stroke = std::max(strokeWidth, finestStroke / cell);
    painter.setPen(QPen(color, stroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    for (int row = 0; row < rows; ++row) {
        const double shift = IsLong(code) || row % 2 == 0 ? 0.5 : 0;
        for (int column = 0; column <= columns; ++column) {
            painter.save();
            painter.translate(rect.left() + (column + shift) * step.width(),
                              rect.top() + (row + 0.5) * step.height());
            painter.scale(step.width(), step.width());
            painter.strokePath(mark.strokes, painter.pen());
            painter.fillPath(mark.filled, color);
            painter.restore();
        }
    }
    painter.restore();
}

void TerrainSquares::Spread(const BoardPlaces& places, double devicePixelRatio) {
    const QSizeF largest(places.Size().width() / double(columnCount),
                         places.Size().height() / double(rowCount));
    const QSize pixels = (largest * devicePixelRatio).toSize() + QSize(1, 1);
    if (pixels == pixels_ && devicePixelRatio == ratio_) return;
    pixels_ = pixels;
    ratio_ = devicePixelRatio;
    pictures_ = {};
}

void TerrainSquares::Paint(QPainter& painter, const QRectF& square, std::uint8_t code) {
    QPixmap& picture = pictures_.at(code);
    if (picture.isNull()) {
        picture = QPixmap(pixels_);
        picture.setDevicePixelRatio(ratio_);
        picture.fill(ToQt(ColorsOfTerrain(code).BackColor));
        QPainter onPicture(&picture);
        const QSizeF size = picture.deviceIndependentSize();
        PaintTerrainPattern(onPicture, QRectF(QPointF(), size), code, size.width() / cellsInSquare);
    }
    painter.drawPixmap(square, picture, QRectF(QPointF(), square.size() * ratio_));
}

}  // namespace qarn
