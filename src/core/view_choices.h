#pragma once

namespace qarn {

/// What a person has the window show beyond the game itself. With all of it off, the window is as
/// it always was.
struct ViewChoices {
    bool sides = false;  ///< whose each group is

    friend bool operator==(const ViewChoices&, const ViewChoices&) = default;
};

}  // namespace qarn
