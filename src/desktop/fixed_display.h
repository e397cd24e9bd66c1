#pragma once

#include <string>
#include <vector>

#include "shell/shell_ports.h"

namespace qarn {

/// A display that this program cannot switch. Its modes are those that the kernel lists of the
/// monitors.
class FixedDisplay : public DisplaySettings {
public:
    /// `monitors` is the kernel's folder of the monitors.
    explicit FixedDisplay(const std::string& monitors = "/sys/class/drm");

    std::optional<DisplayMode> Mode(int number) override;
    DisplayChange Change(const DisplayMode&, bool) override { return DisplayChange::Failed; }

private:
    std::vector<DisplayMode> modes_;
};

}  // namespace qarn
