#include "ai/locked_position.h"

#include <gtest/gtest.h>

#include "support/played_game.h"

namespace qarn {
namespace {

TEST(LockedPosition, IsOneThatHasStoodStillForThirtyTurns) {
    const Position still = PositionIn("WS@9,10 Z@1,1");
    const Position shuffled = PositionIn("turn2 WS@9,10 Z@1,1");
    const Position stronger = PositionIn("WS@9,10 TS@9,10 Z@1,1");
    struct Row {
        Happening inTurn16;
        const Position* before16;
        const Position* from16;
        int lockedAt;
    };
    const Row rows[] = {{Moved{}, &still, &still, 31},    {Attacked{}, &still, &still, 31},
                        {Moved{}, &still, &shuffled, 31}, {Lost{}, &still, &still, 47},
                        {Burned{}, &still, &still, 47},   {Moved{}, &still, &stronger, 46},
                        {Moved{}, &stronger, &still, 46}};
    for (const Row& row : rows) {
        Standstill standstill;
        int turn = 0;
        while (!IsLocked(standstill) && turn < 99) {
            CountTurns(standstill, {TurnCame{}});
            NoteEvaluations(standstill, ++turn < 16 ? *row.before16 : *row.from16);
            if (turn == 16) CountTurns(standstill, {row.inTurn16});
        }
        EXPECT_EQ(turn, row.lockedAt) << &row - rows;
    }
}

}  // namespace
}  // namespace qarn
