#pragma once

#include <QWidget>
#include <vector>

#include "core/ports.h"

namespace qarn {

class GameDocks;

/// Gives the window the size and place that it had when it was last closed; at the first start the
/// size of its design. What the screen has no room for is taken off, see FitOnScreen.
void RestoreWindowPlace(QWidget& window, SettingsStore& settings);

/// Makes the window no larger than its screen, with frame and title bar, and moves all of it onto
/// the screen. The frame is known once the window has come up; until then the style's is taken for
/// it. A window that fills its screen anyway stays as it is.
void FitOnScreen(QWidget& window);

/// Has the docks of the window stand where they stood when it was last closed with docks.
void RestoreDockPlaces(GameDocks& docks, SettingsStore& settings);

/// Stores where the docks of the window stand, as StoreWindowPlace does; nothing when it had none.
void StoreDockPlaces(const GameDocks& docks, SettingsStore& settings);

/// The place, without its frame, nearest to `place` at which a window with such a frame lies within
/// `room`. It keeps its size where it can. All in pixels of one coordinate system.
QRect PlaceWithin(const QRect& room, const QRect& place, const QMargins& frame);

/// The place nearest to `place` at which a window of that size lies within `room` and over nothing
/// of what it is to keep clear of; `place` itself where there is none.
QRect PlaceClearOf(const QRect& room, const QRect& place, const std::vector<QRect>& keptClear);

/// The place of a box that comes up over `window`, whose frame it has too, where it hides nothing
/// of what it is to keep clear of, if the screen has room for that.
QRect PlaceOfBox(const QWidget& window, const QRect& place, const std::vector<QRect>& keptClear);

/// Stores the size and place of the window. Settings that cannot be written stay as they were.
void StoreWindowPlace(const QWidget& window, SettingsStore& settings);

}  // namespace qarn
