#include "core/game_file.h"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "core/blanks.h"
#include "core/code_page.h"
#include "core/file_store.h"

namespace qarn {
namespace {

constexpr std::string_view lineEnds = "\r\n";
constexpr std::string_view itemBlanks = " \t";

std::string ReadForLoading(const std::string& path) {
    try {
        return ReadWholeFile(path);
    } catch (const std::system_error& error) {
        throw GameFileError(LoadErrorNumber::CanNotOpen,
                            "The file can not be read: " + error.code().message() + ".");
    }
}

}  // namespace

GameFileReader::GameFileReader(const std::string& path) : text_(ReadForLoading(path)) {}

std::string GameFileReader::ReadLine(std::string_view what) {
    return std::string(Take(what, lineEnds));
}

std::uint8_t GameFileReader::ReadNumber(std::string_view what, int low, int high) {
    const std::string item(WithoutBlanks(Take(what, ",\r\n"), itemBlanks));
    int number = 0;
    const auto [end, error] = std::from_chars(item.data(), item.data() + item.size(), number);
    const bool whole = end == item.data() + item.size() && !item.empty();
    if (!whole || error == std::errc::invalid_argument) {
        Fail(LoadErrorNumber::NotANumber,
             std::string(what) + " should be a number, but is \"" + DecodeCodePage(item) + "\".");
    }
    if (error == std::errc::result_out_of_range || number < low || number > high) {
        Fail(LoadErrorNumber::OutOfRange, std::string(what) + " should be " + std::to_string(low) +
                                              " to " + std::to_string(high) + ", but is " + item +
                                              ".");
    }
    return static_cast<std::uint8_t>(number);
}

std::string_view GameFileReader::Take(std::string_view what, std::string_view ends) {
    line_ = nextLine_;
    if (AtEnd()) {
        Fail(LoadErrorNumber::EndOfFile, "the file ends before " + std::string(what) + ".");
    }
    const std::size_t begin = position_;
    position_ = std::min(text_.find_first_of(ends, begin), text_.size());
    const std::string_view taken = std::string_view(text_).substr(begin, position_ - begin);
    if (!AtEnd() && text_[position_] == ',') {
        ++position_;
        return taken;
    }
    if (text_.compare(position_, 2, "\r\n") == 0) ++position_;
    if (!AtEnd()) ++position_;
    ++nextLine_;
    return taken;
}

void GameFileReader::Fail(LoadErrorNumber number, const std::string& why) const {
    throw GameFileError(number, "Line " + std::to_string(line_) + ": " + why);
}

std::string_view FirstItem(std::string_view line) {
    return WithoutBlanks(line.substr(0, line.find(',')), itemBlanks);
}

Player ParsePlayerLine(std::string_view line) {
    const std::string_view name = line.substr(0, nameLength);
    const std::size_t end = name.find_last_not_of(' ') + 1;
    return {.strPlayerName = DecodeCodePage(name.substr(0, end)),
            .blnComputer = HasComputerFlag(line) && line.substr(nameLength) == "True"};
}

void GameFileWriter::WriteText(std::string_view text) {
    text_ += text;
    text_ += lineEnds;
}

void GameFileWriter::WritePlayer(const Player& player) {
    std::string name;
    try {
        name = EncodeCodePage(player.strPlayerName);
    } catch (const CodePageError& error) {
        throw SaveError("A player's name can not be stored. " + std::string(error.what()));
    }
    if (name.size() > nameLength) {
        throw SaveError("The name \"" + player.strPlayerName + "\" is longer than " +
                        std::to_string(nameLength) + " characters.");
    }
    if (name.find_first_of(lineEnds) != std::string::npos) {
        throw SaveError("A player's name can not hold a line break.");
    }
    name.resize(nameLength, ' ');
    WriteText(name + (player.blnComputer ? "True" : "False"));
}

void GameFileWriter::WriteNumber(int number) {
    constexpr char placeOfTheSign = ' ';
    WriteText(std::string(1, placeOfTheSign).append(std::to_string(number)).append(" "));
}

std::string NewGameText(std::string_view code, const std::array<Player, 2>& players) {
    GameFileWriter file;
    file.WriteText(code);
    for (const Player& player : players) file.WritePlayer(player);
    file.WriteNumber(0);
    return file.Text();
}

}  // namespace qarn
