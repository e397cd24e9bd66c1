#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace qarn {

/// The text with every occurrence of `what` replaced.
inline std::string Replaced(std::string text, const std::string& what, const std::string& with) {
    for (std::size_t at = text.find(what); at != text.npos; at = text.find(what, at)) {
        text.replace(at, what.size(), with);
        at += with.size();
    }
    return text;
}

/// The parts of a text that are separated by "; ".
inline std::vector<std::string> Parts(const std::string& text) {
    std::vector<std::string> parts;
    std::istringstream rest(text);
    for (std::string part; std::getline(rest >> std::ws, part, ';');) parts.push_back(part);
    return parts;
}

/// The lines of a sequence that begin with "> ", each followed by what `play` gives for the rest of
/// it.
template <typename Play>
std::string PlayLines(const std::string& sequence, Play play) {
    std::string transcript;
    std::istringstream lines(sequence);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("> ")) transcript += line + "\n" + play(line.substr(2));
    }
    return transcript;
}

/// Whether the text has the part in it. A test that fails shows both.
inline testing::AssertionResult Has(const std::string& text, std::string_view part) {
    if (text.find(part) != text.npos) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "\"" << part << "\" is not in:\n" << text;
}

/// What an error of this kind, which the action ends with, has to say; nothing when it succeeds.
template <typename Error, typename Action>
std::string ErrorOf(Action action) {
    try {
        action();
        return "";
    } catch (const Error& error) {
        return error.what();
    }
}

}  // namespace qarn
