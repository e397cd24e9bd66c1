#pragma once

#include <QAccessible>

#include "ui/fitted_label.h"

namespace qarn {

/// The status line. Screen readers say its text as soon as it changes, wherever the focus is.
class StatusLine : public FittedLabel {
    Q_OBJECT

public:
    /// Where the line is higher than `designHeight` pixels, its font grows by more than the window
    /// does, as far as its text leaves room for that; with 0 never.
    explicit StatusLine(QWidget* parent, double designHeight = 0);

    /// Has the text stand below what covers the line from its top down to this share of its height.
    void StandBelow(double covered);

    /// Shows a text and announces it, unless it stands there already.
    void Tell(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;
    double LargestFont() const override;

private:
    int CoveredPixels() const;

    double designHeight_;
    double covered_ = 0;
};

}  // namespace qarn
