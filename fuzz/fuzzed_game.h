#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "console/session.h"
#include "core/position.h"
#include "support/fake_ports.h"
#include "support/temp_folder.h"

namespace qarn {

/// What a fuzzed game runs on: settings and file types in memory, and a folder that one input after
/// the other finds empty.
class FuzzedDesktop {
public:
    FuzzedDesktop();

    std::string operator/(const std::string& name) const;
    DesktopPorts Ports();

private:
    FakeSettings settings_;
    FakeFileTypes fileTypes_;
};

/// What a game file keeps of a game.
struct KeptGame {
    explicit KeptGame(const GameRecord& record);

    Position position;
    std::uint8_t bytScenario;
    std::array<std::uint8_t, 3> bytPeopleLeft;
    std::array<std::string, 3> strPlayerName;
    std::array<bool, 3> blnComputer;

    friend bool operator==(const KeptGame&, const KeptGame&) = default;
};

/// True for the text of a box or a refusal that reports a fault of the program.
bool IsFaultOfProgram(std::string_view text);

/// Carries a command out. Gives true when it was not refused. Whatever came of it must be sound:
/// see RequireSound; and after a refusal everything is as it was, but for a game that was left.
bool Execute(Session& session, const Session::Words& words);

/// In an open game, every group stands on the board or at (0, 0), every square shows who stands on
/// it, and at most one mode is on among persons; no box has reported a fault of the program.
void RequireSound(Session& session);

/// The game as it stands, saved and loaded again, is the same.
void RequireSameAfterReload(const Game& game, FuzzedDesktop& desktop);

}  // namespace qarn
