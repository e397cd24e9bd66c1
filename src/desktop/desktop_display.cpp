#include "desktop/desktop_display.h"

#include <cstdlib>
#include <stdexcept>
#include <string>

#include "desktop/fixed_display.h"
#include "desktop/module.h"
#include "desktop/randr_display.h"

namespace qarn {
namespace {

std::string Environment(const char* name) {
    const char* value = std::getenv(name);
    return value != nullptr ? value : "";
}

// An X server that runs on top of Wayland only pretends to switch the screen.
bool IsWaylandSession() {
    return !Environment("WAYLAND_DISPLAY").empty() || Environment("XDG_SESSION_TYPE") == "wayland";
}

std::unique_ptr<DisplaySettings> OpenRandr() {
    try {
        auto* open = reinterpret_cast<RandrFunction*>(FunctionOfModule(randrModule, randrFunction));
        return std::unique_ptr<DisplaySettings>(open());
    } catch (const std::runtime_error&) {
        return nullptr;
    }
}

}  // namespace

DisplaySettings& DesktopDisplay::Opened() {
    if (!opened_ && !IsWaylandSession()) opened_ = OpenRandr();
    if (!opened_) opened_ = std::make_unique<FixedDisplay>();
    return *opened_;
}

}  // namespace qarn
