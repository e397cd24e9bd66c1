#pragma once

#include <string>
#include <vector>

#include "core/game.h"
#include "support/fake_ports.h"
#include "support/temp_folder.h"

namespace qarn {

/// The text with every occurrence of `what` replaced.
std::string Replaced(std::string text, const std::string& what, const std::string& with);

/// The text of a saved game in a position, told by words: a scenario's code first (else HM), or
/// "older7" for a file of the older form; then "turn2" (else side 1 is to move), "Q@13,4" for a
/// group, "13,5=1" for a square's terrain. Groups that are not named are off the board; without any
/// named group and terrain, the text is that of a new game whose side to move has been drawn.
std::string SavedGame(const std::string& position);

/// A game that is played through the handlers that a person reaches. Red plays side 1, Blue side 2.
class PlayedGame {
public:
    PlayedGame();
    explicit PlayedGame(const std::string& position) : PlayedGame() { Load(position); }

    /// Opens the game file at `path` with these contents, or as it stands. What was played before
    /// is over.
    void Open(const std::string& contents);
    void Open();

    /// Opens SavedGame(position). Further words change what no file can: "abbey" and "stonemantle"
    /// set these landmarks' kinds of terrain up, "Q.Attack=200" gives a group another strength or
    /// side.
    void Load(const std::string& position);

    /// Carries out the commands of the lines that begin with "> ", which are separated by "; ", and
    /// gives these lines back, each followed by what came of it, as the head of rules/moves.txt
    /// tells. Checks after each line that every square shows what stands on it.
    std::string Play(const std::string& script);

    /// One command: press, tick, untick, menu, saveas, click or close; answer or roll, for boxes
    /// and dice to come; rename side 2's player, or breakdisk, after which nothing can be written.
    /// Gives false for what a person could not do.
    bool Do(const std::string& command);

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
};

}  // namespace qarn
