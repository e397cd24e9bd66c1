#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/happenings.h"
#include "core/house_rules.h"
#include "core/ports.h"

namespace qarn {

struct Game;

/// A turn began.
struct TurnBegun {
    std::uint8_t side = 0;
    std::string_view opponent = {};  ///< who plays it, by name; empty: a person

    friend bool operator==(const TurnBegun&, const TurnBegun&) = default;
};

/// An attack, and who met in it on what terrain, transport pieces included.
struct Fight {
    Attacked attack = {};
    std::uint8_t terrain = 0;  ///< of the attacked square, before it
    PeopleSet attackers = {};
    PeopleSet defenders = {};

    friend bool operator==(const Fight&, const Fight&) = default;
};

/// What was told of an opponent while it acted.
struct Said {
    std::string text;

    friend bool operator==(const Said&, const Said&) = default;
};

/// The house rules are these from now on.
using RulesChosen = HouseRules;

using JournalEntry =
    std::variant<TurnBegun, Moved, Fight, Lost, Burned, Returned, Ended, RulesChosen, Said>;

/// The story of a game as plain data, in the order in which it came about. To take something back,
/// `entries` is cut to the size that it had before.
struct Journal {
    std::vector<JournalEntry> entries = {};

    friend bool operator==(const Journal&, const Journal&) = default;
};

/// Adds what the event brought about that RunEvent has just run. What was said during the event
/// stands there already.
void AddEvent(Journal& journal, const Game& game);

/// Adds the house rules when they are others than those that it told last.
void NoteRules(Journal& journal, const HouseRules& rules);

/// Adds what an opponent, by its name, has been asked and has answered.
void NoteSaid(Journal& journal, std::string_view opponent, const MessageBox& box, Answer answer);

/// What is told where Classic, which alone finds none, has found no move.
const Said& NoMoveFound();

/// Adds that, unless it was told last.
void NoteNoMove(Journal& journal);

/// How many turns of both sides it tells of.
int TurnsOf(const Journal& journal);

}  // namespace qarn
