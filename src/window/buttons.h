#pragma once

#include <span>
#include <string_view>

namespace qarn {

struct Button;
struct Controls;
struct Game;

/// One of the window's buttons, those of the terrain key aside. Their caption and state stand in
/// the controls. Every front end makes its buttons from this one table.
struct WindowButton {
    std::string_view Name;
    Button Controls::*State;
    void (*Click)(Game&);
};

/// All of them, in the order in which the Tab key visits them.
std::span<const WindowButton> WindowButtons();

/// The button with this name; null when there is none.
const WindowButton* FindButton(std::string_view name);

}  // namespace qarn
