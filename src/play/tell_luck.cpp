#include <cmath>
#include <iomanip>
#include <sstream>

#include "core/game.h"
#include "play/luck.h"
#include "play/square_text.h"
#include "play/tell_journal.h"

namespace qarn {
namespace {

std::string Tenths(double number) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(1) << number;
    return text.str();
}

// With as many digits as are of interest.
std::string Percent(double chance) {
    if (chance < 0.0005) return "less than 0.1 %";
    return (chance < 0.0995 ? Tenths(100 * chance) : std::to_string(std::lround(100 * chance))) +
           " %";
}

bool IsNothing(double difference) { return std::abs(difference) < 0.05; }

std::string TellWins(const std::string& player, const SideLuck& luck) {
    const double difference = luck.Difference();
    const std::string text = player + " won " + std::to_string(luck.wins) + " of " +
                             std::to_string(luck.attacks) +
                             (luck.attacks == 1 ? " attack, " : " attacks, ");
    if (IsNothing(difference)) return text + "as many as expected.";
    const bool more = difference > 0;
    return text + Tenths(std::abs(difference)) + (more ? " more" : " fewer") +
           " than expected. Chance of so " + (more ? "many or more: " : "few or fewer: ") +
           Percent(luck.chance) + ".";
}

std::string TellRolls(const std::string& player, const SideLuck& luck) {
    std::string text = "Rolls of " + player + ", 1 to " + std::to_string(dieSides) + ": ";
    for (int number = 1; number <= dieSides; ++number) {
        text += (number == 1 ? "" : ", ") +
                std::to_string(luck.rolls.at(static_cast<std::size_t>(number)));
    }
    return text + ".";
}

std::string TellSum(const GameRecord& record, const Luck& luck) {
    if (IsNothing(luck.sum)) return "In all the die was with nobody.";
    const std::string wins = Tenths(std::abs(luck.sum));
    return "In all the die was with " + NameOfSide(record, luck.sum > 0 ? 1 : 2) + " by " + wins +
           (wins == "1.0" ? " win" : " wins") +
           ". Chance of so much luck: " + Percent(luck.chance) + ".";
}

}  // namespace

std::vector<std::string> TellLuck(const Journal& journal, const Game& game) {
    const Luck luck = LuckOf(journal);
    std::vector<std::string> told;
    for (std::uint8_t side = 1; side <= 2; ++side) {
        const SideLuck& one = luck.sides[side];
        if (one.attacks == 0) continue;
        const std::string player = NameOfSide(game.record, side);
        told.push_back(TellWins(player, one));
        told.push_back(TellRolls(player, one));
    }
    if (!told.empty()) told.push_back(TellSum(game.record, luck));
    return told;
}

}  // namespace qarn
