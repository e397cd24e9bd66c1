#include "play/own_groups.h"

#include "core/eight_bit.h"
#include "core/game_record.h"
#include "play/stacks.h"
#include "rules/questions/reach.h"
#include "rules/questions/start.h"

namespace qarn {
namespace {

constexpr int squareCount = columnCount * rowCount;

bool CanMove(const Position& position, Square square) {
    if (AskStart(position, square) != StartRefusal::None) return false;
    try {
        return !ReachOf(position, WholeStack(position, square)).empty();
    } catch (const EightBitOverflow&) {
        return false;
    }
}

}  // namespace

std::optional<Square> NextOwnGroup(const GameRecord& record, Square from, bool forward) {
    const Position position = PositionOf(record);
    int index = (from.Y - 1) * columnCount + from.X - 1;
    for (int tried = 0; tried < squareCount; ++tried) {
        index = (index + (forward ? 1 : squareCount - 1)) % squareCount;
        const Square square{static_cast<std::uint8_t>(index % columnCount + 1),
                            static_cast<std::uint8_t>(index / columnCount + 1)};
        if (CanMove(position, square)) return square;
    }
    return std::nullopt;
}

}  // namespace qarn
