#pragma once

#include <QPixmap>

namespace qarn {

/// The board of scenario 1 to 12 in the colours of its terrain, `square` pixels a square, sharp at
/// the device pixel ratio.
QPixmap ScenarioPicture(int scenario, int square, qreal devicePixelRatio);

}  // namespace qarn
