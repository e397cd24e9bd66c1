#pragma once

#include <QPixmap>

namespace qarn {

/// How wide and high a square of the start window's picture is, in pixels.
inline constexpr int pictureSquare = 20;

/// The board of scenario 1 to 12 in the colours of its terrain, `square` pixels a square, sharp at
/// the device pixel ratio.
QPixmap ScenarioPicture(int scenario, int square, qreal devicePixelRatio);

}  // namespace qarn
