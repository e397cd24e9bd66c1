#pragma once

#include <QAccessible>

#include "ui/fitted_label.h"

namespace qarn {

/// The status line. Screen readers say its text as soon as it changes, wherever the focus is.
class StatusLine : public FittedLabel {
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent);

    /// Shows a text and announces it, unless it stands there already.
    void Tell(const QString& text);
};

}  // namespace qarn
