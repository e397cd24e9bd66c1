#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <string_view>

#include "core/game_record.h"

namespace qarn {

/// A code on the board: exactly three characters, padded on the right with blanks.
class BoardCode {
public:
    /// Takes one to three characters; anything else does not compile in constant data.
    constexpr BoardCode(const char* code) {
        const std::string_view text(code);
        if (text.empty() || text.size() > characters_.size()) throw "A code has 1 to 3 characters.";
        std::copy(text.begin(), text.end(), characters_.begin());
        length_ = text.size();
    }

    constexpr std::string_view Padded() const { return {characters_.data(), characters_.size()}; }
    constexpr std::string_view Text() const { return Padded().substr(0, length_); }

private:
    std::array<char, 3> characters_{' ', ' ', ' '};
    std::size_t length_ = 0;
};

/// One roster entry as the scenario's table gives it. Its place in the roster is part of the game
/// file's form.
struct RosterEntry {
    std::string_view Name;
    BoardCode Code;
    std::uint8_t Side = 0;
    std::uint8_t LocationX = 0;
    std::uint8_t LocationY = 0;
    std::uint8_t Mobility = 0;
    std::uint8_t Attack = 0;
    std::uint8_t Defense = 0;
    std::int16_t Ability1 = 0;
    std::int16_t Ability2 = 0;
};

/// A landmark's kind of terrain, and the caption of its row of the terrain key.
struct Landmark {
    std::string_view Caption;
    std::uint8_t Defense = 0;
    std::string_view Comments;
    bool BurnsDown = false;  ///< by whatever attack; the abbey only by the Attack command
};

inline constexpr Landmark gallowrock{"Gallowrock", 3, "1 to move and 3 defense", true};
inline constexpr Landmark castleVennick{"Castle Vennick", 4, "1 to move and 4 defense units"};
inline constexpr Landmark ostrelle{"Ostrelle", 4, "1 to move and 4 defense units"};
inline constexpr Landmark stonemantleFortress{"Stonemantle", 4, "1 to move and 4 for defense"};
inline constexpr Landmark abbey{"Thornmere", 4, "1 to move and 4 for defense"};

/// The landmarks of a scenario.
enum class LandmarkSteps {
    None,
    CastleVennick,
    Abbey,
    Stonemantle,
    Gallowrock,
    StonemantleAndAbbey,
    OstrelleAndAbbey,
};

/// Up to six squares in a fixed order.
class LandmarkSquares {
public:
    constexpr LandmarkSquares() = default;
    constexpr LandmarkSquares(std::initializer_list<Square> squares) : count_(squares.size()) {
        std::copy(squares.begin(), squares.end(), squares_.begin());
    }

    constexpr std::size_t size() const { return count_; }
    constexpr const Square* begin() const { return squares_.data(); }
    constexpr const Square* end() const { return squares_.data() + count_; }

private:
    std::array<Square, 6> squares_{};
    std::size_t count_ = 0;
};

/// The whole starting position of one scenario, and its story.
struct ScenarioData {
    std::array<std::string_view, rowCount> Board;  ///< 18 terrain codes a row, row 1 first
    std::array<RosterEntry, peopleCount> Roster;   ///< groups, then transport pieces
    LandmarkSteps landmarkSteps = LandmarkSteps::None;
    LandmarkSquares landmarkSquares;  ///< those whose terrain a saved game carries, in its order
    std::array<std::uint8_t, 2> PeopleLeft;
    std::array<std::string_view, 2> VictoryText;
    std::string_view Background;  ///< the situation at the start, in one to three sentences
};

constexpr bool IsSoundBoard(const ScenarioData& data) {
    return std::all_of(data.Board.begin(), data.Board.end(), [](std::string_view row) {
        return row.size() == columnCount && row.find_first_not_of("012345678") == row.npos;
    });
}

constexpr bool IsSoundGroup(const RosterEntry& entry) {
    const bool plain = entry.Ability1 == 0 && entry.Ability2 == 0;
    const bool climbs = entry.Ability1 == 961 && entry.Ability2 == 602;
    const bool flies = entry.Ability1 == 811 && entry.Ability2 == 0;
    return entry.Side <= 2 && entry.Mobility > 0 && entry.Attack > 0 && entry.Defense > 0 &&
           (plain || climbs || flies);
}

constexpr bool IsSoundEntry(const RosterEntry& entry) {
    const bool sound = !entry.Name.empty() && IsOnBoard(entry.LocationX, entry.LocationY);
    if (entry.Side != 0) return sound && IsSoundGroup(entry);
    return sound && ((entry.Name == "Boat" && entry.Code.Text() == "BT") ||
                     (entry.Name == "Cart" && entry.Code.Text() == "CT"));
}

/// Groups stand before transport pieces: the recount of the groups left stops at the first of
/// these.
constexpr bool GroupsComeFirst(const ScenarioData& data) {
    return std::is_partitioned(data.Roster.begin(), data.Roster.end(),
                               [](const RosterEntry& entry) { return entry.Side != 0; });
}

constexpr bool CodesAreUnique(const ScenarioData& data) {
    for (const RosterEntry& entry : data.Roster) {
        const auto same = std::count_if(
            data.Roster.begin(), data.Roster.end(),
            [&](const RosterEntry& other) { return other.Code.Text() == entry.Code.Text(); });
        if (same > 1 && entry.Name != "Boat") return false;
    }
    return true;
}

constexpr bool CountsAreRight(const ScenarioData& data) {
    for (std::size_t side = 1; side <= 2; ++side) {
        const auto count =
            std::count_if(data.Roster.begin(), data.Roster.end(),
                          [&](const RosterEntry& entry) { return entry.Side == side; });
        if (count != data.PeopleLeft[side - 1]) return false;
    }
    return true;
}

constexpr bool LandmarksAreRight(const ScenarioData& data) {
    return std::all_of(
        data.landmarkSquares.begin(), data.landmarkSquares.end(), [&](const Square& square) {
            return IsOnBoard(square.X, square.Y) && data.Board[square.Y - 1u][square.X - 1u] >= '7';
        });
}

constexpr bool IsSound(const ScenarioData& data) {
    return IsSoundBoard(data) &&
           std::all_of(data.Roster.begin(), data.Roster.end(), IsSoundEntry) &&
           GroupsComeFirst(data) && CodesAreUnique(data) && CountsAreRight(data) &&
           LandmarksAreRight(data) && !data.VictoryText[0].empty() &&
           !data.VictoryText[1].empty() && !data.Background.empty();
}

}  // namespace qarn
