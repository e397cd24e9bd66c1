#include "ui/odds_note.h"

namespace qarn {

OddsNote::OddsNote(QWidget* parent) : StatusLine(parent) {
    setObjectName("oddsNote");
    setFrameShape(QFrame::Box);
    setMargin(2);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    hide();
}

void OddsNote::Show(const QString& text) {
    setVisible(!text.isEmpty());
    if (text.isEmpty()) {
        ShowText(text);
    } else {
        // Lines do not break between a number and its sign.
        Tell(QString(text).replace(" %", QString(QChar::Nbsp) + "%"));
    }
}

}  // namespace qarn
