#pragma once

#include <charconv>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace qarn {

/// A command line that cannot be taken apart, or a command that was refused. what() says why.
class Refusal : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Takes a command line apart at its blanks. A word with blanks in it stands in double quotes, in
/// which \" and \\ stand for the two characters. Throws Refusal when a quote is not closed.
std::vector<std::string> SplitWords(std::string_view line);

/// Reads a word as a whole number from `low` to `high`. Throws Refusal when it is none.
template <typename Number>
Number ParseNumber(const std::string& word, Number low, Number high) {
    Number number{};
    const char* end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number);
    if (error != std::errc() || stop != end || number < low || number > high) {
        throw Refusal("\"" + word + "\" should be a whole number from " + std::to_string(low) +
                      " to " + std::to_string(high) + ".");
    }
    return number;
}

/// The absolute path that a word tells. Throws Refusal for one that no path can be.
std::string ParsePath(const std::string& word);

}  // namespace qarn
