#include "ui/check_box_style.h"

#include <QWidget>

namespace qarn {

int CheckBoxStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                               const QWidget* widget) const {
    constexpr double indicatorSize = 1.15;  // by the size of the font
    constexpr double labelSpacing = 0.28;   // by the size of the font
    if (widget == nullptr) return QProxyStyle::pixelMetric(metric, option, widget);
    const int fontSize = widget->font().pixelSize();
    if (metric == PM_CheckBoxLabelSpacing) return qRound(fontSize * labelSpacing);
    if (metric == PM_IndicatorWidth || metric == PM_IndicatorHeight) {
        return qRound(fontSize * indicatorSize);
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

}  // namespace qarn
