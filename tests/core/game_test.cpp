#include <gtest/gtest.h>

#include "core/game_file.h"
#include "core/random_numbers.h"
#include "core/turn_cycle.h"
#include "support/played_game.h"

namespace qarn {
namespace {

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

    const auto reason = [](const std::string& name) {
        return ErrorOf<SaveError>([&] {
            NewGameText("CF", {Player{"Red", false}, Player{name, false}});
        });
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
