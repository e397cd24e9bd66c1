#include "ui/window_place.h"

#include <QScreen>
#include <QStyle>
#include <QWindow>
#include <algorithm>
#include <stdexcept>

#include "ui/game_docks.h"

namespace qarn {
namespace {

const std::string application = "QARN";
const std::string section = "Window";
const std::string key = "frmGame";
const std::string keyOfDocks = "frmGameDocks";

QByteArray Stored(SettingsStore& settings, const std::string& ofWhat) {
    return QByteArray::fromBase64(
        QByteArray::fromStdString(settings.Read(application, section, ofWhat, "")));
}

// The window closes; its place is not worth a box.
void Store(SettingsStore& settings, const std::string& ofWhat, const QByteArray& place) {
    if (place == Stored(settings, ofWhat)) return;
    try {
        settings.Write(application, section, ofWhat, place.toBase64().toStdString());
    } catch (const std::runtime_error&) {
    }
}

QMargins FrameOf(const QWidget& window) {
    const QWindow* shown = window.windowHandle();
    if (shown != nullptr && !shown->frameMargins().isNull()) return shown->frameMargins();
    return QMargins(0, window.style()->pixelMetric(QStyle::PM_TitleBarHeight), 0, 0);
}

QRect PlaceOnScreen(const QWidget& window, const QRect& place) {
    return PlaceWithin(window.screen()->availableGeometry(), place, FrameOf(window));
}

}  // namespace

void RestoreWindowPlace(QWidget& window, SettingsStore& settings) {
    if (window.restoreGeometry(Stored(settings, key))) {
        FitOnScreen(window);
    } else {
        // The desktop chooses where.
        window.resize(PlaceOnScreen(window, QRect(QPoint(), window.sizeHint())).size());
    }
}

void FitOnScreen(QWidget& window) {
    if (window.isMaximized() || window.isFullScreen()) return;
    const QRect place = PlaceOnScreen(window, window.geometry());
    if (place != window.geometry()) window.setGeometry(place);
}

QRect PlaceWithin(const QRect& room, const QRect& place, const QMargins& frame) {
    const QRect most = room.marginsRemoved(frame);
    QRect within(place.topLeft(), place.size().boundedTo(most.size()));
    within.moveRight(std::min(within.right(), most.right()));
    within.moveBottom(std::min(within.bottom(), most.bottom()));
    within.moveLeft(std::max(within.left(), most.left()));
    within.moveTop(std::max(within.top(), most.top()));
    return within;
}

// The nearest place touches, across and down each, an edge of something or stays as it is.
QRect PlaceClearOf(const QRect& room, const QRect& place, const std::vector<QRect>& keptClear) {
    std::vector<int> lefts{place.left()}, tops{place.top()};
    for (const QRect& kept : keptClear) {
        lefts.insert(lefts.end(), {kept.left() - place.width(), kept.right() + 1});
        tops.insert(tops.end(), {kept.top() - place.height(), kept.bottom() + 1});
    }
    QRect nearest;
    for (const int left : lefts) {
        for (const int top : tops) {
            const QRect tried(QPoint(left, top), place.size());
            const bool hides =
                std::any_of(keptClear.begin(), keptClear.end(),
                            [&](const QRect& kept) { return tried.intersects(kept); });
            if (hides || !room.contains(tried)) continue;
            const auto way = [&](const QRect& to) {
                return (to.topLeft() - place.topLeft()).manhattanLength();
            };
            if (nearest.isNull() || way(tried) < way(nearest)) nearest = tried;
        }
    }
    return nearest.isNull() ? place : nearest;
}

QRect PlaceOfBox(const QWidget& window, const QRect& place, const std::vector<QRect>& keptClear) {
    const QMargins frame = FrameOf(window);
    const QRect framed =
        PlaceClearOf(window.screen()->availableGeometry(), place.marginsAdded(frame), keptClear);
    return framed.marginsRemoved(frame);
}

void StoreWindowPlace(const QWidget& window, SettingsStore& settings) {
    Store(settings, key, window.saveGeometry());
}

void RestoreDockPlaces(GameDocks& docks, SettingsStore& settings) {
    docks.PutAt(Stored(settings, keyOfDocks));
}

void StoreDockPlaces(const GameDocks& docks, SettingsStore& settings) {
    const QByteArray places = docks.Places();
    if (!places.isEmpty()) Store(settings, keyOfDocks, places);
}

}  // namespace qarn
