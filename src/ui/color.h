#pragma once

#include <QColor>

#include "core/controls.h"

namespace qarn {

/// A colour of the game for Qt.
inline QColor ToQt(Color color) { return QColor::fromRgb(color.rgb); }

}  // namespace qarn
