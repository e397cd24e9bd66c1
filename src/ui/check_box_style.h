#pragma once

#include <QProxyStyle>

namespace qarn {

/// The desktop's style, but with check marks as large as the text beside them, whatever the size of
/// the window, and close to it: the boxes have just room for a code.
class CheckBoxStyle : public QProxyStyle {
public:
    /// The desktop's own metrics, but for the check mark's size and its distance from the text.
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
};

}  // namespace qarn
