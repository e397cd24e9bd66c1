#include "ui/window_place.h"

#include <QScreen>
#include <stdexcept>

namespace qarn {
namespace {

const std::string application = "QARN";
const std::string section = "Window";
const std::string key = "frmGame";

}  // namespace

void RestoreWindowPlace(QWidget& window, SettingsStore& settings) {
    const std::string stored = settings.Read(application, section, key, "");
    if (window.restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(stored)))) return;
    window.resize(window.sizeHint().boundedTo(window.screen()->availableSize()));
}

void StoreWindowPlace(const QWidget& window, SettingsStore& settings) {
    const std::string place = window.saveGeometry().toBase64().toStdString();
    if (place == settings.Read(application, section, key, "")) return;
    try {
        settings.Write(application, section, key, place);
    } catch (const std::runtime_error&) {
        // The window closes; its place is not worth a box.
    }
}

}  // namespace qarn
