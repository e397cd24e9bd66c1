#pragma once

#include <QColor>

namespace qarn {

/// The contrast of two colours, from 1 to 21, as reading is judged by.
double ContrastOf(const QColor& a, const QColor& b);

/// Black or white, whichever stands out more.
QColor StandingOutFrom(const QColor& color);

}  // namespace qarn
