#pragma once

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "shell/shell_ports.h"
#include "support/temp_folder.h"

namespace qarn {

/// Takes every file, unless it has a refusal.
struct FakeWastebasket : Wastebasket {
    void MoveThere(const std::string& path) override {
        if (!refusal.empty()) throw std::runtime_error(refusal);
        thrownAway.push_back(ReadFile(path));
        std::filesystem::remove(path);
    }

    std::string refusal;
    std::vector<std::string> thrownAway;  ///< the contents of the files
};

/// A display whose modes and answer to a change are given; records what it was asked for.
struct FakeDisplay : DisplaySettings {
    std::optional<DisplayMode> Mode(int number) override {
        const auto index = static_cast<std::size_t>(number);
        return index < modes.size() ? std::optional(modes[index]) : std::nullopt;
    }
    DisplayChange Change(const DisplayMode& request, bool permanent) override {
        changes += std::to_string(request.Width) + "x" + std::to_string(request.Height) +
                   (permanent ? " permanent " : " ");
        return result;
    }

    std::vector<DisplayMode> modes{{800, 600}, {1024, 768}};
    DisplayChange result = DisplayChange::Failed;
    std::string changes;
};

struct FakeComputer : Computer {
    void Restart() override { throw std::runtime_error("Not allowed."); }
};

}  // namespace qarn
