#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string_view>

#include "core/controls.h"
#include "core/file_mark.h"
#include "core/game_record.h"
#include "core/happenings.h"
#include "core/opponents.h"
#include "core/ports.h"
#include "core/view_choices.h"

namespace qarn {

class OpenFile;

/// What an event that fails puts back.
struct GameState {
    GameRecord record;
    Controls controls;
    bool blnOpen = false;

    friend bool operator==(const GameState&, const GameState&) = default;
};

/// How long an opponent takes over each stage of its action: as long as Classic, a third of it, or
/// none at all.
enum class Speed { Second, Third, AtOnce };

/// The game window without its widgets: what is being played, the controls it shows itself with,
/// and the ports it talks through. Handlers take it, read it and change it.
struct Game {
    GameRecord record;
    Controls controls;
    Ports ports;
    Happenings happenings =
        {};  ///< what the event that is under way, or the last one, brought about

    /// Who plays each side while the computer does, by the name in the table of choosers. Stays as
    /// it is when another game is opened.
    std::array<std::string_view, 3> opponent{"", classicOpponent, classicOpponent};

    Speed speed = Speed::Second;  ///< of opponents that answer for themselves
    ViewChoices view = {};        ///< the person's, which no file holds
    bool blnHintWanted = false;   ///< until the front end has it found and shown

    /// What a front end keeps of the game beside its file, which has just been written.
    std::function<void()> afterSave = [] {};

    SeenFile seenFile = {};  ///< the game's file, as this program has read or written it last

    /// While this program keeps the game for a recovery. No other one has the lock meanwhile; null:
    /// another one has it, or nothing can be kept.
    std::shared_ptr<const OpenFile> keeping = nullptr;

    bool blnOpen = false;        ///< a game stands in the window
    bool blnEnded = false;       ///< the program has ended, or would have
    bool blnLeftByOpen = false;  ///< it was closed last for a saved game to be chosen
    int exitStatus = 0;          ///< the program's, once blnEnded

    GameState beforeEvent = {};  ///< kept by RunEvent, which needs no new memory so
};

}  // namespace qarn
