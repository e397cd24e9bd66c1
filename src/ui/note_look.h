#pragma once

#include <QFrame>

namespace qarn {

/// Has a frame look like a note: framed, in the colours of tool tips.
void LookLikeNote(QFrame& frame);

}  // namespace qarn
