#pragma once

#include <QWidget>

#include "core/ports.h"

namespace qarn {

/// Gives the window the size and place that it had when it was last closed; at the first start the
/// size of its design, or what the screen has room for.
void RestoreWindowPlace(QWidget& window, SettingsStore& settings);

/// Stores the size and place of the window. Settings that cannot be written stay as they were.
void StoreWindowPlace(const QWidget& window, SettingsStore& settings);

}  // namespace qarn
