#pragma once

#include <QImage>
#include <algorithm>
#include <array>
#include <cmath>

namespace qarn {

/// A colour as parts of light: red, green and blue, 0 to 1.
using Light = std::array<double, 3>;

inline Light LightOf(QRgb color) {
    const auto linear = [](int part) {
        const double value = part / 255.0;
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return {linear(qRed(color)), linear(qGreen(color)), linear(qBlue(color))};
}

/// How bright a colour is: 0 of black, 1 of white.
inline double Luminance(const Light& light) {
    return 0.2126 * light[0] + 0.7152 * light[1] + 0.0722 * light[2];
}

/// The contrast of two colours, from 1 to 21.
inline double Contrast(const Light& a, const Light& b) {
    const auto [darker, brighter] = std::minmax({Luminance(a), Luminance(b)});
    return (brighter + 0.05) / (darker + 0.05);
}
inline double Contrast(QRgb a, QRgb b) { return Contrast(LightOf(a), LightOf(b)); }

/// What people who lack one kind of cones make of a colour (Machado, Oliveira and Fernandes, 2009).
using Blindness = std::array<Light, 3>;
inline constexpr Blindness withoutRed{{{0.152286, 1.052583, -0.204868},
                                       {0.114503, 0.786281, 0.099216},
                                       {-0.003882, -0.048116, 1.051998}}};
inline constexpr Blindness withoutGreen{{{0.367322, 0.860646, -0.227968},
                                         {0.280085, 0.672501, 0.047413},
                                         {-0.011820, 0.042940, 0.968881}}};
inline constexpr Blindness withoutBlue{{{1.255528, -0.076749, -0.178779},
                                        {-0.078411, 0.930809, 0.147602},
                                        {0.004733, 0.691367, 0.303900}}};

inline Light SeenBy(const Blindness& blindness, QRgb color) {
    const Light light = LightOf(color);
    Light seen{};
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j) seen[i] += blindness[i][j] * light[j];
        seen[i] = std::clamp(seen[i], 0.0, 1.0);
    }
    return seen;
}

}  // namespace qarn
