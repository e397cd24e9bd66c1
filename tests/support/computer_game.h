#pragma once

#include <string>

#include "ai/turn_driver.h"
#include "core/board_display.h"
#include "core/turn_cycle.h"
#include "support/played_game.h"

namespace qarn {

/// A game in which the computer plays side 1, and Blue side 2.
class ComputerGame : public PlayedGame {
public:
    explicit ComputerGame(const std::string& position) : PlayedGame(position) {
        game.record.blnComputer[1] = true;
        ShowTurn(game, false);
    }

    void Tick() {
        if (game.controls.tmrAI.Enabled) qarn::Tick(game);
    }

    /// Lets the timer tick while it is enabled in side 1's turn. Gives after each tick where the
    /// highlight is, and the first line of the status.
    std::string TickOn() {
        std::string ticks;
        for (int tick = 0; tick < 40; ++tick) {
            if (!game.controls.tmrAI.Enabled || game.record.bytTurn != 1) break;
            Tick();
            const Marker& highlight = game.controls.shpHighlight;
            if (highlight.Visible) {
                ticks += std::to_string(highlight.Left) + "," + std::to_string(highlight.Top) + " ";
            }
            const std::string& status = game.controls.lblStatus.Caption;
            ticks += status.substr(0, status.find('\n')) + "\n";
        }
        return ticks;
    }

    std::string Square(std::size_t X, std::size_t Y) const {
        return CaptionOfSquare(game, static_cast<int>(X), static_cast<int>(Y));
    }
};

}  // namespace qarn
