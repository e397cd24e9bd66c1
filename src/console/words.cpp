#include "console/words.h"

#include <filesystem>
#include <system_error>

namespace qarn {
namespace {

constexpr std::string_view blanks = " \t\r";

// Reads the rest of a quoted word, of which the opening quote has been passed.
std::string TakeQuoted(std::string_view& line) {
    std::string word;
    while (!line.empty()) {
        char character = line.front();
        line.remove_prefix(1);
        if (character == '"') return word;
        const bool escapes =
            character == '\\' && !line.empty() && (line.front() == '"' || line.front() == '\\');
        if (escapes) {
            character = line.front();
            line.remove_prefix(1);
        }
        word += character;
    }
    throw Refusal("A word in double quotes is not closed.");
}

std::string TakeWord(std::string_view& line) {
    if (line.front() == '"') {
        line.remove_prefix(1);
        return TakeQuoted(line);
    }
    const std::string_view word = line.substr(0, line.find_first_of(blanks));
    line.remove_prefix(word.size());
    return std::string(word);
}

}  // namespace

std::vector<std::string> SplitWords(std::string_view line) {
    std::vector<std::string> words;
    for (;;) {
        const std::size_t begin = line.find_first_not_of(blanks);
        if (begin == std::string_view::npos) return words;
        line.remove_prefix(begin);
        words.push_back(TakeWord(line));
    }
}

std::string ParsePath(const std::string& word) {
    if (word.empty()) throw Refusal("The path is empty.");
    if (word.find('\0') != std::string::npos) {
        throw Refusal("The path holds a character that no path can hold.");
    }
    std::error_code error;
    const std::filesystem::path absolute = std::filesystem::absolute(word, error);
    if (error) throw Refusal("The working folder can not be found: " + error.message() + ".");
    return absolute.string();
}

}  // namespace qarn
