#include "ai/turn_driver.h"

#include <gtest/gtest.h>

#include "ai/classic/square_summary.h"
#include "support/played_game.h"

namespace qarn {
namespace {

struct Choice {
    const char* name;
    const char* position;
    const char* chosen;  // the starting square and the directions: 1 up, 2 right, 3 down, 4 left
};

void PrintTo(const Choice& choice, std::ostream* out) { *out << choice.position; }

std::string ChosenIn(const std::string& position) {
    PlayedGame played(position);
    played.game.record.blnComputer[played.game.record.bytTurn] = true;
    tmrAI_Timer(played.game);
    const ActionRecord& action = played.game.record.Action;
    if (!action.blnAIBusy) return played.dialogs.boxes.back().Text;
    std::string text =
        std::to_string(action.bytAIStartX) + "," + std::to_string(action.bytAIStartY) + " ";
    for (std::size_t k = 1; k <= action.bytAIPathLength; ++k) {
        text += static_cast<char>('0' + action.bytAIPath[k]);
    }
    return text;
}

class ChooseMoveTest : public testing::TestWithParam<Choice> {};

TEST_P(ChooseMoveTest, Chooses) { EXPECT_EQ(ChosenIn(GetParam().position), GetParam().chosen); }

// Row 10 is plain from column 9 on, row 9 from column 15 on. Mobility, attack and defense: Q 3 5 5,
// HF 3 2 2, J and SK 3 3 5, V 4 4 4, WS 4 8 5, LS 3 7 6, S 4 7 6, TS 5 8 9; Z 3 3 3, WA1 3 5 5.
const Choice choices[] = {
    {"AttackWithEightUnitsMore", "WS@10,10 V@10,10 Z@12,10 12,10=4", "10,10 22"},
    {"NoAttackWithSevenMore", "LS@10,10 V@10,10 Z@12,10 12,10=4", "No good move!"},
    {"AsFarAsMobilityGoes", "WS@9,10 V@9,10 Z@17,10", "9,10 22222222"},
    {"NoFarther", "WS@9,10 V@9,10 Z@18,10", "No good move!"},
    {"NotOverCostlyTerrain", "WS@9,10 V@9,10 Z@17,10 12,10=6", "No good move!"},
    {"CostCountsTheDestination", "WS@9,10 V@9,10 Z@17,10 17,10=4", "No good move!"},
    {"NoStreamWithoutBoat", "WS@10,10 V@10,10 Z@12,10 11,10=3", "No good move!"},
    {"StreamWithBoat", "WS@10,10 V@10,10 BT@10,10 Z@12,10 11,10=3", "10,10 22"},
    {"StreamWithCart", "WS@10,10 V@10,10 CT@10,10 Z@12,10 11,10=3", "10,10 22"},
    {"AlongXFirst", "WS@15,10 V@15,10 Z@17,9", "15,10 221"},
    {"ToTheLeftAndDown", "WS@17,9 V@17,9 Z@15,10", "17,9 443"},
    {"AroundABoat", "WS@15,10 V@15,10 BT@16,10 Z@17,9", "15,10 122"},
    {"StrongestTargetFirst", "WS@12,10 TS@12,10 Z@11,10 WA1@15,10", "12,10 222"},
    {"NextTargetWhenBlocked", "WS@10,10 TS@10,10 Z@12,10 WA1@14,10", "10,10 22"},
    {"StrongestStackFirst", "S@14,10 LS@14,10 WS@10,10 TS@10,10 Z@13,10", "10,10 222"},
    {"NextStackWhenBlocked", "S@14,10 LS@14,10 WS@10,10 TS@10,10 BT@11,10 Z@13,10", "14,10 4"},
    {"EitherSide", "turn2 WA1@10,10 ZA3@10,10 HF@12,10", "10,10 22"},
    {"JoinWithoutAttack", "HF@12,10 Q@10,10 Z@18,9", "10,10 22"},
    {"JoinFour", "Q@10,10 HF@10,10 J@12,10 SK@12,10", "12,10 44"},
    {"DoNotJoinFive", "Q@10,10 HF@10,10 V@10,10 J@12,10 SK@12,10", "No good move!"},
    {"JoinABoat", "Q@10,10 BT@12,10", "10,10 22"},
    {"NotTheEnemysBoat", "Q@10,10 BT@12,10 Z@12,10", "No good move!"},
    {"NotAnEnemyOnTheOwnSquare", "WS@10,10 TS@10,10 Z@10,10", "No good move!"},
};

INSTANTIATE_TEST_SUITE_P(Rows, ChooseMoveTest, testing::ValuesIn(choices),
                         [](const auto& row) { return row.param.name; });

TEST(SquareSummary, RoundsItsScoreToTheEvenHalf) {
    const auto score = [](std::uint8_t mobility, std::uint8_t attack, std::uint8_t defense,
                          std::uint8_t groups, std::uint8_t transports) {
        return ScoreOf({.bytTotalMobility = mobility,
                        .bytTotalAttack = attack,
                        .bytTotalDefense = defense,
                        .bytGroupCount = groups,
                        .bytTransportCount = transports});
    };
    EXPECT_EQ(score(8, 10, 5, 2, 1), 31);  // 31.25
    EXPECT_EQ(score(5, 6, 3, 1, 0), 18);   // 18.5
    EXPECT_EQ(score(6, 6, 3, 1, 0), 20);   // 19.5
    EXPECT_EQ(score(5, 6, 4, 1, 0), 20);   // 19.75
}

TEST(SquareSummary, CountsTransportPiecesWhereTheyTravel) {
    const Position position = PositionIn("Z@12,10 ZA1@12,10 BT@12,10 BT@11,10 Q@10,10");
    const RankedSquares Targets = RankTargets(position, 1);
    ASSERT_EQ(Targets.count, 1u);
    EXPECT_EQ(Targets.squares[1].bytTransportCount, 1);
    EXPECT_EQ(Targets.squares[1].bytTotalDefense, 7);
    EXPECT_EQ(RankStacks(position, 1).count, 3u);
}

}  // namespace
}  // namespace qarn
