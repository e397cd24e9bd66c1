#include "play/square_text.h"

#include <gtest/gtest.h>

#include "play/square_codes.h"
#include "play/ticked_told.h"
#include "support/played_game.h"

namespace qarn {
namespace {

TEST(SquareText, TellsOwnersAndStrengthsWhileSidesAreShown) {
    PlayedGame played("Q@9,5 WS@9,5 ZA1@9,5 BT@9,5 BT@9,5 Z@17,2 BT@1,9");
    const Game& game = played.game;
    EXPECT_EQ(TipOfSquare(game, 17, 2), "(17, 2) Ocean\nCorsair: mobility 3, attack 3, defense 3");
    EXPECT_TRUE(played.Do("menu mnuSides"));
    EXPECT_EQ(NameOfSquare(game, 9, 5),
              "(9, 5) Mountain. Red: Hero, 3 mobility, 5 attack, 5 defense; Warlord's Slaves, "
              "4 mobility, 8 attack, 5 defense. Blue: Corsair's Army, 3 mobility, 4 attack, "
              "4 defense. Boat (2).");
    EXPECT_EQ(TipOfSquare(game, 9, 5),
              "(9, 5) Mountain\nRed: Hero, 3 mobility, 5 attack, 5 defense\n"
              "Red: Warlord's Slaves, 4 mobility, 8 attack, 5 defense\n"
              "Blue: Corsair's Army, 3 mobility, 4 attack, 4 defense\nBoat (2)");
    EXPECT_EQ(NameOfSquare(game, 1, 9), "(1, 9) Sand. Boat.");
    EXPECT_EQ(NameOfSquare(game, 1, 1), "(1, 1) Forest.");
    EXPECT_EQ(TipOfSquare(game, 1, 1), "(1, 1) Forest");
    played.game.record.strPlayerName = {};
    EXPECT_EQ(NameOfSquare(game, 17, 2),
              "(17, 2) Ocean. Badbeasts: Corsair, 3 mobility, 3 attack, 3 defense.");
}

TEST(SquareText, TellsWhatTheTickedComeToWhileSidesAreShown) {
    PlayedGame played("Q@9,5 WS@9,5 BT@9,5 Z@17,2");
    played.DoAll("press cmdMove; click 9 5");
    EXPECT_EQ(ToldOfTicked(played.game), "");
    played.Do("menu mnuSides");
    EXPECT_EQ(ToldOfTicked(played.game),
              "7 mobility, 13 attack, 10 defense\nHero: 3, 5, 5\nWarlord's Slaves: 4, 8, 5\nBoat");
    played.DoAll("untick 2; untick 3");
    EXPECT_EQ(ToldOfTicked(played.game), "3 mobility, 5 attack, 5 defense\nHero: 3, 5, 5");
    played.Do("press cmdDoneSel");
    EXPECT_EQ(ToldOfTicked(played.game), "");

    PlayedGame fleet("Q@9,5 BT@9,5 BT@9,5 BT@9,5 Z@17,2");
    fleet.DoAll("menu mnuSides; press cmdMove; click 9 5");
    EXPECT_EQ(ToldOfTicked(fleet.game),
              "3 mobility, 5 attack, 5 defense\nHero: 3, 5, 5\nBoat\u00D73");
}

TEST(SquareText, TellsWhatAStepWouldCostWhileReachIsShown) {
    PlayedGame played("9,6=0 Q@9,5 Z@17,2");
    played.DoAll("menu mnuReach; press cmdMove; click 9 5; press cmdDoneSel");
    EXPECT_EQ(NameOfSquare(played.game, 9, 6),
              "(9, 6) Plain. A step here costs 1 mobility unit of 3.");
    EXPECT_EQ(TipOfSquare(played.game, 9, 6),
              "(9, 6) Plain\nA step here costs 1 mobility unit of 3.");
    EXPECT_EQ(NameOfSquare(played.game, 9, 5), "(9, 5) Mountain: Hero");
}

std::string CodesOf(const Game& game) {
    std::string text;
    for (const SquareCode& code : CodesOfSquare(game, 9, 5)) {
        text += code.text + ":" + std::to_string(code.side) + " ";
    }
    return text;
}

TEST(SquareCodes, FoldBoatsOnACrowdedSquareOnly) {
    const std::string six = "Q@9,5 WS@9,5 ZA1@9,5 BT@9,5 BT@9,5 BT@9,5 ";
    PlayedGame played(six + "Z@17,2");
    const std::string unfolded = "Q:1 WS:1 ZA1:2 BT:0 BT:0 BT:0 ";
    EXPECT_EQ(CodesOf(played.game), unfolded);
    played.Do("menu mnuSides");
    EXPECT_EQ(CodesOf(played.game), unfolded);
    played.Load(six + "BT@9,5 Z@17,2");
    EXPECT_EQ(CodesOf(played.game), "Q:1 WS:1 ZA1:2 BT\u00D74:0 ");
    played.Do("menu mnuSides");
    EXPECT_EQ(CodesOf(played.game), unfolded + "BT:0 ");
}

}  // namespace
}  // namespace qarn
