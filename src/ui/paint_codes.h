#pragma once

#include <QPainter>
#include <vector>

#include "play/square_codes.h"

namespace qarn {

/// How the codes of a square are shown.
struct CodeLook {
    QColor ink;           ///< of codes without plates
    QColor ground;        ///< beneath them
    bool plates = false;  ///< each on the plate of its side
    /// As large as there is room, and with a halo where the ink does not stand out from the ground.
    bool large = false;
};

/// Paints the codes of one square into its rectangle, in a font of this kind.
void PaintCodes(QPainter& painter, const QRectF& square, const std::vector<SquareCode>& codes,
                const QFont& font, const CodeLook& look);

}  // namespace qarn
