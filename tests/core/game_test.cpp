#include <gtest/gtest.h>

#include "core/eight_bit.h"
#include "core/game_file.h"
#include "core/game_record.h"
#include "core/random_numbers.h"
#include "core/turn_cycle.h"
#include "support/fake_ports.h"

namespace qarn {
namespace {

TEST(GameRecord, ListsThePeopleOfASquare) {
    GameRecord record;
    for (const std::size_t i : {4u, 9u, 20u}) {
        record.People[i] = {.Name = "Band",
                            .Code = "G  ",
                            .Side = 2,
                            .LocationX = 3,
                            .LocationY = 7,
                            .Mobility = 100,
                            .Attack = 1,
                            .Defense = 27};
    }
    record.People[20].Side = 0;
    const SquareList list = LocationOfPeople(record, 3, 7);
    EXPECT_EQ(list.bytNumberofPeople, 3);
    EXPECT_EQ(list.bytTotalPeople, 2);
    EXPECT_EQ(std::vector<std::uint8_t>(list.People().begin(), list.People().end()),
              (std::vector<std::uint8_t>{4, 9, 20}));
    EXPECT_EQ(GetPeopleCodes(record, list.People()), std::vector<std::string>(3, "G  "));
    EXPECT_EQ(GetPeopleNames(record, list.People()), std::vector<std::string>(3, "Band"));
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

struct TurnRow {
    std::string name;
    std::string atStart;
    std::string later;
};

TEST(TurnCycle, TellsWhoseTurnItIs) {
    FakeDialogs dialogs;
    FakeRandomNumbers random;
    FakeHelp help;
    FakeSettings settings;
    FakeFileTypes fileTypes;
    for (const TurnRow& row : {TurnRow{"Hawk", "It is Hawk's turn.", "It is Hawk's turn."},
                               TurnRow{"Hawks", "It is Hawks's turn.", "It is Hawks' turn."},
                               TurnRow{"HAWKS", "It is HAWKS's turn.", "It is HAWKS' turn."},
                               TurnRow{"", "It is 's turn.", "It is 's turn."}}) {
        Game game{.record = {},
                  .controls = {},
                  .ports = {dialogs, random, help, settings, fileTypes, {}}};
        game.record.strPlayerName = {"", "Red", row.name};
        game.record.blnComputer[2] = true;
        random.queued = {0.5};
        StartTurns(game);  // the first side is drawn
        EXPECT_EQ(game.record.bytTurn, 2);
        EXPECT_EQ(game.controls.lblStatus.Caption, row.atStart);
        EXPECT_TRUE(game.controls.tmrAI.Enabled);

        game.controls.tmrAI.Enabled = false;
        ShowTurn(game, true);
        EXPECT_EQ(game.record.bytTurn, 1);
        EXPECT_EQ(game.controls.lblStatus.Caption, "It is Red's turn.");
        EXPECT_FALSE(game.controls.tmrAI.Enabled);
        StartTurns(game);  // draws no more
        EXPECT_EQ(game.record.bytTurn, 1);

        ShowTurn(game, true);
        ShowTurn(game, false);
        EXPECT_EQ(game.controls.lblStatus.Caption, row.later);
        EXPECT_TRUE(game.controls.tmrAI.Enabled);
    }
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

TEST(GameFile, PlayerLines) {
    const std::string name = std::string(50, 'n') + "Zo\xEB\x80";
    for (const auto& [line, expected, computer] :
         {std::tuple{name + "True", std::string(50, 'n') + "Zoë€", true},
          std::tuple{name, std::string(50, 'n') + "Zoë€", false},
          std::tuple{name + "true", std::string(50, 'n') + "Zoë€", false},
          std::tuple{"Red" + std::string(51, ' ') + "True ", std::string("Red"), false},
          std::tuple{std::string(54, ' ') + "True", std::string(), true}}) {
        const Player player = ParsePlayerLine(line);
        EXPECT_EQ(player.strPlayerName, expected) << line;
        EXPECT_EQ(player.blnComputer, computer) << line;
    }
}

}  // namespace
}  // namespace qarn
