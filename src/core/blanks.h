#pragma once

#include <string_view>

namespace qarn {

/// The text without the blanks at both its ends. `blanks` are the characters that count as such.
constexpr std::string_view WithoutBlanks(std::string_view text, std::string_view blanks = " ") {
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace qarn
