#include "play/square_text.h"

#include <gtest/gtest.h>

#include "play/square_codes.h"
#include "play/step_told.h"
#include "play/strikes.h"
#include "play/ticked_told.h"
#include "support/sequence.h"

namespace qarn {
namespace {

std::string CodesOf(const Game& game, int X, int Y) {
    std::string text;
    for (const SquareCode& code : CodesOfSquare(game, X, Y)) {
        text += (text.empty() ? "" : " ") + code.text + ":" + std::to_string(code.side);
    }
    return text;
}

std::string SquaresOf(const std::vector<Square>& squares) {
    std::string text;
    for (const auto& [X, Y] : squares) {
        text += (text.empty() ? "" : " ") + std::to_string(X) + "," + std::to_string(Y);
    }
    return text;
}

// What is told when it is asked, as the head of the file explains.
std::optional<std::string> Told(const Game& game, const std::string& question) {
    std::istringstream words(question);
    std::string verb;
    int X = 0, Y = 0;
    words >> verb >> X >> Y;
    const auto column = static_cast<std::uint8_t>(X), row = static_cast<std::uint8_t>(Y);
    if (verb == "name") return NameOfSquare(game, X, Y);
    if (verb == "tip") return TipOfSquare(game, X, Y);
    if (verb == "codes") return CodesOf(game, X, Y);
    if (verb == "step") return StepTold(game.record, {column, row});
    if (verb == "ticked") return ToldOfTicked(game);
    if (verb == "strikes") return SquaresOf(StrikesOf(PositionOf(game.record), column));
    return std::nullopt;
}

class ToldOfSquares : public testing::TestWithParam<Sequence> {};

TEST_P(ToldOfSquares, IsWhatIsAskedFor) {
    PlayedGame played(GetParam().position);
    const auto play = [&](const std::string& line) -> std::string {
        const auto told = Told(played.game, line);
        if (told) return (told->empty() ? "nothing" : *told) + "\n";
        played.DoAll(line);
        return "";
    };
    EXPECT_EQ(PlayLines(GetParam().transcript, play), GetParam().transcript);
}

INSTANTIATE_TEST_SUITE_P(Questions, ToldOfSquares,
                         testing::ValuesIn(ReadSequences("play/squares.txt")), NameOf);

}  // namespace
}  // namespace qarn
