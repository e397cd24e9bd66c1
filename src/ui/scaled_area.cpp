#include "ui/scaled_area.h"

#include <QResizeEvent>
#include <algorithm>

namespace qarn {

ScaledArea::ScaledArea(QSize design, double fontSize) : design_(design), fontSize_(fontSize) {
    ScaleFont();
}

void ScaledArea::Place(QWidget* widget, const QRect& twips) {
    const auto known = std::find_if(placed_.begin(), placed_.end(),
                                    [&](const Placed& placed) { return placed.widget == widget; });
    if (known == placed_.end()) {
        placed_.push_back({widget, twips});
        Apply(placed_.back());
    } else if (known->twips != twips) {
        known->twips = twips;
        Apply(*known);
    }
}

void ScaledArea::Apply(const Placed& placed) const {
    const double scale = scale_ / twipsPerPixel;
    const QRect& twips = placed.twips;
    const QPoint topLeft(qRound(twips.x() * scale), qRound(twips.y() * scale));
    const QPoint bottomRight(qRound((twips.x() + twips.width()) * scale),
                             qRound((twips.y() + twips.height()) * scale));
    const QPoint origin = placed.widget->parentWidget() == this ? origin_ : QPoint();
    placed.widget->setGeometry(QRect(topLeft, bottomRight - QPoint(1, 1)).translated(origin));
}

void ScaledArea::resizeEvent(QResizeEvent* event) {
    const QSize size = event->size();
    const QSizeF pixels = QSizeF(design_) / twipsPerPixel;
    scale_ = std::min(size.width() / pixels.width(), size.height() / pixels.height());
    origin_ = QPoint(qRound((size.width() - pixels.width() * scale_) / 2),
                     qRound((size.height() - pixels.height() * scale_) / 2));

    ScaleFont();
    std::erase_if(placed_, [](const Placed& placed) { return placed.widget.isNull(); });
    for (const Placed& placed : placed_) Apply(placed);
}

void ScaledArea::ScaleFont() {
    QFont scaled = font();
    scaled.setPixelSize(std::max(1, static_cast<int>(fontSize_ * scale_)));
    setFont(scaled);
}

}  // namespace qarn
