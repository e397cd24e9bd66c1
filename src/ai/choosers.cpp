#include "ai/choosers.h"

#include <algorithm>
#include <array>

#include "ai/classic/classic_choice.h"
#include "ai/opponents/levels.h"
#include "ai/opponents/random.h"

namespace qarn {
namespace {

constexpr std::array opponents{
    Opponent{"classic", ChooseClassicMove}, Opponent{"scout", ChooseScoutTurn},
    Opponent{"captain", ChooseCaptainTurn}, Opponent{"warlord", ChooseWarlordTurn},
    Opponent{"random", ChooseRandomTurn},
};

}  // namespace

std::span<const Opponent> Opponents() { return opponents; }

const Opponent* FindOpponent(std::string_view name) {
    const auto found = std::find_if(opponents.begin(), opponents.end(),
                                    [&](const Opponent& one) { return one.name == name; });
    return found == opponents.end() ? nullptr : &*found;
}

}  // namespace qarn
