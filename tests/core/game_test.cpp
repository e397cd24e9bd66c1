#include <gtest/gtest.h>

#include "core/eight_bit.h"
#include "core/game_file.h"
#include "core/game_record.h"
#include "core/random_numbers.h"
#include "core/turn_cycle.h"
#include "support/played_game.h"

namespace qarn {
namespace {

TEST(GameRecord, ListsThePeopleOfASquare) {
    GameRecord record;
    for (const std::size_t i : {4u, 9u, 20u}) {
        record.People[i] = {{3, 7, 2, 100, 1, 27}, "Band", "G  "};
    }
    record.People[20].Side = 0;
    const SquareList list = LocationOfPeople(record, 3, 7);
    EXPECT_EQ(list.bytNumberofPeople, 3);
    EXPECT_EQ(list.bytTotalPeople, 2);
    EXPECT_EQ(std::vector<std::uint8_t>(list.People().begin(), list.People().end()),
              (std::vector<std::uint8_t>{4, 9, 20}));
    EXPECT_EQ(GetPeopleCodes(record, list.People()), std::vector<std::string_view>(3, "G  "));
    EXPECT_EQ(GetPeopleNames(record, list.People()), std::vector<std::string_view>(3, "Band"));
    EXPECT_EQ(LocationOfPeople(record, 7, 3).bytNumberofPeople, 0);

    Strength totals{.Mobility = 55, .Attack = 10, .Defense = 0};
    SumStrength(record, list.People().first(2), totals);  // adds to what is there
    EXPECT_EQ(totals.Mobility, 255);
    EXPECT_EQ(totals.Attack, 12);
    EXPECT_EQ(totals.Defense, 54);
    EXPECT_THROW(SumStrength(record, list.People().first(1), totals), EightBitOverflow);
    EXPECT_EQ(totals.Attack, 12);
    EXPECT_THROW(EightBit(-1, "count"), EightBitOverflow);
}

TEST(RandomNumbers, AreTheSameEverywhere) {
    UniformGenerator generator;
    generator.Seed(5489);
    for (int draw = 1; draw < 10'000; ++draw) {
        const double number = generator.Next();
        ASSERT_TRUE(number >= 0 && number < 1);
    }
    // The generator's published ten-thousandth value.
    EXPECT_EQ(generator.Next(), static_cast<double>(9981545732273789042u >> 11) * 0x1.0p-53);
    generator.SeedFromClock();
    const double first = generator.Next();
    generator.SeedFromClock();
    EXPECT_NE(generator.Next(), first);
}

TEST(TurnCycle, TellsWhoseTurnItIs) {
    for (const auto& [name, atStart, later] :
         {std::tuple{"Hawk", "It is Hawk's turn.", "It is Hawk's turn."},
          {"Hawks", "It is Hawks's turn.", "It is Hawks' turn."},
          {"HAWKS", "It is HAWKS's turn.", "It is HAWKS' turn."},
          {"", "It is 's turn.", "It is 's turn."}}) {
        PlayedGame played("HM");
        GameRecord& record = played.game.record;
        Controls& controls = played.game.controls;
        record.strPlayerName[2] = name;
        record.blnComputer[2] = true;
        record.bytTurn = 0;
        played.random.queued = {0.5};
        StartTurns(played.game);  // the first side is drawn
        EXPECT_EQ(record.bytTurn, 2);
        EXPECT_EQ(controls.lblStatus.Caption, atStart);
        EXPECT_TRUE(controls.tmrAI.Enabled);

        controls.tmrAI.Enabled = false;
        ShowTurn(played.game, true);
        StartTurns(played.game);  // draws no more
        EXPECT_EQ(record.bytTurn, 1);
        EXPECT_EQ(controls.lblStatus.Caption, "It is Red's turn.");
        EXPECT_FALSE(controls.tmrAI.Enabled);

        ShowTurn(played.game, true);
        ShowTurn(played.game, false);
        EXPECT_EQ(controls.lblStatus.Caption, later);
        EXPECT_TRUE(controls.tmrAI.Enabled);
    }
    PlayedGame played("HM");
    played.game.record.bytTurn = 0;
    played.random.queued = {0.49};
    StartTurns(played.game);
    EXPECT_EQ(played.game.record.bytTurn, 1);
}

TEST(GameFile, NewGame) {
    const std::string longest(50, 'n');
    EXPECT_EQ(
        NewGameText("CF", {Player{"Red", false}, Player{longest + "Zoë€", true}}),
        "CF\r\nRed" + std::string(51, ' ') + "False\r\n" + longest + "Zo\xEB\x80True\r\n 0 \r\n");

    const auto reason = [](const std::string& name) -> std::string {
        try {
            return NewGameText("CF", {Player{"Red", false}, Player{name, false}});
        } catch (const SaveError& error) {
            return error.what();
        }
    };
    EXPECT_EQ(reason(longest + "Zoë€!"),
              "The name \"" + longest + "Zoë€!\" is longer than 54 characters.");
    EXPECT_EQ(reason("Łucja"),
              "A player's name can not be stored. The character \"Ł\" can not be stored in a game "
              "file.");
    EXPECT_EQ(reason("Red\nBlue"), "A player's name can not hold a line break.");
}

}  // namespace
}  // namespace qarn
