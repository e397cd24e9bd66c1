#include "ui/note_look.h"

namespace qarn {

void LookLikeNote(QFrame& frame) {
    frame.setFrameShape(QFrame::Box);
    frame.setAutoFillBackground(true);
    frame.setBackgroundRole(QPalette::ToolTipBase);
    frame.setForegroundRole(QPalette::ToolTipText);
}

}  // namespace qarn
