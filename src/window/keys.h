#pragma once

#include <span>
#include <string_view>

namespace qarn {

/// What a key does in the game window, beside the shortcuts of the menus and the buttons.
enum class KeyDeed {
    Left,
    Right,
    Up,
    Down,
    FirstColumn,
    LastColumn,
    ClickSquare,
    NextGroup,
    GroupBefore,
    TickBox,  ///< of the number on the key; 0 stands for 10
    Escape,
    ShowStrikes,  ///< while it is held
};

struct KeyCommand {
    std::string_view Key;  ///< as "Shift+N"
    KeyDeed Deed;
    std::string_view Told;  ///< what it does, for the help; the same for keys told of together
};

/// All such keys. The window obeys this one table, and the help is made from it.
std::span<const KeyCommand> KeyCommands();

/// What does so when this key is pressed; null when nothing does. Shift alone makes no difference
/// where the table does not tell of it.
const KeyCommand* FindKey(std::string_view key);

}  // namespace qarn
