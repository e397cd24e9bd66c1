#include "window/buttons.h"

#include <algorithm>
#include <array>

#include "core/game.h"
#include "rules/attack_mode.h"
#include "rules/movement.h"
#include "window/board_clicks.h"

namespace qarn {
namespace {

constexpr std::array buttons{
    WindowButton{"cmdDoneSel", &Controls::cmdDoneSel, cmdDoneSel_Click},
    WindowButton{"cmdAttack", &Controls::cmdAttack, cmdAttack_Click},
    WindowButton{"cmdMove", &Controls::cmdMove, cmdMove_Click},
    WindowButton{"cmdSquareDetails", &Controls::cmdSquareDetails, cmdSquareDetails_Click},
};

}  // namespace

std::span<const WindowButton> WindowButtons() { return buttons; }

const WindowButton* FindButton(std::string_view name) {
    const auto found =
        std::find_if(buttons.begin(), buttons.end(),
                     [&](const WindowButton& button) { return button.Name == name; });
    return found == buttons.end() ? nullptr : &*found;
}

}  // namespace qarn
