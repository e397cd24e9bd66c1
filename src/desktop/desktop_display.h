#pragma once

#include <memory>

#include "shell/shell_ports.h"

namespace qarn {

/// The display that the program's windows are on: that of the X server, or one that cannot be
/// switched. Asks nobody before it is used.
class DesktopDisplay : public DisplaySettings {
public:
    std::optional<DisplayMode> Mode(int number) override { return Opened().Mode(number); }
    DisplayChange Change(const DisplayMode& request, bool permanent) override {
        return Opened().Change(request, permanent);
    }

private:
    DisplaySettings& Opened();

    std::unique_ptr<DisplaySettings> opened_;
};

}  // namespace qarn
