#include "window/keys.h"

#include <algorithm>
#include <array>

namespace qarn {
namespace {

constexpr std::string_view shift = "Shift+";

constexpr std::string_view moves =
    "Move the cursor on the board; from any button, they lead back to the board.";
constexpr std::string_view clicks =
    "Click the square under the cursor, or press the button that has the focus.";
constexpr std::string_view ticks =
    "Tick or untick the box of that number, column by column; 0 is the tenth.";

constexpr std::array keyCommands{
    KeyCommand{"Left", KeyDeed::Left, moves},
    KeyCommand{"Right", KeyDeed::Right, moves},
    KeyCommand{"Up", KeyDeed::Up, moves},
    KeyCommand{"Down", KeyDeed::Down, moves},
    KeyCommand{"Home", KeyDeed::FirstColumn, "Moves the cursor to the first column."},
    KeyCommand{"End", KeyDeed::LastColumn, "Moves the cursor to the last column."},
    KeyCommand{"Space", KeyDeed::ClickSquare, clicks},
    KeyCommand{"Return", KeyDeed::ClickSquare, clicks},
    KeyCommand{"Enter", KeyDeed::ClickSquare, clicks},
    KeyCommand{"N", KeyDeed::NextGroup,
               "Goes to the next group of the side to move that can go somewhere."},
    KeyCommand{"Shift+N", KeyDeed::GroupBefore, "Goes to the one before."},
    KeyCommand{"1", KeyDeed::TickBox, ticks},
    KeyCommand{"2", KeyDeed::TickBox, ticks},
    KeyCommand{"3", KeyDeed::TickBox, ticks},
    KeyCommand{"4", KeyDeed::TickBox, ticks},
    KeyCommand{"5", KeyDeed::TickBox, ticks},
    KeyCommand{"6", KeyDeed::TickBox, ticks},
    KeyCommand{"7", KeyDeed::TickBox, ticks},
    KeyCommand{"8", KeyDeed::TickBox, ticks},
    KeyCommand{"9", KeyDeed::TickBox, ticks},
    KeyCommand{"0", KeyDeed::TickBox, ticks},
    KeyCommand{"Esc", KeyDeed::Escape,
               "Drops a hint, has an opponent that thinks decide at once, or cancels the move or "
               "attack that you have begun."},
    KeyCommand{"Shift", KeyDeed::ShowStrikes,
               "While View, Reach is on and nobody moves: shows all squares at which your enemy "
               "could strike in its next turn."},
};

const KeyCommand* Find(std::string_view key) {
    const auto found = std::find_if(keyCommands.begin(), keyCommands.end(),
                                    [&](const KeyCommand& command) { return command.Key == key; });
    return found == keyCommands.end() ? nullptr : &*found;
}

}  // namespace

std::span<const KeyCommand> KeyCommands() { return keyCommands; }

const KeyCommand* FindKey(std::string_view key) {
    const KeyCommand* exact = Find(key);
    if (exact != nullptr || !key.starts_with(shift)) return exact;
    return Find(key.substr(shift.size()));
}

}  // namespace qarn
