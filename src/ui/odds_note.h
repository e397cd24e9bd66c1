#pragma once

#include "ui/status_line.h"

namespace qarn {

/// A note beside the panel that tells the odds of an attack. Screen readers say it as soon as it
/// comes up. Hidden while there is nothing to tell.
class OddsNote : public StatusLine {
public:
    explicit OddsNote(QWidget* parent);

    /// Tells a text, or nothing when it is empty.
    void Show(const QString& text);
};

}  // namespace qarn
