#include "ui/odds_note.h"

#include "ui/note_look.h"

namespace qarn {

OddsNote::OddsNote(QWidget* parent) : StatusLine(parent) {
    setObjectName("oddsNote");
    LookLikeNote(*this);
    setMargin(2);
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
