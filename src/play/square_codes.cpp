#include "play/square_codes.h"

#include <algorithm>

#include "core/game.h"

namespace qarn {
namespace {

constexpr std::size_t mostBeforeFolding = 6;

std::string WithoutPadding(std::string_view code) {
    const std::size_t last = code.find_last_not_of(' ');
    return std::string(code.substr(0, last + 1));
}

std::vector<SquareCode> Folded(const std::vector<SquareCode>& codes) {
    std::vector<SquareCode> folded;
    for (auto code = codes.begin(); code != codes.end(); ++code) {
        const auto number = std::count(codes.begin(), codes.end(), *code);
        if (code->side != 0 || number == 1) {
            folded.push_back(*code);
        } else if (std::find(codes.begin(), code, *code) == code) {
            folded.push_back({code->text + "\u00D7" + std::to_string(number), 0});
        }
    }
    return folded;
}

}  // namespace

std::vector<SquareCode> CodesOfSquare(const Game& game, int X, int Y) {
    std::vector<SquareCode> codes;
    for (const std::uint8_t i :
         game.controls.lbl[static_cast<std::size_t>(X)][static_cast<std::size_t>(Y)].Shown) {
        const PeopleRecord& people = game.record.People[i];
        codes.push_back({WithoutPadding(people.Code), people.Side});
    }
    const bool folds = game.view.sides || game.view.largeCodes;
    return folds && codes.size() > mostBeforeFolding ? Folded(codes) : codes;
}

}  // namespace qarn
