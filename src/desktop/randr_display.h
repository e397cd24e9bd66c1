#pragma once

#include <memory>
#include <vector>

#include "shell/shell_ports.h"

struct _XDisplay;  // NOLINT(bugprone-reserved-identifier): Xlib has named it so

namespace qarn {

/// The display of an X server, switched through its RandR extension: its primary monitor, or the
/// first one that shows a picture. The server keeps a change until the session ends; it has no
/// store for those that follow.
class RandrDisplay : public DisplaySettings {
public:
    explicit RandrDisplay(_XDisplay* connection);  ///< closes the connection in the end
    RandrDisplay(const RandrDisplay&) = delete;
    RandrDisplay& operator=(const RandrDisplay&) = delete;
    ~RandrDisplay() override;

    std::optional<DisplayMode> Mode(int number) override;
    DisplayChange Change(const DisplayMode& request, bool permanent) override;

private:
    _XDisplay* connection_;
    std::vector<DisplayMode> modes_;
};

/// The module that it stands in, since only a screen that is too small needs it, and the function
/// that opens it: null when there is no X server, or it lacks the extension. Whoever calls it owns
/// what it gives.
constexpr auto randrModule = "qarn-randr.so";
constexpr auto randrFunction = "qarn_open_randr_display";
using RandrFunction = DisplaySettings*();

}  // namespace qarn
