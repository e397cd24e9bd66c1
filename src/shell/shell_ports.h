#pragma once

#include <optional>
#include <string>

namespace qarn {

// What the windows around the game need of the world, besides the ports of the game itself.

/// The desktop's wastebasket.
class Wastebasket {
public:
    virtual ~Wastebasket() = default;

    /// Moves a file there. Throws std::runtime_error with the reason when it cannot.
    virtual void MoveThere(const std::string& path) = 0;
};

/// A size of the screen that the display offers, in pixels.
struct DisplayMode {
    int Width = 0;
    int Height = 0;
};

enum class DisplayChange { Successful, Restart, Failed };

/// The settings of the default display.
class DisplaySettings {
public:
    virtual ~DisplaySettings() = default;

    /// Mode `number`, counted from 0 in the display's own order; none when there is no such mode.
    virtual std::optional<DisplayMode> Mode(int number) = 0;

    /// Switches to a mode of that width and height, for this session or, with `permanent`, for
    /// those that follow too. Restart means that the change needs a restart of the computer.
    virtual DisplayChange Change(const DisplayMode& request, bool permanent) = 0;
};

/// The computer that the program runs on.
class Computer {
public:
    virtual ~Computer() = default;

    /// Asks for a restart, and returns when it has been granted. Throws std::runtime_error with the
    /// reason when it is refused.
    virtual void Restart() = 0;
};

}  // namespace qarn
