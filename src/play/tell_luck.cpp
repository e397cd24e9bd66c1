#include <cmath>
#include <iomanip>
#include <sstream>

#include "core/game.h"
#include "play/luck.h"
#include "play/tell_journal.h"

namespace qarn {
namespace {

std::string Tenths(double number) {
    std::ostringstream text;
    text << std::fixed << std::setprecision(1) << number;
    return text.str();
}

std::string Percent(double chance) {
    if (chance < 0.0005) return "less than 0.1 %";
    return Tenths(100 * chance) + " %";
}

std::string TellDifference(const SideLuck& luck) {
    const double difference = luck.Difference();
    if (std::abs(difference) < 0.05) return "as many as could be expected";
    return Tenths(std::abs(difference)) + (difference > 0 ? " more" : " fewer") +
           " than could be expected (" + Tenths(luck.expected) + "). So " +
           (difference > 0 ? "many or more" : "few or fewer") + " come with a chance of " +
           Percent(luck.chance);
}

std::string TellRolls(const SideLuck& luck) {
    std::string text;
    for (std::size_t number = 1; number < luck.rolls.size(); ++number) {
        text += (text.empty() ? "" : ", ") + std::to_string(number) + ": " +
                std::to_string(luck.rolls[number]);
    }
    return text;
}

std::string TellSum(const Luck& luck, const std::string& lucky) {
    if (std::abs(luck.sum) < 0.05) return "All in all the die favoured nobody.";
    return "All in all the die was with " + lucky + " by " + Tenths(std::abs(luck.sum)) +
           (std::abs(luck.sum) < 1.05 && std::abs(luck.sum) >= 0.95 ? " win" : " wins") +
           ". So much luck, or more, comes with a chance of " + Percent(luck.chance) + ".";
}

}  // namespace

std::vector<std::string> TellLuck(const Journal& journal, const Game& game) {
    const Luck luck = LuckOf(journal);
    std::vector<std::string> told;
    for (std::size_t side = 1; side <= 2; ++side) {
        const SideLuck& one = luck.sides[side];
        if (one.attacks == 0) continue;
        const std::string& player = game.record.strPlayerName[side];
        told.push_back(player + " won " + std::to_string(one.wins) + " of " +
                       std::to_string(one.attacks) +
                       (one.attacks == 1 ? " attack, " : " attacks, ") + TellDifference(one) + ".");
        told.push_back("Numbers that " + player + " rolled: " + TellRolls(one) + ".");
    }
    const std::size_t lucky = luck.sum > 0 ? 1 : 2;
    if (!told.empty()) told.push_back(TellSum(luck, game.record.strPlayerName[lucky]));
    return told;
}

}  // namespace qarn
