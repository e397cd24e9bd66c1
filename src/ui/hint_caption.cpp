#include "ui/hint_caption.h"

#include <algorithm>

namespace qarn {

CaptionPlace PlaceOfCaption(const Controls& controls, const Path& way) {
    const auto isFree = [&](QPoint square) {
        const int X = square.x();
        const int Y = square.y();
        const bool onWay = std::any_of(way.begin(), way.end(),
                                       [&](Square one) { return QPoint(one.X, one.Y) == square; });
        return !onWay && IsOnBoard(X, Y) &&
               controls.lbl[static_cast<std::size_t>(X)][static_cast<std::size_t>(Y)].Shown.Empty();
    };
    const QPoint last(way.back().X, way.back().Y);
    for (const CaptionPlace& place :
         {CaptionPlace{{0, -1}, Qt::AlignBottom}, CaptionPlace{{0, 1}, Qt::AlignTop},
          CaptionPlace{{1, 0}, Qt::AlignVCenter}, CaptionPlace{{-1, 0}, Qt::AlignVCenter}}) {
        if (isFree(last + place.square)) return {last + place.square, place.where};
    }
    return {last, Qt::AlignTop};
}

}  // namespace qarn
