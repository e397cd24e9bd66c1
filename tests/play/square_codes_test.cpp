#include "play/square_codes.h"

#include <gtest/gtest.h>

#include "support/played_game.h"

namespace qarn {
namespace {

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
