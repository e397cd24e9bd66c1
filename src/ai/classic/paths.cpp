#include "ai/classic/paths.h"

#include <algorithm>
#include <cstdlib>

namespace qarn {
namespace {

// The cells between two squares, numbered row by row from 1. Each is marked with the moves that it
// allows; the far corner, which is the target, allows none.
class Grid {
public:
    enum Moves : std::uint8_t { None = 0, OnlyX = 1, OnlyY = 2, Both = 3 };

    Grid(int dx, int dy) : rowLength_(dx + 1), target_((dx + 1) * (dy + 1)) {
        for (int cell = 1; cell <= target_; ++cell) {
            const bool allowsX = cell % rowLength_ != 0;
            const bool allowsY = cell <= target_ - rowLength_;
            At(cell) = static_cast<Moves>((allowsX ? OnlyX : None) | (allowsY ? OnlyY : None));
        }
    }

    int Target() const { return target_; }
    Moves MovesFrom(int cell) const { return marks_[static_cast<std::size_t>(cell)]; }
    int Distance(StepCode code) const { return code == AlongX ? 1 : rowLength_; }

private:
    Moves& At(int cell) { return marks_[static_cast<std::size_t>(cell)]; }

    int rowLength_;
    int target_;
    std::array<Moves, columnCount * rowCount + 1> marks_;
};

// A walk through the grid from cell 1.
class Walk {
public:
    explicit Walk(const Grid& grid) : grid_(grid) {}

    // Goes on to the target, along X wherever that is allowed.
    void Forward() {
        while (cell_ != grid_.Target()) {
            Append(grid_.MovesFrom(cell_) == Grid::OnlyY ? AlongY : AlongX);
        }
    }

    // Goes back to the last cell that allowed both moves and was left along X, and leaves it along
    // Y. Gives false when there is none: every path has been walked.
    bool Backtrack() {
        while (length_ > 0) {
            const StepCode undone = Undo();
            if (undone == AlongX && grid_.MovesFrom(cell_) == Grid::Both) {
                Append(AlongY);
                return true;
            }
        }
        return false;
    }

    const PathSteps& Steps() const { return steps_; }

private:
    void Append(StepCode code) {
        steps_[++length_] = code;
        cell_ += grid_.Distance(code);
    }

    StepCode Undo() {
        const auto code = static_cast<StepCode>(steps_[length_--]);
        cell_ -= grid_.Distance(code);
        return code;
    }

    const Grid& grid_;
    PathSteps steps_{};
    std::size_t length_ = 0;
    int cell_ = 1;
};

void EnumerateStraight(StepCode code, PathTable& Paths) {
    Paths[1].bytSteps.fill(code);
    Paths[0].intCount = 1;
}

void EnumerateBent(int dx, int dy, PathTable& Paths) {
    const Grid grid(dx, dy);
    Walk walk(grid);
    std::int16_t count = 0;
    do {
        walk.Forward();
        Paths[static_cast<std::size_t>(++count)].bytSteps = walk.Steps();
    } while (count < mostPaths && walk.Backtrack());
    Paths[0].intCount = count;
}

}  // namespace

std::uint8_t EnumeratePaths(std::uint8_t bytX1, std::uint8_t bytY1, std::uint8_t bytX2,
                            std::uint8_t bytY2, PathTable& Paths) {
    const int dx = std::abs(bytX2 - bytX1);
    const int dy = std::abs(bytY2 - bytY1);
    if (dx == 0 || dy == 0) {
        EnumerateStraight(dx != 0 ? AlongX : AlongY, Paths);
    } else {
        EnumerateBent(dx, dy, Paths);
    }
    return static_cast<std::uint8_t>(dx + dy);
}

}  // namespace qarn
