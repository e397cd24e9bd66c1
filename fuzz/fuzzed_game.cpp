#include "fuzzed_game.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "console/words.h"
#include "core/game_file.h"
#include "core/position.h"
#include "target.h"
#include "window/load_game.h"
#include "window/save_game.h"

namespace qarn {
namespace {

const TempFolder& Folder() {
    static const TempFolder folder;
    return folder;
}

GameState StateOf(const Game& game) { return {game.record, game.controls, game.blnOpen}; }

bool HasComputer(const GameRecord& record) {
    return record.blnComputer[1] || record.blnComputer[2];
}

// A game that is left for another is saved and closed before that one turns out to be none.
bool LeavesGame(const Session::Words& words) { return words[0] == "new" || words[0] == "open"; }

void RequireBoardShown(const Game& game) {
    std::array<std::array<PeopleSet, rowCount + 1>, columnCount + 1> stand{};
    for (std::uint8_t i = 1; i <= peopleCount; ++i) {
        const PeopleRecord& people = game.record.People[i];
        if (OnBoard(people)) stand[people.LocationX][people.LocationY].Add(i);
    }
    const auto showsThem = [](const SquareLabel& label, PeopleSet people) {
        return label.Shown == people;
    };
    for (std::size_t X = 1; X <= columnCount; ++X) {
        Require(std::equal(game.controls.lbl[X].begin() + 1, game.controls.lbl[X].end(),
                           stand[X].begin() + 1, showsThem),
                "every square shows who stands on it");
    }
}

}  // namespace

bool IsFaultOfProgram(std::string_view text) { return text.starts_with("Internal error in "); }

FuzzedDesktop::FuzzedDesktop() {
    for (const auto& entry : std::filesystem::directory_iterator(Folder().Path())) {
        std::filesystem::remove_all(entry.path());
    }
}

std::string FuzzedDesktop::operator/(const std::string& name) const { return Folder() / name; }

DesktopPorts FuzzedDesktop::Ports() {
    return {settings_, fileTypes_, {*this / "program", *this / "data"}};
}

KeptGame::KeptGame(const GameRecord& record)
    : position(PositionOf(record)),
      bytScenario(record.bytScenario),
      bytPeopleLeft(record.bytPeopleLeft),
      strPlayerName(record.strPlayerName),
      blnComputer(record.blnComputer) {}

bool Execute(Session& session, const Session::Words& words) {
    const GameState before = StateOf(session.CurrentGame());
    try {
        session.Execute(words);
        RequireSound(session);
        return true;
    } catch (const Refusal& refusal) {
        Require(!IsFaultOfProgram(refusal.what()), refusal.what());
        Require(LeavesGame(words) || StateOf(session.CurrentGame()) == before,
                "a refusal changes nothing");
        RequireSound(session);
        return false;
    }
}

void RequireSound(Session& session) {
    for (const ShownBox& shown : session.Dialogs().TakeShown()) {
        Require(!IsFaultOfProgram(shown.box.Text), shown.box.Text.c_str());
    }
    const Game& game = session.CurrentGame();
    if (!game.blnOpen) return;
    const GameRecord& record = game.record;
    for (std::size_t i = 1; i <= peopleCount; ++i) {
        const Square square = SquareOf(record.People[i]);
        Require(square == Square{} || IsOnBoard(square.X, square.Y),
                "every group stands on the board or at (0, 0)");
    }
    RequireBoardShown(game);
    // An attack that a person begins in Classic's turn goes on beside Classic's moves.
    Require(!(record.blnMoveMode && record.blnAttackMode) || HasComputer(record),
            "at most one mode is on");
}

void RequireSameAfterReload(const Game& game, FuzzedDesktop& desktop) {
    if (!game.blnOpen || !IsKnownScenario(game.record)) return;
    const std::string path = desktop / "reloaded.tgf";
    try {
        WriteFile(path, GameText(game.record));
    } catch (const SaveError&) {
        return;  // a name that a file may hold, but no save: too long, or with half a line end
    }
    Session session(desktop.Ports());
    Require(Execute(session, {"open", path}) && session.CurrentGame().blnOpen,
            "a saved game can be loaded");
    Require(KeptGame(session.CurrentGame().record) == KeptGame(game.record),
            "a game is the same after a save and a reload");
}

}  // namespace qarn
