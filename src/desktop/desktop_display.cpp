#include "desktop/desktop_display.h"

#include <cstdlib>
#include <string>

#include "desktop/fixed_display.h"
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

}  // namespace

DisplaySettings& DesktopDisplay::Opened() {
    if (!opened_ && !IsWaylandSession()) opened_ = RandrDisplay::Open();
    if (!opened_) opened_ = std::make_unique<FixedDisplay>();
    return *opened_;
}

}  // namespace qarn
