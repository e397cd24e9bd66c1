#pragma once

#include <string>
#include <vector>

#include "core/game.h"
#include "core/position.h"
#include "play/turn_history.h"
#include "support/facts.h"
#include "support/fake_ports.h"
#include "support/saved_game.h"
#include "support/temp_folder.h"

namespace qarn {

/// A game that is played through the handlers that a person reaches. Red plays side 1, Blue side 2.
class PlayedGame {
public:
    PlayedGame();
    explicit PlayedGame(const std::string& position) : PlayedGame() { Load(position); }

    /// Opens the game file at `path` with these contents, or as it stands. What was played before
    /// is over.
    void Open(const std::string& contents);
    void Open();

    /// Opens SavedGame(position) and changes what no file can, see PositionWords.
    void Load(const std::string& position);

    /// Carries out the commands of the lines that begin with "> ", which are separated by "; ", and
    /// gives these lines back, each followed by what came of it, as the head of rules/moves.txt
    /// explains. Checks after each line that every square shows what stands on it, unless the file
    /// could not be opened.
    std::string Play(const std::string& script);

    /// One command: press, tick, untick, menu, saveas, click or close; answer, roll or type, for
    /// boxes, dice and prompts to come; timer, for so many ticks of the computer's timer, unless it
    /// stops before; still, as if nothing had come about for so many turns; reopen; write or erase,
    /// as another program does with a file; line, for another text of a line of the game's file;
    /// rename side 2's player, or breakdisk, after which nothing can be written.
    /// Gives false for what a person could not do.
    bool Do(const std::string& command);
    /// Some of them, separated by "; ", that a person can do.
    void DoAll(const std::string& commands);

    void ExpectBoardShown() const;

    TempFolder folder;
    std::string path = folder / "game.tgf";
    FakeDialogs dialogs;
    std::vector<std::string> statuses;  ///< the status line under each box
    FakeRandomNumbers random;
    FakeHelp help;
    FakeSettings settings;
    FakeFileTypes fileTypes;
    Game game{
        .record = {}, .controls = {}, .ports = {dialogs, random, help, settings, fileTypes, {}}};
    TurnHistory history;
};

/// Where everybody stands in Load(position).
inline Position PositionIn(const std::string& position) {
    return PositionOf(PlayedGame(position).game.record);
}

}  // namespace qarn
