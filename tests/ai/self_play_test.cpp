#include "ai/self_play.h"

#include <gtest/gtest.h>

#include <vector>

#include "scenarios/catalogue.h"

namespace qarn {
namespace {

std::vector<long> NumbersOf(const SelfPlayResult& result) {
    return {result.games,      result.wins1,   result.wins2,
            result.stalemates, result.endless, result.turns};
}

TEST(SelfPlay, GivesTheSameResultForTheSameSeed) {
    for (int scenario = 1; scenario <= scenarioCount; ++scenario) {
        long played = 0;
        const SelfPlayResult result =
            PlayItself(scenario, 20, 7, [&](long games) { EXPECT_EQ(games, ++played); });
        EXPECT_EQ(NumbersOf(result), NumbersOf(PlayItself(scenario, 20, 7, [](long) {})));
        EXPECT_EQ(played, 20);
        EXPECT_EQ(result.games, result.wins1 + result.wins2 + result.stalemates + result.endless);
    }
}

// So that one game out of many can be looked at.
TEST(SelfPlay, GivesEachGameASeedOfItsOwn) {
    long turns = 0;
    for (std::uint64_t seed = 3; seed < 9; ++seed) {
        SelfPlayedGame game(ScenarioNumber("ER"), seed);
        game.PlayToEnd();
        turns += game.Turns();
    }
    EXPECT_EQ(turns, PlayItself(ScenarioNumber("ER"), 6, 3, [](long) {}).turns);
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
