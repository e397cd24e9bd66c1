#pragma once

#include <algorithm>
#include <array>
#include <string_view>

namespace qarn {

/// Someone who plays the computer's sides, as a person chooses it.
struct OpponentChoice {
    std::string_view Name;         ///< in commands, settings and files
    std::string_view Caption;      ///< in menus, with its access key
    std::string_view Expectation;  ///< what to expect of it, in a sentence
};

/// All that a person can choose, the one that plays where nobody has chosen first.
inline constexpr std::array opponentChoices{
    OpponentChoice{"classic", "&Classic",
                   "Attacks where it is much stronger, and often finds no good move. You answer "
                   "its questions."},
    OpponentChoice{"scout", "&Scout",
                   "Sees one turn ahead, and errs now and then as a beginner does."},
    OpponentChoice{
        "captain", "Ca&ptain",
        "Sees your best answers to its better turns, and reckons that you miss half of them."},
    OpponentChoice{"warlord", "&Warlord",
                   "Looks at more turns than Captain, and a turn further, and takes its time."},
};

inline constexpr std::string_view classicOpponent = opponentChoices.front().Name;

/// The choice with this name; null when there is none.
constexpr const OpponentChoice* FindOpponentChoice(std::string_view name) {
    const auto found = std::find_if(opponentChoices.begin(), opponentChoices.end(),
                                    [&](const OpponentChoice& one) { return one.Name == name; });
    return found == opponentChoices.end() ? nullptr : &*found;
}

/// True for an opponent that answers the boxes of its turn itself, and that a person waits for.
constexpr bool AnswersItself(std::string_view name) { return name != classicOpponent; }

}  // namespace qarn
