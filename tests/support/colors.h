#pragma once

#include <QImage>
#include <algorithm>
#include <cmath>

namespace qarn {

/// How bright a colour is: 0 of black, 1 of white.
inline double Luminance(QRgb color) {
    const auto linear = [](int part) {
        const double value = part / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(color)) + 0.7152 * linear(qGreen(color)) +
           0.0722 * linear(qBlue(color));
}

/// The contrast of two colours, from 1 to 21.
inline double Contrast(QRgb a, QRgb b) {
    const auto [darker, brighter] = std::minmax({Luminance(a), Luminance(b)});
    return (brighter + 0.05) / (darker + 0.05);
}

}  // namespace qarn
