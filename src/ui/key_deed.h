#pragma once

#include <QKeyEvent>

#include "window/keys.h"

namespace qarn {

/// What the game window does on a key, see KeyCommands; null when nothing.
const KeyCommand* KeyOf(const QKeyEvent& event);

}  // namespace qarn
