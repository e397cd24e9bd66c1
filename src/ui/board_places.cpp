#include "ui/board_places.h"

#include <algorithm>
#include <cmath>

namespace qarn {
namespace {

template <typename Lines>
void SpreadLines(Lines& lines, double length, double ratio) {
    const auto last = static_cast<double>(lines.size() - 1);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        lines[i] = std::round(length * ratio * static_cast<double>(i) / last) / ratio;
    }
}

}  // namespace

void BoardPlaces::Spread(QSize size, double devicePixelRatio) {
    size_ = size;
    lineWidth_ = std::max(1.0, std::floor(devicePixelRatio)) / devicePixelRatio;
    SpreadLines(columnLines_, size.width() - lineWidth_, devicePixelRatio);
    SpreadLines(rowLines_, size.height() - lineWidth_, devicePixelRatio);
}

QRectF BoardPlaces::Inner(QPoint square) const {
    const auto X = static_cast<std::size_t>(square.x());
    const auto Y = static_cast<std::size_t>(square.y());
    return QRectF(QPointF(columnLines_[X - 1] + lineWidth_, rowLines_[Y - 1] + lineWidth_),
                  QPointF(columnLines_[X], rowLines_[Y]));
}

QRect BoardPlaces::Whole(QPoint square) const {
    return Inner(square).adjusted(-lineWidth_, -lineWidth_, lineWidth_, lineWidth_).toAlignedRect();
}

QPoint BoardPlaces::SquareAt(QPointF place) const {
    const int X = static_cast<int>(place.x() * columnCount / size_.width()) + 1;
    const int Y = static_cast<int>(place.y() * rowCount / size_.height()) + 1;
    return QPoint(std::clamp(X, 1, columnCount), std::clamp(Y, 1, rowCount));
}

}  // namespace qarn
