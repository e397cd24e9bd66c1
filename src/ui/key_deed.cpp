#include "ui/key_deed.h"

#include <QKeySequence>

namespace qarn {

const KeyCommand* KeyOf(const QKeyEvent& event) {
    // The shift key comes with itself as its modifier, and the keys of the number pad with theirs.
    const Qt::KeyboardModifiers modifiers =
        event.key() == Qt::Key_Shift ? Qt::NoModifier : event.modifiers() & ~Qt::KeypadModifier;
    const QKeySequence key(QKeyCombination(modifiers, static_cast<Qt::Key>(event.key())));
    return FindKey(key.toString(QKeySequence::PortableText).toStdString());
}

}  // namespace qarn
