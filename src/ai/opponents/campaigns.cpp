#include "ai/opponents/campaigns.h"

#include <algorithm>
#include <cmath>

#include "ai/opponents/features.h"

namespace qarn {
namespace {

constexpr float keptEachTurn = 0.9F;
constexpr int longestCampaign = 20;  // turns

float Delayed(float worth, int turns) {
    return turns > longestCampaign ? 0 : worth * std::pow(keptEachTurn, static_cast<float>(turns));
}

}  // namespace

float CampaignOf(const Armies& armies, std::uint8_t side, const Distances& distances) {
    const Army& own = armies.OfSide(side);
    const Army& enemy = armies.OfSide(OtherSide(side));
    float best = 0;
    for (const Stack& prey : enemy) {
        if (prey.shared) continue;
        std::size_t k = 0;
        for (const Stack& stack : own) {
            const Team& team = own.TeamOf(k++);
            const int way = TurnsTo(stack, prey.square, stack.mobility, distances);
            const int teamsWay = TurnsTo(stack, prey.square, team.mobility, distances);
            best = std::max(
                {best, Delayed(WorthOfStrike(stack.attack, stack.weakest, prey), way),
                 Delayed(WorthOfStrike(team.attack, stack.weakest, prey), team.turns + teamsWay)});
        }
    }
    return best / static_cast<float>(own.Strength() + enemy.Strength() + 1);
}

}  // namespace qarn
