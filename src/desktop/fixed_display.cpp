#include "desktop/fixed_display.h"

#include <filesystem>
#include <fstream>

namespace qarn {
namespace {

namespace fs = std::filesystem;

// A line names one mode, as "1024x768" or, interlaced, as "1920x1080i".
void AppendModes(std::vector<DisplayMode>& modes, const fs::path& monitor) {
    std::ifstream lines(monitor / "modes");
    DisplayMode mode;
    char separator = 0;
    while (lines >> mode.Width >> separator >> mode.Height) {
        modes.push_back(mode);
        std::string rest;
        std::getline(lines, rest);
    }
}

}  // namespace

FixedDisplay::FixedDisplay(const std::string& monitors) {
    std::error_code error;
    for (const fs::directory_entry& monitor : fs::directory_iterator(monitors, error)) {
        AppendModes(modes_, monitor.path());
    }
}

std::optional<DisplayMode> FixedDisplay::Mode(int number) {
    const auto index = static_cast<std::size_t>(number);
    if (index >= modes_.size()) return std::nullopt;
    return modes_[index];
}

}  // namespace qarn
