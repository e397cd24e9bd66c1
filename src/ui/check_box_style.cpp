#include "ui/check_box_style.h"

#include <QWidget>

namespace qarn {

int CheckBoxStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                               const QWidget* widget) const {
    constexpr double indicatorSize = 1.2;  // by the size of the font
    if (widget != nullptr && (metric == PM_IndicatorWidth || metric == PM_IndicatorHeight)) {
        return qRound(widget->font().pixelSize() * indicatorSize);
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

}  // namespace qarn
