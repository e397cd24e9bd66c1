#pragma once

#include <QPoint>

#include "core/controls.h"

namespace qarn {

/// Where the caption of a hint stands: in the middle of a square, or along its upper or lower edge.
struct CaptionPlace {
    QPoint square;
    Qt::Alignment where;
};

/// The place for the caption of an arrow along `way`, which is not empty: an empty square beside
/// the last one, else that one itself.
CaptionPlace PlaceOfCaption(const Controls& controls, const Path& way);

}  // namespace qarn
