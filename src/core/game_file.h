#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/player_error.h"

namespace qarn {

/// What stopped the reading of a game file; the number stands in the title of the box that reports
/// it.
enum class LoadErrorNumber {
    OutOfRange = 9,
    NotANumber = 13,
    CanNotOpen = 53,
    EndOfFile = 62,
};

/// A game file could not be read. what() says, for people, where and why.
class GameFileError : public PlayerError {
public:
    GameFileError(LoadErrorNumber number, const std::string& description)
        : PlayerError(description), number_(number) {}

    int Number() const { return static_cast<int>(number_); }

private:
    LoadErrorNumber number_;
};

/// A game could not be put into the form of a game file. what() gives the reason.
class SaveError : public PlayerError {
public:
    using PlayerError::PlayerError;
};

/// Walks through the text of a game file, line by line and item by item. Every reading throws
/// GameFileError, naming the line, when the text does not go on or does not hold what is asked for.
class GameFileReader {
public:
    /// Opens a file for reading.
    explicit GameFileReader(const std::string& path);

    /// True once everything has been read.
    bool AtEnd() const { return position_ == text_.size(); }

    /// The rest of the current line, in the code page's bytes; `what` it should be goes into the
    /// error.
    std::string ReadLine(std::string_view what);

    /// The next number, `low` to `high`. An item ends at a comma or at the end of its line; blanks
    /// around it are dropped.
    std::uint8_t ReadNumber(std::string_view what, int low, int high);

private:
    std::string_view Take(std::string_view what, std::string_view ends);
    [[noreturn]] void Fail(LoadErrorNumber number, const std::string& why) const;

    std::string text_;
    std::size_t position_ = 0;
    int nextLine_ = 1;
    int line_ = 1;  // of what was read last
};

/// The first item of a line: up to a comma, without the blanks around it.
std::string_view FirstItem(std::string_view line);

/// One player as the second and third line of a game file hold it.
struct Player {
    std::string strPlayerName;
    bool blnComputer = false;
};

/// The most characters that a player's name may have in a game file.
inline constexpr std::size_t nameLength = 54;

/// True when a player line carries the computer flag behind the name.
inline bool HasComputerFlag(std::string_view line) { return line.size() > nameLength; }

/// Reads a player line with the computer flag: the name without its trailing blanks, and whether
/// the line goes on with "True".
Player ParsePlayerLine(std::string_view line);

/// Builds the text of a game file. Throws SaveError for what the file cannot hold.
class GameFileWriter {
public:
    void WriteText(std::string_view text);
    void WritePlayer(const Player& player);
    void WriteNumber(int number);

    const std::string& Text() const { return text_; }

private:
    std::string text_;
};

/// The four lines of a new game: the scenario's code, both players (side 1 first), and a side to
/// move that is not drawn yet. Throws SaveError for a name that the file cannot hold.
std::string NewGameText(std::string_view code, const std::array<Player, 2>& players);

}  // namespace qarn
