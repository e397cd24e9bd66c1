#pragma once

#include <QProxyStyle>

namespace qarn {

/// The desktop's style, but with check marks as large as the text beside them, whatever the size of
/// the window.
class CheckBoxStyle : public QProxyStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
};

}  // namespace qarn
