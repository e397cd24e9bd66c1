#include "ui/contrast.h"

#include <algorithm>
#include <cmath>

namespace qarn {
namespace {

double Linear(double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
    return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) +
           0.0722 * Linear(color.blueF());
}

}  // namespace

double ContrastOf(const QColor& a, const QColor& b) {
    const auto [darker, brighter] = std::minmax({Luminance(a), Luminance(b)});
    return (brighter + 0.05) / (darker + 0.05);
}

QColor StandingOutFrom(const QColor& color) {
    const QColor black(Qt::black);
    const QColor white(Qt::white);
    return ContrastOf(black, color) > ContrastOf(white, color) ? black : white;
}

}  // namespace qarn
