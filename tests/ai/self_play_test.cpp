#include "ai/self_play.h"

#include <gtest/gtest.h>

#include <vector>

#include "ai/turn_driver.h"
#include "core/board_display.h"
#include "scenarios/catalogue.h"

namespace qarn {
namespace {

std::vector<long> NumbersOf(const SelfPlayResult& result) {
    return {result.games,      result.wins1,   result.wins2,
            result.stalemates, result.endless, result.turns};
}

void Ignore(long) {}

TEST(SelfPlay, GivesTheSameResultForTheSameSeed) {
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        long played = 0;
        const SelfPlayResult result =
            PlayItself(scenario, 20, 7, [&](long games) { EXPECT_EQ(games, ++played); });
        EXPECT_EQ(NumbersOf(result), NumbersOf(PlayItself(scenario, 20, 7, Ignore)));
        EXPECT_EQ(played, 20);
        EXPECT_EQ(result.games, result.wins1 + result.wins2 + result.stalemates + result.endless);
    }
}

// So that one game out of many can be looked at: game k has the seed of its own.
TEST(SelfPlay, GivesEachGameASeedOfItsOwn) {
    constexpr int exilesRoad = 8;
    std::vector<long> sum(6);
    for (std::uint64_t seed = 3; seed < 9; ++seed) {
        const std::vector<long> one = NumbersOf(PlayItself(exilesRoad, 1, seed, Ignore));
        for (std::size_t i = 0; i < sum.size(); ++i) sum[i] += one[i];
    }
    EXPECT_EQ(sum, NumbersOf(PlayItself(exilesRoad, 6, 3, Ignore)));
}

TEST(SelfPlay, KeepsTheBoardInOrder) {
    SelfPlayedGame played(ScenarioNumber("ER"), 5);
    Game& game = played.CurrentGame();
    while (game.controls.tmrAI.Enabled && !game.blnEnded) {
        tmrAI_Timer(game);
        for (int X = 1; X <= columnCount; ++X) {
            for (int Y = 1; Y <= rowCount; ++Y) {
                const SquareList list = LocationOfPeople(game.record, X, Y);
                std::string codes;
                for (const std::uint8_t i : list.People()) {
                    codes += game.record.People[i].Code + "  ";
                }
                const auto& column = game.controls.lbl[static_cast<std::size_t>(X)];
                ASSERT_EQ(column[static_cast<std::size_t>(Y)].Caption, codes);
                ASSERT_LE(list.bytTotalPeople, 4);
            }
        }
    }
}

// ---- Games set up by hand ----

class HandMadeGame : public testing::Test {
protected:
    HandMadeGame() {
        game_.record.bytTurn = 1;
        for (PeopleRecord& people : game_.record.People) people.LocationX = people.LocationY = 0;
    }

    PeopleRecord& Place(std::size_t i, std::uint8_t X, std::uint8_t Y) {
        PeopleRecord& people = game_.record.People[i];
        people.LocationX = X;
        people.LocationY = Y;
        return people;
    }

    SelfPlayedGame played_{ScenarioNumber("HM"), 1};
    Game& game_ = played_.CurrentGame();
};

TEST_F(HandMadeGame, IsWonByTheSideThatIsLeft) {
    Place(1, 10, 10).Attack = 30;
    Place(2, 12, 10);
    EXPECT_EQ(played_.PlayToEnd(), Outcome::Won1);
    EXPECT_EQ(played_.Turns(), 1);
}

// Both sides try again and again what the rules refuse: a cart has no way over the stream, and side
// 2 none through an abbey that stands empty.
TEST_F(HandMadeGame, IsBrokenOffWhenItDoesNotEnd) {
    Place(1, 10, 10);
    Place(18, 10, 10);
    Place(3, 12, 10);
    game_.record.bytTerrain[11][10] = Stream;
    Place(2, 15, 10);
    Place(7, 17, 10);
    game_.record.bytTerrain[16][10] = Abbey;
    EXPECT_EQ(played_.PlayToEnd(), Outcome::Endless);
    EXPECT_EQ(played_.Turns(), mostTurns);
}

TEST_F(HandMadeGame, TellsWhyItCouldNotGoOn) {
    Place(1, 10, 10).Attack = 200;
    Place(3, 10, 10).Attack = 200;
    Place(2, 12, 10);
    EXPECT_THROW(played_.PlayToEnd(), std::runtime_error);
}

}  // namespace
}  // namespace qarn
